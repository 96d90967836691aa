// How a copy starts, stands beside a second start, and ends.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <csignal>

#include <sys/stat.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using State = Window::State;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << path.toStdString() << ": " << file.errorString().toStdString();
    return file.readAll();
}

int modeOf(const QString &path)
{
    struct stat information = {};
    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &information), 0) << path.toStdString();
    return static_cast<int>(information.st_mode & 0777);
}

class Lifecycle : public testing::Test
{
protected:
    const RunningCopy::Place home{"127.0.33.1", "BOB-PC"};
    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.33.2", port};

    Rows withAnn(const Rows &further = {}) const { return profile(port, {{"127.0.33.2", "Ann", "ANN-PC"}}, further); }

    /// Waits until the copy has greeted Ann.
    void start(RunningCopy &copy, const QStringList &arguments = {"Bob"})
    {
        copy.start(arguments);
        ann.hearUntil("!STATUS Online");
    }

    /// Whether it hears and answers.
    bool answers(const RunningCopy &copy)
    {
        ann.send(copy.address(), "?ONLINE");
        const std::vector<std::string> heard = ann.hearUntil("!STATUS Online");
        return heard.size() == 2 && heard.front().starts_with("!ONLINE " + copy.address() + ' ');
    }
};

// --- the nickname

struct CommandLine {
    const char *label;
    QStringList arguments;
    std::string nickname;
};

void PrintTo(const CommandLine &commandLine, std::ostream *out)
{
    *out << commandLine.label;
}

class NicknameOnTheCommandLine : public Lifecycle, public testing::WithParamInterface<CommandLine>
{
};

TEST_P(NicknameOnTheCommandLine, StartsTheMainWindowMinimised)
{
    const CommandLine &given = GetParam();
    RunningCopy bob(home, withAnn());
    bob.start(given.arguments);
    const MainWindow main = MainWindow::of(given.nickname);
    EXPECT_TRUE(main.becomes(State::minimised)) << main.state();
    EXPECT_FALSE(Window::exists("NIMB-Chat")) << "the login dialog";
    letWindowsSettle();
    EXPECT_EQ(main.state(), State::minimised);
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "MyNickName"), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Lifecycle, NicknameOnTheCommandLine,
    testing::Values(CommandLine{"OneWord", {"Bob"}, "Bob"},
                    CommandLine{"SeveralWords", {"Bob", "the", "Builder"}, "Bob the Builder"},
                    CommandLine{"WordsThatQtKnows",
                                {"-style", "windows", "-platform", "nonsense"},
                                "-style windows -platform nonsense"},
                    CommandLine{"LikeAnOption", {"--help"}, "--help"},
                    CommandLine{"OddCharacters", {"J\u00fcrgen <b>%1</b>", "[*]"}, "J\u00fcrgen <b>%1</b> [*]"}),
    [](const auto &parameter) { return parameter.param.label; });

// --- the login dialog

class LoginDialog : public Lifecycle
{
protected:
    Window dialog(RunningCopy &copy)
    {
        copy.start({});
        const Window window = Window::waitFor("NIMB-Chat");
        EXPECT_TRUE(waitUntil([&] { return window.isActive(); })) << "the login dialog has no focus";
        return window;
    }

    /// Return, again and again: the box has the focus a moment after the dialog.
    void confirm(const std::string &nickname)
    {
        press("Return");
        EXPECT_TRUE(waitUntil([&] { return Window::exists("NIMB-Chat 1.2 - " + nickname); })) << nickname;
    }
};

TEST_F(LoginDialog, OffersTheHostNameAndStoresWhatIsChosen)
{
    RunningCopy bob(home, withAnn());
    dialog(bob);
    EXPECT_THAT(ann.waiting(), IsEmpty());
    confirm("BOB-PC");
    EXPECT_EQ(ann.next(), "?ONLINE 127.0.33.1 BOB-PC BOB-PC");
    EXPECT_EQ(bob.stored("Settings", "MyNickName"), "BOB-PC"); // at once, not at the end

    const MainWindow main = MainWindow::of("BOB-PC");
    EXPECT_TRUE(main.becomes(State::shown));
    EXPECT_TRUE(waitUntil([&] { return main.isActive(); }));
    EXPECT_FALSE(Window::exists("NIMB-Chat"));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "MyNickName"), "BOB-PC");
}

TEST_F(LoginDialog, TakesATypedNickname)
{
    RunningCopy bob(home, withAnn({{{"Settings", "MyNickName"}, "Robert"}}));
    dialog(bob);
    press("ctrl+a");
    type("Bob the Büilder");
    confirm("Bob the B\u00fcilder");
    EXPECT_EQ(ann.next(), "?ONLINE 127.0.33.1 BOB-PC Bob the B\xFCilder");
    EXPECT_EQ(bob.stored("Settings", "MyNickName"), "Bob the B\u00fcilder");
}

TEST_F(LoginDialog, OffersTheStoredNickname)
{
    RunningCopy bob(home, withAnn({{{"Settings", "MyNickName"}, "Robert"}}));
    dialog(bob);
    confirm("Robert");
}

TEST_F(LoginDialog, TakesTheHostNameForAnEmptyBox)
{
    RunningCopy bob(home, withAnn({{{"Settings", "MyNickName"}, "Robert"}}));
    dialog(bob);
    press("ctrl+a");
    press("Delete");
    confirm("BOB-PC");
    EXPECT_EQ(bob.stored("Settings", "MyNickName"), "BOB-PC");
}

TEST_F(LoginDialog, ClosingTheDialogEndsTheProgramBeforeAnythingIsBoundOrSaid)
{
    const Rows before = withAnn({{{"Settings", "MyNickName"}, "Robert"}});
    RunningCopy bob(home, before);
    const Window window = dialog(bob);
    EXPECT_TRUE(WirePeer::couldBind("127.0.33.1", port));
    window.close();
    EXPECT_EQ(bob.exitStatus(), 0);
    EXPECT_THAT(ann.waiting(), IsEmpty());
    EXPECT_EQ(bob.readStore(), before);
}

TEST_F(LoginDialog, EscapeEndsTheProgram)
{
    RunningCopy bob(home, withAnn());
    dialog(bob);
    press("Escape");
    EXPECT_EQ(bob.exitStatus(), 0);
    EXPECT_THAT(ann.waiting(), IsEmpty());
}

TEST_F(LoginDialog, ASignalEndsTheProgramWhileTheDialogIsOpen)
{
    RunningCopy bob(home, withAnn());
    dialog(bob);
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(ann.waiting(), IsEmpty());
}

// --- the second start

class SecondStart : public Lifecycle
{
};

TEST_F(SecondStart, RestoresTheWindowOfTheStoredNicknameAndEnds)
{
    RunningCopy bob(home, withAnn({{{"Settings", "MyNickName"}, "Bob the Builder"}}));
    start(bob, {"Bob the Builder"});
    const MainWindow main = MainWindow::of("Bob the Builder");
    EXPECT_TRUE(main.becomes(State::minimised));

    EXPECT_EQ(bob.startAgain(), 0);
    EXPECT_TRUE(main.becomes(State::shown)) << main.state();
    EXPECT_TRUE(waitUntil([&] { return main.isActive(); }));
    EXPECT_THAT(ann.waiting(), IsEmpty()); // the second one said nothing
    EXPECT_TRUE(answers(bob));

    // A nickname on its command line makes no difference.
    main.minimise();
    EXPECT_EQ(bob.startAgain({"Somebody", "else"}), 0);
    EXPECT_TRUE(main.becomes(State::shown)) << main.state();
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(SecondStart, LeavesAWindowOfAnotherNicknameAlone)
{
    RunningCopy bob(home, withAnn({{{"Settings", "MyNickName"}, "Robert"}}));
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    EXPECT_TRUE(main.becomes(State::minimised));

    EXPECT_EQ(bob.startAgain(), 0);
    EXPECT_EQ(bob.startAgain({"Bob"}), 0);
    EXPECT_TRUE(answers(bob));
    letWindowsSettle();
    EXPECT_EQ(main.state(), State::minimised);
    EXPECT_FALSE(Window::exists("NIMB-Chat"));
}

TEST_F(SecondStart, WithAnotherProfileIsACopyOfItsOwn)
{
    RunningCopy bob(home, withAnn());
    RunningCopy cleo({"127.0.33.3", "CLEO-PC"}, withAnn());
    start(bob);
    start(cleo, {"Cleo"});
    EXPECT_TRUE(answers(bob));
    EXPECT_TRUE(answers(cleo));
    EXPECT_EQ(cleo.end(), 0);
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(SecondStart, AtTheSameMomentLeavesOneCopy)
{
    RunningCopy one(home, withAnn());
    RunningCopy other(home);
    other.setProfileFolder(one.profileFolder());
    one.start({"Bob"});
    other.start({"Bob"});
    EXPECT_TRUE(waitUntil([&] { return one.isRunning() != other.isRunning(); }));
    RunningCopy &survivor = one.isRunning() ? one : other;
    RunningCopy &loser = one.isRunning() ? other : one;
    EXPECT_EQ(loser.exitStatus(), 0);
    EXPECT_THAT(ann.hearUntil("!STATUS Online"), ElementsAre("?ONLINE 127.0.33.1 BOB-PC Bob", "!STATUS Online"));
    EXPECT_TRUE(answers(survivor));
    EXPECT_EQ(Window::all("NIMB-Chat 1.2 - Bob").size(), 1U);
    EXPECT_EQ(survivor.end(), 0);
}

TEST_F(SecondStart, EndsWhileTheFirstOneIsAtItsLogin)
{
    RunningCopy bob(home, withAnn());
    bob.start({});
    Window::waitFor("NIMB-Chat");
    EXPECT_EQ(bob.startAgain({"Bob"}), 0);
    EXPECT_EQ(Window::all("NIMB-Chat").size(), 1U);
    EXPECT_FALSE(Window::exists("NIMB-Chat 1.2 - Bob"));
}

// --- the end

struct Signal {
    const char *label;
    int number;
};

void PrintTo(const Signal &signal, std::ostream *out)
{
    *out << signal.label;
}

class EndedBySignal : public Lifecycle, public testing::WithParamInterface<Signal>
{
};

TEST_P(EndedBySignal, TellsEveryContactInListOrderAndSavesEverything)
{
    WirePeer zoe("127.0.33.3", port);
    WirePeer ben("127.0.33.4", port);
    WirePeer cleo("127.0.33.5", port);
    RunningCopy bob(home,
                    profile(port,
                            {{"127.0.33.5", "Cleo", "CLEO-PC"},
                             {"127.0.33.3", "Zoe", "ZOE-PC"},
                             {"127.0.33.4", "Ben", "BEN-PC"},
                             {"127.0.33.2", "[unknown]", "[unknown]"}},
                            {{{"Settings", "MainHeight"}, "7500"},
                             {{"Options", "LiveType"}, "0"},
                             {{"Settings", "AutoReplyonAwayActive"}, "-1"},
                             {{"Settings", "AutoReplyonawayText"}, "Gone"},
                             {{"Settings", "StandardFontStyle"}, "bi"},
                             {{"Settings", "AvatarBody"}, "a body without a head"},
                             {{"Settings", "PersonalizedState1"}, "4In a meeting - long"},
                             {{"Settings", "PersonalizedState3"}, "5Gone fishing"},
                             {{"Users", "IP9"}, "127.0.33.99"},
                             {{"Options", "TipOTDay"}, "0"}}));
    bob.start({"Bob"});
    for (WirePeer *peer : {&ann, &ben, &cleo, &zoe})
        peer->hearUntil("!STATUS Online");
    // Ann and Zoe are there, Ben and Cleo are silent and stand behind them.
    zoe.send("127.0.33.1", "?ONLINE 127.0.33.3 ZOE-PC Zoe");
    zoe.hearUntil("!STATUS Online");
    ann.send("127.0.33.1", "?ONLINE 127.0.33.2 ANN-PC Ann");
    ann.hearUntil("!STATUS Online");

    bob.signal(GetParam().number);
    EXPECT_EQ(bob.exitStatus(), 0);
    std::chrono::nanoseconds before(0);
    for (WirePeer *peer : {&ann, &zoe, &ben, &cleo}) {
        const std::optional<Heard> farewell = peer->hear();
        ASSERT_TRUE(farewell) << peer->address();
        EXPECT_EQ(farewell->bytes, "!OFFLINE 127.0.33.1 BOB-PC Bob");
        EXPECT_EQ(farewell->sourceAddress, "127.0.33.1");
        EXPECT_GT(farewell->moment, before) << peer->address();
        before = farewell->moment;
        EXPECT_THAT(peer->waiting(), IsEmpty());
    }

    const Rows expected = {
        {{"Users", "IP1"}, "127.0.33.2"},
        {{"Users", "Nn1"}, "Ann"},
        {{"Users", "Ws1"}, "ANN-PC"},
        {{"Users", "IP2"}, "127.0.33.3"},
        {{"Users", "Nn2"}, "Zoe"},
        {{"Users", "Ws2"}, "ZOE-PC"},
        {{"Users", "IP3"}, "127.0.33.4"},
        {{"Users", "Nn3"}, "Ben"},
        {{"Users", "Ws3"}, "BEN-PC"},
        {{"Users", "IP4"}, "127.0.33.5"},
        {{"Users", "Nn4"}, "Cleo"},
        {{"Users", "Ws4"}, "CLEO-PC"},
        {{"Users", "IP5"}, "255.255.255.255"},
        {{"Users", "IP9"}, "127.0.33.99"}, // nothing is ever deleted
        {{"Settings", "UDPPort"}, std::to_string(port)},
        {{"Options", "ShowStatusOnPrivate"}, "1"},
        {{"Options", "BuzzLocal"}, "0"},
        {{"Options", "BuzzRemote"}, "1"},
        {{"Options", "PrivateBehaviour"}, "0"},
        {{"Options", "DontDestroyWindow"}, "0"},
        {{"Options", "NotifyWin"}, "1"},
        {{"Options", "LiveType"}, "0"},
        {{"Options", "CloseButtonDoesMinimize"}, "0"},
        {{"Settings", "MainLeft"}, "1000"},
        {{"Settings", "MainTop"}, "1000"},
        {{"Settings", "MainHeight"}, "7500"},
        {{"Settings", "AvatarHead"}, ""},
        {{"Settings", "AvatarBody"}, ""},
        {{"Settings", "AutoReplyonBusyActive"}, "0"},
        {{"Settings", "AutoReplyonAwayActive"}, "-1"},
        {{"Settings", "AutoReplyonBusyText"}, "I'm busy, please do not disturb"},
        {{"Settings", "AutoReplyonawayText"}, "Gone"},
        {{"Settings", "StandardFontSize"}, "8"},
        {{"Settings", "StandardFontFace"}, "MS Sans Serif"},
        {{"Settings", "StandardFontStyle"}, "bi"},
        {{"Settings", "PersonalizedState1"}, "4In a meeting - long"},
        {{"Settings", "PersonalizedState2"}, "5Gone fishing"},
        {{"Options", "TipOTDay"}, "0"},
    };
    EXPECT_THAT(bob.readStore(), IsSupersetOf(expected));
    EXPECT_EQ(bob.stored("Settings", "PersonalizedState3").value_or(""), "");
}

INSTANTIATE_TEST_SUITE_P(Lifecycle, EndedBySignal,
                         testing::Values(Signal{"SIGTERM", SIGTERM}, Signal{"SIGINT", SIGINT},
                                         Signal{"SIGHUP", SIGHUP}),
                         [](const auto &parameter) { return parameter.param.label; });

class TheEnd : public Lifecycle
{
};

TEST_F(TheEnd, MayComeWhileAMessageOpensItsWindow)
{
    RunningCopy bob(home, withAnn());
    start(bob);
    ann.send("127.0.33.1", "-hello");
    EXPECT_EQ(ann.next(), "?AVATARHEAD"); // the window is being made at this moment
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.33.1 BOB-PC Bob");
    EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.33.2", "Ann", "ANN-PC"}));
}

TEST_F(TheEnd, MayBeAskedForMoreThanOnce)
{
    RunningCopy bob(home, withAnn());
    start(bob);
    for (const int signal : {SIGTERM, SIGHUP, SIGINT, SIGTERM})
        bob.signal(signal);
    EXPECT_EQ(bob.exitStatus(), 0);
    EXPECT_THAT(ann.waiting(), ElementsAre("!OFFLINE 127.0.33.1 BOB-PC Bob"));
    EXPECT_EQ(bob.stored("Settings", "MainHeight"), "6200");
}

TEST_F(TheEnd, MayComeWhileAQuestionIsOpen)
{
    RunningCopy bob(home, withAnn());
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.chooseRemove(0);
    const Window question = Window::waitFor("Please confirm user removal");
    EXPECT_TRUE(waitUntil([&] { return question.isActive(); }));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.33.1 BOB-PC Bob");
    EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.33.2", "Ann", "ANN-PC"}));
}

TEST_F(TheEnd, MayComeWhileAMenuOrAListIsOpen)
{
    RunningCopy bob(home, withAnn());
    for (const bool menu : {true, false}) {
        start(bob);
        const MainWindow main = MainWindow::of("Bob");
        menu ? main.openContextMenu(0) : main.openStateChooser();
        EXPECT_EQ(bob.end(), 0);
        EXPECT_EQ(ann.next(), "!OFFLINE 127.0.33.1 BOB-PC Bob");
        EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.33.2", "Ann", "ANN-PC"}));
    }
}

TEST_F(TheEnd, IsTheExitCommandsToo)
{
    RunningCopy bob(home, withAnn({{{"Options", "CloseButtonDoesMinimize"}, "1"}}));
    start(bob);
    MainWindow::of("Bob").activate();
    press("ctrl+q");
    EXPECT_EQ(bob.exitStatus(), 0);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.33.1 BOB-PC Bob");
    EXPECT_EQ(bob.stored("Options", "CloseButtonDoesMinimize"), "1");
}

TEST_F(TheEnd, IsTheCloseBoxesByDefault)
{
    RunningCopy bob(home, withAnn());
    start(bob);
    MainWindow::of("Bob").close();
    EXPECT_EQ(bob.exitStatus(), 0);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.33.1 BOB-PC Bob");
    EXPECT_EQ(bob.stored("Settings", "MainHeight"), "6200");
}

TEST_F(TheEnd, IsNotTheCloseBoxesByOption)
{
    RunningCopy bob(home,
                    withAnn({{{"Options", "CloseButtonDoesMinimize"}, "1"}, {{"Settings", "MyNickName"}, "Bob"}}));
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.close();
    EXPECT_TRUE(waitUntil([&] { return main.state() != State::shown; })) << main.state();
    EXPECT_TRUE(answers(bob));
    // Nothing on this desktop shows a tray, where a hidden window could be found again.
    EXPECT_EQ(main.state(), State::minimised);

    EXPECT_EQ(bob.startAgain(), 0);
    EXPECT_TRUE(main.becomes(State::shown)) << main.state();
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.33.1 BOB-PC Bob");
}

TEST_F(TheEnd, ByKillLeavesTheOldStoreAndHindersNoNewStart)
{
    RunningCopy bob(home, withAnn());
    start(bob);
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.33.1 BOB-PC Bob");
    const Rows before = bob.readStore();

    start(bob);
    ann.send("127.0.33.1", "!ONLINE 127.0.33.2 NEW-PC New name");
    EXPECT_TRUE(answers(bob));
    EXPECT_TRUE(waitUntil([&] { return !bob.kept().empty(); }));
    bob.kill();
    EXPECT_THAT(ann.waiting(), IsEmpty()); // no farewell
    EXPECT_EQ(bob.readStore(), before);

    start(bob);
    MainWindow::of("Bob");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.33.2", "New name", "NEW-PC"}));
    EXPECT_THAT(bob.kept(), IsEmpty());
}

TEST_F(TheEnd, ByKillWhileItSavesLeavesOneWholeStore)
{
    WirePeer zoe("127.0.33.3", port);
    std::vector<StoredContact> many = {{"127.0.33.2", "Ann", "ANN-PC"}, {"127.0.33.3", "Zoe", "ZOE-PC"}};
    for (int i = 1; i <= 250; ++i)
        many.push_back({"127.0.34." + std::to_string(i), "contact", "somewhere"});
    const Rows oldRows = profile(port, many);
    for (int round = 0; round < 6; ++round) {
        RunningCopy bob(home, oldRows);
        start(bob);
        ann.send("127.0.33.1", "?ONLINE 127.0.33.2 NEW-PC Anna");
        ann.hearUntil("!STATUS Online");
        zoe.waiting();
        bob.signal(SIGTERM);
        // The last of the list: nothing is left to do but to save.
        EXPECT_THAT(zoe.hearUntil("!OFFLINE 127.0.33.1 BOB-PC Bob"), Not(IsEmpty()));
        bob.kill();
        const Rows rows = bob.readStore();
        const bool isNew = rows.contains({"Settings", "StandardFontStyle"}) && rows.at({"Users", "Nn1"}) == "Anna"
            && rows.at({"Users", "IP253"}) == "255.255.255.255";
        EXPECT_TRUE(rows == oldRows || isNew) << "round " << round;
    }
}

// --- the store

class Store : public Lifecycle
{
};

TEST_F(Store, ThatIsEmptyGivesTheDefaults)
{
    RunningCopy bob(home);
    bob.start({"Bob"});
    const MainWindow main = MainWindow::of("Bob");
    EXPECT_EQ(bob.end(), 0);
    const Rows expected = {
        {{"Users", "IP1"}, "255.255.255.255"},
        {{"Settings", "UDPPort"}, "5549"},
        {{"Options", "ShowStatusOnPrivate"}, "1"},
        {{"Options", "BuzzLocal"}, "0"},
        {{"Options", "BuzzRemote"}, "1"},
        {{"Options", "PrivateBehaviour"}, "0"},
        {{"Options", "DontDestroyWindow"}, "0"},
        {{"Options", "NotifyWin"}, "1"},
        {{"Options", "LiveType"}, "1"},
        {{"Options", "CloseButtonDoesMinimize"}, "0"},
        {{"Settings", "MainLeft"}, "1000"},
        {{"Settings", "MainTop"}, "1000"},
        {{"Settings", "MainHeight"}, "6200"},
        {{"Settings", "AvatarHead"}, ""},
        {{"Settings", "AvatarBody"}, ""},
        {{"Settings", "AutoReplyonBusyActive"}, "0"},
        {{"Settings", "AutoReplyonAwayActive"}, "0"},
        {{"Settings", "AutoReplyonBusyText"}, "I'm busy, please do not disturb"},
        {{"Settings", "AutoReplyonawayText"}, "At the moment I'm not at my PC"},
        {{"Settings", "StandardFontSize"}, "8"},
        {{"Settings", "StandardFontFace"}, "MS Sans Serif"},
        {{"Settings", "StandardFontStyle"}, ""},
    };
    EXPECT_THAT(bob.readStore(), IsSupersetOf(expected));
}

TEST_F(Store, ComesIntoAFolderThatIsMadeForTheUserAlone)
{
    RunningCopy bob(home);
    bob.setProfileFolder(bob.scratchFolder() + QString::fromUtf8("/a b/\u00fc/NIMB-Chat"));
    bob.start({"Bob"});
    MainWindow::of("Bob");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(modeOf(bob.profileFolder()), 0700);
    EXPECT_EQ(modeOf(bob.storeFile()), 0600);
    EXPECT_EQ(bob.stored("Users", "IP1"), "255.255.255.255");
}

TEST_F(Store, WithMalformedNumbersStartsAndKeepsTheDefaults)
{
    RunningCopy bob(home,
                    {{{"Settings", "MainLeft"}, "far left"},
                     {{"Settings", "MainTop"}, ""},
                     {{"Settings", "MainHeight"}, "1e400"},
                     {{"Settings", "UDPPort"}, "99999"},
                     {{"Options", "ShowStatusOnPrivate"}, "70000"},
                     {{"Options", "BuzzLocal"}, "0x1"},
                     {{"Options", "NotifyWin"}, "yes"},
                     {{"Options", "TipOTDay"}, "0"}, // a tip would take the focus
                     {{"Options", "LiveType"},
                      std::string("1\0"
                                  "2",
                                  3)},
                     {{"Settings", "AutoReplyonBusyActive"}, "on"},
                     {{"Settings", "StandardFontSize"}, "8 points"},
                     {{"Settings", "PersonalizedState1"}, "xyz"},
                     {{"Settings", "PersonalizedState2"}, "9none"},
                     {{"Settings", "PersonalizedState3"}, "4"},
                     {{"Users", "IP1"}, "255.255.255.255"}});
    bob.start({"Bob"});
    const MainWindow main = MainWindow::of("Bob");
    main.activate();
    EXPECT_EQ(bob.end(), 0);
    const Rows expected = {{{"Settings", "MainLeft"}, "1000"},
                           {{"Settings", "MainTop"}, "1000"},
                           {{"Settings", "MainHeight"}, "6200"},
                           {{"Settings", "UDPPort"}, "5549"},
                           {{"Options", "ShowStatusOnPrivate"}, "1"},
                           {{"Options", "BuzzLocal"}, "0"},
                           {{"Options", "NotifyWin"}, "1"},
                           {{"Options", "LiveType"}, "1"},
                           {{"Settings", "AutoReplyonBusyActive"}, "0"},
                           {{"Settings", "StandardFontSize"}, "8"}};
    EXPECT_THAT(bob.readStore(), IsSupersetOf(expected));
}

TEST_F(Store, ThatIsNoneIsLeftAsItIs)
{
    RunningCopy bob(home);
    QDir().mkpath(bob.profileFolder());
    const QByteArray wreck = QByteArray("SQLite format 3\0", 16) + QByteArray(5000, '\x7F');
    QFile file(bob.storeFile());
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(wreck);
    file.close();

    bob.start({"Bob"});
    MainWindow::of("Bob");
    EXPECT_EQ(bob.startAgain(), 0);
    EXPECT_EQ(bob.end(), 1); // nothing could be saved, and nobody was there to be told
    EXPECT_EQ(contentOf(bob.storeFile()), wreck);
}

TEST_F(Store, ThatCannotBeDoesNotHinderTheProgram)
{
    RunningCopy bob(home);
    QFile file(bob.scratchFolder() + QLatin1String("/file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("mine");
    file.close();
    // A file in place of the folder, or above it; a folder and a place where not even the superuser makes anything.
    for (const QString &place : {file.fileName(), file.fileName() + QLatin1String("/below"), QStringLiteral("/proc"),
                                 QStringLiteral("/proc/nimb-chat")}) {
        bob.setProfileFolder(place);
        bob.start({"Bob"});
        MainWindow::of("Bob");
        EXPECT_EQ(bob.end(), 1) << place.toStdString();
    }
    EXPECT_EQ(contentOf(file.fileName()), "mine");
}

TEST_F(Store, ThatCannotBeWrittenIsToldToTheUser)
{
    RunningCopy bob(home);
    QFile file(bob.profileFolder());
    ASSERT_TRUE(file.open(QFile::WriteOnly)); // a file in place of the folder
    file.close();
    bob.start({});
    EXPECT_TRUE(waitUntil([] { return Window::exists("NIMB-Chat"); }));
    EXPECT_TRUE(waitUntil([] { return Window::active().caption() == "NIMB-Chat"; }));
    const Window dialog = Window::active();
    press("Return");
    // The nickname was not stored; a box over the dialog says so, and the program goes on.
    EXPECT_TRUE(waitUntil([&] { return Window::active().caption() == "NIMB-Chat" && !dialog.isActive(); }));
    press("Return");
    const MainWindow main = MainWindow::of("BOB-PC");
    // A first start shows a tip; that it was shown cannot be stored either.
    Window::waitFor("Tip of the Day - Tip #1").activate();
    press("Escape");
    EXPECT_TRUE(waitUntil([] { return Window::active().caption() == "NIMB-Chat"; }));
    press("Return");
    EXPECT_TRUE(waitUntil([] { return !Window::exists("NIMB-Chat"); }));
    main.activate();
    press("ctrl+q");
    EXPECT_TRUE(waitUntil([&] { return Window::active().caption() == "NIMB-Chat"; }));
    EXPECT_TRUE(bob.isRunning());
    press("Return");
    EXPECT_EQ(bob.exitStatus(), 0);
}

TEST_F(Store, GivesAPlaceOnTheScreenToAWindowFromElsewhere)
{
    RunningCopy bob(home, withAnn({{{"Settings", "MainLeft"}, "400000"}, {{"Settings", "MainTop"}, "-90000"}}));
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.activate();
    const Window::Place place = main.place();
    EXPECT_GE(place.left, 0);
    EXPECT_LE(place.left + place.width, 1280);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.top + place.height, 900);
}

TEST_F(Store, KeepsTheWindowWhereTheUserPutIt)
{
    RunningCopy bob(home,
                    withAnn({{{"Settings", "MyNickName"}, "Bob"},
                             {{"Settings", "MainLeft"}, "1510"},
                             {{"Settings", "MainTop"}, "1205"},
                             {{"Settings", "MainHeight"}, "6000"}}));
    // Untouched it stays, run after run.
    for (int run = 0; run < 2; ++run) {
        start(bob);
        MainWindow::of("Bob").activate();
        EXPECT_EQ(bob.end(), 0);
        EXPECT_EQ(bob.stored("Settings", "MainLeft"), "1510");
        EXPECT_EQ(bob.stored("Settings", "MainTop"), "1205");
        EXPECT_EQ(bob.stored("Settings", "MainHeight"), "6000");
    }
    // Moved, then minimised: the place of the normal window counts, in twips of a fifteenth of a pixel.
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.activate();
    main.move(40, 60);
    main.minimise();
    EXPECT_TRUE(waitUntil([&bob] { return bob.kept()[{"Settings", "MainLeft"}] == "600"; }));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "MainLeft"), "600");
    EXPECT_EQ(bob.stored("Settings", "MainTop"), "900");
    start(bob);
    const MainWindow again = MainWindow::of("Bob");
    again.activate();
    EXPECT_TRUE(waitUntil([&] { return again.place().left == 40 && again.place().top == 60; }))
        << again.place().left << ' ' << again.place().top;
}

TEST_F(Store, KeepsThePlaceOfAWindowThatIsMinimisedBeforeTheProgramHearsOfTheMove)
{
    RunningCopy bob(home, withAnn({{{"Settings", "MyNickName"}, "Bob"}}));
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.activate();
    bob.signal(SIGSTOP);
    main.move(40, 60);
    main.minimise();
    bob.signal(SIGCONT);
    EXPECT_TRUE(waitUntil([&bob] { return bob.kept()[{"Settings", "MainLeft"}] == "600"; }));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "MainLeft"), "600");
    EXPECT_EQ(bob.stored("Settings", "MainTop"), "900");
}

TEST_F(Store, KeepsAHeightThatTheWindowMayHave)
{
    RunningCopy bob(home, withAnn());
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.activate();
    // 9315 twips wide whatever the user drags, and at least 4500 high.
    main.resize(900, 200);
    EXPECT_TRUE(waitUntil([&] { return main.place().height == 300; })) << main.place().height;
    EXPECT_EQ(main.place().width, 621);
    // The screen knows the height before the program has heard of it.
    EXPECT_TRUE(waitUntil([&bob] { return bob.kept()[{"Settings", "MainHeight"}] == "4500"; }));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "MainHeight"), "4500");
}

TEST_F(Store, LosesAContactThatTheUserRemoves)
{
    RunningCopy bob(home, withAnn());
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    for (const char *answer : {"Escape", "Return"}) {
        main.chooseRemove(0);
        const Window question = Window::waitFor("Please confirm user removal");
        EXPECT_TRUE(waitUntil([&] { return question.isActive(); }));
        press(answer);
        EXPECT_TRUE(waitUntil([&] { return !Window::exists("Please confirm user removal"); }));
    }
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(ann.waiting(), IsEmpty()); // nothing is sent to her, not even the farewell
    EXPECT_EQ(bob.stored("Users", "IP1"), "255.255.255.255");
}

} // namespace
} // namespace nimb::test
