// A network inside one process: datagrams in a queue, delivered when a test says so.
#pragma once

#include "protocol/address_text.h"
#include "protocol/winsock.h"

#include <deque>
#include <map>
#include <ostream>
#include <set>
#include <vector>

namespace nimb::test
{

/// A datagram as a test expects it.
struct To {
    std::string ip;
    std::string bytes;
    bool operator==(const To &) const = default;
    friend std::ostream &operator<<(std::ostream &out, const To &to)
    {
        return out << to.ip << " <- \"" << to.bytes << '"';
    }
};

class SimulatedWinsock;

/// Delivers in order, to the socket that has the address and listens; what goes elsewhere is lost.
class SimulatedNetwork
{
public:
    SimulatedNetwork() = default;
    SimulatedNetwork(const SimulatedNetwork &) = delete;
    SimulatedNetwork &operator=(const SimulatedNetwork &) = delete;
    virtual ~SimulatedNetwork() = default;

    void attach(SimulatedWinsock &socket);
    void detach(const SimulatedWinsock &socket);
    virtual void send(const QString &from, const QString &to, const std::string &bytes)
    {
        m_wire.push_back({from, to, bytes});
    }
    /// Delivers what is under way and everything that it provokes.
    void settle();

protected:
    struct Flight {
        QString from, to;
        std::string bytes;
    };
    /// Null when nobody listens there.
    SimulatedWinsock *listener(const QString &ip) const;
    /// The addresses of everybody who is there.
    std::vector<QString> attached() const;

private:
    std::map<QString, SimulatedWinsock *> m_sockets;
    std::deque<Flight> m_wire;
};

class SimulatedWinsock : public Winsock
{
public:
    SimulatedWinsock(const QString &ip, QString host, SimulatedNetwork *network)
        : SimulatedWinsock(readAddress(ip).value(), std::move(host), network)
    {
    }
    SimulatedWinsock(Ipv4Address ip, QString host, SimulatedNetwork *network)
        : m_ip(ip), m_host(std::move(host)), m_network(network)
    {
        if (m_network)
            m_network->attach(*this);
    }
    ~SimulatedWinsock() override
    {
        if (m_network)
            m_network->detach(*this);
    }

    void setLocalPort(std::uint16_t port) override { localPort = port; }
    void setRemotePort(std::uint16_t port) override { remotePort = port; }
    void setRemoteHost(std::optional<Ipv4Address> address) override { m_remoteHost = address; }
    void setBroadcast(bool allowed) override { broadcast = allowed; }
    void setSource(std::optional<Ipv4Address> address) override { m_usedSource = address; }
    std::optional<Ipv4Address> source() const override { return m_usedSource; }
    bool bind() override
    {
        m_bound = !portTaken && !addressGone;
        return m_bound;
    }
    std::optional<Ipv4Address> addressTowards(Ipv4Address peer) const override
    {
        const auto way = ways.find(peer);
        return way == ways.end() || m_usedSource ? std::nullopt : std::optional(way->second);
    }
    void networksChanged() override { m_bound = m_bound && !addressGone; }
    bool isBound() const override { return m_bound; }
    BindFailure bindFailure() const override { return m_bound ? BindFailure::none : failure; }
    void SendData(const std::string &bytes) override
    {
        if (!m_bound || !m_remoteHost || (isBroadcast(*m_remoteHost) && !broadcast))
            return;
        sent.push_back({m_remoteHost->toText(), bytes});
        sources.push_back(m_usedSource);
        if (m_network)
            m_network->send(addressText(m_ip), addressText(*m_remoteHost), bytes);
    }
    std::string GetData(std::size_t byteCount) override { return m_arrived.substr(0, byteCount); }
    Ipv4Address RemoteHostIP() const override { return m_source; }
    void announceWaiting() override
    {
        for (const auto &[from, bytes] : std::exchange(waiting, {}))
            arrive(from, bytes);
    }
    void setAcquainted(Ipv4Address sender, bool acquainted) override
    {
        if (acquainted)
            acquaintances.insert(sender);
        else
            acquaintances.erase(sender);
    }
    Ipv4Address LocalIP() const override { return ownAddress.value_or(m_ip); }
    QString LocalHostName() const override { return m_host; }

    void arrive(const QString &from, const std::string &bytes)
    {
        m_source = readAddress(from).value();
        m_arrived = bytes;
        if (DataArrival)
            DataArrival(bytes.size());
    }

    /// Every simulated network has a mask of 24 bits.
    static bool isBroadcast(Ipv4Address address) { return address.number() % 256 == 255; }

    std::vector<std::pair<QString, std::string>> waiting; ///< has arrived and is announced when asked for
    bool broadcast = false;                               ///< datagrams to everybody leave the machine
    std::vector<std::optional<Ipv4Address>> sources;      ///< of all that was ever sent
    std::optional<Ipv4Address> ownAddress;   ///< that the system would choose now; at first the one of its making
    std::map<Ipv4Address, Ipv4Address> ways; ///< from which address, to peers where that is not the usual one
    bool addressGone = false;                ///< the one to listen on
    bool portTaken = false;
    BindFailure failure = BindFailure::portTaken; ///< what a taken port looks like
    std::uint16_t localPort = 0;
    std::uint16_t remotePort = 0;
    std::vector<To> sent;
    std::set<Ipv4Address> acquaintances; ///< whose datagrams would go first

private:
    friend class SimulatedNetwork;

    Ipv4Address m_ip;
    QString m_host;
    SimulatedNetwork *m_network;
    std::optional<Ipv4Address> m_remoteHost;
    Ipv4Address m_source;
    std::optional<Ipv4Address> m_usedSource; ///< of what is sent
    std::string m_arrived;
    bool m_bound = false;
};

inline void SimulatedNetwork::attach(SimulatedWinsock &socket)
{
    m_sockets[addressText(socket.m_ip)] = &socket;
}

inline void SimulatedNetwork::detach(const SimulatedWinsock &socket)
{
    m_sockets.erase(addressText(socket.m_ip));
}

inline SimulatedWinsock *SimulatedNetwork::listener(const QString &ip) const
{
    const auto socket = m_sockets.find(ip);
    return socket != m_sockets.end() && socket->second->isBound() ? socket->second : nullptr;
}

inline std::vector<QString> SimulatedNetwork::attached() const
{
    std::vector<QString> addresses;
    for (const auto &[address, socket] : m_sockets)
        addresses.push_back(address);
    return addresses;
}

inline void SimulatedNetwork::settle()
{
    while (!m_wire.empty()) {
        const Flight flight = m_wire.front();
        m_wire.pop_front();
        if (SimulatedWinsock *const socket = listener(flight.to))
            socket->arrive(flight.from, flight.bytes);
    }
}

} // namespace nimb::test
