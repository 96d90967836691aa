#include "platform/network_diagnosis.h"

#include "raw_peer.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;

constexpr char udpTable[]
    = "   sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout inode ref pointer "
      "drops\n"
      "  12: 0100007F:0035 00000000:0000 07 00000000:00000000 00:00000000 00000000     0        0 11111 2 0 0\n"
      "  99: 00000000:15AD 00000000:0000 07 00000000:00000000 00:00000000 00000000  1000        0 22222 2 0 0\n";

void write(const QString &path, const QByteArray &contents)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

TEST(HolderOfUdpPort, IsTheProcessWithTheSocket)
{
    const QTemporaryDir proc;
    const QString root = proc.path();
    write(root + QStringLiteral("/net/udp"), udpTable);
    write(root + QStringLiteral("/4711/comm"), "otherd\n");
    write(root + QStringLiteral("/17/comm"), "innocent\n");
    QDir().mkpath(root + QStringLiteral("/4711/fd"));
    QDir().mkpath(root + QStringLiteral("/17/fd"));
    ASSERT_TRUE(QFile::link(QStringLiteral("socket:[22222]"), root + QStringLiteral("/4711/fd/5")));
    ASSERT_TRUE(QFile::link(QStringLiteral("socket:[222223]"), root + QStringLiteral("/17/fd/5")));
    EXPECT_EQ(holderOfUdpPort(root, 5549, {}), (PortHolder{QStringLiteral("otherd"), 4711}));
    EXPECT_EQ(holderOfUdpPort(root, 5550, {}), std::nullopt) << "nobody has it";
    EXPECT_EQ(holderOfUdpPort(root, 53, {}), PortHolder{}) << "somebody whose descriptors we may not see";
    EXPECT_EQ(holderOfUdpPort(root + QStringLiteral("/nowhere"), 5549, {}), std::nullopt);
}

TEST(HolderOfUdpPort, IsWhoeverStandsInTheWayOfTheAddress)
{
    const QTemporaryDir proc;
    const QString root = proc.path();
    const QByteArray head = QByteArray(udpTable).split('\n').first() + '\n';
    const QByteArray rest = " 00000000:0000 07 00000000:00000000 00:00000000 00000000  1000        0 ";
    write(root + QStringLiteral("/net/udp"),
          head + "  1: 0200007F:15AD" + rest + "11111 2 0 0\n" + "  2: 0300007F:15AD" + rest + "22222 2 0 0\n"
              + "  3: 00000000:15AE" + rest + "33333 2 0 0\n");
    write(root + QStringLiteral("/net/udp6"),
          head + "  4: 00000000000000000000000000000000:15AF" + rest + "44444 2 0 0\n");
    const auto addProcess = [&root](const QString &process, const QString &inode) {
        write(root + u'/' + process + QStringLiteral("/comm"), "p" + process.toLatin1() + '\n');
        QDir().mkpath(root + u'/' + process + QStringLiteral("/fd"));
        ASSERT_TRUE(
            QFile::link(QStringLiteral("socket:[%1]").arg(inode), root + u'/' + process + QStringLiteral("/fd/5")));
    };
    addProcess(QStringLiteral("1"), QStringLiteral("11111"));
    addProcess(QStringLiteral("2"), QStringLiteral("22222"));
    addProcess(QStringLiteral("3"), QStringLiteral("33333"));
    addProcess(QStringLiteral("4"), QStringLiteral("44444"));
    const auto holder = [&root](std::uint16_t port, std::optional<Ipv4Address> address) {
        const std::optional<PortHolder> found = holderOfUdpPort(root, port, address);
        return found ? found->process : 0;
    };
    EXPECT_EQ(holder(5549, Ipv4Address(127, 0, 0, 2)), 1);
    EXPECT_EQ(holder(5549, Ipv4Address(127, 0, 0, 3)), 2);
    EXPECT_EQ(holder(5549, Ipv4Address(127, 0, 0, 4)), 0);
    EXPECT_EQ(holder(5549, std::nullopt), 1) << "any of them stands in the way of all addresses";
    EXPECT_EQ(holder(5550, Ipv4Address(127, 0, 0, 4)), 3) << "who has all addresses has this one";
    EXPECT_EQ(holder(5551, Ipv4Address(127, 0, 0, 4)), 4) << "also with a socket for both kinds of addresses";
}

TEST(HolderOfUdpPort, IsToldWithTheFolderOfItsSettings)
{
    const QTemporaryDir proc;
    const QString root = proc.path();
    write(root + QStringLiteral("/net/udp"), udpTable);
    write(root + QStringLiteral("/4711/comm"), "nimb-chat\n");
    QDir().mkpath(root + QStringLiteral("/4711/fd"));
    ASSERT_TRUE(QFile::link(QStringLiteral("socket:[22222]"), root + QStringLiteral("/4711/fd/5")));
    ASSERT_TRUE(QFile::link(QStringLiteral("/somewhere"), root + QStringLiteral("/4711/cwd")));
    const auto profile = [&root](const QByteArray &variables) {
        write(root + QStringLiteral("/4711/environ"), variables);
        return holderOfUdpPort(root, 5549, {}).value_or(PortHolder{}).profile.toStdString();
    };
    using namespace std::string_literals;
    const auto bytes = [](const std::string &text) { return QByteArray::fromStdString(text); };
    EXPECT_EQ(profile(bytes("HOME=/people/ann\0NIMBCHAT_PROFILE=/srv/profile/\0"s)), "/srv/profile");
    EXPECT_EQ(profile(bytes("HOME=/people/ann\0NIMBCHAT_PROFILE=mine\0"s)), "/somewhere/mine");
    EXPECT_EQ(profile(bytes("HOME=/people/ann\0XDG_CONFIG_HOME=/conf\0"s)), "/conf/NIMB-Chat");
    EXPECT_EQ(profile(bytes("HOME=/people/ann\0NIMBCHAT_PROFILE=\0"s)), "/people/ann/.config/NIMB-Chat");
    EXPECT_EQ(profile({}), "") << "nothing is known of somebody else's process";
}

TEST(HolderOfUdpPort, IsThisProcessForASocketOfOurs)
{
    constexpr std::uint16_t port = 45561;
    const RawPeer peer("127.0.61.1", port);
    ASSERT_TRUE(peer.isBound());
    DropCounts drops;
    const UdpWinsock socket(drops);
    const std::optional<PortHolder> holder = SystemNetworkDiagnosis(socket).holderOf(port, {});
    ASSERT_TRUE(holder);
    EXPECT_EQ(holder->process, QCoreApplication::applicationPid());
    EXPECT_EQ(holder->program, QStringLiteral("platform_test"));
}

TEST(NeighbourTable, KnowsWhoHasSaidThatTheAddressIsHis)
{
    const QByteArray table = "IP address       HW type     Flags       HW address            Mask     Device\n"
                             "192.168.1.9      0x1         0x2         52:54:00:12:34:56     *        eth0\n"
                             "192.168.1.8      0x1         0x0         00:00:00:00:00:00     *        eth0\n"
                             "192.168.1.99     0x1         0x6         52:54:00:12:34:57     *        eth0\n";
    EXPECT_TRUE(isInNeighbourTable(table, Ipv4Address(192, 168, 1, 9)));
    EXPECT_FALSE(isInNeighbourTable(table, Ipv4Address(192, 168, 1, 8))) << "asked for in vain";
    EXPECT_TRUE(isInNeighbourTable(table, Ipv4Address(192, 168, 1, 99))) << "one that is written down";
    EXPECT_TRUE(
        isInNeighbourTable(table + "192.168.1.8      0x1         0x2         52:54:00:12:34:58     *        wlan0\n",
                           Ipv4Address(192, 168, 1, 8)))
        << "through another card";
    EXPECT_FALSE(isInNeighbourTable(table, Ipv4Address(192, 168, 1, 7)));
    EXPECT_FALSE(isInNeighbourTable({}, Ipv4Address(192, 168, 1, 9)));
}

class SystemNetworkDiagnosisTest : public testing::Test
{
protected:
    DropCounts drops;
    UdpWinsock socket{drops, Ipv4Address(127, 0, 61, 2)};
    SystemNetworkDiagnosis diagnosis{socket};
};

TEST_F(SystemNetworkDiagnosisTest, TellsWhatTheSystemGrantsWhetherThePortIsBoundOrNot)
{
    const int unbound = diagnosis.receiveBufferBytes();
    EXPECT_GT(unbound, 0);
    socket.setLocalPort(45549);
    ASSERT_TRUE(socket.bind());
    EXPECT_EQ(diagnosis.receiveBufferBytes(), unbound);
}

TEST_F(SystemNetworkDiagnosisTest, AnAddressThatIsNotHereCannotSendToEverybody)
{
    EXPECT_FALSE(
        diagnosis.canBroadcast({QStringLiteral("gone0"), Ipv4Address(192, 0, 2, 200), Ipv4Address(192, 0, 2, 255)}));
    EXPECT_TRUE(
        diagnosis.canBroadcast({QStringLiteral("lo"), Ipv4Address(127, 0, 61, 2), Ipv4Address(127, 255, 255, 255)}));
}

TEST_F(SystemNetworkDiagnosisTest, AnswersAboutTheFirewallOnceAndLater)
{
    int answers = 0;
    diagnosis.readFirewall(5549, [&answers](const Firewall &) { ++answers; });
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(QTest::qWaitFor([&answers] { return answers > 0; }, 10000));
    EXPECT_EQ(answers, 1);
}

TEST_F(SystemNetworkDiagnosisTest, ThisComputerIsItsOwnNeighbour)
{
    EXPECT_EQ(diagnosis.neighbour(Ipv4Address(127, 0, 61, 9)), Neighbour::known);
    EXPECT_EQ(diagnosis.neighbour(Ipv4Address(198, 51, 100, 9)), Neighbour::farAway);
    EXPECT_FALSE(diagnosis.isTunnel(QStringLiteral("lo")));
    EXPECT_FALSE(diagnosis.isTunnel(QStringLiteral("nothing0")));
}

} // namespace
} // namespace nimb::test
