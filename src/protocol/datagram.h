// The grammar of the datagrams: one struct per kind, parse and serialise over bytes.
//
// A datagram is one string without terminator. Its fields are separated by single spaces, nothing is escaped, and the
// last field runs to the end. Fields are bytes here; wire_text turns them into text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace nimb::wire
{

/// Who a peer says it is. nick is the last field: it may hold spaces.
struct Identity {
    std::string ip, host, nick;
    bool operator==(const Identity &) const = default;
};

/// "?ONLINE ip host nick": a peer asks whether we are there. Without all three separators `from` is empty: the
/// datagram still counts.
struct OnlineQuestion {
    std::optional<Identity> from;
    bool operator==(const OnlineQuestion &) const = default;
};

/// "!ONLINE ip host nick": the answer.
struct OnlineAnswer {
    std::optional<Identity> from;
    bool operator==(const OnlineAnswer &) const = default;
};

/// "!OFFLINE ip host nick": a peer leaves or becomes invisible.
struct Offline {
    std::optional<Identity> from;
    bool operator==(const Offline &) const = default;
};

/// "!STATUS state" or "!STATUS state text".
struct Status {
    std::string state; ///< one word; empty when the peer sent none
    std::string text;  ///< the personalised text, may hold spaces; empty for a plain state
    bool operator==(const Status &) const = default;
};

/// "!BUZZ"
struct Buzz {
    bool operator==(const Buzz &) const = default;
};

/// "!USER ip host nick": one entry of the peer's contact list. Empty without all three separators.
struct SharedContact {
    std::optional<Identity> contact;
    bool operator==(const SharedContact &) const = default;
};

/// "!TYPING"
struct Typing {
    bool operator==(const Typing &) const = default;
};

/// "?AVATARHEAD"
struct AvatarHeadQuestion {
    bool operator==(const AvatarHeadQuestion &) const = default;
};

/// "!AVATARHEAD data": any bytes; a value that begins with "WEBCAM" announces a polled picture.
struct AvatarHead {
    std::string data;
    bool operator==(const AvatarHead &) const = default;
};

/// "?AVATARBODY"
struct AvatarBodyQuestion {
    bool operator==(const AvatarBodyQuestion &) const = default;
};

/// "!AVATAROFF": the peer has no avatar.
struct AvatarOff {
    bool operator==(const AvatarOff &) const = default;
};

/// "!AVATARBODY data": any bytes; a whole picture has 7500.
struct AvatarBody {
    std::string data;
    bool operator==(const AvatarBody &) const = default;
};

/// "!MOOD value": a decimal number as text, "." between whole and fraction.
struct Mood {
    std::string value;
    bool operator==(const Mood &) const = default;
};

/// "!LIVETYPE text": what stands in the peer's input box, empty when it was emptied.
struct LiveType {
    std::string text;
    bool operator==(const LiveType &) const = default;
};

/// The number a host gave its conference, written in decimal after "#". Read leniently: what follows the digits is
/// ignored and no digits are 0.
using ConferenceNumber = std::int16_t;

/// "?CONF INVITE #id"
struct ConferenceInvitation {
    ConferenceNumber id = 0;
    bool operator==(const ConferenceInvitation &) const = default;
};

/// "?CONF USERS #id": a participant asks the host for the list.
struct ConferenceListQuestion {
    ConferenceNumber id = 0;
    bool operator==(const ConferenceListQuestion &) const = default;
};

/// "!CONF INVITE #id AGREE" or "... DENY". Any other answer counts as a refusal.
struct ConferenceAnswer {
    ConferenceNumber id = 0;
    bool agreed = false;
    bool operator==(const ConferenceAnswer &) const = default;
};

/// "!CONF USERS #id ip ip ...": the participants present, the host first.
struct ConferenceList {
    ConferenceNumber id = 0;
    std::vector<std::string> addresses; ///< none is empty
    bool operator==(const ConferenceList &) const = default;
};

/// "!CONF LEAVE #id"
struct ConferenceLeave {
    ConferenceNumber id = 0;
    bool operator==(const ConferenceLeave &) const = default;
};

/// "!CONF CLOSE #id": the host closes the conference or removes us from it.
struct ConferenceClose {
    ConferenceNumber id = 0;
    bool operator==(const ConferenceClose &) const = default;
};

/// "-text": a private message.
struct PrivateMessage {
    std::string text;
    bool operator==(const PrivateMessage &) const = default;
};

/// "+origin #id text": a conference message; origin is the address of the participant who wrote it.
struct ConferenceMessage {
    std::string origin;
    ConferenceNumber id = 0;
    std::string text;
    bool operator==(const ConferenceMessage &) const = default;
};

/// A known kind that lacks what it must carry: "?CONF" or "!CONF" with an unknown sub-command, a conference datagram
/// without "#" or whose number does not fit.
struct Incomplete {
    std::string bytes; ///< the whole datagram
    bool operator==(const Incomplete &) const = default;
};

/// Begins with "!" or "?" and is no known command.
struct Unsupported {
    std::string bytes; ///< the whole datagram
    bool operator==(const Unsupported &) const = default;
};

/// Fits no rule at all, as an empty datagram does.
struct Garbage {
    std::string bytes; ///< the whole datagram
    bool operator==(const Garbage &) const = default;
};

using Datagram
    = std::variant<OnlineQuestion, OnlineAnswer, Offline, Status, Buzz, SharedContact, Typing, AvatarHeadQuestion,
                   AvatarHead, AvatarBodyQuestion, AvatarOff, AvatarBody, Mood, LiveType, ConferenceInvitation,
                   ConferenceListQuestion, ConferenceAnswer, ConferenceList, ConferenceLeave, ConferenceClose,
                   PrivateMessage, ConferenceMessage, Incomplete, Unsupported, Garbage>;

/// Never fails: what fits no rule is Incomplete, Unsupported or Garbage. Command words are compared whole and
/// case-sensitively, in a fixed order, before the first character decides.
Datagram parse(std::string_view bytes);

/// The exact bytes that travel; parse(serialise(d)) == d for every d whose fields, the last one aside, hold no
/// separator. Incomplete, Unsupported and Garbage give back the bytes they came from.
std::string serialise(const Datagram &datagram);

} // namespace nimb::wire
