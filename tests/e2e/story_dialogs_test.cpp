// The dialogs of the real program, used by mouse and keyboard.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include <csignal>

namespace nimb::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

class StoryDialogs : public testing::Test
{
protected:
    MainWindow start() { return MainWindow::startBob(bob, ann); }
    /// Opens a menu by its access key and chooses an entry by its own.
    static Window choose(const MainWindow &main, const std::string &menu, const std::string &entry,
                         const std::string &caption)
    {
        main.activate();
        press(menu);
        press(entry);
        return dialog(caption);
    }
    static Window chooseForContact(const MainWindow &main, const std::string &entry, const std::string &caption)
    {
        main.openContextMenu(0);
        press(entry);
        return dialog(caption);
    }
    /// Waits for it and for its focus.
    static Window dialog(const std::string &caption)
    {
        const Window window = Window::waitFor(caption);
        EXPECT_TRUE(waitUntil([&] { return window.isActive(); })) << caption;
        return window;
    }
    static bool closes(const std::string &caption)
    {
        return waitUntil([&] { return !Window::exists(caption); });
    }
    /// It answers Ann, and so it has read what was sent to it before.
    bool hasDealtWithEverything(const RunningCopy &copy)
    {
        ann.send(copy.address(), "?ONLINE");
        return ann.hearUntil("!STATUS Online").back() == "!STATUS Online";
    }
    /// A program of this name that Bob's copy finds before all others. It writes its arguments, one per line, and then
    /// what it reads, into the file of the same name with "heard" behind it.
    void fakeProgram(const QString &name)
    {
        const QString folder = bob.scratchFolder() + QStringLiteral("/bin");
        QDir().mkpath(folder);
        const QString heard = heardFile(name);
        QFile script(folder + u'/' + name);
        ASSERT_TRUE(script.open(QFile::WriteOnly));
        script.write(
            QStringLiteral("#!/bin/sh\n{ for word in \"$@\"; do printf '%%s\\n' \"$word\"; done; cat; } >'%1.part'\n"
                           "mv '%1.part' '%1'\n")
                .arg(heard)
                .replace(QStringLiteral("%%"), QStringLiteral("%"))
                .toUtf8());
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        bob.setVariable(QStringLiteral("PATH"), folder + u':' + qEnvironmentVariable("PATH"));
    }
    QString heardFile(const QString &name) const
    {
        return bob.scratchFolder() + u'/' + name + QStringLiteral("-heard");
    }
    std::string heardBy(const QString &name) const
    {
        QFile file(heardFile(name));
        EXPECT_TRUE(waitUntil([&file] { return file.exists(); })) << name.toStdString() << " was not started";
        return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    std::uint16_t port = freePort();
    WirePeer ann{"127.0.49.2", port};
    RunningCopy bob{{"127.0.49.1", "BOB-PC"}, profile(port, {{"127.0.49.2", "Ann", "ANN-PC"}})};
};

TEST_F(StoryDialogs, ATipIsShownAtTheStartAndTheNextOneAtTheNext)
{
    bob.writeStore({{{"Options", "TipOTDay"}, "1"}});
    bob.start({"Bob"});
    dialog("Tip of the Day - Tip #1");
    press("alt+n");
    EXPECT_TRUE(closes("Tip of the Day - Tip #1"));
    dialog("Tip of the Day - Tip #2");
    press("Escape");
    EXPECT_TRUE(closes("Tip of the Day - Tip #2"));
    // It is kept at once, not only when the program ends.
    EXPECT_TRUE(waitUntil([this] { return bob.stored("Options", "TipOTDayNum") == "2"; }));
    bob.kill();
    bob.start({"Bob"});
    dialog("Tip of the Day - Tip #3");
    press("shift+Tab");
    press("shift+Tab");
    press("space"); // no tips any more
    press("Return");
    EXPECT_TRUE(closes("Tip of the Day - Tip #3"));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Options", "TipOTDay"), "0");
    EXPECT_EQ(bob.stored("Options", "TipOTDayNum"), "3");
}

TEST_F(StoryDialogs, TheProgramSpeaksTheDesktopsLanguageOrTheOneThatWasChosen)
{
    bob.setVariable(QStringLiteral("LC_ALL"), QStringLiteral("es_ES.UTF-8"));
    start();
    press("ctrl+h");
    dialog("NIMB-Chat - Historial");
    EXPECT_EQ(bob.end(), 0);
    bob.writeStore({{{"Options", "Language"}, "fr"}});
    start();
    press("ctrl+h");
    dialog("NIMB-Chat - Historique");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Options", "Language"), "fr");
}

TEST_F(StoryDialogs, ATipThatStandsThereEndsWithTheProgramAndIsKept)
{
    bob.writeStore({{{"Options", "TipOTDay"}, "1"}});
    bob.start({"Bob"});
    dialog("Tip of the Day - Tip #1");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Options", "TipOTDayNum"), "1");
}

TEST_F(StoryDialogs, AScanOfOneAddressAsksItOnce)
{
    const MainWindow main = start();
    WirePeer far("127.0.50.9", port);
    choose(main, "alt+u", "n", "NIMB-Chat - Network Scan");
    type("127.0.50.9");
    press("Return");
    EXPECT_EQ(far.next(), "?ONLINE 127.0.49.1 BOB-PC Bob");
    EXPECT_TRUE(closes("NIMB-Chat - Network Scan"));
    far.send(bob.address(), "!ONLINE 127.0.50.9 FAR-PC Far");
    far.send(bob.address(), "?ONLINE");
    EXPECT_EQ(far.next(), "!ONLINE 127.0.49.1 BOB-PC Bob");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), Contains(StoredContact{"127.0.50.9", "Far", "FAR-PC"}));
}

TEST_F(StoryDialogs, AScanOfTheBroadcastAddressReachesACopyThatWasNotKnown)
{
    RunningCopy cleo({"127.0.49.3", "CLEO-PC"}, profile(port, {{"127.0.49.2", "Ann", "ANN-PC"}}));
    cleo.start({"Cleo"});
    ann.hearUntil("!STATUS Online");
    const MainWindow main = start();
    // The first question makes Cleo take Bob into her list, the second one she answers.
    for (int scan = 0; scan < 2; ++scan) {
        choose(main, "alt+u", "n", "NIMB-Chat - Network Scan");
        type("127.255.255.255");
        press("Return");
        EXPECT_TRUE(closes("NIMB-Chat - Network Scan"));
        EXPECT_TRUE(hasDealtWithEverything(cleo));
    }
    EXPECT_TRUE(hasDealtWithEverything(bob));
    // Without a farewell, by which each would know the other as well.
    cleo.signal(SIGSTOP);
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), Contains(StoredContact{"127.0.49.3", "Cleo", "CLEO-PC"}));
    cleo.signal(SIGCONT);
    EXPECT_EQ(cleo.end(), 0);
    EXPECT_THAT(cleo.storedContacts(), Contains(StoredContact{"127.0.49.1", "Bob", "BOB-PC"}));
}

TEST_F(StoryDialogs, EverybodyIsFoundByOneChoiceInTheMenu)
{
    const std::vector<StoredContact> annAlone{{"127.0.49.2", "Ann", "ANN-PC"}};
    RunningCopy cleo({"127.0.49.3", "CLEO-PC"}, profile(port, annAlone));
    cleo.start({"Cleo"});
    ann.hearUntil("!STATUS Online");
    RunningCopy dan({"127.0.49.4", "DAN-PC"}, profile(port, annAlone));
    dan.start({"Dan"});
    ann.hearUntil("!STATUS Online");
    const MainWindow main = start();
    // Before the others come, or Ann's row would not be the first.
    ann.send("127.0.49.1", "!ONLINE 127.0.49.2 ANN-PC Ann");
    const PrivateWindow window = main.openWhenOnline(0, "Ann");
    main.activate();
    press("alt+u");
    press("f");
    EXPECT_TRUE(waitUntil([&] { return logHeardBy(ann, main, window).find("--- 2 answered: ") != std::string::npos; }));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(),
                UnorderedElementsAre(StoredContact{"127.0.49.2", "Ann", "ANN-PC"},
                                     StoredContact{"127.0.49.3", "Cleo", "CLEO-PC"},
                                     StoredContact{"127.0.49.4", "Dan", "DAN-PC"}));
    EXPECT_EQ(cleo.end(), 0);
    EXPECT_EQ(dan.end(), 0);
}

TEST_F(StoryDialogs, AUserAddedByHandIsKept)
{
    const MainWindow main = start();
    choose(main, "alt+u", "a", "Add offline user");
    type("Grace");
    press("Tab");
    type("GRACE-PC");
    press("Tab");
    type("127.0.49.77");
    press("Return");
    EXPECT_TRUE(closes("Add offline user"));
    EXPECT_THAT(ann.waiting(), IsEmpty());
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), Contains(StoredContact{"127.0.49.77", "Grace", "GRACE-PC"}));
}

TEST_F(StoryDialogs, AnAddressThatIsUsedAlreadyIsRefusedAndTheFieldsStay)
{
    const MainWindow main = start();
    choose(main, "alt+u", "a", "Add offline user");
    press("alt+i");
    type("127.0.49.2");
    press("Return");
    dialog("NIMB-Chat");
    press("Return");
    EXPECT_TRUE(closes("NIMB-Chat"));
    // The fields are as they were, and the caret stands behind the address: another digit makes it a new one.
    dialog("Add offline user");
    type("2");
    press("alt+n");
    type("Ann's sister");
    press("alt+w");
    type("OTHER-PC");
    press("Return");
    EXPECT_TRUE(closes("Add offline user"));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), Contains(StoredContact{"127.0.49.22", "Ann's sister", "OTHER-PC"}));
}

TEST_F(StoryDialogs, APortChosenInTheOptionsIsUsedFromTheNextStartOn)
{
    const std::uint16_t next = freePort();
    const MainWindow main = start();
    choose(main, "alt+t", "o", "NIMB-Chat - Options");
    press("Tab");
    press("Tab");
    press("space"); // no pop-up either
    press("alt+p");
    press("ctrl+a");
    type(std::to_string(next));
    press("Return");
    EXPECT_TRUE(closes("NIMB-Chat - Options"));
    ann.send(bob.address(), "?ONLINE");
    EXPECT_EQ(ann.hearUntil("!STATUS Online").back(), "!STATUS Online") << "this run stays on its port";
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "UDPPort"), std::to_string(next));
    EXPECT_EQ(bob.stored("Options", "NotifyWin"), "0");
    WirePeer annThere("127.0.49.2", next);
    bob.start({"Bob"});
    EXPECT_EQ(annThere.next(), "?ONLINE 127.0.49.1 BOB-PC Bob");
}

TEST_F(StoryDialogs, ContactsAreSentToTheOneThatWasClicked)
{
    bob.writeStore(contactRows({{"127.0.49.2", "Ann", "ANN-PC"}, {"127.0.49.5", "Zeno", "ZENO-PC"}}));
    const MainWindow main = start();
    chooseForContact(main, "c", "NIMB-Chat - Send Contacts to 'Ann'");
    press("Tab");
    press("Tab");
    press("space"); // all of them
    press("alt+s");
    EXPECT_EQ(ann.next(), "!USER 127.0.49.5 ZENO-PC Zeno");
    EXPECT_TRUE(closes("NIMB-Chat - Send Contacts to 'Ann'"));
}

TEST_F(StoryDialogs, AnInvitationReachesTheSystemsProgramAsItWasWritten)
{
    fakeProgram(QStringLiteral("smbclient"));
    const MainWindow main = start();
    chooseForContact(main, "n", "NIMB-Chat - Invite by net send");
    press("alt+o");
    press("Tab");
    type("come \"now\" $(reboot) `id` ; 'so'");
    press("Return");
    EXPECT_EQ(heardBy(QStringLiteral("smbclient")), "--message=ANN-PC\ncome \"now\" $(reboot) `id` ; 'so'");
    EXPECT_TRUE(closes("NIMB-Chat - Invite by net send"));
}

TEST_F(StoryDialogs, TheAboutBoxStartsTheSystemsOwnTool)
{
    fakeProgram(QStringLiteral("kinfocenter"));
    const MainWindow main = start();
    choose(main, "alt+h", "a", "About NIMB-Chat");
    press("alt+s");
    EXPECT_EQ(heardBy(QStringLiteral("kinfocenter")), "");
    dialog("About NIMB-Chat");
    press("Escape");
    EXPECT_TRUE(closes("About NIMB-Chat"));
}

struct OpenDialog {
    const char *name, *menu, *entry, *caption;
};

class EndWithADialog : public StoryDialogs, public testing::WithParamInterface<OpenDialog>
{
};

/// Whoever is asked to end does, whatever stands on the screen.
TEST_P(EndWithADialog, IsAsOrderlyAsWithout)
{
    const MainWindow main = start();
    choose(main, GetParam().menu, GetParam().entry, GetParam().caption);
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.49.1 BOB-PC Bob");
}

INSTANTIATE_TEST_SUITE_P(Each, EndWithADialog,
                         testing::Values(OpenDialog{"Scan", "alt+u", "n", "NIMB-Chat - Network Scan"},
                                         OpenDialog{"AddUser", "alt+u", "a", "Add offline user"},
                                         OpenDialog{"Options", "alt+t", "o", "NIMB-Chat - Options"},
                                         OpenDialog{"About", "alt+h", "a", "About NIMB-Chat"},
                                         OpenDialog{"Tip", "alt+h", "t", "Tip of the Day - Tip #1"}),
                         [](const auto &dialog) { return std::string(dialog.param.name); });

} // namespace
} // namespace nimb::test
