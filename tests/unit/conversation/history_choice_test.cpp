// What of conversations is kept, and whether.
#include "conversation/history_choice.h"

#include "copy.h"

#include "base/limits.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A copy with Ann, who is online, and her private window.
class HistoryChoiceTest : public testing::Test
{
protected:
    explicit HistoryChoiceTest(const char *stored = "")
        : copy({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}},
                .settings = {{"Options/KeepHistory", QLatin1String(stored)}}})
    {
        copy.settleStart({"10.0.0.2", "10.0.0.3"});
        copy.engine.contactCommands().mnuPrivateChat(QStringLiteral("10.0.0.2"));
    }
    HistoryChoice &choice() { return copy.engine.history(); }
    void say(const QString &text) { ASSERT_TRUE(copy.window(1).chat.send(text)); }
    std::vector<std::string> kept() const
    {
        std::vector<std::string> texts;
        for (const QString &text : copy.history.texts())
            texts.push_back(text.toStdString());
        return texts;
    }

    Copy copy;
};

class KeptForAYear : public HistoryChoiceTest
{
protected:
    KeptForAYear() : HistoryChoiceTest("year") { }
};

class NothingKept : public HistoryChoiceTest
{
protected:
    NothingKept() : HistoryChoiceTest("no") { }
};

TEST_F(HistoryChoiceTest, NothingIsKeptUntilTheUserHasSaidSo)
{
    copy.arrive("10.0.0.2", "-hello");
    say(QStringLiteral("hi"));
    EXPECT_TRUE(choice().isToBeAsked());
    EXPECT_THAT(copy.history.kept, IsEmpty());
}

TEST_F(HistoryChoiceTest, TheConversationInWhichHeIsAskedIsKeptWhole)
{
    copy.arrive("10.0.0.2", "-hello");
    say(QStringLiteral("hi"));
    choice().choose(KeepHistory::ever);
    say(QStringLiteral("later"));
    EXPECT_THAT(kept(), ElementsAre("hello", "hi", "later"));
    EXPECT_FALSE(choice().isToBeAsked());
}

TEST_F(HistoryChoiceTest, WhatWaitedForHisAnswerIsForgottenWhenHeSaysNo)
{
    say(QStringLiteral("hi"));
    choice().choose(KeepHistory::no);
    say(QStringLiteral("more"));
    choice().choose(KeepHistory::ever);
    say(QStringLiteral("last"));
    EXPECT_THAT(kept(), ElementsAre("last"));
}

TEST_F(HistoryChoiceTest, WhatWasClearedBeforeHisAnswerIsNotKept)
{
    say(QStringLiteral("not for ever"));
    copy.window(1).chat.Clearbtn_Click();
    say(QStringLiteral("this"));
    choice().choose(KeepHistory::ever);
    EXPECT_THAT(kept(), ElementsAre("this"));
}

TEST_F(HistoryChoiceTest, NoMoreThanALimitWaits)
{
    for (std::size_t i = 0; i < limits::historyUndecided + 10; ++i)
        choice().said({.address = QStringLiteral("10.0.0.2")}, {.time = {}, .text = QString::number(i)});
    choice().choose(KeepHistory::ever);
    EXPECT_THAT(copy.history.kept, SizeIs(limits::historyUndecided));
    EXPECT_EQ(copy.history.kept.front().second.text, QStringLiteral("10"));
}

TEST_F(HistoryChoiceTest, TheAnswerIsStoredLikeAnyOption)
{
    choice().choose(KeepHistory::year);
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.read(QStringLiteral("Options"), QStringLiteral("KeepHistory"), {}), QStringLiteral("year"));
}

TEST_F(NothingKept, NothingIsKeptAndNobodyAsked)
{
    copy.arrive("10.0.0.2", "-hello");
    EXPECT_FALSE(choice().isToBeAsked());
    EXPECT_THAT(copy.history.kept, IsEmpty());
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.read(QStringLiteral("Options"), QStringLiteral("KeepHistory"), {}), QStringLiteral("no"));
}

TEST_F(KeptForAYear, AMessageIsKeptWithAllThatIsKnownOfIt)
{
    copy.arrive("10.0.0.2", "-hello");
    ASSERT_THAT(copy.history.kept, SizeIs(1));
    const auto &[conversation, message] = copy.history.kept.front();
    EXPECT_EQ(conversation.kind, KeptConversation::Kind::contact);
    EXPECT_EQ(conversation.address, QStringLiteral("10.0.0.2"));
    EXPECT_EQ(conversation.name, QStringLiteral("Ann"));
    EXPECT_FALSE(message.isOwn);
    EXPECT_EQ(message.address, QStringLiteral("10.0.0.2"));
    EXPECT_EQ(message.writer, QStringLiteral("Ann"));
    EXPECT_EQ(message.time, copy.time->now());

    say(QStringLiteral("hi"));
    const KeptMessage &own = copy.history.kept.back().second;
    EXPECT_TRUE(own.isOwn);
    EXPECT_EQ(own.address, QStringLiteral("10.0.0.1"));
    EXPECT_EQ(own.writer, QStringLiteral("Me"));
    EXPECT_EQ(own.workstation, QStringLiteral("HERE"));
}

TEST_F(KeptForAYear, NeitherLiveTextNorPresenceNorBuzzesAreKept)
{
    for (const char *const datagram :
         {"!TYPING", "!LIVETYPE I am", "?ONLINE 10.0.0.2 PC Ann", "!STATUS AWAY", "!BUZZ", "garbage"})
        copy.arrive("10.0.0.2", datagram);
    EXPECT_THAT(copy.history.kept, IsEmpty());
}

TEST_F(KeptForAYear, AContactThatIsLeftOutIsNotKept)
{
    choice().leaveOut(QStringLiteral("10.0.0.2"), true);
    say(QStringLiteral("between us"));
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(kept(), ElementsAre("hello"));
    choice().leaveOut(QStringLiteral("10.0.0.2"), false);
    say(QStringLiteral("again"));
    EXPECT_THAT(kept(), ElementsAre("hello", "again"));
    EXPECT_THAT(copy.common.history.leftOut, IsEmpty());
}

TEST_F(KeptForAYear, WhatIsOlderGoes)
{
    choice().removeOld();
    EXPECT_THAT(copy.history.erasedBefore, ElementsAre(copy.time->now().addYears(-1)));
    choice().choose(KeepHistory::ever);
    choice().removeOld();
    EXPECT_THAT(copy.history.erasedBefore, SizeIs(1));
}

TEST_F(KeptForAYear, AWindowOpensWithWhatWasKeptLast)
{
    for (int i = 0; i < 60; ++i)
        copy.history.keep({.address = QStringLiteral("10.0.0.3")}, {.time = {}, .text = QString::number(i)});
    copy.arrive("10.0.0.3", "-the newest");
    const RecorderPrivateView &window = copy.window(2);
    ASSERT_THAT(window.earlier, SizeIs(50));
    EXPECT_EQ(window.earlier.front().message.text, QStringLiteral("10"));
    EXPECT_EQ(window.earlier.back().message.text, QStringLiteral("59"));
    copy.window(2).chat.showEarlier();
    ASSERT_THAT(window.earlier, SizeIs(60));
    EXPECT_EQ(window.earlier.front().message.text, QStringLiteral("0"));
    copy.window(2).chat.showEarlier();
    EXPECT_THAT(window.earlier, SizeIs(60));
}

TEST_F(NothingKept, AWindowShowsNothingOfBefore)
{
    copy.history.keep({.address = QStringLiteral("10.0.0.3")}, {.time = {}, .text = QStringLiteral("old")});
    copy.arrive("10.0.0.3", "-new");
    EXPECT_THAT(copy.window(2).earlier, IsEmpty());
}

} // namespace
} // namespace nimb::test
