#include "platform/network_diagnosis.h"

#include "platform/firewall_rules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTimer>

#include <vector>

#include <winsock2.h>

// They build on what stands above.
#include <iphlpapi.h>
#include <ws2tcpip.h>

namespace nimb
{
namespace
{

/// Tables of the system are asked for until the room is enough for them.
template <class Ask> std::vector<char> tableOf(const Ask &ask, DWORD isTooSmall)
{
    std::vector<char> room;
    DWORD size = 0, answer = isTooSmall;
    for (int attempt = 0; attempt < 4 && answer == isTooSmall; ++attempt) {
        room.resize(size);
        answer = ask(room.empty() ? nullptr : room.data(), size);
    }
    return answer == NO_ERROR ? room : std::vector<char>();
}

QString programOf(DWORD process)
{
    HANDLE const handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    if (!handle)
        return {};
    wchar_t path[1024];
    DWORD length = static_cast<DWORD>(std::size(path));
    const bool known = QueryFullProcessImageNameW(handle, 0, path, &length) != 0;
    CloseHandle(handle);
    return known
        ? QFileInfo(QDir::fromNativeSeparators(QString::fromWCharArray(path, static_cast<int>(length)))).fileName()
        : QString();
}

constexpr auto policy
    = "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy";

/// For any of the kinds of networks that Windows knows.
bool isFirewallOn()
{
    for (const char *const profile : {"\\StandardProfile", "\\PublicProfile", "\\DomainProfile"}) {
        if (QSettings(QLatin1String(policy) + QLatin1String(profile), QSettings::NativeFormat)
                .value(QStringLiteral("EnableFirewall"))
                .toInt()
            != 0)
            return true;
    }
    return false;
}

QStringList firewallRules()
{
    const QSettings rules(QLatin1String(policy) + QLatin1String("\\FirewallRules"), QSettings::NativeFormat);
    QStringList texts;
    for (const QString &name : rules.allKeys())
        texts.append(rules.value(name).toString());
    return texts;
}

/// The program for which the rules are made: ours for consoles stands beside it.
QString chatProgram()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + QLatin1String("/nimb-chat.exe"));
}

} // namespace

std::optional<PortHolder> SystemNetworkDiagnosis::holderOf(std::uint16_t port, std::optional<Ipv4Address> address) const
{
    const std::vector<char> room
        = tableOf([](void *table,
                     DWORD &size) { return GetExtendedUdpTable(table, &size, FALSE, AF_INET, UDP_TABLE_OWNER_PID, 0); },
                  ERROR_INSUFFICIENT_BUFFER);
    if (room.empty())
        return std::nullopt;
    const auto *const table = reinterpret_cast<const MIB_UDPTABLE_OWNER_PID *>(room.data());
    for (DWORD i = 0; i < table->dwNumEntries; ++i) {
        const MIB_UDPROW_OWNER_PID &row = table->table[i];
        const Ipv4Address there = Ipv4Address::of(ntohl(row.dwLocalAddr));
        const bool isInTheWay = !address || there.isUnspecified() || there == *address;
        if (ntohs(static_cast<u_short>(row.dwLocalPort)) == port && isInTheWay)
            return PortHolder{programOf(row.dwOwningPid), static_cast<qint64>(row.dwOwningPid)};
    }
    return std::nullopt;
}

bool SystemNetworkDiagnosis::isKnown(Ipv4Address neighbour)
{
    const std::vector<char> room = tableOf(
        [](void *table, DWORD &size) { return GetIpNetTable(static_cast<MIB_IPNETTABLE *>(table), &size, FALSE); },
        ERROR_INSUFFICIENT_BUFFER);
    if (room.empty())
        return false;
    const auto *const table = reinterpret_cast<const MIB_IPNETTABLE *>(room.data());
    for (DWORD i = 0; i < table->dwNumEntries; ++i) {
        const MIB_IPNETROW &row = table->table[i];
        if (Ipv4Address::of(ntohl(row.dwAddr)) == neighbour && row.dwType != MIB_IPNET_TYPE_INVALID)
            return true;
    }
    return false;
}

void SystemNetworkDiagnosis::readFirewall(std::uint16_t port, FirewallRead read)
{
    Firewall firewall;
    if (isFirewallOn()) {
        firewall.name = QStringLiteral("Windows Defender");
        firewall.verdict = verdictOf(windowsAnswer(firewallRules(), chatProgram(), port));
        firewall.opening = QStringLiteral("netsh advfirewall firewall add rule name=\"NIMB-Chat\" dir=in action=allow "
                                          "protocol=UDP localport=%1 program=\"%2\"")
                               .arg(QString::number(port), chatProgram());
    }
    QTimer::singleShot(0, m_life.get(), [firewall, read = std::move(read)] { read(firewall); });
}

} // namespace nimb
