// What is offered and what is fetched, in whole copies without a network.
#include "base/limits.h"
#include "copy.h"
#include "print_qt.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using State = ReceivedFile::State;
using What = FetchedBytes::What;

const std::string annsMessage = "Plan.pdf (2.3 MB) http://10.0.0.2:5549/0123456789abcdef0123456789abcdef/Plan.pdf";

class TransfersTest : public testing::Test
{
protected:
    explicit TransfersTest(const CopySetup &setup = {.contacts = {{QStringLiteral("10.0.0.2"), QStringLiteral("Ann")},
                                                                  {QStringLiteral("10.0.0.3"), QStringLiteral("Ben")}}})
        : copy(setup)
    {
        copy.settleStart({"10.0.0.2", "10.0.0.3"});
    }

    PrivateChat &chat()
    {
        copy.engine.privateWindows().openPrivate(Ipv4Address(10, 0, 0, 2));
        copy.sent();
        return copy.privateForms.views.back()->chat;
    }
    RecorderPrivateView &view() { return *copy.privateForms.views.back(); }
    FileOffers &offers() { return copy.engine.transfers().offers; }
    ReceivedFiles &received() { return copy.engine.transfers().received; }
    const ServedFile &served(std::size_t which = 0) { return copy.fileServer.served.at(which); }
    QString shown(int row, FileOffers::Column column) { return offers().index(row, column).data().toString(); }
    QString shown(int row, ReceivedFiles::Column column) { return received().index(row, column).data().toString(); }
    void tell(const SentBytes &sent) { copy.fileServer.sent(sent); }
    void tell(const FetchedBytes &fetched) { copy.fileFetcher.told(fetched); }
    /// Ann offers a file.
    int receive(const std::string &message = annsMessage)
    {
        copy.arrive("10.0.0.2", "-" + message);
        return received().rowCount() > 0 ? received().at(received().rowCount() - 1).number : 0;
    }

    /// The same file, offered anew.
    int receiveAnother()
    {
        std::string message = annsMessage;
        const std::string number = std::to_string(++m_others);
        return receive(message.replace(message.find("abcdef/") - number.size(), number.size(), number));
    }

    /// A file of which 45 of 100 bytes had come is offered no longer.
    void loseWhatHadBegun()
    {
        const int number = receive();
        received().save(number, QStringLiteral("/in"));
        tell({.number = number, .what = What::failed, .place = 45, .size = 100, .isGone = true});
        copy.advance(1s);
    }
    /// The program as it starts with what this one has stored.
    std::unique_ptr<Copy> next()
    {
        std::unique_ptr<Copy> later = justStarted();
        later->settleStart();
        return later;
    }
    std::unique_ptr<Copy> justStarted()
    {
        std::map<std::string, QString> stored;
        stored["Transfers/UnfinishedFiles"]
            = QString::fromStdString(copy.settings.value("Transfers", "UnfinishedFiles"));
        return std::make_unique<Copy>(CopySetup{.settings = stored}, nullptr, copy.time);
    }

    Copy copy;

private:
    int m_others = 1000;
};

// --- what is offered

TEST_F(TransfersTest, AFileIsOneOrdinaryMessage)
{
    chat().sendFiles({QStringLiteral("/media/me/Plan.pdf")});
    ASSERT_THAT(copy.fileServer.served, SizeIs(1));
    EXPECT_EQ(served().path, QStringLiteral("/media/me/Plan.pdf"));
    EXPECT_THAT(served().to, ElementsAre(Ipv4Address(10, 0, 0, 2)));
    EXPECT_EQ(served().at, Ipv4Address(10, 0, 0, 1));
    const std::string token = served().token.toStdString();
    EXPECT_THAT(token, testing::MatchesRegex("[0-9a-f]{32}"));
    const std::string message = "Plan.pdf (2.3 MB) http://10.0.0.1:5549/" + token + "/Plan.pdf";
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "-" + message)));
    EXPECT_THAT(view().log.text().toStdString(), HasSubstr("Me> " + message));
}

TEST_F(TransfersTest, NoTwoTokensAreAlike)
{
    chat().sendFiles({QStringLiteral("/a"), QStringLiteral("/a")});
    ASSERT_THAT(copy.fileServer.served, SizeIs(2));
    EXPECT_NE(served(0).token, served(1).token);
}

TEST_F(TransfersTest, TheFirstUseSaysThatNothingIsEncrypted)
{
    chat().sendFiles({QStringLiteral("/a")});
    EXPECT_THAT(
        copy.prompts.asked,
        ElementsAre("NIMB-Chat: Files are not encrypted on their way: whoever can listen in on this network can "
                    "read them."));
    chat().sendFiles({QStringLiteral("/b")});
    EXPECT_THAT(copy.prompts.asked, SizeIs(1));
    copy.advance(std::chrono::seconds(2));
    EXPECT_TRUE(copy.common.filesExplained);
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Options", "FilesExplained"), "-1");
}

TEST_F(TransfersTest, NothingIsSentAgainstTheUsersWill)
{
    copy.prompts.answer = false;
    chat().sendFiles({QStringLiteral("/a")});
    EXPECT_THAT(copy.fileServer.served, IsEmpty());
    EXPECT_THAT(copy.sent(), IsEmpty());
    chat().sendFiles({QStringLiteral("/a")});
    EXPECT_THAT(copy.prompts.asked, SizeIs(2));
}

TEST_F(TransfersTest, WhatCannotBeServedIsSaidAndNotSent)
{
    copy.fileServer.answersAtOnce = false;
    chat().sendFiles({QStringLiteral("/a")});
    copy.fileServer.readies.front()({.trouble = QStringLiteral("a cannot be sent.")});
    EXPECT_THAT(view().fileTroubles, ElementsAre(QStringLiteral("a cannot be sent.")));
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_FALSE(offers().isLive(0));
}

TEST_F(TransfersTest, WhatIsReadyWhenTheWindowHasGoneIsNotOffered)
{
    copy.fileServer.answersAtOnce = false;
    PrivateChat &closed = chat();
    closed.sendFiles({QStringLiteral("/a")});
    closed.closed();
    copy.fileServer.readies.front()({.size = 1, .port = 5549, .name = QStringLiteral("a")});
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(copy.fileServer.withdrawn, ElementsAre(served().token));
}

TEST_F(TransfersTest, NothingIsOfferedToWhoeverIsOffline)
{
    PrivateChat &annsChat = chat();
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    copy.sent();
    annsChat.sendFiles({QStringLiteral("/a")});
    EXPECT_THAT(copy.fileServer.served, IsEmpty());
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(view().fileTroubles,
                ElementsAre(QStringLiteral("Ann is offline: files can be sent when Ann is back.")));
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(view().fileTroubles, IsEmpty()) << "it holds no more";
    annsChat.sendFiles({QStringLiteral("/a")});
    EXPECT_THAT(copy.fileServer.served, SizeIs(1));
}

TEST_F(TransfersTest, WhatIsReadyWhenItsReceiverHasGoneIsNotOffered)
{
    copy.fileServer.answersAtOnce = false;
    PrivateChat &annsChat = chat();
    annsChat.sendFiles({QStringLiteral("/a")});
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    copy.sent();
    copy.fileServer.readies.front()({.size = 1, .port = 5549, .name = QStringLiteral("a")});
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(view().fileTroubles, SizeIs(1));
    EXPECT_THAT(copy.fileServer.withdrawn, ElementsAre(served().token));
}

TEST_F(TransfersTest, WhatOfAFolderIsLeftOutIsSaidAndTheRestIsSent)
{
    copy.fileServer.answersAtOnce = false;
    chat().sendFiles({QStringLiteral("/a")});
    copy.fileServer.readies.front()(
        {.size = 5, .port = 5549, .name = QStringLiteral("a.zip"), .leftOut = QStringLiteral("1 left out of a: b.")});
    EXPECT_THAT(view().fileTroubles, ElementsAre(QStringLiteral("1 left out of a: b.")));
    EXPECT_THAT(copy.sent(), SizeIs(1));
    EXPECT_TRUE(offers().isLive(0));
}

TEST_F(TransfersTest, TooManyAtOnceAreRefused)
{
    chat().sendFiles(QStringList(21, QStringLiteral("/a")));
    EXPECT_THAT(copy.fileServer.served, IsEmpty());
    EXPECT_THAT(view().fileTroubles,
                ElementsAre(QStringLiteral(
                    "At most 20 files are sent at once: put more of them into a folder and send that.")));
}

TEST_F(TransfersTest, OnlySoManyAreOfferedAtATime)
{
    for (int i = 0; i < 10; ++i)
        chat().sendFiles(QStringList(20, QStringLiteral("/a")));
    EXPECT_EQ(offers().live(), 200);
    chat().sendFiles({QStringLiteral("/b")});
    EXPECT_EQ(offers().live(), 200);
    offers().stop(7);
    chat().sendFiles({QStringLiteral("/b")});
    EXPECT_EQ(offers().rowCount(), 200);
    EXPECT_EQ(shown(199, FileOffers::File), QStringLiteral("b (2.3 MB)"));
}

TEST_F(TransfersTest, AConferenceIsOfferedToWhoeverTakesPart)
{
    copy.engine.conferences().mnuCreateNewConf();
    copy.engine.conferences().mnuInvite2Conf(1, QStringLiteral("10.0.0.2"));
    copy.engine.conferences().mnuInvite2Conf(1, QStringLiteral("10.0.0.3"));
    Conference &conference = *copy.engine.conferences().at(1);
    conference.partecipanti().setPresent(Ipv4Address(10, 0, 0, 3));
    copy.sent();
    conference.sendFiles({QStringLiteral("/a")});
    ASSERT_THAT(copy.fileServer.served, SizeIs(1));
    EXPECT_THAT(served().to, ElementsAre(Ipv4Address(10, 0, 0, 3)));
    EXPECT_THAT(copy.sent(), SizeIs(1));
}

TEST_F(TransfersTest, AnOfferEndsAfterADay)
{
    chat().sendFiles({QStringLiteral("/a")});
    EXPECT_EQ(shown(0, FileOffers::Until), QStringLiteral("22/11/2026 14:05:10"));
    copy.advance(std::chrono::hours(24) - std::chrono::milliseconds(1));
    EXPECT_THAT(copy.fileServer.withdrawn, IsEmpty());
    copy.advance(std::chrono::milliseconds(1));
    EXPECT_THAT(copy.fileServer.withdrawn, ElementsAre(served().token));
    EXPECT_EQ(shown(0, FileOffers::Until), QStringLiteral("over: its time is over"));
}

TEST_F(TransfersTest, AnOfferMayLastUntilItIsStopped)
{
    chat().sendFiles({QStringLiteral("/a")});
    offers().setLife(0, OfferLife::untilStopped);
    copy.advance(std::chrono::hours(100));
    EXPECT_THAT(copy.fileServer.withdrawn, IsEmpty());
    EXPECT_EQ(shown(0, FileOffers::Until), QStringLiteral("it is stopped"));
    offers().stop(0);
    EXPECT_THAT(copy.fileServer.withdrawn, ElementsAre(served().token));
}

TEST_F(TransfersTest, AnOfferMayEndOnceSomebodyHasIt)
{
    chat().sendFiles({QStringLiteral("/a")});
    offers().setLife(0, OfferLife::once);
    SentBytes bytes{.token = served().token, .transfer = 1, .to = Ipv4Address(10, 0, 0, 2), .place = 50, .size = 100};
    tell(bytes);
    EXPECT_EQ(shown(0, FileOffers::Progress), QStringLiteral("50 % to 10.0.0.2"));
    EXPECT_EQ(offers().underWay(), 1);
    bytes.isOver = true;
    tell(bytes);
    EXPECT_TRUE(offers().isLive(0)) << "it was broken off";
    bytes.isWhole = true;
    tell(bytes);
    EXPECT_FALSE(offers().isLive(0));
    EXPECT_EQ(shown(0, FileOffers::Progress), QStringLiteral("fetched: 1"));
}

TEST_F(TransfersTest, AFileThatChangesEndsItsOfferWithASentence)
{
    chat().sendFiles({QStringLiteral("/a")});
    copy.fileServer.failed(served().token, QStringLiteral("a has changed."));
    copy.fileServer.failed(served().token, QStringLiteral("a has changed."));
    EXPECT_FALSE(offers().isLive(0));
    EXPECT_EQ(copy.view.log.text().count(QStringLiteral("a has changed.")), 1);
    EXPECT_THAT(view().fileTroubles, ElementsAre(QStringLiteral("a has changed."))) << "where it was offered, too";
}

TEST_F(TransfersTest, AnAddressThatHasGoneIsSaidWhereSomethingIsOfferedAtIt)
{
    const std::vector<NetworkCard> before = copy.ownAddresses.running;
    const QString sentence = QStringLiteral("Files are offered at 10.0.0.1, which this computer no longer has");
    copy.ownAddresses.running = {};
    copy.networkWatch.tell();
    EXPECT_FALSE(copy.view.log.text().contains(sentence)) << "nothing is offered";
    copy.ownAddresses.running = before;
    copy.networkWatch.tell();
    chat().sendFiles({QStringLiteral("/a"), QStringLiteral("/b"), QStringLiteral("/c")});
    offers().stop(2);
    copy.networkWatch.tell();
    EXPECT_FALSE(copy.view.log.text().contains(sentence));
    copy.ownAddresses.running = {};
    copy.networkWatch.tell();
    copy.networkWatch.tell();
    EXPECT_EQ(copy.view.log.text().count(sentence), 1);
    const QString gone = QStringLiteral("offered at 10.0.0.1, which this computer no longer has");
    EXPECT_EQ(shown(0, FileOffers::Progress), gone);
    EXPECT_EQ(shown(1, FileOffers::Progress), gone);
    EXPECT_EQ(shown(2, FileOffers::Progress), QString());
    copy.ownAddresses.running = before;
    copy.networkWatch.tell();
    EXPECT_EQ(shown(0, FileOffers::Progress), QStringLiteral("not fetched yet"));
}

TEST_F(TransfersTest, TheEndOfTheProgramAsksWhileFilesAreOnTheirWay)
{
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::unload);
    chat().sendFiles({QStringLiteral("/a")});
    tell({.token = served().token, .transfer = 1, .to = Ipv4Address(10, 0, 0, 2), .place = 1, .size = 2});
    copy.prompts.asked.clear();
    copy.prompts.answer = false;
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::stay);
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::code), CloseDecision::stay);
    EXPECT_THAT(copy.prompts.asked,
                testing::Each("NIMB-Chat: Files that are still on their way would be broken off: 1. End NIMB-Chat all "
                              "the same?"));
    EXPECT_EQ(copy.prompts.carefully, 2);
    copy.prompts.answer = true;
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::code), CloseDecision::unload);
    copy.prompts.answer = false;
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::sessionEnd), CloseDecision::unload);
    copy.prompts.attended = false;
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::code), CloseDecision::unload);
}

// --- what others offer

TEST_F(TransfersTest, AnOfferedFileIsShownInItsConversation)
{
    chat();
    const int number = receive();
    EXPECT_THAT(view().receivedFiles, ElementsAre(number));
    EXPECT_EQ(shown(0, ReceivedFiles::File), QStringLiteral("Plan.pdf (2.3 MB)"));
    EXPECT_EQ(shown(0, ReceivedFiles::From), QStringLiteral("Ann"));
    EXPECT_EQ(shown(0, ReceivedFiles::Progress), QStringLiteral("offered"));
    EXPECT_THAT(copy.fileFetcher.fetched, IsEmpty()) << "nothing is fetched by itself";
    EXPECT_THAT(view().log.text().toStdString(), HasSubstr("Ann> " + annsMessage)) << "the log stays what it is";
}

TEST_F(TransfersTest, AFileThatIsOfferedTwiceHasOneRow)
{
    for (int i = 0; i < 2; ++i)
        copy.arrive("10.0.0.2",
                    "-Plan.pdf (2.3 MB) "
                    "http://10.0.0.2:5549/0123456789abcdef0123456789abcdef/Plan.pdf");
    EXPECT_EQ(copy.engine.transfers().received.rowCount(), 1);
}

TEST_F(TransfersTest, AFileThatIsElsewhereThanItsSenderIsNone)
{
    chat();
    receive("Plan.pdf (2.3 MB) http://10.0.0.3:5549/0123456789abcdef0123456789abcdef/Plan.pdf");
    EXPECT_EQ(received().rowCount(), 0);
    EXPECT_THAT(view().receivedFiles, IsEmpty());
}

TEST_F(TransfersTest, AFileIsFetchedFromItsSenderUnderACleanName)
{
    chat();
    const int number = receive("..a: (1 bytes) http://10.0.0.2:5549/0123456789abcdef0123456789abcdef/..a%3A");
    received().save(number, QStringLiteral("/in"));
    ASSERT_THAT(copy.fileFetcher.fetched, SizeIs(1));
    const WantedFile &wanted = copy.fileFetcher.fetched.front();
    EXPECT_EQ(wanted.host, Ipv4Address(10, 0, 0, 2));
    EXPECT_EQ(wanted.port, 5549);
    EXPECT_EQ(wanted.path, "/0123456789abcdef0123456789abcdef/..a%3A");
    EXPECT_EQ(wanted.from, Ipv4Address(10, 0, 0, 1));
    EXPECT_EQ(wanted.folder, QStringLiteral("/in"));
    EXPECT_EQ(wanted.name, QStringLiteral("a_"));
    EXPECT_EQ(received().lastFolder(), QStringLiteral("/in"));
}

TEST_F(TransfersTest, ProgressIsShown)
{
    chat();
    const int number = receive();
    received().save(number, QStringLiteral("/in"));
    tell({.number = number, .what = What::running, .place = 45, .size = 100, .perSecond = 12'300'000});
    EXPECT_EQ(shown(0, ReceivedFiles::Progress), QStringLiteral("45 % of 100 bytes, 12.3 MB a second"));
    EXPECT_EQ(copy.engine.transfers().underWay(), 1);
    tell({.number = number, .what = What::checking, .place = 100, .size = 100});
    EXPECT_EQ(shown(0, ReceivedFiles::Progress), QStringLiteral("is being checked"));
    tell({.number = number,
          .what = What::done,
          .place = 100,
          .size = 100,
          .path = QStringLiteral("/in/Plan.pdf"),
          .isChecked = true});
    EXPECT_EQ(shown(0, ReceivedFiles::Progress), QStringLiteral("saved and checked"));
    EXPECT_EQ(received().find(number)->path, QStringLiteral("/in/Plan.pdf"));
    EXPECT_EQ(copy.engine.transfers().underWay(), 0);
}

TEST_F(TransfersTest, WhatIsThereAlreadyIsSeenToBeChecked)
{
    chat();
    const int number = receive();
    received().save(number, QStringLiteral("/in"));
    tell({.number = number, .what = What::summing, .place = 30, .size = 100});
    EXPECT_EQ(shown(0, ReceivedFiles::Progress), QStringLiteral("checks what is there: 30 %"));
    EXPECT_EQ(copy.engine.transfers().underWay(), 1);
    received().pause(number);
    EXPECT_THAT(copy.fileFetcher.stopped, ElementsAre(number));
}

TEST_F(TransfersTest, AFileIsPausedAndResumed)
{
    chat();
    const int number = receive();
    received().resume(number);
    EXPECT_THAT(copy.fileFetcher.fetched, IsEmpty()) << "nobody has said where to";
    received().save(number, QStringLiteral("/in"));
    tell({.number = number, .what = What::running, .place = 45, .size = 100});
    received().pause(number);
    EXPECT_THAT(copy.fileFetcher.stopped, ElementsAre(number));
    EXPECT_EQ(received().find(number)->state, State::paused);
    received().resume(number);
    EXPECT_THAT(copy.fileFetcher.fetched, SizeIs(2));
    tell({.number = number, .what = What::failed, .sentence = QStringLiteral("Gone.")});
    EXPECT_EQ(shown(0, ReceivedFiles::Progress), QStringLiteral("Gone."));
    received().resume(number);
    EXPECT_THAT(copy.fileFetcher.fetched, SizeIs(3));
}

TEST_F(TransfersTest, WhoeverOffersItNoLongerIsNamed)
{
    chat();
    const int number = receive();
    received().save(number, QStringLiteral("/in"));
    tell({.number = number, .what = What::failed, .sentence = QStringLiteral("Gone."), .isGone = true});
    EXPECT_EQ(shown(0, ReceivedFiles::Progress), QStringLiteral("Ann no longer offers this file."));
}

TEST_F(TransfersTest, WhatWaitsForItsSumKeepsNobodyWaiting)
{
    chat();
    std::vector<int> numbers;
    for (int i = 0; i < 4; ++i)
        received().save(numbers.emplace_back(receiveAnother()), QStringLiteral("/in"));
    ASSERT_THAT(copy.fileFetcher.fetched, SizeIs(3));
    tell({.number = numbers.front(), .what = What::checking, .place = 100, .size = 100});
    ASSERT_THAT(copy.fileFetcher.fetched, SizeIs(4));
    EXPECT_EQ(copy.fileFetcher.fetched.back().number, numbers.back());
}

TEST_F(TransfersTest, WhatIsUnfinishedComesBackPausedAfterARestart)
{
    chat();
    const int number = receive();
    received().save(number, QStringLiteral("/in"));
    tell({.number = number, .what = What::running, .place = 45, .size = 100});
    const int over = receiveAnother(), gone = receiveAnother();
    received().save(over, QStringLiteral("/in"));
    tell({.number = over, .what = What::done, .path = QStringLiteral("/in/Plan (2).pdf")});
    received().save(gone, QStringLiteral("/in"));
    tell({.number = gone, .what = What::failed, .sentence = QStringLiteral("Gone."), .isGone = true});
    receiveAnother(); // which nobody wants
    copy.engine.mainWindow().Form_Unload();
    const std::unique_ptr<Copy> later = next();
    ReceivedFiles &files = later->engine.transfers().received;
    ASSERT_EQ(files.rowCount(), 1);
    EXPECT_EQ(files.at(0).sender, QStringLiteral("Ann"));
    EXPECT_EQ(files.index(0, ReceivedFiles::Progress).data().toString(), QStringLiteral("paused at 45 %"));
    EXPECT_THAT(later->fileFetcher.fetched, IsEmpty()) << "nothing is fetched by itself";
    EXPECT_EQ(later->engine.transfers().underWay(), 0);
    files.resume(files.at(0).number);
    ASSERT_THAT(later->fileFetcher.fetched, SizeIs(1));
    const WantedFile &wanted = later->fileFetcher.fetched.front();
    EXPECT_EQ(wanted.path, "/0123456789abcdef0123456789abcdef/Plan.pdf");
    EXPECT_EQ(wanted.host, Ipv4Address(10, 0, 0, 2));
    EXPECT_EQ(wanted.port, 5549);
    EXPECT_EQ(wanted.from, Ipv4Address(10, 0, 0, 1));
    EXPECT_EQ(wanted.folder, QStringLiteral("/in"));
    later->fileFetcher.told({.number = files.at(0).number, .what = What::done});
    later->advance(1s);
    EXPECT_EQ(later->settings.value("Transfers", "UnfinishedFiles"), "");
}

TEST_F(TransfersTest, WhatIsDiscardedIsRemovedAndNotToldOfAtTheNextStart)
{
    chat();
    const int paused = receive(), failed = receiveAnother(), running = receiveAnother(), offered = receiveAnother();
    for (const int number : {paused, failed, running})
        received().save(number, QStringLiteral("/in"));
    received().pause(paused);
    tell({.number = failed, .what = What::failed, .place = 45, .size = 100, .isGone = true});
    tell({.number = running, .what = What::running, .place = 45, .size = 100});
    for (const int number : {paused, failed, running, offered})
        received().discard(number);
    EXPECT_FALSE(received().find(paused));
    EXPECT_FALSE(received().find(failed));
    EXPECT_EQ(received().rowCount(), 2) << "what is under way, or was never begun, is not discarded";
    ASSERT_THAT(copy.fileFetcher.discarded, SizeIs(2));
    EXPECT_EQ(copy.fileFetcher.discarded.front().number, paused);
    EXPECT_EQ(copy.fileFetcher.discarded.front().folder, QStringLiteral("/in"));
    EXPECT_EQ(copy.fileFetcher.discarded.front().path, "/0123456789abcdef0123456789abcdef/Plan.pdf");
    received().pause(running);
    received().discard(running);
    copy.advance(1s);
    EXPECT_EQ(copy.settings.value("Transfers", "UnfinishedFiles"), "");
    EXPECT_EQ(next()->engine.transfers().received.rowCount(), 0);
    EXPECT_NE(receive(), 0) << "whoever offers it once more is heard";
}

TEST_F(TransfersTest, WhatIsLeftOfAFileThatIsGoneComesBackToBeDiscardedAndIsNotToldOf)
{
    chat();
    loseWhatHadBegun();
    const std::unique_ptr<Copy> later = justStarted();
    EXPECT_THAT(later->view.log.text().toStdString(), testing::Not(HasSubstr("files that had not all come")));
    ReceivedFiles &files = later->engine.transfers().received;
    ASSERT_EQ(files.rowCount(), 1);
    EXPECT_EQ(files.index(0, ReceivedFiles::Progress).data().toString(),
              QStringLiteral("Ann no longer offers this file."));
    EXPECT_THAT(later->fileFetcher.lookedUp, SizeIs(1));
    files.discard(files.at(0).number);
    EXPECT_THAT(later->fileFetcher.discarded, SizeIs(1));
    later->advance(1s);
    EXPECT_EQ(later->settings.value("Transfers", "UnfinishedFiles"), "");
}

TEST_F(TransfersTest, OfAFileThatIsGoneAndHasLeftNothingTheRowGoes)
{
    chat();
    loseWhatHadBegun();
    const std::unique_ptr<Copy> later = next();
    ReceivedFiles &files = later->engine.transfers().received;
    ASSERT_EQ(files.rowCount(), 1);
    later->fileFetcher.told({.number = files.at(0).number, .what = What::there, .place = 0});
    EXPECT_EQ(files.rowCount(), 0);
    later->advance(1s);
    EXPECT_EQ(later->settings.value("Transfers", "UnfinishedFiles"), "");
}

TEST_F(TransfersTest, ARestartSaysWhatIsUnfinishedAndAsksTheDiskHowFarItIs)
{
    chat();
    for (int i = 0; i < 2; ++i) {
        const int number = receiveAnother();
        received().save(number, QStringLiteral("/in"));
        tell({.number = number, .what = What::running, .place = 45, .size = 100});
    }
    copy.engine.mainWindow().Form_Unload();
    const std::unique_ptr<Copy> later = justStarted();
    EXPECT_THAT(later->view.log.text().toStdString(),
                HasSubstr("--- files that had not all come when NIMB-Chat ended: 2; Tools, Transfers... goes on with "
                          "them ---"));
    ReceivedFiles &files = later->engine.transfers().received;
    const int first = files.at(0).number, second = files.at(1).number;
    ASSERT_THAT(later->fileFetcher.lookedUp, SizeIs(2));
    EXPECT_EQ(later->fileFetcher.lookedUp.front().number, first);
    EXPECT_EQ(later->fileFetcher.lookedUp.front().folder, QStringLiteral("/in"));
    later->fileFetcher.told({.number = first, .what = What::there, .place = 70});
    EXPECT_EQ(ReceivedFiles::progressOf(files.at(0)), QStringLiteral("paused at 70 %"));
    files.resume(second);
    later->fileFetcher.told({.number = second, .what = What::running, .place = 90, .size = 100});
    later->fileFetcher.told({.number = second, .what = What::there, .place = 70});
    EXPECT_EQ(files.at(1).percent(), 90) << "it is further now";
    later->fileFetcher.told({.number = second, .what = What::failed, .place = 90, .sentence = QStringLiteral("Off.")});
    EXPECT_EQ(files.at(1).size, 100U) << "however little its last try has learnt";
}

TEST_F(TransfersTest, ARestartWithoutAnySaysNothing)
{
    EXPECT_THAT(justStarted()->view.log.text().toStdString(), testing::Not(HasSubstr("files that had not all come")));
}

TEST_F(TransfersTest, WhatIsUnfinishedIsKeptWithinASecondInTwoSavesAndOnlySoManyOfThem)
{
    chat();
    copy.advance(5s);
    const int before = copy.settings.saves;
    for (int i = 0; i < 60; ++i)
        received().save(receiveAnother(), QStringLiteral("/in"));
    copy.advance(1s);
    EXPECT_EQ(copy.settings.saves, before + 2);
    const std::unique_ptr<Copy> later = next(); // without an end of this one
    ReceivedFiles &files = later->engine.transfers().received;
    EXPECT_EQ(files.rowCount(), 50);
    EXPECT_EQ(files.at(49).link, received().at(59).link);
}

TEST_F(TransfersTest, TheSameFailureToKeepThemIsSaidOnce)
{
    chat();
    copy.settings.failure = QStringLiteral("The disk is full.");
    for (int i = 0; i < 3; ++i) {
        received().save(receiveAnother(), QStringLiteral("/in"));
        copy.advance(1s);
    }
    EXPECT_EQ(copy.view.log.text().count(QLatin1String("The disk is full.")), 1);
}

TEST_F(TransfersTest, LinksThatPourInDriveNothingOutThatWasBegun)
{
    chat();
    const int begun = receive();
    received().save(begun, QStringLiteral("/in"));
    received().pause(begun);
    tell({.number = begun, .what = What::stopped, .place = 45, .size = 100});
    for (int i = 0; i < 2 * limits::filesReceived; ++i)
        receiveAnother();
    EXPECT_TRUE(received().find(begun));
    EXPECT_LE(received().rowCount(), limits::filesReceived);
}

TEST_F(TransfersTest, ANameIsShownAsItWillBeSaved)
{
    chat();
    copy.arrive("10.0.0.2",
                "-\xE2\x80\xAEgpj.exe (1 bytes) http://10.0.0.2:5549/"
                "11223344556677889900112233445566/%E2%80%AEgpj.exe");
    ASSERT_EQ(received().rowCount(), 1);
    EXPECT_EQ(received().index(0, ReceivedFiles::File).data().toString(), QStringLiteral("gpj.exe (1 bytes)"));
}

TEST_F(TransfersTest, OneOfferIsOneRowHoweverItsNameIsWritten)
{
    chat();
    for (const char *const name : {"a.txt", "%61.txt", "b.txt"})
        copy.arrive("10.0.0.2",
                    std::string("-a.txt (1 bytes) http://10.0.0.2:5549/11223344556677889900112233445566/") + name);
    EXPECT_EQ(received().rowCount(), 1);
}

TEST_F(TransfersTest, WhatCannotBeReadOfThemIsPassedOver)
{
    const auto stored
        = QStringLiteral("[{\"message\":\"hello\",\"own\":\"10.0.0.1\",\"folder\":\"/in\"},7,"
                         "{\"message\":\"a (1 bytes) http://10.0.0.2:5549/0123456789abcdef0123456789abcdef/a\","
                         "\"own\":\"10.0.0.1\",\"folder\":\"/in\",\"place\":-3,\"size\":-1}]");
    Copy later({.settings = {{"Transfers/UnfinishedFiles", stored}}});
    EXPECT_EQ(later.engine.transfers().received.rowCount(), 1);
}

TEST_F(TransfersTest, ThreeOfOneSenderAreFetchedAtATime)
{
    chat();
    std::vector<int> numbers;
    for (int i = 0; i < 5; ++i) {
        numbers.push_back(receiveAnother());
        received().save(numbers.back(), QStringLiteral("/in"));
    }
    EXPECT_THAT(copy.fileFetcher.fetched, SizeIs(3));
    EXPECT_EQ(shown(3, ReceivedFiles::Progress), QStringLiteral("waits for others"));
    received().pause(numbers[3]);
    EXPECT_THAT(copy.fileFetcher.stopped, IsEmpty());
    tell({.number = numbers[0], .what = What::done});
    ASSERT_THAT(copy.fileFetcher.fetched, SizeIs(4));
    EXPECT_EQ(copy.fileFetcher.fetched.back().number, numbers[4]);
}

TEST_F(TransfersTest, FourAreFetchedAtATimeSoThatASenderWhoNeverAnswersLeavesAPlaceToAnother)
{
    chat();
    for (int i = 0; i < 3; ++i)
        received().save(receiveAnother(), QStringLiteral("/in"));
    std::vector<int> ofBen;
    copy.engine.privateWindows().openPrivate(Ipv4Address(10, 0, 0, 3));
    for (int i = 0; i < 2; ++i) {
        copy.arrive("10.0.0.3",
                    "-Plan.pdf (2.3 MB) http://10.0.0.3:5549/0123456789abcdef0123456789abcde" + std::to_string(i)
                        + "/Plan.pdf");
        ofBen.push_back(received().at(received().rowCount() - 1).number);
        received().save(ofBen.back(), QStringLiteral("/in"));
    }
    ASSERT_THAT(copy.fileFetcher.fetched, SizeIs(4));
    EXPECT_EQ(copy.fileFetcher.fetched.back().number, ofBen.front());
}

TEST_F(TransfersTest, WhatHasBegunInOneFolderIsRemovedThereWhenItIsSavedInAnother)
{
    chat();
    const int number = receive();
    received().save(number, QStringLiteral("/in"));
    tell({.number = number, .what = What::failed, .place = 45, .size = 100});
    received().save(number, QStringLiteral("/in"));
    EXPECT_THAT(copy.fileFetcher.discarded, IsEmpty()) << "there it goes on";
    tell({.number = number, .what = What::failed, .place = 45, .size = 100});
    received().save(number, QStringLiteral("/elsewhere"));
    ASSERT_THAT(copy.fileFetcher.discarded, SizeIs(1));
    EXPECT_EQ(copy.fileFetcher.discarded.front().folder, QStringLiteral("/in"));
    EXPECT_EQ(copy.fileFetcher.fetched.back().folder, QStringLiteral("/elsewhere"));
}

TEST_F(TransfersTest, APictureIsShownBeforeItIsSaved)
{
    chat();
    const int number = receive("a.png (2.3 MB) http://10.0.0.2:5549/0123456789abcdef0123456789abcdef/a.png");
    received().look(number, QStringLiteral("/tmp/look"));
    ASSERT_THAT(copy.fileFetcher.fetched, SizeIs(1));
    EXPECT_EQ(copy.fileFetcher.fetched.front().most, 5'000'000U);
    tell({.number = number, .what = What::done, .path = QStringLiteral("/tmp/look/a.png"), .isChecked = true});
    EXPECT_EQ(received().find(number)->picture, QStringLiteral("/tmp/look/a.png"));
    EXPECT_EQ(received().find(number)->state, State::offered) << "it can still be saved";
    received().save(number, QStringLiteral("/in"));
    EXPECT_EQ(copy.fileFetcher.fetched.back().most, 0U);
}

TEST_F(TransfersTest, WhatIsNoPictureIsNotShown)
{
    chat();
    received().look(receive(), QStringLiteral("/tmp/look"));
    EXPECT_THAT(copy.fileFetcher.fetched, IsEmpty());
}

TEST_F(TransfersTest, TheOldestGoButForThoseThatAreFetched)
{
    chat();
    const int first = receive();
    received().save(first, QStringLiteral("/in"));
    for (int i = 0; i < 600; ++i)
        receiveAnother();
    EXPECT_EQ(received().rowCount(), 500);
    EXPECT_EQ(received().at(0).number, first);
}

} // namespace
} // namespace nimb::test
