// A socket that tells a trace of what goes through it.
#pragma once

#include "protocol/datagram_trace.h"
#include "protocol/winsock.h"

namespace nimb
{

/// Behaves as the other socket, which it alone uses, and which outlives it.
class TracedWinsock : public Winsock
{
public:
    TracedWinsock(Winsock &other, DatagramTrace &trace);
    TracedWinsock(const TracedWinsock &) = delete;
    TracedWinsock &operator=(const TracedWinsock &) = delete;
    ~TracedWinsock() override;

    void setLocalPort(std::uint16_t port) override { m_other.setLocalPort(port); }
    void setRemotePort(std::uint16_t port) override { m_other.setRemotePort(port); }
    void setRemoteHost(std::optional<Ipv4Address> address) override;
    void setBroadcast(bool allowed) override { m_other.setBroadcast(allowed); }
    void setSource(std::optional<Ipv4Address> address) override { m_other.setSource(address); }
    std::optional<Ipv4Address> source() const override { return m_other.source(); }

    [[nodiscard]] bool bind() override { return m_other.bind(); }
    bool isBound() const override { return m_other.isBound(); }
    std::optional<Ipv4Address> addressTowards(Ipv4Address peer) const override { return m_other.addressTowards(peer); }
    void networksChanged() override { m_other.networksChanged(); }
    BindFailure bindFailure() const override { return m_other.bindFailure(); }

    void SendData(const std::string &bytes) override;
    std::string GetData(std::size_t byteCount) override;
    Ipv4Address RemoteHostIP() const override { return m_other.RemoteHostIP(); }
    void announceWaiting() override { m_other.announceWaiting(); }

    void setAcquainted(Ipv4Address sender, bool acquainted) override { m_other.setAcquainted(sender, acquainted); }

    Ipv4Address LocalIP() const override { return m_other.LocalIP(); }
    QString LocalHostName() const override { return m_other.LocalHostName(); }

private:
    Winsock &m_other;
    DatagramTrace &m_trace;
    Ipv4Address m_remoteHost;
};

} // namespace nimb
