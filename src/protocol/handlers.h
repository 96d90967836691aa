// Who is told of what: the interfaces at which the dispatcher hands a datagram over.
//
// Addresses are the source address of the datagram. Texts are decoded, but otherwise as the peer sent them:
// whoever shows one makes it fit to be shown. Each call is made from inside the arrival of the datagram; answers are
// sent before it returns.
#pragma once

#include "protocol/datagram.h"
#include "protocol/ipv4_address.h"

#include <QString>

#include <optional>
#include <string>

namespace nimb
{

/// Who a peer says it is.
struct PeerIdentity {
    QString ip, host, nick;
};

/// Tells contacts from strangers.
class Senders
{
public:
    virtual ~Senders() = default;
    virtual bool isContact(Ipv4Address ip) const = 0;
};

class PresenceHandler
{
public:
    virtual ~PresenceHandler() = default;
    /// A well-formed presence datagram of an address that is no contact; online is false for a farewell.
    virtual void strangerSeen(Ipv4Address ip, const PeerIdentity &peer, bool online) = 0;
    /// asks: the peer wants to know whether we are there.
    virtual void cameOnline(Ipv4Address ip, const std::optional<PeerIdentity> &peer, bool asks) = 0;
    virtual void wentOffline(Ipv4Address ip) = 0;
    /// text is empty for a plain state.
    virtual void changedState(Ipv4Address ip, const QString &state, const QString &text) = 0;
};

class PrivateMessageHandler
{
public:
    virtual ~PrivateMessageHandler() = default;
    virtual void privateMessage(Ipv4Address ip, const QString &text) = 0;
};

class PeerSignalHandler
{
public:
    virtual ~PeerSignalHandler() = default;
    virtual void buzz(Ipv4Address ip) = 0;
    virtual void typing(Ipv4Address ip) = 0;
    /// An empty text: the peer's input box was emptied.
    virtual void liveType(Ipv4Address ip, const QString &text) = 0;
    /// value: a decimal number as the peer wrote it, unchecked.
    virtual void mood(Ipv4Address ip, const QString &value) = 0;
};

class AvatarHandler
{
public:
    virtual ~AvatarHandler() = default;
    virtual void avatarHeadQuestion(Ipv4Address ip) = 0;
    virtual void avatarBodyQuestion(Ipv4Address ip) = 0;
    virtual void avatarHead(Ipv4Address ip, const std::string &head) = 0;
    virtual void avatarBody(Ipv4Address ip, const std::string &body) = 0;
    virtual void avatarOff(Ipv4Address ip) = 0;
};

class SharedContactHandler
{
public:
    virtual ~SharedContactHandler() = default;
    virtual void sharedContact(Ipv4Address ip, const PeerIdentity &contact) = 0;
};

class ConferenceHandler
{
public:
    virtual ~ConferenceHandler() = default;
    /// One of the conference kinds of datagram; its texts are still bytes.
    virtual void conferenceDatagram(Ipv4Address ip, const wire::Datagram &datagram) = 0;
};

/// Where datagrams that nobody understands are reported.
class UnknownDatagramHandler
{
public:
    virtual ~UnknownDatagramHandler() = default;
    /// data: the whole datagram.
    virtual void unsupportedCommand(Ipv4Address ip, const QString &data) = 0;
    virtual void garbage(Ipv4Address ip, const QString &data) = 0;
};

} // namespace nimb
