// Asks the system why somebody is not reached.
#pragma once

#include "base/network_diagnosis.h"
#include "platform/udp_winsock.h"

#include <QObject>

#include <memory>

namespace nimb
{

/// The process that holds the UDP port of this address or, without one, of any, by the lists of a Linux system. proc:
/// where they are.
std::optional<PortHolder> holderOfUdpPort(const QString &proc, std::uint16_t port, std::optional<Ipv4Address> address);

/// Whether the table /proc/net/arp knows a machine with that address.
bool isInNeighbourTable(const QByteArray &table, Ipv4Address address);

/// What other systems than Linux do not tell is taken for good: no holder, no firewall.
class SystemNetworkDiagnosis : public NetworkDiagnosis
{
public:
    /// socket: outlives this object.
    explicit SystemNetworkDiagnosis(const UdpWinsock &socket);
    ~SystemNetworkDiagnosis() override;

    std::optional<PortHolder> holderOf(std::uint16_t port, std::optional<Ipv4Address> address) const override;
    int receiveBufferBytes() const override;
    bool canBroadcast(const NetworkCard &card) const override;
    void readFirewall(std::uint16_t port, std::function<void(const Firewall &)> read) override;
    Neighbour neighbour(Ipv4Address address) const override;
    bool isTunnel(const QString &card) const override;

private:
    using FirewallRead = std::function<void(const Firewall &)>;
    /// output: nothing where the program is missing, takes too long or must not do that; exit status with it.
    using CommandEnded = std::function<void(int status, const QByteArray &output)>;

    /// By the system's table of neighbours.
    static bool isKnown(Ipv4Address neighbour);

    // Of the firewalls of Linux.
    void run(const QString &program, const QStringList &arguments, CommandEnded ended);
    void askFirewalld(std::uint16_t port, const FirewallRead &read);
    void askNftables(std::uint16_t port, const FirewallRead &read);

    const UdpWinsock &m_socket;
    const std::unique_ptr<QObject> m_life; ///< parent of what is under way
};

} // namespace nimb
