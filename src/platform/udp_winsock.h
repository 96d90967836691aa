// The UDP socket of the operating system behind the Winsock interface.
#pragma once

#include "platform/datagram_reader.h"
#include "platform/datagram_socket.h"
#include "protocol/drop_counts.h"
#include "protocol/winsock.h"

#include <QObject>

#include <map>
#include <memory>
#include <optional>
#include <set>

namespace nimb
{

/// A thread of its own reads; here datagrams are handed over, a bounded number per activation, with a return to the
/// event loop between two batches, so that a flood starves neither windows nor timers. Handlers of DataArrival may
/// send, and may run an event loop of their own: nothing further is handed over before they return. They must not
/// destroy this object.
class UdpWinsock : public QObject, public Winsock
{
    Q_OBJECT

public:
    static constexpr int batchSize = 64;
    /// Taken at a time, so that what takes long leaves the rest in its order by sender.
    static constexpr int portion = 8;
    static constexpr int receiveBufferAsked = 4 * 1024 * 1024; ///< bytes

    /// address: the one to bind to and to report as the own one; without it, the socket is bound to every interface.
    /// hostName: reported in place of the system's. Losses are counted in drops, which must outlive this object.
    explicit UdpWinsock(DropCounts &drops, std::optional<Ipv4Address> address = std::nullopt,
                        std::optional<QString> hostName = std::nullopt, QObject *parent = nullptr);

    void setLocalPort(std::uint16_t port) override { m_localPort = port; }
    void setRemotePort(std::uint16_t port) override { m_remotePort = port; }
    void setRemoteHost(std::optional<Ipv4Address> address) override { m_remoteHost = address; }
    void setBroadcast(bool allowed) override;
    void setSource(std::optional<Ipv4Address> address) override { m_source = address; }
    std::optional<Ipv4Address> source() const override { return m_source; }

    [[nodiscard]] bool bind() override;
    std::optional<Ipv4Address> addressTowards(Ipv4Address peer) const override;
    void networksChanged() override;
    bool isBound() const override { return m_own.has_value(); }
    BindFailure bindFailure() const override { return m_bindFailure; }

    void SendData(const std::string &bytes) override;
    std::string GetData(std::size_t byteCount) override;
    Ipv4Address RemoteHostIP() const override { return m_lastSource; }
    void announceWaiting() override;

    void setAcquainted(Ipv4Address sender, bool acquainted) override;

    /// NIMB-Chat's own address as other copies see it; asked of the system anew each time.
    Ipv4Address LocalIP() const override;
    QString LocalHostName() const override;

    /// Bytes that the system granted for waiting datagrams, comparable with receiveBufferAsked; 0 while not bound.
    int receiveBufferBytes() const { return m_receiveBufferBytes; }

private:
    static BindFailure bindFailureOf(int error);
    /// False when the system has no thread or descriptor left.
    bool startReading();
    bool hasAddressStill() const;
    void close();
    void handOver();
    void deliverAll(DatagramReader::Batch batch);
    void count(const DatagramReader::Batch &batch);
    void deliver(Arrival arrival);
    void reportError() const;

    DropCounts &m_drops;
    std::optional<Ipv4Address> m_fixedAddress;
    std::optional<QString> m_fixedHostName;
    std::uint16_t m_localPort = 0;
    std::uint16_t m_remotePort = 0;
    std::optional<Ipv4Address> m_remoteHost;
    std::optional<Ipv4Address> m_source; ///< of what is sent
    mutable std::map<Ipv4Address, std::optional<Ipv4Address>>
        m_ways; ///< from which address, as long as nothing changes
    Ipv4Address m_lastSource;
    Arrival m_waiting; ///< announced and not yet taken
    std::set<Ipv4Address> m_acquaintances;
    std::optional<DatagramSocket> m_own;
    std::optional<DatagramSocket> m_broadcasts; ///< hears what is sent to every copy on the loopback network
    std::optional<DatagramReader> m_reader;     ///< goes before its sockets, and after what watches it
    std::unique_ptr<WakeNotifier> m_notifier;
    int m_receiveBufferBytes = 0;
    BindFailure m_bindFailure = BindFailure::none;
};

} // namespace nimb
