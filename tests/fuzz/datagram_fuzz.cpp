// Feeds any bytes to the grammar of the datagrams and stops the program when a promise of it is broken.
#include "protocol/datagram.h"
#include "require.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace
{

using namespace nimb::wire;

/// A number without digits becomes "0" and an answer other than "AGREE" becomes " DENY"; nothing grows by more.
constexpr std::size_t mostAddedBytes = 6;

bool isWord(std::string_view field)
{
    return field.find(' ') == std::string_view::npos;
}

/// What must hold of one parsed datagram, kind by kind.
class Promises
{
public:
    Promises(std::string_view received, std::string_view written) : m_received(received), m_written(written) { }

    void operator()(const OnlineQuestion &d) const { identified("?ONLINE", d.from); }
    void operator()(const OnlineAnswer &d) const { identified("!ONLINE", d.from); }
    void operator()(const Offline &d) const { identified("!OFFLINE", d.from); }
    void operator()(const SharedContact &d) const { identified("!USER", d.contact); }

    void operator()(const Status &d) const
    {
        begins("!STATUS");
        require(isWord(d.state), "a state is one word");
        if (!d.text.empty())
            unchanged();
    }

    void operator()(const Buzz &) const { begins("!BUZZ"); }
    void operator()(const Typing &) const { begins("!TYPING"); }
    void operator()(const AvatarHeadQuestion &) const { begins("?AVATARHEAD"); }
    void operator()(const AvatarBodyQuestion &) const { begins("?AVATARBODY"); }
    void operator()(const AvatarOff &) const { begins("!AVATAROFF"); }

    void operator()(const AvatarHead &d) const { carries("!AVATARHEAD", d.data); }
    void operator()(const AvatarBody &d) const { carries("!AVATARBODY", d.data); }
    void operator()(const Mood &d) const { carries("!MOOD", d.value); }
    void operator()(const LiveType &d) const { carries("!LIVETYPE", d.text); }

    void operator()(const ConferenceInvitation &) const { begins("?CONF"); }
    void operator()(const ConferenceListQuestion &) const { begins("?CONF"); }
    void operator()(const ConferenceAnswer &d) const
    {
        begins("!CONF");
        require(!d.agreed || m_received.ends_with(" AGREE"), "only AGREE agrees");
    }
    void operator()(const ConferenceList &d) const
    {
        begins("!CONF");
        for (const std::string &address : d.addresses)
            require(!address.empty() && isWord(address), "an address is one word");
    }
    void operator()(const ConferenceLeave &) const { begins("!CONF"); }
    void operator()(const ConferenceClose &) const { begins("!CONF"); }

    void operator()(const PrivateMessage &d) const
    {
        require(m_received.substr(0, 1) == "-" && m_received.substr(1) == d.text, "a private message is kept whole");
        unchanged();
    }
    void operator()(const ConferenceMessage &d) const
    {
        require(m_received.starts_with("+" + d.origin + " #"), "the writer stands between + and the first space");
        require(isWord(d.origin), "a writer is one word");
        require(m_received.ends_with(d.text), "the text is the last field");
    }

    void operator()(const Incomplete &d) const
    {
        require(isCommand("?CONF") || isCommand("!CONF") || m_received.starts_with('+'),
                "only conferences lack anything");
        quoted(d.bytes);
    }
    void operator()(const Unsupported &d) const
    {
        require(m_received.starts_with('!') || m_received.starts_with('?'), "a command begins with ! or ?");
        quoted(d.bytes);
    }
    void operator()(const Garbage &d) const
    {
        require(m_received.find_first_of("!?-+") != 0, "garbage begins with no mark");
        quoted(d.bytes);
    }

private:
    bool isCommand(std::string_view word) const { return m_received.substr(0, m_received.find(' ')) == word; }

    void begins(std::string_view word) const { require(isCommand(word), "the kind follows from the command word"); }

    void identified(std::string_view word, const std::optional<Identity> &identity) const
    {
        begins(word);
        std::size_t separators = 0;
        for (const char byte : m_received)
            separators += byte == ' ' ? 1 : 0;
        require(identity.has_value() == (separators >= 3), "three separators make an identity, fewer make none");
        if (!identity)
            return;
        require(isWord(identity->ip) && isWord(identity->host), "address and host are one word each");
        unchanged();
    }

    void carries(std::string_view word, std::string_view data) const
    {
        begins(word);
        if (m_received == word)
            require(data.empty(), "a bare command word carries nothing");
        else
            unchanged();
    }

    void quoted(std::string_view bytes) const
    {
        require(bytes == m_received, "what is not understood is quoted whole");
        unchanged();
    }

    void unchanged() const { require(m_written == m_received, "what is kept whole is written as it came"); }

    std::string_view m_received, m_written;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view received(reinterpret_cast<const char *>(data), size);
    const Datagram meant = parse(received);
    const std::string written = serialise(meant);
    const Datagram meantAgain = parse(written);
    require(meantAgain == meant, "what is written means what was read");
    require(serialise(meantAgain) == written, "there is one written form");
    require(written.size() <= received.size() + mostAddedBytes, "nothing is made up");
    std::visit(Promises(received, written), meant);
    return 0;
}
