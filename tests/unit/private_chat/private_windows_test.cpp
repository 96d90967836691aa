#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// The user closes the window by its close box.
void closeBox(RecorderPrivateView &window)
{
    if (window.chat.Form_QueryUnload(UnloadMode::closeBox) == CloseDecision::unload)
        window.chat.closed();
    else
        window.hideWindow();
}

class PrivateWindowsTest : public testing::Test
{
protected:
    PrivateWindowsTest() { copy.settleStart({"10.0.0.2", "10.0.0.3"}); }

    void close(std::size_t number) { closeBox(copy.window(number)); }
    void open(const char *ip) { copy.engine.contactCommands().mnuPrivateChat(QLatin1String(ip)); }
    std::size_t made() const { return copy.privateForms.views.size(); }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}}};
};

TEST_F(PrivateWindowsTest, AMessageMakesAWindowForItsSender)
{
    copy.arrive("10.0.0.3", "-hello");
    ASSERT_EQ(made(), 1u);
    EXPECT_EQ(copy.window(1).caption, QStringLiteral("Ben - NIMB-Chat - Private Chat Window"));
    EXPECT_EQ(copy.window(1).peer, QStringLiteral("10.0.0.3"));
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 1);
    EXPECT_EQ(copy.contact("10.0.0.2").privateWindow, 0);
    EXPECT_EQ(copy.window(1).log.lastLine(), "Ben> hello");
    EXPECT_EQ(copy.window(1).log.lines().size(), 2u);
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.3", "?AVATARHEAD"}));
}

TEST_F(PrivateWindowsTest, ADraftSurvivesItsWindow)
{
    copy.common.options.closedWindowsGo = true;
    open("10.0.0.2");
    copy.window(1).typed = QStringLiteral("See you at");
    close(1);
    open("10.0.0.3");
    EXPECT_EQ(copy.window(2).typed, QString());
    open("10.0.0.2");
    EXPECT_EQ(copy.window(3).typed, QStringLiteral("See you at"));
    copy.window(3).typed.clear();
    close(3);
    open("10.0.0.2");
    EXPECT_EQ(copy.window(4).typed, QString());
}

TEST_F(PrivateWindowsTest, ADraftToARemovedContactIsForgotten)
{
    copy.common.options.closedWindowsGo = true;
    open("10.0.0.2");
    copy.window(1).typed = QStringLiteral("See you at");
    close(1);
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.2"));
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    open("10.0.0.2");
    EXPECT_EQ(copy.window(2).typed, QString());
}

TEST_F(PrivateWindowsTest, WhoIsInvisibleAsksForAnAvatarOnlyWhenTheUserOpensTheWindow)
{
    copy.engine.ownState().choose(4);
    copy.sent();
    copy.arrive("10.0.0.3", "-are you there?");
    EXPECT_EQ(copy.window(1).log.lastLine(), "Ben> are you there?");
    EXPECT_THAT(copy.sent(), IsEmpty());
    open("10.0.0.2");
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "?AVATARHEAD"}));
}

TEST_F(PrivateWindowsTest, ContactsWithTextsInPlaceOfAddressesHaveWindowsOfTheirOwnAndFindThemAgain)
{
    const auto add = [this](const char *place) {
        Contact contact;
        contact.ip = QString::fromLatin1(place);
        contact.nickname = contact.ip.text();
        contact.setPresence(Presence::offline);
        copy.engine.contacts().add(std::move(contact));
    };
    add("here");
    add("there");
    open("here");
    open("there");
    ASSERT_EQ(made(), 2u);
    EXPECT_EQ(copy.window(1).peer, QStringLiteral("here"));
    EXPECT_EQ(copy.window(2).peer, QStringLiteral("there"));
    EXPECT_TRUE(copy.window(2).chat.send(QStringLiteral("hello")));
    EXPECT_THAT(copy.sent(), IsEmpty()) << "nothing can be sent there";

    copy.engine.contacts().remove(QStringLiteral("there"));
    copy.engine.privateWindows().contactRemoved(QStringLiteral("there"));
    add("there");
    open("there");
    EXPECT_EQ(made(), 2u);
    EXPECT_EQ(copy.contact("there").privateWindow, 2);
}

TEST_F(PrivateWindowsTest, TheOptionDecidesHowAPeersWindowIsShown)
{
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::minimised));
    copy.common.options.privateWindowsOnTop = true;
    copy.arrive("10.0.0.2", "-hello");
    EXPECT_THAT(copy.window(2).shows, ElementsAre(ShowMode::onTop));
}

TEST_F(PrivateWindowsTest, AWindowThatIsSeenStaysAsItIs)
{
    open("10.0.0.3");
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::active));
    EXPECT_EQ(made(), 1u);
}

TEST_F(PrivateWindowsTest, AHiddenWindowIsShownAgainAsTheOptionSays)
{
    open("10.0.0.3");
    close(1);
    EXPECT_TRUE(copy.window(1).hidden);
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::active, ShowMode::minimised));
}

TEST_F(PrivateWindowsTest, TheUserOpensAWindowNormalAndActiveAndFindsItAgain)
{
    open("10.0.0.2");
    open("10.0.0.2");
    EXPECT_EQ(made(), 1u);
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::active, ShowMode::active));
}

TEST_F(PrivateWindowsTest, AHiddenWindowKeepsItsLog)
{
    copy.arrive("10.0.0.3", "-one");
    close(1);
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 1);
    copy.arrive("10.0.0.3", "-two");
    EXPECT_EQ(made(), 1u);
    EXPECT_EQ(copy.window(1).log.lines().size(), 3u);
}

TEST_F(PrivateWindowsTest, AnUnloadedWindowIsGoneAndTheNextMessageOpensAFreshOne)
{
    copy.common.options.closedWindowsGo = true;
    copy.arrive("10.0.0.3", "-one");
    close(1);
    EXPECT_TRUE(copy.window(1).gone);
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 0);
    copy.arrive("10.0.0.3", "-two");
    ASSERT_EQ(made(), 2u);
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 2);
    EXPECT_EQ(copy.window(2).log.lines().size(), 2u);
    EXPECT_THAT(copy.window(2).log.lines().front(), testing::HasSubstr("Ready"));
}

TEST_F(PrivateWindowsTest, ARemovedContactsVisibleWindowIsFoundAgainWhenItReturns)
{
    open("10.0.0.3");
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.3"));
    EXPECT_FALSE(copy.window(1).gone);
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Ben");
    copy.arrive("10.0.0.3", "-back");
    EXPECT_EQ(made(), 1u);
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 1);
    EXPECT_EQ(copy.window(1).log.lastLine(), "Ben> back");
}

TEST_F(PrivateWindowsTest, ARemovedContactsHiddenWindowIsUnloaded)
{
    open("10.0.0.3");
    close(1);
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.3"));
    EXPECT_TRUE(copy.window(1).gone);
    EXPECT_EQ(copy.engine.privateWindows().at(1), nullptr);
}

TEST_F(PrivateWindowsTest, ClosingAWindowOfARemovedContactHarmsNobody)
{
    copy.common.options.closedWindowsGo = true;
    open("10.0.0.3");
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.3"));
    close(1);
    EXPECT_TRUE(copy.window(1).gone);
}

TEST(PrivateWindowsWithoutPort, WhatCannotBeSentStandsInTheOwnLogAllTheSame)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}, .portTaken = true});
    copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
    EXPECT_TRUE(copy.window(1).chat.send(QStringLiteral("hello")));
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_EQ(copy.window(1).log.lastLine(), "Me> hello");
}

TEST_F(PrivateWindowsTest, TheSenderIsNamedAsItsRowIsAtThatMoment)
{
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Benjamin");
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_EQ(copy.window(1).log.lastLine(), "Benjamin> hello");
}

TEST_F(PrivateWindowsTest, MessagesThatNobodySeesAreCountedAtTheRowUntilTheyAreSeen)
{
    copy.arrive("10.0.0.2", "-one");
    copy.arrive("10.0.0.2", "-two");
    EXPECT_EQ(copy.contact("10.0.0.2").unread(), 2);
    EXPECT_EQ(copy.contact("10.0.0.2").lastMessage, copy.time->now());
    copy.window(1).inBackground = false;
    copy.window(1).chat.endSeen();
    EXPECT_EQ(copy.contact("10.0.0.2").unread(), 0);
    copy.arrive("10.0.0.2", "-three");
    EXPECT_EQ(copy.contact("10.0.0.2").unread(), 0) << "it is seen as it comes";
    copy.window(1).atEnd = false;
    copy.arrive("10.0.0.2", "-four");
    EXPECT_EQ(copy.contact("10.0.0.2").unread(), 1) << "the reader is further up";
}

TEST_F(PrivateWindowsTest, WhatIsNewIsMarkedWhereReadingStopped)
{
    copy.arrive("10.0.0.2", "-one");
    const std::optional<qsizetype> first = copy.window(1).log.newFrom;
    ASSERT_TRUE(first);
    EXPECT_TRUE(copy.window(1).log.text().mid(*first).startsWith(QStringLiteral("Ann")))
        << copy.window(1).log.text().mid(*first).toStdString();
    copy.arrive("10.0.0.2", "-two");
    EXPECT_EQ(copy.window(1).log.newFrom, first);
    copy.window(1).inBackground = false;
    copy.window(1).chat.endSeen();
    EXPECT_EQ(copy.window(1).log.newFrom, first) << "the mark stays for whoever looks where to begin";
    copy.arrive("10.0.0.2", "-three");
    EXPECT_EQ(copy.window(1).log.newFrom, first);
    copy.window(1).inBackground = true;
    copy.arrive("10.0.0.2", "-four");
    EXPECT_GT(copy.window(1).log.newFrom, first);
    EXPECT_TRUE(copy.window(1).chat.send(QStringLiteral("hello")));
    EXPECT_EQ(copy.window(1).log.newFrom, std::nullopt);
}

TEST_F(PrivateWindowsTest, UnknownNumbersAreNoWindows)
{
    EXPECT_EQ(copy.engine.privateWindows().at(0), nullptr);
    EXPECT_EQ(copy.engine.privateWindows().at(1), nullptr);
    EXPECT_EQ(copy.engine.privateWindows().at(-3), nullptr);
    copy.engine.privateWindows().appendPresence(7, QStringLiteral("x"));
    EXPECT_EQ(made(), 0u);
}

/// Sixty contacts, of whom fifty have written; none of their windows has been turned to.
class ManyPrivateWindows : public testing::Test
{
protected:
    ManyPrivateWindows()
    {
        copy.settleStart();
        for (int i = 1; i <= 50; ++i)
            arrive(i, "-hello");
        copy.advance(std::chrono::seconds(10));
        copy.sent();
    }
    static CopySetup seventy()
    {
        CopySetup setup;
        for (int i = 1; i <= 70; ++i)
            setup.contacts.push_back({QStringLiteral("10.0.1.%1").arg(i), QStringLiteral("N%1").arg(i)});
        return setup;
    }
    void arrive(int contact, const std::string &bytes)
    {
        copy.arrive(("10.0.1." + std::to_string(contact)).c_str(), bytes);
    }
    int waiting(int contact) { return copy.contact(("10.0.1." + std::to_string(contact)).c_str()).waitingMessages; }
    void click(int contact) { copy.engine.contactCommands().openWaiting(QStringLiteral("10.0.1.%1").arg(contact)); }
    std::size_t made() const { return copy.privateForms.views.size(); }

    Copy copy{seventy()};
};

TEST_F(ManyPrivateWindows, AFurtherMessageWaitsAtTheRowAndOpensOnAClick)
{
    ASSERT_EQ(made(), 50u);
    arrive(51, "-one");
    arrive(51, "-two");
    arrive(52, "-three");
    EXPECT_EQ(made(), 50u);
    EXPECT_EQ(waiting(51), 2);
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_EQ(copy.engine.contactCommands().toolTip(QStringLiteral("10.0.1.52")),
              QStringLiteral("N52 (messages that wait to be read: 1)"));
    click(53);
    EXPECT_EQ(made(), 50u) << "nothing waits there";
    click(51);
    ASSERT_EQ(made(), 51u);
    EXPECT_EQ(waiting(51), 0);
    const std::vector<std::string> lines = copy.window(51).log.lines();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1], "N51> one");
    EXPECT_EQ(lines[2], "N51> two");
    EXPECT_THAT(copy.window(51).shows, ElementsAre(ShowMode::active));
    arrive(51, "-three");
    EXPECT_EQ(copy.window(51).log.lastLine(), "N51> three") << "it has its window now";
}

class CrowdOfWriters : public ManyPrivateWindows
{
protected:
    static constexpr std::chrono::milliseconds pause{40};
    /// The user has turned to all windows, so that there is room for ten more; the first three open at once.
    CrowdOfWriters()
    {
        for (int i = 1; i <= 50; ++i)
            copy.window(i).chat.intext_Change(QStringLiteral("h"));
        copy.sent();
        for (int i = 51; i <= 60; ++i)
            arrive(i, "-hello");
    }
};

TEST_F(CrowdOfWriters, OpensThreeWindowsAtOnceAndTheOthersInTurn)
{
    EXPECT_EQ(made(), 53u);
    EXPECT_EQ(waiting(53), 0);
    EXPECT_EQ(waiting(54), 1);
    copy.advance(pause - 1ms);
    EXPECT_EQ(made(), 53u);
    copy.advance(1ms);
    ASSERT_EQ(made(), 54u);
    EXPECT_EQ(waiting(54), 0);
    EXPECT_EQ(copy.window(54).log.lastLine(), "N54> hello");
    EXPECT_THAT(copy.window(54).shows, ElementsAre(ShowMode::minimised));
    EXPECT_EQ(waiting(55), 1);
    copy.advance(6 * pause);
    EXPECT_EQ(made(), 60u);
}

TEST_F(CrowdOfWriters, WhatIsSaidMeanwhileIsShownInItsOrder)
{
    arrive(55, "-are you there?");
    EXPECT_EQ(waiting(55), 2);
    copy.advance(2 * pause);
    const std::vector<std::string> lines = copy.window(55).log.lines();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1], "N55> hello");
    EXPECT_EQ(lines[2], "N55> are you there?");
}

TEST_F(CrowdOfWriters, WhoWritesMoreThanMayWaitComesFirstAndLosesNothing)
{
    for (int i = 0; i < 150; ++i)
        arrive(60, "-text " + std::to_string(i));
    ASSERT_EQ(made(), 54u);
    EXPECT_EQ(copy.window(54).log.lines().size(), 152u) << "the opening line and all that was said";
    EXPECT_EQ(copy.drops.of(Drop::tooManyWaiting), 0u);
    copy.advance(20 * pause);
    EXPECT_EQ(made(), 60u);
}

TEST_F(CrowdOfWriters, IsAnsweredAutomaticallyWhenItsWindowsOpen)
{
    copy.common.ownPresence.base = BaseState::busy;
    copy.common.autoReply.onBusy = true;
    copy.common.autoReply.busyText = QStringLiteral("later");
    copy.sent();
    copy.advance(pause);
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.1.54", "?AVATARHEAD"}, To{"10.0.1.54", "-[AutoReply] later"}));
}

TEST_F(CrowdOfWriters, TheUserNeedNotWaitForTheTurn)
{
    click(60);
    ASSERT_EQ(made(), 54u);
    EXPECT_EQ(copy.window(54).log.lastLine(), "N60> hello");
    copy.advance(20 * pause);
    EXPECT_EQ(made(), 60u) << "and it opens once";
}

TEST_F(CrowdOfWriters, WhoIsRemovedMeanwhileOpensNothing)
{
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.1.54"));
    copy.advance(20 * pause);
    EXPECT_EQ(made(), 59u);
}

TEST_F(CrowdOfWriters, ThreeMayOpenAtOnceAgainAfterAWhile)
{
    copy.advance(20 * pause);
    for (int i = 61; i <= 64; ++i)
        arrive(i, "-hello");
    EXPECT_EQ(made(), 63u);
}

TEST_F(ManyPrivateWindows, WhoHasAWindowWritesOn)
{
    arrive(50, "-again");
    EXPECT_EQ(copy.window(50).log.lastLine(), "N50> again");
    EXPECT_EQ(waiting(50), 0);
}

TEST_F(ManyPrivateWindows, AWindowThatTheUserTurnsToMakesRoomForTheNext)
{
    arrive(51, "-one");
    copy.window(7).chat.intext_Change(QStringLiteral("h"));
    arrive(51, "-two");
    ASSERT_EQ(made(), 51u);
    const std::vector<std::string> lines = copy.window(51).log.lines();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1], "N51> one");
    EXPECT_EQ(lines[2], "N51> two");
    EXPECT_THAT(copy.window(51).shows, ElementsAre(ShowMode::minimised));
    arrive(52, "-one");
    EXPECT_EQ(made(), 51u);
    copy.window(8).inBackground = false; // it is the one in which the user is
    arrive(52, "-two");
    EXPECT_EQ(made(), 52u);
}

TEST_F(ManyPrivateWindows, AWindowThatWasReadMakesRoomAndMakesNobodyKnown)
{
    arrive(51, "-one");
    ASSERT_EQ(made(), 50u);
    copy.window(7).chat.Form_Activate();
    arrive(51, "-two");
    EXPECT_EQ(made(), 51u);
    EXPECT_FALSE(copy.contact("10.0.1.7").soughtByUser);
}

TEST_F(ManyPrivateWindows, WhatStillWaitsAtTheEndIsToldAtTheNextStart)
{
    arrive(51, "-one");
    arrive(51, "-two");
    arrive(52, "-three");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(copy.nextStart.sentences,
                ElementsAre(QStringLiteral("Messages that waited to be read when the program ended are lost: 3.")));
}

TEST_F(ManyPrivateWindows, ClosingThemMakesRoomForFiftyAndNotForMore)
{
    for (int i = 1; i <= 50; ++i)
        closeBox(copy.window(i));
    for (int i = 1; i <= 70; ++i)
        arrive(i, "-again");
    copy.advance(std::chrono::seconds(10));
    int shown = 0;
    for (std::size_t i = 1; i <= made(); ++i)
        shown += copy.window(i).isHidden() ? 0 : 1;
    EXPECT_EQ(shown, 50);
    for (int i = 51; i <= 70; ++i)
        EXPECT_EQ(waiting(i), 1) << i;
    closeBox(copy.window(3));
    closeBox(copy.window(4));
    arrive(4, "-once more");
    arrive(3, "-and I wait");
    copy.advance(std::chrono::seconds(10));
    EXPECT_EQ(waiting(3), 0);
    EXPECT_EQ(waiting(4), 0);
    arrive(51, "-and I still do");
    EXPECT_EQ(waiting(51), 2);
}

TEST_F(ManyPrivateWindows, WaitingMessagesAreBoundedAndAnsweredByNobody)
{
    copy.common.ownPresence.base = BaseState::busy;
    copy.common.autoReply.onBusy = true;
    for (int i = 0; i < 150; ++i)
        arrive(51, "-text " + std::to_string(i));
    EXPECT_EQ(waiting(51), 100);
    EXPECT_EQ(copy.drops.of(Drop::tooManyWaiting), 50u);
    for (int i = 0; i < 90; ++i)
        arrive(52, "-" + std::string(60000, 'x'));
    EXPECT_EQ(waiting(52), 66) << "four million characters";
    click(51);
    EXPECT_EQ(copy.window(51).log.lastLine(), "N51> text 99");
    for (const To &sent : copy.sent())
        EXPECT_EQ(sent.bytes, "?AVATARHEAD");
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.1.52"));
    for (int i = 0; i < 66; ++i)
        arrive(53, "-" + std::string(60000, 'x'));
    EXPECT_EQ(waiting(53), 66) << "who is removed leaves room";
}

TEST_F(ManyPrivateWindows, StrangersWhoWriteALotLeaveRoomForThoseWhomTheUserKnows)
{
    copy.arrive("10.0.2.1", "!ONLINE 10.0.2.1 PC Stranger");
    for (int i = 0; i < 70; ++i)
        copy.arrive("10.0.2.1", "-" + std::string(60000, 'x'));
    EXPECT_EQ(copy.contact("10.0.2.1").waitingMessages, 33) << "two million characters";
    arrive(51, "-hello");
    EXPECT_EQ(waiting(51), 1);
}

} // namespace
/// Where conversations are kept.
class UnreadAfterARestart : public testing::Test
{
protected:
    const QString ann = QStringLiteral("10.0.0.2");

    void keep(const char *text, bool isOwn = false)
    {
        copy.history.keep({.address = ann}, {.time = {}, .isOwn = isOwn, .text = QString::fromUtf8(text)});
    }
    void start()
    {
        copy.engine.mainWindow().Form_Load();
        copy.settleStart({"10.0.0.2"});
    }
    int unread() { return copy.contact("10.0.0.2").unread(); }

    Copy copy{{.contacts = {{ann, "Ann"}}, .settings = {{"Options/KeepHistory", "ever"}}, .loaded = false}};
};

TEST_F(UnreadAfterARestart, TheRowHasItsNumberAndTheWindowKnowsWhereReadingStopped)
{
    keep("read");
    copy.history.leaveUnread({.address = ann});
    keep("one");
    keep("mine", true);
    keep("two");
    start();
    EXPECT_EQ(unread(), 2);
    copy.engine.privateWindows().openPrivate(ann);
    RecorderPrivateView &window = copy.window(1);
    EXPECT_EQ(window.earlier.size(), 4u);
    EXPECT_EQ(window.readTo, 1);
    EXPECT_EQ(unread(), 2) << "opened, and not seen yet";
    copy.arrive("10.0.0.2", "-three");
    EXPECT_EQ(unread(), 3);
    EXPECT_EQ(window.log.newFrom, std::nullopt) << "the mark is further up";
    window.inBackground = false;
    window.chat.endSeen();
    EXPECT_EQ(unread(), 0);
    EXPECT_TRUE(copy.history.readTo.empty());
    window.inBackground = true;
    copy.arrive("10.0.0.2", "-four");
    EXPECT_NE(window.log.newFrom, std::nullopt);
    EXPECT_EQ(copy.history.readTo[ann], 5);
}

TEST_F(UnreadAfterARestart, TheRowHasTheTimeOfTheLastMessage)
{
    const QDateTime monday(QDate(2026, 11, 23), QTime(9, 5));
    copy.history.leaveUnread({.address = ann});
    copy.history.keep({.address = ann}, {.time = monday, .text = QStringLiteral("one")});
    copy.history.keep({.address = ann}, {.time = monday.addSecs(60), .isOwn = true, .text = QStringLiteral("mine")});
    start();
    EXPECT_EQ(copy.contact("10.0.0.2").lastMessage, monday);
    copy.arrive("10.0.0.2", "-two");
    EXPECT_GT(copy.contact("10.0.0.2").lastMessage.toSecsSinceEpoch(), 0);
    EXPECT_NE(copy.contact("10.0.0.2").lastMessage, monday);
}

TEST_F(UnreadAfterARestart, AThousandOfThemAreShownAtOnce)
{
    keep("read");
    copy.history.leaveUnread({.address = ann});
    for (int i = 0; i < 600; ++i)
        keep("unread");
    start();
    copy.engine.privateWindows().openPrivate(ann);
    EXPECT_EQ(copy.window(1).earlier.size(), 601u) << "up to where reading stopped";
}

TEST_F(UnreadAfterARestart, OfMoreThanAThousandOnlySoManyAreShownAtOnce)
{
    copy.history.leaveUnread({.address = ann});
    for (int i = 0; i < 1500; ++i)
        keep("unread");
    start();
    copy.engine.privateWindows().openPrivate(ann);
    EXPECT_EQ(copy.window(1).earlier.size(), 1050u);
}

TEST_F(UnreadAfterARestart, AMessageThatOpensTheWindowIsCountedWithThem)
{
    copy.history.leaveUnread({.address = ann});
    keep("one");
    start();
    copy.arrive("10.0.0.2", "-two");
    EXPECT_EQ(unread(), 2);
    EXPECT_EQ(copy.window(1).readTo, 0);
    EXPECT_EQ(copy.history.readTo[ann], 0);
}

TEST_F(UnreadAfterARestart, AllThatIsUnreadIsShown)
{
    copy.history.leaveUnread({.address = ann});
    for (int i = 0; i < 120; ++i)
        keep("message");
    start();
    copy.engine.privateWindows().openPrivate(ann);
    EXPECT_EQ(copy.window(1).earlier.size(), 120u);
}

TEST_F(UnreadAfterARestart, WhereReadingStoppedIsKeptWhenTheUserTurnsAway)
{
    start();
    for (const char *const message : {"-one", "-two", "-three"})
        copy.arrive("10.0.0.2", message);
    EXPECT_EQ(copy.history.readTo[ann], 0);
    PrivateChat &chat = copy.window(1).chat;
    chat.seen(2);
    EXPECT_EQ(unread(), 2);
    EXPECT_EQ(copy.history.readTo[ann], 0) << "not with every line that he scrolls";
    chat.turnedAway();
    EXPECT_EQ(copy.history.readTo[ann], 1);
    chat.seen(1);
    copy.engine.privateWindows().unloadAll();
    EXPECT_EQ(copy.history.readTo[ann], 2) << "the end of the program is no reading";
}

TEST_F(UnreadAfterARestart, WhatTheUserClosesOrClearsIsRead)
{
    start();
    copy.arrive("10.0.0.2", "-one");
    EXPECT_EQ(copy.history.readTo.count(ann), 1u);
    copy.window(1).chat.Clearbtn_Click();
    EXPECT_EQ(copy.history.readTo.count(ann), 0u);
    EXPECT_EQ(unread(), 0);
    copy.arrive("10.0.0.2", "-two");
    EXPECT_EQ(copy.history.readTo.count(ann), 1u);
    copy.window(1).chat.closed(UnloadMode::sessionEnd);
    EXPECT_EQ(copy.history.readTo.count(ann), 1u);
    copy.arrive("10.0.0.2", "-three");
    copy.window(2).chat.closed(UnloadMode::closeBox);
    EXPECT_EQ(copy.history.readTo.count(ann), 0u);
}

TEST_F(UnreadAfterARestart, WithoutAHistoryNothingIsKeptAndNothingComesBack)
{
    copy.settings.put({{"Options/KeepHistory", QStringLiteral("no")}});
    copy.history.leaveUnread({.address = ann});
    keep("one");
    start();
    EXPECT_EQ(unread(), 0);
    copy.history.readTo.clear();
    copy.arrive("10.0.0.2", "-two");
    EXPECT_EQ(unread(), 1);
    EXPECT_TRUE(copy.history.readTo.empty());
}

} // namespace nimb::test
