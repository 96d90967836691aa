// The one UDP socket, as the program uses it.
#pragma once

#include "protocol/ipv4_address.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace nimb
{

/// Why listening did not begin.
enum class BindFailure {
    none,
    portTaken,
    addressNotHere, ///< the address to listen on is not one of this machine
    notAllowed,     ///< the system reserves the port
    other,
};

/// One UDP endpoint whose local port is also the port of every peer. Sending is always two steps: set the remote
/// host, then send. Nothing is acknowledged, and no operation reports a failure to its caller: a datagram that
/// cannot be sent is lost as one on the wire would be, and only counted.
class Winsock
{
public:
    virtual ~Winsock() = default;

    /// The port to listen on, 1 to 65535. Takes effect with bind().
    virtual void setLocalPort(std::uint16_t port) = 0;
    /// The port that every datagram is sent to, 1 to 65535.
    virtual void setRemotePort(std::uint16_t port) = 0;
    /// Where the following SendData() goes. Without an address it goes nowhere and counts as not sent.
    virtual void setRemoteHost(std::optional<Ipv4Address> address) = 0;
    /// Whether the following SendData() may go to everybody on a network. Otherwise, and at first, a datagram to a
    /// broadcast address counts as not sent.
    virtual void setBroadcast(bool allowed) = 0;
    /// Which of this machine's addresses the following SendData() leaves from. Nothing, as at first: the system chooses
    /// by the way.
    virtual void setSource(std::optional<Ipv4Address> address) = 0;
    virtual std::optional<Ipv4Address> source() const = 0;

    /// Listens on the local port, shared with nobody. False when the port is taken or may not be used; calling it
    /// again tries again, and is free once bound.
    [[nodiscard]] virtual bool bind() = 0;
    virtual bool isBound() const = 0;
    /// The address of this machine that a datagram to that one leaves from. Nothing where the way does not decide it,
    /// for it is fixed or chosen, where there is no way, and within this machine.
    virtual std::optional<Ipv4Address> addressTowards(Ipv4Address peer) const = 0;
    /// The networks of this machine have changed: ways lead elsewhere. Listens no more where the address to listen on
    /// has gone; bind() listens anew.
    virtual void networksChanged() = 0;
    /// Why the last bind() failed.
    virtual BindFailure bindFailure() const = 0;

    /// Sends one datagram holding exactly these bytes. While the socket is not bound nothing leaves the machine.
    virtual void SendData(const std::string &bytes) = 0;
    /// Takes the datagram announced by DataArrival; byteCount is the count that came with it.
    virtual std::string GetData(std::size_t byteCount) = 0;
    /// Source address of the datagram taken last; unspecified before the first.
    virtual Ipv4Address RemoteHostIP() const = 0;
    /// Announces at once what has arrived so far and would be announced later.
    virtual void announceWaiting() = 0;

    /// Whether what this sender sends goes before what others send, while more waits than can be handled at once.
    /// Nobody's does at first.
    virtual void setAcquainted(Ipv4Address sender, bool acquainted) = 0;

    virtual Ipv4Address LocalIP() const = 0;
    virtual QString LocalHostName() const = 0;

    /// Called once for each datagram, zero-length ones included, with its size in bytes.
    std::function<void(std::size_t byteCount)> DataArrival;
    /// Called for every error of the socket. The program does nothing with it.
    std::function<void()> Error;
};

} // namespace nimb
