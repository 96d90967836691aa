// A copy that is killed loses nothing that it showed.
#include "chat_windows.h"
#include "child_process.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <QFile>

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAreArray;

class KilledCopy : public testing::Test
{
protected:
    MainWindow start() { return MainWindow::startBob(bob, ann); }
    /// Waits until it is kept beside the store, which stays as it is.
    bool keeps(const std::string &section, const std::string &key, const std::string &value) const
    {
        return waitUntil([&] {
            const Rows kept = bob.kept();
            const auto found = kept.find({section, key});
            return found != kept.end() && found->second == value;
        });
    }
    std::string mainLog(const MainWindow &main)
    {
        ann.send(bob.address(), "!ONLINE 127.0.52.2 ANN-PC Ann");
        const PrivateWindow window = main.openWhenOnline(0, "Ann");
        return logHeardBy(ann, main, window);
    }

    /// A run that ended well, then a store that is none, and the start that offers the good copy.
    void startWithAWreck()
    {
        start();
        EXPECT_EQ(bob.end(), 0);
        QFile wreck(bob.storeFile());
        EXPECT_TRUE(wreck.open(QFile::WriteOnly));
        wreck.write("this is no database");
        wreck.close();
        bob.start({});
        const Window question = Window::waitFor("NIMB-Chat");
        EXPECT_TRUE(waitUntil([&] { return question.isActive(); }));
    }

    const std::uint16_t port = freePort();
    const std::vector<StoredContact> annAlone = {{"127.0.52.2", "Ann", "ANN-PC"}};
    WirePeer ann{"127.0.52.2", port};
    RunningCopy bob{{"127.0.52.1", "BOB-PC"}, profile(port, annAlone)};
};

TEST_F(KilledCopy, KnowsFortyLearnedContactsAgainAndSaysWhy)
{
    start();
    std::vector<StoredContact> known = annAlone;
    for (int i = 1; i <= 40; ++i) {
        const std::string number = std::to_string(i);
        known.push_back({"127.0.53." + number, "Nick " + number, "PC-" + number});
        const StoredContact &learned = known.back();
        WirePeer(learned.ip, port)
            .send(bob.address(), "?ONLINE " + learned.ip + ' ' + learned.workstation + ' ' + learned.nickname);
    }
    EXPECT_TRUE(waitUntil([this] { return bob.kept().size() == 80; })) << bob.kept().size();
    bob.kill();
    EXPECT_THAT(bob.storedContacts(), testing::ElementsAreArray(annAlone)) << "stored when the program ends";

    WirePeer first("127.0.53.1", port);
    const MainWindow main = start();
    EXPECT_EQ(first.next(), "?ONLINE 127.0.52.1 BOB-PC Bob");
    EXPECT_THAT(mainLog(main), HasSubstr("could not save everything when it last ended"));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), UnorderedElementsAreArray(known));
    EXPECT_THAT(bob.kept(), IsEmpty());

    EXPECT_THAT(mainLog(start()), Not(HasSubstr("when it last ended")));
}

TEST_F(KilledCopy, HasTheOptionsThatWereTakenWithOK)
{
    const MainWindow main = start();
    const std::uint16_t next = freePort();
    main.activate();
    press("alt+t");
    press("o");
    const Window options = Window::waitFor("NIMB-Chat - Options");
    EXPECT_TRUE(waitUntil([&] { return options.isActive(); }));
    press("Tab");
    press("Tab");
    press("space"); // no pop-up
    press("alt+p");
    press("ctrl+a");
    type(std::to_string(next));
    press("Return");
    EXPECT_TRUE(keeps("Settings", "UDPPort", std::to_string(next)));
    EXPECT_TRUE(keeps("Options", "NotifyWin", "0"));
    bob.kill();
    EXPECT_EQ(bob.stored("Settings", "UDPPort"), std::to_string(port)) << "stored when the program ends";

    WirePeer annThere("127.0.52.2", next);
    bob.start({"Bob"});
    EXPECT_EQ(annThere.next(), "?ONLINE 127.0.52.1 BOB-PC Bob");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "UDPPort"), std::to_string(next));
    EXPECT_EQ(bob.stored("Options", "NotifyWin"), "0");
}

TEST_F(KilledCopy, ThatCouldNotSaveAtTheSignalSaysSoByItsStatusAndAtTheNextStart)
{
    start();
    bob.holdStoreWhile([this] { EXPECT_EQ(bob.end(), 1); });
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.52.1 BOB-PC Bob");
    EXPECT_THAT(bob.printed(), HasSubstr("The settings were not saved"));
    EXPECT_THAT(mainLog(start()), HasSubstr("When NIMB-Chat last ended: The settings were not saved"));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(mainLog(start()), Not(HasSubstr("When NIMB-Chat last ended")));
}

TEST_F(KilledCopy, TakesItsLeaveAndSavesWhenTheScreenIsGone)
{
    QProcess screen;
    screen.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    endWithParent(screen);
    screen.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset"});
    ASSERT_TRUE(screen.waitForStarted());
    ASSERT_TRUE(waitUntil([&] { return screen.waitForReadyRead(100) || screen.bytesAvailable() > 0; }));
    bob.setVariable("DISPLAY", ":" + QString::fromLatin1(screen.readAll().trimmed()));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    ann.send(bob.address(), "!ONLINE 127.0.52.2 NEW-PC New name");
    ann.send(bob.address(), "?ONLINE");
    ann.hearUntil("!STATUS Online");
    screen.kill();
    EXPECT_TRUE(screen.waitForFinished());
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.52.1 BOB-PC Bob");
    EXPECT_NE(bob.exitStatus(), std::nullopt) << "it crashed";
    EXPECT_THAT(bob.storedContacts(), testing::ElementsAre(StoredContact{"127.0.52.2", "New name", "NEW-PC"}));
    EXPECT_THAT(bob.kept(), IsEmpty());
}

TEST_F(KilledCopy, OffersTheGoodCopyOfADamagedStore)
{
    startWithAWreck();
    press("alt+y");
    const auto isDatabase = [this] {
        QFile store(bob.storeFile());
        return store.open(QFile::ReadOnly) && store.read(15) == "SQLite format 3";
    };
    EXPECT_TRUE(waitUntil(isDatabase));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), testing::ElementsAreArray(annAlone));
}

TEST_F(KilledCopy, EndsWhenItIsAskedToWhileItOffersTheGoodCopy)
{
    startWithAWreck();
    EXPECT_EQ(bob.end(), 0);
    QFile wreck(bob.storeFile());
    ASSERT_TRUE(wreck.open(QFile::ReadOnly));
    EXPECT_EQ(wreck.readAll(), "this is no database");
}

TEST_F(KilledCopy, DoesNotKnowARemovedContactAgain)
{
    const MainWindow main = start();
    main.chooseRemove(0);
    const Window question = Window::waitFor("Please confirm user removal");
    EXPECT_TRUE(waitUntil([&] { return question.isActive(); }));
    press("Return");
    EXPECT_TRUE(keeps("Users", "Nn:127.0.52.2", "(gone)"));
    bob.kill();
    bob.start({"Bob"});
    MainWindow::of("Bob");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), IsEmpty());
    EXPECT_THAT(ann.waiting(), IsEmpty());
}

} // namespace
} // namespace nimb::test
