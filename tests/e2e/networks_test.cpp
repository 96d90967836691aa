// Copies on machines of their own, joined by real cards and switches.
#include "chat_windows.h"
#include "network_namespaces.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <memory>

namespace nimb::test
{
namespace
{

using testing::IsEmpty;

constexpr std::uint16_t usualPort = 5549;
/// Whoever has no address told to him uses all that his machine has.
const std::string anyAddress;

class Networks : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!office.isThere())
            GTEST_SKIP() << LanMachine::whyNot;
    }

    /// A peer on a machine; address: "0.0.0.0" hears what is sent to everybody as well.
    static std::unique_ptr<WirePeer> peerOn(const LanMachine &machine, const std::string &address)
    {
        const auto visit = machine.visit();
        return std::make_unique<WirePeer>(address, usualPort);
    }
    static MainWindow start(RunningCopy &copy, const LanMachine &machine, const std::string &nickname)
    {
        const auto visit = machine.visit();
        copy.start({QString::fromStdString(nickname)});
        const MainWindow main = MainWindow::of(nickname);
        main.activate();
        return main;
    }
    /// The addresses and names of contacts that are kept and not stored yet.
    static Rows newcomers(const RunningCopy &copy)
    {
        Rows rows = copy.kept();
        std::erase_if(rows, [](const auto &row) { return !row.first.second.starts_with("Nn:"); });
        return rows;
    }
    static std::vector<std::vector<std::uint32_t>> statusBar(const Window &main)
    {
        constexpr int height = 20;
        const Window::Place place = main.place();
        return main.picture(0, place.height - height, place.width, height);
    }

    LanSwitch office;
};

TEST_F(Networks, OneClickFindsEverybodyAndMakesOneselfKnown)
{
    LanMachine bobs;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    std::vector<LanMachine> machines(5);
    std::vector<std::unique_ptr<RunningCopy>> others;
    Rows expected;
    for (std::size_t i = 0; i < machines.size(); ++i) {
        const std::string address = "10.1.0." + std::to_string(i + 2);
        const std::string name = std::string("Person") + static_cast<char>('A' + i);
        machines[i].plug(office, "eth0", QString::fromStdString(address + "/24"));
        others.push_back(
            std::make_unique<RunningCopy>(RunningCopy::Place{anyAddress, name + "-PC"}, profile(usualPort, {})));
        start(*others.back(), machines[i], name);
        expected[{"Users", "Nn:" + address}] = name;
    }
    RunningCopy bob({anyAddress, "BOB-PC"}, profile(usualPort, {}));
    start(bob, bobs, "Bob").clickFindEverybody();
    EXPECT_TRUE(waitUntil([&] { return newcomers(bob) == expected; })) << testing::PrintToString(newcomers(bob));
    for (const auto &other : others) {
        EXPECT_TRUE(waitUntil([&] {
            return newcomers(*other) == Rows{{{"Users", "Nn:10.1.0.1"}, "Bob"}};
        })) << testing::PrintToString(newcomers(*other));
    }
}

TEST_F(Networks, AMachineWithTwoCardsFindsBothSidesAndEachSeesTheAddressOfItsOwn)
{
    LanSwitch workshop;
    LanMachine bobs, anns, bens;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    bobs.plug(workshop, "eth1", "10.2.0.1/24");
    anns.plug(office, "eth0", "10.1.0.2/24");
    bens.plug(workshop, "eth0", "10.2.0.2/24");
    const auto ann = peerOn(anns, "0.0.0.0"), ben = peerOn(bens, "0.0.0.0");
    RunningCopy bob({anyAddress, "BOB-PC"}, profile(usualPort, {}));
    start(bob, bobs, "Bob").clickFindEverybody();
    EXPECT_EQ(ann->hear(), (Heard{"?ONLINE 10.1.0.1 BOB-PC Bob", "10.1.0.1", usualPort}));
    EXPECT_EQ(ben->hear(), (Heard{"?ONLINE 10.2.0.1 BOB-PC Bob", "10.2.0.1", usualPort}));
    ann->send("10.1.0.1", "!ONLINE 10.1.0.2 ANN-PC Ann");
    ben->send("10.2.0.1", "!ONLINE 10.2.0.2 BEN-PC Ben");
    EXPECT_TRUE(waitUntil([&] { return newcomers(bob).size() == 2; }));
    ann->waiting(); // it was asked twice
    ben->waiting();
    ann->send("10.1.0.1", "?ONLINE 10.1.0.2 ANN-PC Ann");
    ben->send("10.2.0.1", "?ONLINE 10.2.0.2 BEN-PC Ben");
    ann->hearUntil("!ONLINE 10.1.0.1 BOB-PC Bob");
    ben->hearUntil("!ONLINE 10.2.0.1 BOB-PC Bob");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann->hearUntil("!OFFLINE 10.1.0.1 BOB-PC Bob").back(), "!OFFLINE 10.1.0.1 BOB-PC Bob");
    EXPECT_EQ(ben->hearUntil("!OFFLINE 10.2.0.1 BOB-PC Bob").back(), "!OFFLINE 10.2.0.1 BOB-PC Bob");
}

TEST_F(Networks, NoAddressOfTheOwnCardsBecomesAContactWhoeverSendsIt)
{
    LanMachine bobs, anns;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    anns.plug(office, "eth0", "10.1.0.2/24");
    const auto ann = peerOn(anns, "10.1.0.2");
    RunningCopy bob({anyAddress, "BOB-PC"}, profile(usualPort, {{"10.1.0.2", "Ann", "ANN-PC"}}));
    start(bob, bobs, "Bob");
    ann->hearUntil("!STATUS Online");
    ann->send("10.1.0.1", "!ONLINE 10.1.0.2 ANN-PC Ann");
    for (const char *const address : {"10.1.0.255", "10.1.0.1", "127.0.0.1", "255.255.255.255", "10.1.0.9"})
        ann->send("10.1.0.1", std::string("!USER ") + address + " PC Somebody");
    const Rows ninth{{{"Users", "Nn:10.1.0.9"}, "Somebody"}};
    EXPECT_TRUE(waitUntil([&] { return !newcomers(bob).empty(); }));
    EXPECT_EQ(newcomers(bob), ninth);
}

TEST_F(Networks, NothingGoesToEverybodyUntilEverybodyIsLookedFor)
{
    LanMachine bobs, anns;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    anns.plug(office, "eth0", "10.1.0.2/24");
    const auto ann = peerOn(anns, "0.0.0.0"); // hears what is sent to everybody as well
    // As an older copy may have stored it.
    RunningCopy bob({anyAddress, "BOB-PC"},
                    profile(usualPort, {{"10.1.0.255", "Everybody", "PC"}, {"10.1.0.2", "Ann", "ANN-PC"}}));
    const MainWindow main = start(bob, bobs, "Bob");
    EXPECT_EQ(ann->next(), "?ONLINE 10.1.0.1 BOB-PC Bob");
    EXPECT_EQ(ann->next(), "!STATUS Online");
    ann->send("10.1.0.1", "?ONLINE 10.1.0.2 ANN-PC Ann");
    EXPECT_EQ(ann->next(), "!ONLINE 10.1.0.1 BOB-PC Bob") << "something went to everybody";
    ann->hearUntil("!STATUS Online");
    main.activate();
    press("alt+u");
    press("f");
    EXPECT_EQ(ann->next(), "?ONLINE 10.1.0.1 BOB-PC Bob");
}

TEST_F(Networks, WhereTheSwitchKeepsMachinesApartNobodyIsFound)
{
    LanMachine bobs, anns, printers;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    anns.plug(office, "eth0", "10.1.0.2/24");
    printers.plug(office, "eth0", "10.1.0.3/24");
    bobs.isolate("eth0");
    anns.isolate("eth0");
    const auto ann = peerOn(anns, "0.0.0.0"), printer = peerOn(printers, "0.0.0.0");
    RunningCopy bob({anyAddress, "BOB-PC"}, profile(usualPort, {}));
    start(bob, bobs, "Bob").clickFindEverybody();
    for (int question = 0; question < 2; ++question)
        EXPECT_EQ(printer->next(), "?ONLINE 10.1.0.1 BOB-PC Bob");
    EXPECT_THAT(ann->waiting(), IsEmpty());
}

TEST_F(Networks, AChatGoesOnWhenTheAddressChangesAndThePeerLearnsTheNewOne)
{
    LanMachine bobs, anns;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    anns.plug(office, "eth0", "10.1.0.2/24");
    const auto ann = peerOn(anns, "10.1.0.2");
    RunningCopy bob({anyAddress, "BOB-PC"}, profile(usualPort, {{"10.1.0.2", "Ann", "ANN-PC"}}));
    const MainWindow main = start(bob, bobs, "Bob");
    EXPECT_EQ(ann->hear(), (Heard{"?ONLINE 10.1.0.1 BOB-PC Bob", "10.1.0.1", usualPort}));
    EXPECT_EQ(ann->next(), "!STATUS Online");
    ann->send("10.1.0.1", "!ONLINE 10.1.0.2 ANN-PC Ann");
    const PrivateWindow chat = main.openWhenOnline(0, "Ann");
    chat.say("before");
    ann->hearUntil("-before");

    bobs.removeAddress("eth0", "10.1.0.1/24");
    bobs.addAddress("eth0", "10.1.0.9/24");
    const Heard question = ann->hearWhere([](const std::string &bytes) { return bytes.starts_with('?'); });
    EXPECT_EQ(question, (Heard{"?ONLINE 10.1.0.9 BOB-PC Bob", "10.1.0.9", usualPort}));
    ann->hearUntil("!STATUS Online");
    ann->send("10.1.0.9", "!ONLINE 10.1.0.2 ANN-PC Ann");
    ann->send("10.1.0.9", "-welcome back");
    chat.say("after");
    const Heard after = ann->hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); });
    EXPECT_EQ(after, (Heard{"-after", "10.1.0.9", usualPort}));
    EXPECT_THAT(logHeardBy(*ann, chat, chat), testing::HasSubstr("welcome back"));
}

TEST_F(Networks, ACardThatGoesDownAndComesBackMakesOneAnnouncement)
{
    LanMachine bobs, anns;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    anns.plug(office, "eth0", "10.1.0.2/24");
    const auto ann = peerOn(anns, "10.1.0.2");
    RunningCopy bob({anyAddress, "BOB-PC"}, profile(usualPort, {{"10.1.0.2", "Ann", "ANN-PC"}}));
    const MainWindow main = start(bob, bobs, "Bob");
    ann->hearUntil("!STATUS Online");
    letWindowsSettle();
    const auto before = statusBar(main);
    bobs.down("eth0");
    EXPECT_TRUE(waitUntil([&] { return statusBar(main) != before; })) << "nothing is said of it";
    EXPECT_THAT(ann->waiting(), IsEmpty());
    bobs.up("eth0");
    EXPECT_EQ(ann->next(), "?ONLINE 10.1.0.1 BOB-PC Bob");
    EXPECT_EQ(ann->next(), "!STATUS Online");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(ann->waiting(), testing::ElementsAre("!OFFLINE 10.1.0.1 BOB-PC Bob"));
}

TEST_F(Networks, ACopyThatStartsWithoutANetworkGoesOnWhenThereIsOne)
{
    LanMachine bobs, anns;
    anns.plug(office, "eth0", "10.1.0.2/24");
    const auto ann = peerOn(anns, "10.1.0.2");
    RunningCopy bob({anyAddress, "BOB-PC"}, profile(usualPort, {{"10.1.0.2", "Ann", "ANN-PC"}}));
    start(bob, bobs, "Bob");
    bobs.plug(office, "eth0", "10.1.0.1/24");
    EXPECT_EQ(ann->hear(), (Heard{"?ONLINE 10.1.0.1 BOB-PC Bob", "10.1.0.1", usualPort}));
    EXPECT_EQ(ann->next(), "!STATUS Online");
}

TEST_F(Networks, ASocketForAFixedAddressListensAgainWhenThatIsBack)
{
    LanMachine bobs, anns;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    anns.plug(office, "eth0", "10.1.0.2/24");
    const auto ann = peerOn(anns, "10.1.0.2");
    RunningCopy bob({"10.1.0.1", "BOB-PC"}, profile(usualPort, {{"10.1.0.2", "Ann", "ANN-PC"}}));
    const MainWindow main = start(bob, bobs, "Bob");
    ann->hearUntil("!STATUS Online");
    letWindowsSettle();
    const auto before = statusBar(main);
    bobs.removeAddress("eth0", "10.1.0.1/24");
    EXPECT_TRUE(waitUntil([&] { return statusBar(main) != before; })) << "nothing is said of it";
    bobs.addAddress("eth0", "10.1.0.1/24");
    EXPECT_EQ(ann->next(), "?ONLINE 10.1.0.1 BOB-PC Bob");
    EXPECT_EQ(ann->next(), "!STATUS Online");
    ann->send("10.1.0.1", "?ONLINE 10.1.0.2 ANN-PC Ann");
    EXPECT_EQ(ann->next(), "!ONLINE 10.1.0.1 BOB-PC Bob");
}

} // namespace
} // namespace nimb::test
