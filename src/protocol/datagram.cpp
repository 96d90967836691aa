#include "protocol/datagram.h"

#include <array>
#include <charconv>
#include <initializer_list>
#include <system_error>

namespace nimb::wire
{

namespace
{

constexpr char separator = ' ';

namespace word
{
constexpr std::string_view onlineQuestion = "?ONLINE";
constexpr std::string_view onlineAnswer = "!ONLINE";
constexpr std::string_view offline = "!OFFLINE";
constexpr std::string_view status = "!STATUS";
constexpr std::string_view buzz = "!BUZZ";
constexpr std::string_view user = "!USER";
constexpr std::string_view typing = "!TYPING";
constexpr std::string_view avatarHeadQuestion = "?AVATARHEAD";
constexpr std::string_view avatarHead = "!AVATARHEAD";
constexpr std::string_view avatarBodyQuestion = "?AVATARBODY";
constexpr std::string_view avatarOff = "!AVATAROFF";
constexpr std::string_view avatarBody = "!AVATARBODY";
constexpr std::string_view mood = "!MOOD";
constexpr std::string_view liveType = "!LIVETYPE";
constexpr std::string_view conferenceQuestion = "?CONF";
constexpr std::string_view conferenceStatement = "!CONF";
} // namespace word

// The fixed beginning of each conference datagram; the number follows at once.
namespace lead
{
constexpr std::string_view invitation = "?CONF INVITE #";
constexpr std::string_view answer = "!CONF INVITE #";
constexpr std::string_view listQuestion = "?CONF USERS #";
constexpr std::string_view list = "!CONF USERS #";
constexpr std::string_view leave = "!CONF LEAVE #";
constexpr std::string_view close = "!CONF CLOSE #";
} // namespace lead

constexpr std::string_view agree = "AGREE";
constexpr std::string_view deny = "DENY";

// ---- Reading ----

/// What stands before and after the first separator. Without one, head is everything and tail is empty.
struct Cut {
    std::string_view head, tail;
    bool separated;
};

Cut cut(std::string_view bytes)
{
    const auto position = bytes.find(separator);
    if (position == std::string_view::npos)
        return {bytes, {}, false};
    return {bytes.substr(0, position), bytes.substr(position + 1), true};
}

/// One datagram whose command word is known.
struct Line {
    std::string_view bytes;  ///< all of it
    std::string_view fields; ///< what follows the command word and its separator
};

Incomplete incomplete(std::string_view bytes)
{
    return {std::string(bytes)};
}

std::optional<Identity> readIdentity(std::string_view fields)
{
    const Cut ip = cut(fields);
    const Cut host = cut(ip.tail);
    if (!host.separated)
        return std::nullopt;
    return Identity{std::string(ip.head), std::string(host.head), std::string(host.tail)};
}

template <typename Kind> Datagram readWord(const Line &)
{
    return Kind{};
}

template <typename Kind> Datagram readIdentified(const Line &line)
{
    return Kind{readIdentity(line.fields)};
}

template <typename Kind> Datagram readRest(const Line &line)
{
    return Kind{std::string(line.fields)};
}

Datagram readStatus(const Line &line)
{
    const Cut state = cut(line.fields);
    return Status{std::string(state.head), std::string(state.tail)};
}

/// Peers are read leniently: what follows the digits is ignored and no digits are 0. Empty when the number has more
/// than 16 bits: no conference can bear it, and a clipped one would name a conference that was not meant.
std::optional<ConferenceNumber> readNumber(std::string_view field)
{
    ConferenceNumber number = 0;
    const auto result = std::from_chars(field.data(), field.data() + field.size(), number);
    if (result.ec == std::errc::result_out_of_range)
        return std::nullopt;
    return number;
}

template <typename Kind> Datagram readNumbered(ConferenceNumber id, std::string_view)
{
    return Kind{id};
}

Datagram readAnswer(ConferenceNumber id, std::string_view answer)
{
    return ConferenceAnswer{id, answer == agree};
}

Datagram readList(ConferenceNumber id, std::string_view addresses)
{
    ConferenceList list{id, {}};
    while (!addresses.empty()) {
        const Cut address = cut(addresses);
        if (!address.head.empty())
            list.addresses.emplace_back(address.head);
        addresses = address.tail;
    }
    return list;
}

struct ConferenceForm {
    std::string_view lead;
    Datagram (*read)(ConferenceNumber id, std::string_view fields);
};

constexpr std::array conferenceForms{
    ConferenceForm{lead::invitation, readNumbered<ConferenceInvitation>},
    ConferenceForm{lead::answer, readAnswer},
    ConferenceForm{lead::listQuestion, readNumbered<ConferenceListQuestion>},
    ConferenceForm{lead::list, readList},
    ConferenceForm{lead::leave, readNumbered<ConferenceLeave>},
    ConferenceForm{lead::close, readNumbered<ConferenceClose>},
};

Datagram readConference(const Line &line)
{
    for (const ConferenceForm &form : conferenceForms) {
        if (!line.bytes.starts_with(form.lead))
            continue;
        const Cut number = cut(line.bytes.substr(form.lead.size()));
        if (const auto id = readNumber(number.head))
            return form.read(*id, number.tail);
        break;
    }
    return incomplete(line.bytes);
}

struct Command {
    std::string_view word;
    Datagram (*read)(const Line &line);
};

// Compared from top to bottom.
constexpr std::array commands{
    Command{word::onlineQuestion, readIdentified<OnlineQuestion>},
    Command{word::onlineAnswer, readIdentified<OnlineAnswer>},
    Command{word::offline, readIdentified<Offline>},
    Command{word::status, readStatus},
    Command{word::buzz, readWord<Buzz>},
    Command{word::user, readIdentified<SharedContact>},
    Command{word::typing, readWord<Typing>},
    Command{word::avatarHeadQuestion, readWord<AvatarHeadQuestion>},
    Command{word::avatarHead, readRest<AvatarHead>},
    Command{word::avatarBodyQuestion, readWord<AvatarBodyQuestion>},
    Command{word::avatarOff, readWord<AvatarOff>},
    Command{word::avatarBody, readRest<AvatarBody>},
    Command{word::mood, readRest<Mood>},
    Command{word::liveType, readRest<LiveType>},
    Command{word::conferenceQuestion, readConference},
    Command{word::conferenceStatement, readConference},
};

Datagram readConferenceMessage(std::string_view bytes)
{
    const Cut origin = cut(bytes.substr(1));
    if (!origin.tail.starts_with('#'))
        return incomplete(bytes);
    const Cut number = cut(origin.tail.substr(1));
    const auto id = readNumber(number.head);
    if (!id)
        return incomplete(bytes);
    return ConferenceMessage{std::string(origin.head), *id, std::string(number.tail)};
}

Datagram readByFirstCharacter(std::string_view bytes)
{
    if (bytes.starts_with('-'))
        return PrivateMessage{std::string(bytes.substr(1))};
    if (bytes.starts_with('+'))
        return readConferenceMessage(bytes);
    if (bytes.starts_with('!') || bytes.starts_with('?'))
        return Unsupported{std::string(bytes)};
    return Garbage{std::string(bytes)};
}

// ---- Writing ----

std::string joined(std::initializer_list<std::string_view> parts)
{
    std::size_t size = 0;
    for (const std::string_view part : parts)
        size += part.size();
    std::string whole;
    whole.reserve(size);
    for (const std::string_view part : parts)
        whole += part;
    return whole;
}

std::string writeRest(std::string_view word, std::string_view rest)
{
    return joined({word, " ", rest});
}

std::string writeIdentified(std::string_view word, const std::optional<Identity> &identity)
{
    if (!identity)
        return std::string(word);
    return joined({word, " ", identity->ip, " ", identity->host, " ", identity->nick});
}

std::string writeNumbered(std::string_view lead, ConferenceNumber id)
{
    return joined({lead, std::to_string(id)});
}

struct Writer {
    std::string operator()(const OnlineQuestion &d) const { return writeIdentified(word::onlineQuestion, d.from); }
    std::string operator()(const OnlineAnswer &d) const { return writeIdentified(word::onlineAnswer, d.from); }
    std::string operator()(const Offline &d) const { return writeIdentified(word::offline, d.from); }
    std::string operator()(const Status &d) const
    {
        if (d.text.empty())
            return writeRest(word::status, d.state);
        return joined({word::status, " ", d.state, " ", d.text});
    }
    std::string operator()(const Buzz &) const { return std::string(word::buzz); }
    std::string operator()(const SharedContact &d) const { return writeIdentified(word::user, d.contact); }
    std::string operator()(const Typing &) const { return std::string(word::typing); }
    std::string operator()(const AvatarHeadQuestion &) const { return std::string(word::avatarHeadQuestion); }
    std::string operator()(const AvatarHead &d) const { return writeRest(word::avatarHead, d.data); }
    std::string operator()(const AvatarBodyQuestion &) const { return std::string(word::avatarBodyQuestion); }
    std::string operator()(const AvatarOff &) const { return std::string(word::avatarOff); }
    std::string operator()(const AvatarBody &d) const { return writeRest(word::avatarBody, d.data); }
    std::string operator()(const Mood &d) const { return writeRest(word::mood, d.value); }
    std::string operator()(const LiveType &d) const { return writeRest(word::liveType, d.text); }
    std::string operator()(const ConferenceInvitation &d) const { return writeNumbered(lead::invitation, d.id); }
    std::string operator()(const ConferenceListQuestion &d) const { return writeNumbered(lead::listQuestion, d.id); }
    std::string operator()(const ConferenceAnswer &d) const
    {
        return joined({lead::answer, std::to_string(d.id), " ", d.agreed ? agree : deny});
    }
    std::string operator()(const ConferenceList &d) const
    {
        std::string whole = writeNumbered(lead::list, d.id);
        for (const std::string &address : d.addresses)
            whole.append(1, separator).append(address);
        return whole;
    }
    std::string operator()(const ConferenceLeave &d) const { return writeNumbered(lead::leave, d.id); }
    std::string operator()(const ConferenceClose &d) const { return writeNumbered(lead::close, d.id); }
    std::string operator()(const PrivateMessage &d) const { return joined({"-", d.text}); }
    std::string operator()(const ConferenceMessage &d) const
    {
        return joined({"+", d.origin, " #", std::to_string(d.id), " ", d.text});
    }
    std::string operator()(const Incomplete &d) const { return d.bytes; }
    std::string operator()(const Unsupported &d) const { return d.bytes; }
    std::string operator()(const Garbage &d) const { return d.bytes; }
};

} // namespace

Datagram parse(std::string_view bytes)
{
    const Cut first = cut(bytes);
    for (const Command &command : commands) {
        if (command.word == first.head)
            return command.read({bytes, first.tail});
    }
    return readByFirstCharacter(bytes);
}

std::string serialise(const Datagram &datagram)
{
    return std::visit(Writer{}, datagram);
}

} // namespace nimb::wire
