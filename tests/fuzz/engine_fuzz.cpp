// Plays datagrams of many senders, and what the user does between them, into a whole engine that was started as a user
// starts it, with windows open; kills and ends it in between and starts it again over what it has left behind.
//
// The input is a sequence of steps: one byte with the time that passes (eights of milliseconds; from 250 on, a second
// and more) and one with who acts. For a datagram there follow one byte with its sender, one with its kind, one with
// the address that it names, one with the length of its text, and that many bytes. For the user there follow one byte
// with the action and one with whom it concerns.
#include "input.h"
#include "require.h"
#include "whole_engine.h"

#include "simulated_network.h"

#include "base/limits.h"
#include "base/shown_name.h"
#include "contacts/contact_transfer.h"

#include <memory>
#include <set>

namespace
{

using namespace nimb;
using namespace nimb::test;

const Ipv4Address ownAddress(10, 0, 0, 1);
constexpr int contacts = 5; ///< 10.0.0.2 to 10.0.0.6

/// Whoever may send or be named.
QString addressOf(std::uint8_t choice)
{
    static const std::array<const char *, 16> addresses{"10.0.0.2",  "10.0.0.3",   "10.0.0.4",        "10.0.0.5",
                                                        "10.0.0.6",  "10.0.0.1",   "10.0.0.255",      "127.0.0.1",
                                                        "127.0.0.2", "10.0.0.200", "255.255.255.255", "224.0.0.1",
                                                        "240.0.0.1", "0.0.0.0",    "10.0.0.7",        "192.168.7.7"};
    if (choice < 128)
        return QLatin1String(addresses[choice % addresses.size()]);
    return QStringLiteral("10.0.1.%1").arg(choice); // a crowd of strangers
}

std::optional<Ipv4Address> parsed(const QString &ip)
{
    return readAddress(ip);
}

struct Copy : WholeEngine<SimulatedWinsock> {
    Copy()
        : WholeEngine(std::make_shared<VirtualTime>(),
                      [](DropCounts &) { return SimulatedWinsock(ownAddress, QStringLiteral("HERE"), nullptr); })
    {
        common.ownIP = ownAddress;
        common.ownHostName = QStringLiteral("HERE");
        common.ownNickname = QStringLiteral("Me");
        ownAddresses.own.insert(Ipv4Address(10, 0, 0, 200)); // its second one
        ownAddresses.broadcast.insert(Ipv4Address(10, 0, 0, 255));
    }
    void start()
    {
        engine.invitations().Form_Load(invitationsView);
        engine.mainWindow().Form_Load();
    }
    bool mayBeAPeer(const std::optional<Ipv4Address> &ip) const
    {
        return ip && ip->isUnicast() && *ip != common.ownIP && !ownAddresses.isOwn(*ip)
            && !ownAddresses.isBroadcast(*ip) && *ip != Ipv4Address(127, 0, 0, 1);
    }
};

/// Addresses and names.
using People = std::map<QString, std::pair<QString, QString>>;

People peopleOf(Copy &copy)
{
    People people;
    for (int row = 0; row < copy.engine.contacts().rowCount(); ++row) {
        const Contact &contact = copy.engine.contacts().at(row);
        people[contact.ip.text()] = {contact.nickname, contact.workstation};
    }
    return people;
}

/// What a datagram may have changed.
struct Surface {
    int contacts = 0;
    int waiting = 0; ///< at the row of the sender
    std::vector<std::size_t> privatePieces;
    std::vector<std::size_t> conferencePieces; ///< by slot
    std::uint64_t tooMany = 0;
};

class Game
{
public:
    explicit Game(FuzzInput input) : m_input(input)
    {
        m_copy = std::make_unique<Copy>();
        for (int n = 0; n < contacts; ++n)
            m_copy->settings.putContact(n + 1, addressOf(static_cast<std::uint8_t>(n)),
                                        QStringLiteral("Peer %1").arg(n), QStringLiteral("PC"));
        m_copy->start();
        for (std::uint8_t peer = 0; peer < contacts - 1; ++peer)
            m_copy->socket.arrive(addressOf(peer),
                                  "!ONLINE " + addressOf(peer).toStdString() + " PC Peer " + std::to_string(peer));
        m_copy->engine.privateWindows().openPrivate(addressOf(0));
        m_wanted.insert(addressOf(0));
        ConferenceTable &table = m_copy->engine.conferences();
        table.mnuCreateNewConf();
        table.mnuInvite2Conf(1, addressOf(0));
        m_copy->socket.arrive(addressOf(0), "!CONF INVITE #1 AGREE");
        table.CreateNewConfWin(false, 2, *parsed(addressOf(1)));
        m_copy->time->advance(limits::announcementTime);
    }

    void play()
    {
        for (int step = 0; step < mostSteps && !m_input.atEnd(); ++step) {
            const std::uint8_t span = m_input.next();
            m_copy->time->advance(std::chrono::milliseconds(span < 250 ? span * 8 : (span - 249) * 1000));
            const std::uint8_t actor = m_input.next();
            m_copy->socket.sent.clear();
            if (actor % 4 == 3)
                actAsUser();
            else
                arrive();
            checkWhole();
        }
        endAndStartAgain();
    }

private:
    static constexpr int mostSteps = 150;

    std::string nextDatagram()
    {
        const std::uint8_t kind = m_input.next();
        const std::string address = addressOf(m_input.next()).toStdString(), text = m_input.nextBytes(m_input.next());
        const std::string identity = ' ' + address + " PC " + text;
        const std::string number = " #" + std::to_string(kind / 32 - 1), rest = ' ' + text;
        switch (kind % 32) {
        case 0:
            return "?ONLINE" + identity;
        case 1:
            return "!ONLINE" + identity;
        case 2:
            return "!OFFLINE" + identity;
        case 3:
            return "?ONLINE" + rest;
        case 4:
            return "!STATUS" + rest;
        case 5:
            return "!STATUS AWAY" + rest;
        case 6:
            return "!BUZZ";
        case 7:
            return "!USER" + identity;
        case 8:
            return "!TYPING";
        case 9:
            return "?AVATARHEAD";
        case 10:
            return "!AVATARHEAD" + rest;
        case 11:
            return "!AVATARHEAD WEBCAM" + text;
        case 12:
            return "?AVATARBODY";
        case 13:
            return "!AVATARBODY " + text + std::string(7500 - std::min<std::size_t>(text.size(), 7500), 'x');
        case 14:
            return "!AVATARBODY" + rest;
        case 15:
            return "!AVATAROFF";
        case 16:
            return "!MOOD" + rest;
        case 17:
            return "!LIVETYPE" + rest;
        case 18:
            return "?CONF INVITE" + number;
        case 19:
            return "?CONF USERS" + number;
        case 20:
            return "!CONF INVITE" + number + " AGREE";
        case 21:
            return "!CONF INVITE" + number + rest;
        case 22:
            return "!CONF USERS" + number + ' ' + address + rest;
        case 23:
            return "!CONF LEAVE" + number;
        case 24:
            return "!CONF CLOSE" + number;
        case 25:
            return '+' + address + number + rest;
        case 26:
            return '+' + text;
        case 27:
        case 28:
        case 29:
            return '-' + text;
        case 30:
            return "!CONF" + rest;
        default:
            return text;
        }
    }

    // --- the user

    void actAsUser()
    {
        const std::uint8_t action = m_input.next(), whom = m_input.next();
        const QString ip = addressOf(whom);
        const int slot = 1 + whom % ConferenceTable::lastSlot;
        Messenger &engine = m_copy->engine;
        PrivateChat *const chat = windowOf(ip);
        switch (action % 30) {
        case 0:
        case 1:
            m_wanted.insert(ip);
            return engine.privateWindows().openPrivate(ip);
        case 2:
            return engine.contactCommands().openWaiting(ip);
        case 3:
            if (chat)
                static_cast<void>(chat->send(QStringLiteral("hello :) http://example.org")));
            return;
        case 4:
            if (chat)
                chat->intext_Change(QString(whom, u'x'));
            return;
        case 5:
            if (chat)
                chat->BuzzBtn_Click();
            return;
        case 6:
            if (chat)
                chat->mymoodpct_MouseDown(float(whom));
            return;
        case 7:
            return close(chat);
        case 8:
            return engine.contactCommands().mnuRemoveUser(ip);
        case 9:
            return engine.contactCommands().mnuBuzzUser(ip);
        case 10:
            return engine.ownState().choose(1 + whom % 8);
        case 11:
            static_cast<void>(engine.ownState().addPersonalized(BaseState::away, QStringLiteral("At %1").arg(whom)));
            return;
        case 12:
            return engine.ownState().setAutoReply(whom % 2 == 0);
        case 13:
            return engine.announcement().run();
        case 14:
            return engine.conferences().mnuCreateNewConf();
        case 15:
        case 16:
            return engine.conferences().mnuInvite2Conf(1 + action / 30 % ConferenceTable::lastSlot, ip);
        case 17:
            return engine.invitations().ConfAgreebtn_Click(whom % 4);
        case 18:
            return engine.invitations().ConfDenybtn_Click(whom % 4);
        case 19:
            return engine.invitations().ConfDenyAllbtn_Click();
        case 20:
            return engine.invitations().clearbtn_Click();
        case 21:
            return engine.invitations().setAutorefuse(whom % 2 == 0);
        case 22:
            if (Conference *const conference = engine.conferences().at(slot))
                static_cast<void>(conference->send(QStringLiteral("hello all")));
            return;
        case 23:
            if (Conference *const conference = engine.conferences().at(slot))
                conference->kickuserbtn_Click(addressOf(action));
            return;
        case 24:
            if (Conference *const conference = engine.conferences().at(slot);
                conference && conference->Form_QueryUnload(UnloadMode::closeBox) == CloseDecision::unload)
                conference->closed();
            return;
        case 25:
            return sendContacts(ip);
        case 26:
            m_copy->common.options.closedWindowsGo = whom % 2 == 0;
            return engine.recovery().settingsChanged();
        case 27:
            m_copy->common.avatarHead = QStringLiteral("2026");
            m_copy->common.avatarBody = QByteArray(avatarBytes, 'm');
            return engine.recovery().settingsChanged();
        case 28:
            return killAndStartAgain();
        default:
            return endAndStartAgain();
        }
    }

    PrivateChat *windowOf(const QString &ip)
    {
        const Contact *const contact = m_copy->engine.contacts().find(ip);
        return contact ? m_copy->engine.privateWindows().at(contact->privateWindow) : nullptr;
    }

    void close(PrivateChat *chat)
    {
        if (!chat)
            return;
        switch (chat->Form_QueryUnload(UnloadMode::closeBox)) {
        case CloseDecision::unload:
            return chat->closed();
        case CloseDecision::hide:
            return chat->view().hideWindow();
        default:
            return;
        }
    }

    void sendContacts(const QString &ip)
    {
        if (!m_copy->engine.contacts().find(ip))
            return;
        ContactTransfer transfer(m_copy->socket, m_copy->engine.contacts(), m_copy->engine.log(), ip);
        transfer.Form_Load();
        transfer.btnsendone_Click({0, 2, 7});
        transfer.btnsendall_Click();
        transfer.btnRemoveOne_Click({1, 1, 100});
        transfer.sendbtn_Click();
        const int others = m_copy->engine.contacts().rowCount() - 1;
        require(static_cast<int>(m_copy->socket.sent.size()) <= others, "each of the others is sent once");
        for (const To &sent : m_copy->socket.sent)
            require(QString::fromStdString(sent.ip) == ip, "contacts go to the one who was chosen");
    }

    // --- starting again

    void startOver()
    {
        auto next = std::make_unique<Copy>();
        next->settings.saved = m_copy->settings.saved;
        next->settings.kept = m_copy->settings.kept;
        m_copy = std::move(next);
        m_wanted.clear();
        m_copy->start();
    }

    void killAndStartAgain()
    {
        m_copy->time->advance(2 * limits::keepDelay);
        const People people = peopleOf(*m_copy);
        startOver();
        require(peopleOf(*m_copy) == people, "who was known two seconds before a run was killed still is");
    }

    void endAndStartAgain()
    {
        const People people = peopleOf(*m_copy);
        m_copy->engine.mainWindow().Form_Unload();
        require(m_copy->settings.kept.empty(), "an orderly end leaves nothing to be taken over");
        startOver();
        require(peopleOf(*m_copy) == people, "whoever was saved is read back");
    }

    // --- the network

    void arrive()
    {
        const QString from = addressOf(m_input.next());
        arrive(from, nextDatagram());
    }

    Surface surface(const QString &from)
    {
        Surface now;
        const Contact *const sender = m_copy->engine.contacts().find(from);
        now.contacts = m_copy->engine.contacts().rowCount();
        now.waiting = sender ? sender->waitingMessages : 0;
        now.tooMany = m_copy->drops.of(Drop::tooManyWaiting);
        for (const auto &window : m_copy->privateForms.views)
            now.privatePieces.push_back(window->log.pieces.size());
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const conference = m_copy->engine.conferences().at(slot);
            now.conferencePieces.push_back(
                conference ? static_cast<RecorderConferenceView &>(conference->view()).log.pieces.size() : 0);
        }
        return now;
    }

    void arrive(const QString &from, const std::string &bytes)
    {
        const wire::Datagram datagram = wire::parse(bytes);
        const bool known = m_copy->engine.contacts().find(from) != nullptr;
        const Surface before = surface(from);
        m_copy->socket.arrive(from, bytes);
        const Surface after = surface(from);

        const auto *list = std::get_if<wire::ConferenceList>(&datagram);
        const int named = list ? static_cast<int>(list->addresses.size()) : 1;
        require(after.contacts >= before.contacts && after.contacts <= before.contacts + named,
                "a datagram makes no more contacts than it names");
        checkSent(from, known, named);
        if (std::holds_alternative<wire::PrivateMessage>(datagram) && known)
            return checkMessage(from, before, after);
        require(before.privatePieces.size() == after.privatePieces.size(), "a message alone opens a window");
        checkOthersLogs(from, before, after);
        if (!known)
            require(before.conferencePieces == after.conferencePieces, "a stranger is heard in no conference");
    }

    /// A message is shown at once, or waits, or is counted: nothing else becomes of it.
    void checkMessage(const QString &from, const Surface &before, const Surface &after)
    {
        require(before.conferencePieces == after.conferencePieces, "a private message stands in no conference");
        checkOthersLogs(from, before, after);
        bool shown = after.privatePieces.size() > before.privatePieces.size();
        for (std::size_t i = 0; i < before.privatePieces.size(); ++i)
            shown = shown || after.privatePieces[i] > before.privatePieces[i];
        const bool waits = after.waiting == before.waiting + 1, counted = after.tooMany == before.tooMany + 1;
        require(int(shown) + int(waits) + int(counted) == 1, "a message is shown, waits or is counted");
        const PrivateChat *const chat = windowOf(from);
        require(!shown || chat, "a message is shown in the window of its sender");
    }

    void checkOthersLogs(const QString &from, const Surface &before, const Surface &after)
    {
        for (std::size_t i = 0; i < after.privatePieces.size(); ++i) {
            const std::size_t former = i < before.privatePieces.size() ? before.privatePieces[i] : 0;
            require(after.privatePieces[i] == former || m_copy->privateForms.views[i]->peer == from,
                    "nobody writes into the window of somebody else");
        }
    }

    void checkSent(const QString &from, bool known, int named)
    {
        std::set<std::string> guests;
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            if (Conference *const hosted = m_copy->engine.conferences().hosted(slot)) {
                for (const Participant &row : hosted->partecipanti().rows())
                    guests.insert(row.ip.text().toStdString());
            }
        }
        const std::vector<To> &sent = m_copy->socket.sent;
        require(known || sent.empty(), "no stranger is answered");
        require(sent.size() <= 3 * static_cast<std::size_t>(named) + 1 + guests.size(),
                "a datagram provokes no more than it names and those who are to be told");
        for (const To &one : sent) {
            require(m_copy->mayBeAPeer(Ipv4Address::parse(one.ip)), "only peers are written to");
            if (!m_copy->common.isInvisible())
                continue;
            const bool conference = one.bytes.starts_with('+') || one.bytes.starts_with("!CONF USERS #");
            // Whoever was in, and is told that it is no more.
            const bool close = one.bytes.starts_with("!CONF CLOSE #") && one.ip == from.toStdString();
            const bool wanted = one.bytes == "?AVATARBODY" && m_wanted.erase(from) == 1;
            require((conference && guests.contains(one.ip)) || close || wanted, "who is invisible answers nobody");
        }
    }

    // --- everything

    void checkWhole()
    {
        Messenger &engine = m_copy->engine;
        require(engine.contacts().rowCount() <= limits::contactsFromStrangers, "contacts are limited");
        require(engine.invitations().list().rowCount() <= limits::invitations, "invitations are limited");
        for (int row = 0; row < engine.contacts().rowCount(); ++row) {
            const Contact &contact = engine.contacts().at(row);
            require(m_copy->mayBeAPeer(contact.ip.ipv4()), "no contact has a forbidden address");
            require(contact.waitingMessages <= limits::waitingMessages, "waiting messages are limited");
            require(contact.waitingMessages == 0 || !windowOf(contact.ip.text()), "nothing waits beside its window");
            checkNames(contact);
            require(contact.state.size() <= 2 * limits::nameLength + 3, "a state has its limit");
        }
        int unasked = 0;
        for (std::size_t n = 1; n <= m_copy->privateForms.views.size(); ++n) {
            const PrivateChat *const chat = engine.privateWindows().at(static_cast<int>(n));
            unasked += chat && !chat->isAttended();
        }
        require(unasked <= limits::windowsOpenedUnasked, "windows that peers open are limited");
        if (isAnyoneWaiting() && !areManyWindows())
            m_copy->time->advance(limits::windowsOpenedUnasked * limits::windowPause);
        require(!isAnyoneWaiting() || areManyWindows(), "messages wait for their turn or while there are many windows");
        checkConferences();
    }

    bool areManyWindows() const
    {
        return m_copy->privateForms.views.size() >= std::size_t{limits::windowsOpenedUnasked};
    }
    bool isAnyoneWaiting() const
    {
        const ContactList &list = m_copy->engine.contacts();
        for (int row = 0; row < list.rowCount(); ++row) {
            if (list.at(row).waitingMessages > 0)
                return true;
        }
        return false;
    }

    static void checkNames(const Contact &contact)
    {
        for (const QString &name : {contact.nickname, contact.workstation}) {
            require(name.size() <= limits::nameLength && !isBlank(name), "a name can be seen and has its limit");
            require(!name.contains(u'\n') && !name.contains(u'\r'), "a name is one line");
        }
    }

    void checkConferences()
    {
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const conference = m_copy->engine.conferences().at(slot);
            if (!conference)
                continue;
            const auto &rows = conference->partecipanti().rows();
            require(rows.size() <= limits::participants + 1, "participants are limited");
            for (const Participant &row : rows)
                require(row.own || m_copy->mayBeAPeer(row.ip.ipv4()), "no participant has a forbidden address");
        }
    }

    FuzzInput m_input;
    std::unique_ptr<Copy> m_copy;
    std::set<QString> m_wanted; ///< whose avatar the user has asked for
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Game(FuzzInput(data, size)).play();
    return 0;
}
