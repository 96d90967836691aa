#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const NetworkCard office{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)};
const NetworkCard otherAddress{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 7), Ipv4Address(10, 0, 0, 255)};
const NetworkCard wireless{QStringLiteral("wlan0"), Ipv4Address(192, 168, 7, 1), Ipv4Address(192, 168, 7, 255)};

/// A copy whose start is over, on a machine whose networks change.
struct Machine : Copy {
    explicit Machine(const CopySetup &setup = {.contacts = {{"10.0.0.2", "Ann"}}}, bool fixed = false)
        : Copy(unloaded(setup))
    {
        ownAddresses.fixed = fixed;
        engine.mainWindow().Form_Load();
        settleStart();
    }
    static CopySetup unloaded(CopySetup setup)
    {
        setup.loaded = false;
        return setup;
    }

    /// From now on the machine has these, and the system chooses that address.
    void becomes(const std::vector<NetworkCard> &cards, Ipv4Address chosen)
    {
        ownAddresses.running = cards;
        socket.ownAddress = chosen;
        networkWatch.tell();
    }
    void losesAll() { becomes({}, Ipv4Address(127, 0, 0, 1)); }
};

TEST(OwnNetworks, AnAddressThatChangesIsTakenAndToldToTheContacts)
{
    Machine machine;
    machine.becomes({otherAddress}, Ipv4Address(10, 0, 0, 7));
    EXPECT_EQ(machine.common.ownIP, Ipv4Address(10, 0, 0, 7));
    EXPECT_GT(machine.ownAddresses.readings, 0);
    EXPECT_EQ(machine.view.networkPanel, QStringLiteral("Your address is now 10.0.0.7"));
    EXPECT_THAT(machine.view.log.lines(), Contains("Your address is now 10.0.0.7."));
    machine.advance(2999ms);
    EXPECT_THAT(machine.sent(), IsEmpty());
    machine.advance(1ms);
    EXPECT_THAT(machine.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.7 HERE Me"}, To{"10.0.0.2", "!STATUS Online"}));
    EXPECT_THAT(machine.chance.asked, ElementsAre(3000ms));
}

TEST(OwnNetworks, ConferencesThatAreOpenBearTheNewAddress)
{
    Machine machine({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.7", "Ben"}}});
    machine.arrive("10.0.0.7", "!ONLINE 10.0.0.7 PC-BEN Ben");
    machine.engine.conferences().mnuCreateNewConf();
    Conference &conference = machine.conference(1).conference;
    conference.invite(QStringLiteral("10.0.0.7"));
    conference.invite(QStringLiteral("10.0.0.2"));
    machine.becomes({otherAddress}, Ipv4Address(10, 0, 0, 7));
    std::vector<std::string> rows;
    for (const Participant &one : conference.partecipanti().rows())
        rows.push_back(one.ip.text().toStdString() + " " + one.name.toStdString());
    EXPECT_THAT(rows, ElementsAre("10.0.0.7 Me (you)", "10.0.0.2 Ann")) << "Ben's address is ours now";
    EXPECT_TRUE(conference.partecipanti().rows().front().own);
    EXPECT_EQ(conference.identity().ConfServerIP, Ipv4Address(10, 0, 0, 7));
}

TEST(OwnNetworks, ChanceDecidesWhenTheContactsAreAsked)
{
    Machine machine;
    machine.chance.span = 1200ms;
    machine.becomes({otherAddress}, Ipv4Address(10, 0, 0, 7));
    machine.advance(1199ms);
    EXPECT_THAT(machine.sent(), IsEmpty());
    machine.advance(1ms);
    EXPECT_THAT(machine.sent(), testing::SizeIs(2));
}

TEST(OwnNetworks, ChangesThatFollowEachOtherMakeOneAnnouncement)
{
    Machine machine;
    machine.becomes({otherAddress}, Ipv4Address(10, 0, 0, 7));
    machine.advance(2500ms);
    machine.becomes({otherAddress, wireless}, Ipv4Address(10, 0, 0, 7));
    machine.advance(500ms);
    EXPECT_THAT(machine.sent(), testing::SizeIs(2));
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
}

TEST(OwnNetworks, NothingFollowsFromAChangeThatChangesNothing)
{
    Machine machine;
    machine.networkWatch.tell();
    // A card under another name, and one that only joins the containers of this machine.
    machine.becomes({{QStringLiteral("docker0"), Ipv4Address(172, 17, 0, 1), std::nullopt, true},
                     {QStringLiteral("lan"), office.address, office.broadcast}},
                    office.address);
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
    EXPECT_THAT(machine.view.log.lines(), IsEmpty());
    EXPECT_EQ(machine.view.networkPanel, QString());
}

TEST(OwnNetworks, ACardThatComesAndGoesIsToldThoughTheOwnAddressStays)
{
    Machine machine;
    machine.becomes({office, wireless}, office.address);
    EXPECT_EQ(machine.view.networkPanel, QStringLiteral("The networks have changed: your address is still 10.0.0.1"));
    machine.advance(3s);
    EXPECT_THAT(machine.sent(), testing::SizeIs(2));
    machine.advance(60s);
    machine.becomes({office}, office.address);
    machine.advance(3s);
    EXPECT_THAT(machine.sent(), testing::SizeIs(2));
}

TEST(OwnNetworks, TheStatusBarSaysItForAWhile)
{
    Machine machine;
    machine.becomes({otherAddress}, Ipv4Address(10, 0, 0, 7));
    machine.advance(9999ms);
    EXPECT_NE(machine.view.networkPanel, QString());
    machine.advance(1ms);
    EXPECT_EQ(machine.view.networkPanel, QString());
}

TEST(OwnNetworks, WhoIsInvisibleAnnouncesNothing)
{
    Machine machine;
    machine.becomes({otherAddress}, Ipv4Address(10, 0, 0, 7));
    machine.engine.ownState().choose(4);
    machine.sent();
    machine.advance(60s);
    machine.becomes({office}, office.address);
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
    EXPECT_EQ(machine.common.ownIP, office.address);
}

TEST(OwnNetworks, AfterASleepTheContactsAreAskedThoughNothingIsDifferent)
{
    Machine machine;
    machine.networkWatch.tell(NetworkChange::networks);
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
    machine.networkWatch.tell(NetworkChange::wokeUp);
    EXPECT_EQ(machine.view.networkPanel, QStringLiteral("This computer has slept: your address is still 10.0.0.1"));
    machine.advance(3s);
    EXPECT_THAT(machine.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS Online"}));
}

TEST(OwnNetworks, AfterASleepWithoutANetworkNobodyIsAsked)
{
    Machine machine;
    machine.losesAll();
    machine.networkWatch.tell(NetworkChange::wokeUp);
    EXPECT_EQ(machine.view.networkPanel, QStringLiteral("No network"));
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
}

TEST(OwnNetworks, WithoutANetworkNothingIsSentUntilThereIsOneAgain)
{
    Machine machine;
    machine.losesAll();
    EXPECT_EQ(machine.view.networkPanel, QStringLiteral("No network"));
    EXPECT_THAT(machine.view.log.lastLine(), HasSubstr("No network gives this computer an IPv4 address"));
    EXPECT_EQ(machine.common.ownIP, office.address) << "no peer is to see 127.0.0.1 for it";
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
    EXPECT_EQ(machine.view.networkPanel, QStringLiteral("No network"));
    machine.becomes({office}, office.address);
    EXPECT_EQ(machine.view.networkPanel, QStringLiteral("There is a network now: your address is 10.0.0.1"));
    machine.advance(3s);
    EXPECT_THAT(machine.sent(), testing::SizeIs(2));
}

TEST(OwnNetworks, AnAnnouncementThatWaitsIsDroppedWithTheLastNetwork)
{
    Machine machine;
    machine.becomes({otherAddress}, Ipv4Address(10, 0, 0, 7));
    machine.losesAll();
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
}

TEST(OwnNetworks, AStartWithoutANetworkSaysSoAndGoesOnWhenThereIsOne)
{
    Copy copy({.ip = QStringLiteral("127.0.0.1"), .contacts = {{"10.0.0.2", "Ann"}}, .loaded = false});
    copy.ownAddresses.running.clear();
    copy.engine.mainWindow().Form_Load();
    EXPECT_EQ(copy.view.networkPanel, QStringLiteral("No network"));
    EXPECT_THAT(copy.view.log.lastLine(), HasSubstr("No network gives this computer an IPv4 address"));
    copy.settleStart();
    copy.ownAddresses.running = {office};
    copy.socket.ownAddress = office.address;
    copy.networkWatch.tell();
    EXPECT_EQ(copy.common.ownIP, office.address);
    copy.advance(3s);
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS Online"}));
}

TEST(OwnNetworks, TheAddressIsThatOfTheChosenCardAsLongAsItIsThere)
{
    Machine machine({.contacts = {{"10.0.0.2", "Ann"}}, .settings = {{"Settings/OwnNetworkCard", "eth0"}}});
    machine.becomes({otherAddress, wireless}, wireless.address);
    EXPECT_EQ(machine.common.ownIP, otherAddress.address);
    EXPECT_EQ(machine.socket.source(), otherAddress.address);
    machine.becomes({wireless}, wireless.address);
    EXPECT_THAT(machine.view.log.lines(),
                Contains("The network card eth0, whose address the options name as yours, is not connected; your "
                         "address is 192.168.7.1 until it is."));
    EXPECT_EQ(machine.common.ownIP, wireless.address);
    EXPECT_EQ(machine.socket.source(), std::nullopt);
    machine.losesAll();
    machine.view.log.clear();
    machine.becomes({wireless}, wireless.address);
    EXPECT_THAT(machine.view.log.lines(), Contains(HasSubstr("The network card eth0, whose address")));
    machine.becomes({wireless, office}, wireless.address);
    EXPECT_EQ(machine.common.ownIP, office.address);
    EXPECT_EQ(machine.socket.source(), office.address);
    machine.common.ownCard = QStringLiteral("wlan0");
    machine.networkWatch.tell();
    EXPECT_EQ(machine.common.ownIP, office.address) << "another choice is for the next start";
}

TEST(OwnNetworks, AFixedAddressStaysWhateverElseChanges)
{
    Machine machine({.contacts = {{"10.0.0.2", "Ann"}}}, true);
    machine.becomes({office, wireless}, wireless.address);
    machine.becomes({wireless}, wireless.address);
    machine.advance(60s);
    EXPECT_EQ(machine.common.ownIP, office.address);
    machine.sent();
    machine.becomes({wireless, office}, wireless.address);
    machine.advance(3s);
    EXPECT_THAT(machine.sent(), testing::SizeIs(2)) << "its network has come back";
}

TEST(OwnNetworks, ASocketWhoseAddressHasGoneListensAgainAsSoonAsItIsBack)
{
    Machine machine({.contacts = {{"10.0.0.2", "Ann"}}}, true);
    machine.socket.failure = BindFailure::addressNotHere;
    machine.socket.addressGone = true;
    machine.becomes({}, office.address);
    EXPECT_FALSE(machine.socket.isBound());
    EXPECT_EQ(machine.view.trouble, QStringLiteral("No port 5549"));
    EXPECT_THAT(machine.view.log.lines(), Contains(HasSubstr("does not have the address")));
    machine.socket.addressGone = false;
    machine.becomes({office}, office.address);
    EXPECT_TRUE(machine.socket.isBound());
    EXPECT_EQ(machine.view.trouble, QString());
    EXPECT_THAT(machine.view.log.lines(), Contains("You can be reached on port 5549 again."));
    EXPECT_THAT(machine.sent(), IsEmpty()) << "a hall of machines would shout at once";
    machine.advance(3s);
    EXPECT_THAT(machine.sent(), testing::SizeIs(2));
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
}

TEST(OwnNetworks, AnEndedCopyHearsOfNoChange)
{
    Machine machine;
    machine.becomes({otherAddress}, Ipv4Address(10, 0, 0, 7));
    machine.engine.mainWindow().Form_Unload();
    machine.sent();
    EXPECT_FALSE(machine.networkWatch.listener);
    machine.advance(60s);
    EXPECT_THAT(machine.sent(), IsEmpty());
}

} // namespace
} // namespace nimb::test
