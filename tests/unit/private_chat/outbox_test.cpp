// Messages that wait until those to whom they were written are back.
#include "base/limits.h"
#include "copy.h"

#include <gmock/gmock.h>

using namespace nimb;
using namespace nimb::test;
using namespace std::chrono_literals;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace
{

const QString annsAddress = QStringLiteral("10.0.0.2");

class OutboxTest : public testing::Test
{
protected:
    OutboxTest()
    {
        copy.settleStart();
        copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC-ANN Ann");
        copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN Ann");
        copy.engine.privateWindows().openPrivate(annsAddress);
        sent();
    }

    PrivateChat &chat() { return *copy.engine.privateWindows().at(1); }
    RecorderPrivateView &window() { return copy.window(1); }
    void write(const char *text) { EXPECT_TRUE(chat().send(QString::fromUtf8(text))); }
    void writeForLater(const char *text)
    {
        write(text);
        if (window().shownPeer.canWait) // once in an absence
            chat().sendLaterBtn_Click();
        sent();
    }
    void annComes(const char *host = "PC-ANN", const char *nickname = "Ann")
    {
        copy.arrive("10.0.0.2", std::string("!ONLINE 10.0.0.2 ") + host + " " + nickname);
    }
    /// Messages to Ann since the last call.
    std::vector<std::string> sent()
    {
        std::vector<std::string> messages;
        for (const auto &datagram : copy.sent()) {
            if (datagram.bytes.starts_with('-'))
                messages.push_back(datagram.bytes);
        }
        return messages;
    }
    int toBeSent() { return copy.contact("10.0.0.2").toBeSent; }
    std::vector<MessageFate> fates()
    {
        std::vector<MessageFate> list;
        for (const LogMessage &message : window().log.messages)
            list.push_back(message.fate);
        return list;
    }
    /// The program as it starts with what this one has stored.
    std::unique_ptr<Copy> next()
    {
        std::map<std::string, QString> stored;
        stored["Outbox/WaitingMessages"] = QString::fromStdString(copy.settings.value("Outbox", "WaitingMessages"));
        auto later = std::make_unique<Copy>(CopySetup{.contacts = {{"10.0.0.2", "Ann"}}, .settings = stored}, nullptr,
                                            copy.time);
        later->settleStart();
        return later;
    }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}}}};
};

TEST_F(OutboxTest, OffersToSendLaterOnceSomethingWasWrittenThatDoesNotArrive)
{
    EXPECT_FALSE(window().shownPeer.canWait);
    write("hello");
    EXPECT_TRUE(window().shownPeer.canWait);
    EXPECT_THAT(sent(), ElementsAre("-hello")) << "an invisible peer hears it";
    chat().sendLaterBtn_Click();
    EXPECT_FALSE(window().shownPeer.canWait);
    EXPECT_EQ(window().shownPeer.waiting, 1);
    EXPECT_EQ(toBeSent(), 1);
    EXPECT_THAT(fates(), ElementsAre(MessageFate::waits));
    EXPECT_EQ(window().log.messages.front().receiver, QStringLiteral("Ann"));
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(OutboxTest, OnceChosenWhatIsWrittenLaterInTheSameAbsenceWaitsToo)
{
    write("one");
    EXPECT_FALSE(window().shownPeer.sendsLater);
    chat().sendLaterBtn_Click();
    EXPECT_TRUE(window().shownPeer.sendsLater);
    write("two");
    EXPECT_FALSE(window().shownPeer.canWait);
    EXPECT_EQ(toBeSent(), 2);
    EXPECT_THAT(fates(), ElementsAre(MessageFate::waits, MessageFate::waits));
    sent();
    annComes();
    EXPECT_FALSE(window().shownPeer.sendsLater);
    copy.advance(5s);
    EXPECT_THAT(sent(), ElementsAre(testing::StartsWith("-one (written"), testing::StartsWith("-two (written")));
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN Ann");
    write("three");
    EXPECT_FALSE(window().shownPeer.sendsLater) << "another absence";
    EXPECT_TRUE(window().shownPeer.canWait);
    EXPECT_EQ(toBeSent(), 0);
}

TEST_F(OutboxTest, WhatWaitsIsTakenBackByTheSameButtonAndMayWaitAgain)
{
    write("one");
    chat().sendLaterBtn_Click();
    write("two");
    chat().sendLaterBtn_Click();
    EXPECT_FALSE(window().shownPeer.sendsLater);
    EXPECT_TRUE(window().shownPeer.canWait);
    EXPECT_EQ(toBeSent(), 0);
    EXPECT_THAT(fates(), ElementsAre(MessageFate::lost, MessageFate::lost));
    write("three");
    EXPECT_EQ(toBeSent(), 0);
    chat().sendLaterBtn_Click();
    EXPECT_EQ(toBeSent(), 3);
    sent();
    annComes();
    copy.advance(5s);
    EXPECT_THAT(sent(),
                ElementsAre(testing::StartsWith("-one (written"), testing::StartsWith("-two (written"),
                            testing::StartsWith("-three (written")));
}

TEST_F(OutboxTest, WhatWaitsSinceAnEarlierStartIsTakenBackToo)
{
    writeForLater("one");
    const std::unique_ptr<Copy> later = next();
    later->arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN Ann");
    later->engine.privateWindows().openPrivate(annsAddress);
    EXPECT_TRUE(later->window(1).shownPeer.sendsLater);
    PrivateChat &chat = *later->engine.privateWindows().at(1);
    EXPECT_TRUE(chat.send(QStringLiteral("two")));
    EXPECT_EQ(later->contact("10.0.0.2").toBeSent, 2);
    chat.sendLaterBtn_Click();
    EXPECT_FALSE(later->window(1).shownPeer.sendsLater);
    EXPECT_TRUE(later->window(1).shownPeer.canWait);
    EXPECT_EQ(later->contact("10.0.0.2").toBeSent, 0);
    chat.sendLaterBtn_Click();
    EXPECT_EQ(later->contact("10.0.0.2").toBeSent, 2);
}

TEST_F(OutboxTest, WhereNoMoreCanWaitItIsNotSaidToWait)
{
    write("one");
    chat().sendLaterBtn_Click();
    for (std::size_t i = 1; i < limits::outboxMessages; ++i)
        write("more");
    EXPECT_TRUE(window().shownPeer.sendsLater);
    write("one too many");
    EXPECT_FALSE(window().shownPeer.sendsLater);
    EXPECT_TRUE(window().shownPeer.canWait);
    EXPECT_EQ(fates().back(), MessageFate::lost);
}

TEST_F(OutboxTest, SendsWhatWaitsAfterASecondInOrderTwoASecondWithTheTime)
{
    const std::string written = QLocale::c().toString(copy.time->now(), QStringLiteral("ddd HH:mm")).toStdString();
    write("one");
    write("two");
    write("three");
    chat().sendLaterBtn_Click();
    sent();
    annComes();
    copy.advance(999ms);
    EXPECT_THAT(sent(), IsEmpty());
    copy.advance(1ms);
    EXPECT_THAT(sent(), ElementsAre("-one (written " + written + ")"));
    copy.advance(499ms);
    EXPECT_THAT(sent(), IsEmpty());
    copy.advance(1ms);
    EXPECT_THAT(sent(), ElementsAre("-two (written " + written + ")"));
    copy.advance(500ms);
    EXPECT_THAT(sent(), ElementsAre("-three (written " + written + ")"));
    copy.advance(10s);
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(toBeSent(), 0);
    EXPECT_EQ(copy.settings.value("Outbox", "WaitingMessages"), "");
    EXPECT_THAT(fates(),
                ElementsAre(MessageFate::sent, MessageFate::sent, MessageFate::sent, MessageFate::sent,
                            MessageFate::sent, MessageFate::sent));
}

TEST_F(OutboxTest, TheMainLogSaysOnceThatWhatWaitedHasGone)
{
    writeForLater("one");
    writeForLater("two");
    annComes();
    copy.view.log.clear();
    copy.advance(5s);
    EXPECT_EQ(copy.view.log.lastLine(), "--- the 2 messages that waited for Ann were sent ---");
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN Ann");
    writeForLater("three");
    annComes();
    copy.view.log.clear();
    copy.advance(5s);
    EXPECT_EQ(copy.view.log.lastLine(), "--- the message that waited for Ann was sent ---");
}

TEST_F(OutboxTest, TheTimeIsADayAndAClockInEnglish)
{
    EXPECT_EQ(writtenAt(QDateTime(QDate(2026, 11, 24), QTime(14, 5))), QStringLiteral(" (written Tue 14:05)"));
}

TEST_F(OutboxTest, AQuestionAfterHimCountsAsWellAndHeWhoGoesAtOnceGetsNothing)
{
    writeForLater("hello");
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN Ann");
    copy.advance(5s);
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(toBeSent(), 1);
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.advance(1s);
    EXPECT_THAT(sent(), SizeIs(1));
}

TEST_F(OutboxTest, WhatWasNotChosenIsNotSentAgain)
{
    write("hello");
    sent();
    annComes();
    copy.advance(10s);
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_FALSE(window().shownPeer.canWait);
}

TEST_F(OutboxTest, WhatLeadsToAFileDoesNotWaitForItWouldLeadNowhere)
{
    write("Plan.pdf (2.3 MB) http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/Plan.pdf");
    EXPECT_FALSE(window().shownPeer.canWait);
}

TEST_F(OutboxTest, SurvivesARestartAndTheWindow)
{
    writeForLater("hello");
    const std::unique_ptr<Copy> later = next();
    EXPECT_EQ(later->contact("10.0.0.2").toBeSent, 1);
    later->arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC-ANN Ann");
    later->advance(1s);
    EXPECT_THAT(later->sent(), testing::Contains(testing::Field(&To::bytes, HasSubstr("-hello (written "))));
    EXPECT_EQ(later->settings.value("Outbox", "WaitingMessages"), "");
}

TEST_F(OutboxTest, AsksWhenAnotherMachineHasTheAddress)
{
    writeForLater("one");
    writeForLater("two");
    copy.prompts.answer = false;
    annComes("PC-BEN", "Ben");
    copy.advance(10s);
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_THAT(copy.prompts.asked, ElementsAre(AllOf(HasSubstr("Ann (PC-ANN)"), HasSubstr("Ben (PC-BEN)"))));
    EXPECT_EQ(toBeSent(), 2);
    annComes("PC-BEN", "Ben");
    copy.advance(10s);
    EXPECT_THAT(copy.prompts.asked, SizeIs(1)) << "he has been asked about";
    annComes();
    copy.advance(10s);
    EXPECT_THAT(sent(), SizeIs(2)) << "she herself is back";
}

TEST_F(OutboxTest, SendsToTheOtherOneAfterAYesAndAsksOnce)
{
    writeForLater("one");
    writeForLater("two");
    annComes("PC-ANN", "Annie");
    copy.advance(10s);
    EXPECT_THAT(copy.prompts.asked, SizeIs(1));
    EXPECT_THAT(sent(), SizeIs(2));
}

TEST_F(OutboxTest, AQuestionThatNobodyAnswersIsAskedAgain)
{
    writeForLater("one");
    copy.prompts.attended = false;
    annComes("PC-BEN", "Ben");
    copy.advance(10s);
    EXPECT_THAT(sent(), IsEmpty());
    copy.prompts.attended = true;
    annComes("PC-BEN", "Ben");
    copy.advance(10s);
    EXPECT_THAT(sent(), SizeIs(1));
    EXPECT_THAT(copy.prompts.asked, SizeIs(2));
}

TEST_F(OutboxTest, NothingLeavesWhileThisCopyIsInvisible)
{
    writeForLater("hello");
    copy.engine.ownState().choose(4);
    copy.sent();
    annComes();
    copy.advance(10s);
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.engine.ownState().choose(1);
    annComes(); // she is asked
    copy.advance(10s);
    EXPECT_THAT(sent(), SizeIs(1));
}

TEST_F(OutboxTest, AfterSevenDaysItIsShownAsNotSentAndStaysToBeRead)
{
    writeForLater("hello");
    copy.advance(24h * 7 + 2h);
    EXPECT_EQ(toBeSent(), 0);
    EXPECT_THAT(fates(), ElementsAre(MessageFate::lost));
    EXPECT_THAT(copy.view.log.text().toStdString(), HasSubstr("was not sent within seven days"));
    annComes();
    copy.advance(10s);
    EXPECT_THAT(sent(), IsEmpty());
    ASSERT_THAT(copy.engine.outbox().messages(), SizeIs(1));
    EXPECT_TRUE(copy.engine.outbox().messages().front().isGivenUp);
    EXPECT_TRUE(next()->engine.outbox().messages().front().isGivenUp) << "a restart changes nothing";
}

TEST_F(OutboxTest, WhatIsForgottenIsNotSent)
{
    writeForLater("one");
    writeForLater("two");
    copy.engine.outbox().forget(copy.engine.outbox().messages().front().number);
    EXPECT_THAT(fates(), ElementsAre(MessageFate::lost, MessageFate::waits));
    annComes();
    copy.advance(10s);
    EXPECT_THAT(sent(), ElementsAre(HasSubstr("-two (written ")));
}

TEST_F(OutboxTest, WithARemovedContactGoesWhatWaitsForIt)
{
    writeForLater("hello");
    copy.engine.contacts().remove(annsAddress);
    copy.engine.privateWindows().contactRemoved(annsAddress);
    EXPECT_THAT(copy.engine.outbox().messages(), IsEmpty());
    EXPECT_EQ(copy.settings.value("Outbox", "WaitingMessages"), "");
    EXPECT_THAT(copy.view.log.text().toStdString(), HasSubstr("a message that waited for Ann"));
}

TEST_F(OutboxTest, TwoHundredWaitAndNoMore)
{
    for (std::size_t i = 0; i < limits::outboxMessages; ++i)
        writeForLater("x");
    EXPECT_EQ(toBeSent(), 200);
    writeForLater("one too many");
    EXPECT_EQ(toBeSent(), 200);
    EXPECT_TRUE(window().shownPeer.canWait) << "it is not lost";
    EXPECT_THAT(copy.view.log.text().toStdString(), HasSubstr("200 messages wait to be sent already"));
}

TEST_F(OutboxTest, AFullMessageIsSentWholeWithItsTime)
{
    const std::string full(2000, 'x');
    writeForLater(full.c_str());
    annComes();
    copy.advance(1s);
    EXPECT_THAT(sent(), ElementsAre(HasSubstr("-" + full + " (written ")));
}

TEST_F(OutboxTest, WhatCannotBeReadIsToldAndTheRestIsKept)
{
    std::map<std::string, QString> stored;
    stored["Outbox/WaitingMessages"]
        = QStringLiteral(R"([{"number":1,"address":"10.0.0.2","text":"kept","written":%1},{"number":"x"},7,)"
                         R"({"number":2,"address":"10.0.0.99","text":"to nobody","written":%1}])")
              .arg(copy.time->now().toMSecsSinceEpoch());
    const Copy later(CopySetup{.contacts = {{"10.0.0.2", "Ann"}}, .settings = stored});
    ASSERT_THAT(const_cast<Copy &>(later).engine.outbox().messages(), SizeIs(1));
    EXPECT_THAT(later.view.log.text().toStdString(), HasSubstr("some could not be read"));
}

TEST_F(OutboxTest, AFailedSaveIsTold)
{
    copy.settings.failure = QStringLiteral("The disk is full.");
    writeForLater("hello");
    EXPECT_THAT(copy.view.log.text().toStdString(), HasSubstr("The disk is full."));
    EXPECT_EQ(toBeSent(), 1) << "it waits as long as the program runs";
}

} // namespace
