// Plays datagrams of several peers, and what the user does between them, into a whole engine that hosts conferences and
// has joined others, and checks who was allowed to change what.
//
// The input is a sequence of steps: one byte with the time that passes and one with who acts, then for a datagram one
// byte with the kind (below `freeForm` a conference datagram whose rest is one byte of number, one of length and that
// many bytes; otherwise the bytes themselves), for the user one byte with the action.
#include "input.h"
#include "require.h"
#include "silent_log.h"
#include "simulated_network.h"
#include "whole_engine.h"

#include "base/limits.h"

#include <QCoreApplication>

#include <set>

namespace
{

using namespace nimb;
using namespace nimb::test;

const QString ownAddress = QStringLiteral("10.0.0.1");
constexpr int peers = 6; ///< 10.0.0.2 to 10.0.0.7; the last one is no contact
constexpr std::uint8_t freeForm = 200;

QString addressOf(int peer)
{
    return QStringLiteral("10.0.0.%1").arg(peer + 2);
}

/// A log without end must not make the run slow: nothing of it is kept.
struct Engine : WholeEngine<SimulatedWinsock, SilentViews> {
    Engine()
        : WholeEngine(std::make_shared<VirtualTime>(),
                      [](DropCounts &) { return SimulatedWinsock(ownAddress, QStringLiteral("HERE"), nullptr); })
    {
        common.ownIP = readAddress(ownAddress).value();
        common.ownNickname = QStringLiteral("Me");
        for (int peer = 0; peer + 1 < peers; ++peer)
            addPresent(addressOf(peer), QStringLiteral("Peer %1").arg(peer));
        socket.bind();
    }
};

/// What a conference looks like between two steps.
struct Snapshot {
    const Conference *window = nullptr;
    bool terminated = false;
    std::map<QString, bool> rows; ///< address, present
    std::size_t pieces = 0;
};
using Snapshots = std::array<Snapshot, ConferenceTable::lastSlot + 1>;

std::set<QString> presentPeers(const Snapshot &snapshot)
{
    std::set<QString> present;
    for (const auto &[ip, isPresent] : snapshot.rows) {
        if (isPresent && ip != ownAddress)
            present.insert(ip);
    }
    return present;
}

class Game
{
public:
    explicit Game(FuzzInput input) : m_input(input)
    {
        ConferenceTable &table = m_engine.engine.conferences();
        table.CreateNewConfWin(true, 0, {});
        table.CreateNewConfWin(true, 0, {});
        table.mnuInvite2Conf(1, addressOf(0));
        table.mnuInvite2Conf(1, addressOf(1));
        table.mnuInvite2Conf(2, addressOf(2));
        table.CreateNewConfWin(false, 1, readAddress(addressOf(0)).value());
        table.CreateNewConfWin(false, 7, readAddress(addressOf(3)).value());
    }

    void play()
    {
        for (int step = 0; step < mostSteps && !m_input.atEnd(); ++step) {
            m_engine.time->advance(std::chrono::milliseconds(m_input.next() * 20));
            const int actor = m_input.next() % (peers + 1);
            m_engine.socket.sent.clear();
            if (actor == peers)
                actAsUser();
            else
                arrive(addressOf(actor), nextDatagram());
            checkCaps();
        }
        m_engine.engine.conferences().unloadAll();
    }

private:
    static constexpr int mostSteps = 200;

    std::string nextDatagram()
    {
        static const std::array<std::string, 7> leads{"?CONF INVITE #",
                                                      "!CONF INVITE #",
                                                      "?CONF USERS #",
                                                      "!CONF USERS #",
                                                      "!CONF LEAVE #",
                                                      "!CONF CLOSE #",
                                                      "+"};
        const std::uint8_t kind = m_input.next();
        if (kind >= freeForm)
            return m_input.nextBytes(m_input.next());
        const std::string &lead = leads[kind % leads.size()];
        const std::string number = std::to_string(m_input.next() % 10 - 1);
        const std::uint8_t rest = m_input.next();
        const std::string tail = ' ' + m_input.nextBytes(rest);
        if (lead == "+")
            return '+' + addressOf(kind % 8 - 1).toStdString() + " #" + number + tail;
        if (kind % 2 == 0 && lead == "!CONF INVITE #")
            return lead + number + " AGREE";
        return lead + number + tail;
    }

    void actAsUser()
    {
        Messenger &messenger = m_engine.engine;
        const std::uint8_t action = m_input.next();
        const int slot = action / 16 % 6, peer = action % peers;
        Conference *const conference = messenger.conferences().at(slot);
        switch (action % 11) {
        case 0:
            return messenger.conferences().mnuCreateNewConf();
        case 1:
            return messenger.conferences().mnuInvite2Conf(slot, addressOf(peer));
        case 2:
            return messenger.invitations().ConfAgreebtn_Click(slot);
        case 3:
            return messenger.invitations().ConfDenybtn_Click(slot);
        case 4:
            return messenger.invitations().ConfDenyAllbtn_Click();
        case 5:
            return messenger.invitations().clearbtn_Click();
        case 6:
            if (conference && conference->Form_QueryUnload(UnloadMode::closeBox) == CloseDecision::unload)
                conference->closed();
            return;
        case 7:
            if (conference)
                conference->kickuserbtn_Click(addressOf(peer));
            return;
        case 8:
            if (conference)
                static_cast<void>(conference->send(QStringLiteral(" hello :) ")));
            return;
        case 9:
            if (conference)
                conference->refreshlistbtn_Click();
            return;
        default:
            messenger.contacts().remove(addressOf(peer)); // a known address may become a stranger's
        }
    }

    Snapshots snapshots()
    {
        Snapshots all;
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const conference = m_engine.engine.conferences().at(slot);
            if (!conference)
                continue;
            Snapshot &one = all[static_cast<std::size_t>(slot)];
            one.window = conference;
            one.terminated = conference->isOver();
            one.pieces = static_cast<Silent<RecorderConferenceView> &>(conference->view()).silent.pieces;
            for (const Participant &row : conference->partecipanti().rows())
                one.rows[row.ip.text()] = row.present;
        }
        return all;
    }

    void arrive(const QString &from, const std::string &bytes)
    {
        const Snapshots before = snapshots();
        const int invitations = m_engine.engine.invitations().list().rowCount();
        const bool known = m_engine.engine.contacts().find(from);
        const std::uint64_t dropped = m_engine.drops.of(Drop::noConference);
        m_engine.socket.arrive(from, bytes);
        const Snapshots after = snapshots();
        const wire::Datagram datagram = wire::parse(bytes);
        for (std::size_t slot = 1; slot < before.size(); ++slot)
            compare(from, known, datagram, before[slot], after[slot]);
        const auto *message = std::get_if<wire::ConferenceMessage>(&datagram);
        if (message)
            checkMessage(from, known, *message, before, after, dropped);
        else
            require(relayed().empty(), "only messages are relayed");
        const bool invites = std::holds_alternative<wire::ConferenceInvitation>(datagram);
        require(m_engine.engine.invitations().list().rowCount() <= invitations + (known && invites ? 1 : 0),
                "only an invitation adds an invitation");
    }

    void compare(const QString &from, bool known, const wire::Datagram &datagram, const Snapshot &before,
                 const Snapshot &after)
    {
        require(before.window == after.window, "no datagram opens or closes a window");
        if (!before.window)
            return;
        const Conference::Identity &identity = before.window->identity();
        const bool hosted = before.window->isHostedHere();
        const bool fromHost = known && !hosted && from == addressText(identity.ConfServerIP) && !before.terminated;
        if (before.terminated != after.terminated) {
            const auto *close = std::get_if<wire::ConferenceClose>(&datagram);
            require(fromHost && close && close->id == identity.ConfNum, "only the host closes a conference");
        }
        if (before.rows == after.rows)
            return;
        if (!hosted) {
            const auto *list = std::get_if<wire::ConferenceList>(&datagram);
            require(fromHost && list && list->id == identity.ConfNum, "only the host says who takes part");
            return require(after.rows.contains(ownAddress) && after.rows.at(ownAddress), "the own row stays");
        }
        require(known && before.rows.contains(from), "only a contact who is in the list changes it");
        std::map<QString, bool> othersBefore = before.rows, othersAfter = after.rows;
        othersBefore.erase(from);
        othersAfter.erase(from);
        require(othersBefore == othersAfter, "nobody changes another one's row");
        const auto *answer = std::get_if<wire::ConferenceAnswer>(&datagram);
        const auto *leave = std::get_if<wire::ConferenceLeave>(&datagram);
        require((answer && answer->id == identity.ConfNum) || (leave && leave->id == identity.ConfNum),
                "only answers and farewells change the host's list");
        if (answer && !answer->agreed)
            require(!after.rows.contains(from), "who refuses is in the list no more");
        if (leave)
            require(before.rows.at(from), "who is not present cannot leave");
    }

    std::vector<To> relayed() const
    {
        std::vector<To> messages;
        for (const To &sent : m_engine.socket.sent) {
            if (sent.bytes.starts_with('+'))
                messages.push_back(sent);
        }
        return messages;
    }

    void checkMessage(const QString &from, bool known, const wire::ConferenceMessage &message, const Snapshots &before,
                      const Snapshots &after, std::uint64_t dropped)
    {
        int shown = 0;
        bool relays = false;
        for (std::size_t slot = 1; slot < before.size(); ++slot) {
            if (before[slot].pieces == after[slot].pieces)
                continue;
            ++shown;
            const Conference::Identity &identity = before[slot].window->identity();
            require(known && identity.ConfNum == message.id && !before[slot].terminated,
                    "a message is shown in the conference that it names, and to nobody for whom it is over");
            if (!before[slot].window->isHostedHere()) {
                require(addressText(identity.ConfServerIP) == from, "a guest hears its host alone");
                continue;
            }
            relays = true;
            require(presentPeers(before[slot]).contains(from), "a host hears those who are present");
            checkReceivers(from, identity.ConfNum, before[slot]);
        }
        require(shown <= 1, "a message is shown in one window");
        require(relays || relayed().empty(), "a message that is not shown here is not relayed");
        if (known && shown == 0)
            require(m_engine.drops.of(Drop::noConference) == dropped + 1, "what is not shown is counted");
    }

    void checkReceivers(const QString &from, int number, const Snapshot &window)
    {
        std::set<QString> wanted = presentPeers(window);
        wanted.erase(from);
        const std::vector<To> messages = relayed();
        require(messages.size() == wanted.size(), "each of the others gets a message once");
        const std::string lead = '+' + from.toStdString() + " #" + std::to_string(number) + ' ';
        for (const To &message : messages) {
            require(wanted.contains(QString::fromStdString(message.ip)), "only those who are present get a message");
            require(message.bytes.starts_with(lead), "a message is relayed under the address it came from");
        }
    }

    void checkCaps()
    {
        ConferenceTable &table = m_engine.engine.conferences();
        require(!table.at(0) && !table.at(6), "slots 1 to 5 are handed out");
        require(m_engine.engine.invitations().list().rowCount() <= limits::invitations, "invitations are limited");
        require(m_engine.engine.contacts().rowCount() <= limits::contactsFromStrangers, "contacts are limited");
        std::set<std::pair<Ipv4Address, int>> open;
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const conference = table.at(slot);
            if (!conference)
                continue;
            const Conference::Identity &identity = conference->identity();
            require(identity.fConfN == slot && identity.ConfNum >= 1, "a window knows its slot and its number");
            require(!conference->isHostedHere() || identity.ConfNum == slot,
                    "a hosted conference has its slot's number");
            require(conference->isOver() || open.emplace(identity.ConfServerIP, identity.ConfNum).second,
                    "no conference has two open windows");
            checkRows(*conference);
        }
    }

    static void checkRows(Conference &conference)
    {
        std::set<QString> addresses;
        int own = 0;
        for (const Participant &row : conference.partecipanti().rows()) {
            require(addresses.insert(row.ip.text()).second, "nobody is in a list twice");
            require(row.own == (row.ip == ownAddress), "the own row is the own address's");
            require(conference.isHostedHere() || row.present, "a guest lists who is there");
            own += row.own;
        }
        require(own == 1, "there is one own row");
        require(addresses.size() <= limits::participants + 1, "participants are limited");
    }

    FuzzInput m_input;
    Engine m_engine;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Game(FuzzInput(data, size)).play();
    return 0;
}
