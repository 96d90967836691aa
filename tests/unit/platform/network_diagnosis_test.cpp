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
    EXPECT_EQ(holderOfUdpPort(root, 5549), (PortHolder{QStringLiteral("otherd"), 4711}));
    EXPECT_EQ(holderOfUdpPort(root, 5550), std::nullopt) << "nobody has it";
    EXPECT_EQ(holderOfUdpPort(root, 53), PortHolder{}) << "somebody whose descriptors we may not see";
    EXPECT_EQ(holderOfUdpPort(root + QStringLiteral("/nowhere"), 5549), std::nullopt);
}

TEST(HolderOfUdpPort, IsThisProcessForASocketOfOurs)
{
    constexpr std::uint16_t port = 45561;
    const RawPeer peer("127.0.61.1", port);
    ASSERT_TRUE(peer.isBound());
    DropCounts drops;
    const UdpWinsock socket(drops);
    const std::optional<PortHolder> holder = SystemNetworkDiagnosis(socket).holderOf(port);
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
