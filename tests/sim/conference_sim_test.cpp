// Whole copies that host, join and leave conferences at random, on networks that lose, double and mix up what is sent.
// Every arrival of a conference datagram is checked against the rules, and at the end all copies against each other.
//
//   NIMB_SIM_SEED=17 conference_sim_test     one run alone, which tells what it does
//   NIMB_SIM_SEEDS=100000 conference_sim_test    that many runs instead of 200
//   NIMB_SIM_SEED=17 conference_sim_test --gtest_filter='Hostile*'    the same with a hostile member
#include "copy.h"
#include "shaky_network.h"

#include "base/limits.h"
#include "protocol/datagram.h"

#include <cstdlib>
#include <sstream>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::IsEmpty;

#ifdef __SANITIZE_ADDRESS__
constexpr int seeds = 60; // each takes several times as long there
#else
constexpr int seeds = 200;
#endif
constexpr int blocks = seeds / 10;

/// What a seed stands for.
struct Plan {
    enum class Kind {
        calm,    ///< everything arrives before the next one acts
        busy,    ///< everything arrives in order, while others act
        mixedUp, ///< everything arrives at least once, in any order
        stormy,  ///< much is lost; copies die without a word
        hostile, ///< the same, and a member forges every kind of datagram with every kind of address
    };

    explicit Plan(int number) : Plan(number, static_cast<Kind>(number / 10 % 5)) { }
    Plan(int number, Kind kindOfRun) : seed(number), kind(kindOfRun)
    {
        constexpr std::array sizes{50, 2, 10, 3, 2, 10, 3, 2, 10, 3};
        copies = sizes[static_cast<std::size_t>(seed % 10)];
        oneHost = seed / 50 % 2 == 1;
        actions = copies == 50 ? 120 : 200;
        if (kind == Kind::busy)
            weather = {1ms, 40ms, 0, 0, true};
        else if (kind == Kind::mixedUp)
            weather = {1ms, 200ms, 0, 20, false};
        else if (kind >= Kind::stormy)
            weather = {1ms, 200ms, 15, 10, false};
    }

    int seed;
    int copies = 2;
    int actions = 0;
    Kind kind = Kind::calm;
    bool oneHost = false; ///< one copy alone opens conferences, so that no two hosts use the same number
    Weather weather;
};

/// A conference as everybody can name it.
using Name = std::pair<QString, int>;

Name nameOf(const Conference &conference)
{
    return {addressText(conference.identity().ConfServerIP), conference.identity().ConfNum};
}

RecorderConferenceView &viewOf(Conference &conference)
{
    return static_cast<RecorderConferenceView &>(conference.view());
}

/// What a window looks like between two arrivals.
struct Snapshot {
    const Conference *conference = nullptr;
    bool terminated = false;
    std::map<QString, bool> rows; ///< address, present
    std::size_t pieces = 0;
};

std::set<QString> presentIn(const std::map<QString, bool> &rows)
{
    std::set<QString> present;
    for (const auto &[ip, isPresent] : rows) {
        if (isPresent)
            present.insert(ip);
    }
    return present;
}

std::map<QString, bool> rowsOf(Conference &conference)
{
    std::map<QString, bool> rows;
    for (const Participant &row : conference.partecipanti().rows())
        rows[row.ip.text()] = row.present;
    return rows;
}

/// What a peer must never make somebody's contact, or be written to for.
bool isForbidden(const Copy &copy, std::optional<Ipv4Address> ip)
{
    return !ip || !ip->isUnicast() || ip == copy.common.ownIP || ip == Ipv4Address(127, 0, 0, 1)
        || SimulatedWinsock::isBroadcast(*ip);
}

/// What a datagram may have changed besides conferences.
struct Surface {
    int contacts = 0;
    int invitations = 0;
    std::vector<std::size_t> privatePieces; ///< of each private window, in the order in which they were made
};

Surface surfaceOf(Copy &copy)
{
    Surface surface{copy.engine.contacts().rowCount(), copy.engine.invitations().list().rowCount(), {}};
    for (const auto &window : copy.privateForms.views)
        surface.privatePieces.push_back(window->log.pieces.size());
    return surface;
}

class Simulation
{
public:
    explicit Simulation(const Plan &plan) : m_plan(plan), m_dice(static_cast<std::uint64_t>(plan.seed))
    {
        m_network.watcher = [this](const QString &from, const QString &to, const std::string &bytes,
                                   const std::function<void()> &arrive) { arrival(from, to, bytes, arrive); };
        for (int i = 0; i < plan.copies; ++i) {
            std::vector<StoredContact> contacts;
            for (int k = 0; k < plan.copies; ++k) {
                // Some know each other only through a conference.
                if (k != i && (plan.copies < 10 || k == 0 || m_dice.percent(80)))
                    contacts.push_back({addressOf(k), QStringLiteral("Copy %1").arg(k)});
            }
            m_contacts.push_back(contacts);
            m_copies.push_back(makeCopy(i));
        }
        m_network.pass(1500ms);
    }

    /// What went wrong, empty when nothing did.
    const std::vector<std::string> &run()
    {
        m_network.setWeather(m_plan.weather);
        for (int i = 0; i < m_plan.actions && m_violations.empty(); ++i) {
            act();
            if (m_plan.kind == Plan::Kind::hostile)
                actHostile(i);
            if (m_plan.kind == Plan::Kind::calm)
                calmDown();
            else
                m_network.pass(std::chrono::milliseconds(m_dice.below(60)));
            for (const auto &copy : m_copies) {
                if (copy && m_plan.kind == Plan::Kind::hostile)
                    checkContacts(*copy, " of " + copy->ip().toStdString());
            }
        }
        if (m_violations.empty())
            finish();
        return m_violations;
    }

    int shownMessages() const { return m_arrivalsShown; }
    /// Of those, how many in the conference of a host other than the one they were written for.
    int misplacedMessages() const { return m_misplaced; }
    int finalListsCompared() const { return m_listsCompared; }
    std::uint64_t datagrams() const { return m_network.sent(); }
    int forgedDatagrams() const { return m_forged; }
    int forgedMessagesShown() const { return m_forgedShown; }
    /// How often a copy had as many unasked windows as it may have.
    int fullOfWindows() const { return m_fullOfWindows; }
    /// Arrivals at copies that were invisible.
    int unseenArrivals() const { return m_unseenArrivals; }

private:
    static QString addressOf(int copy) { return QStringLiteral("10.0.0.%1").arg(copy + 1); }
    static int copyWith(const QString &address) { return address.section(u'.', 3).toInt() - 1; }

    std::unique_ptr<Copy> makeCopy(int number)
    {
        auto copy = std::make_unique<Copy>(CopySetup{.ip = addressOf(number),
                                                     .host = QStringLiteral("PC"),
                                                     .nickname = QStringLiteral("Copy %1").arg(number),
                                                     .contacts = m_contacts[static_cast<std::size_t>(number)]},
                                           &m_network, m_time);
        copy->ownAddresses.broadcast.insert(Ipv4Address(10, 0, 0, 255));
        return copy;
    }

    void violated(const std::string &what) { m_violations.push_back(what); }
    void require(bool holds, const std::string &what)
    {
        if (!holds)
            violated(what);
    }
    void tell(int who, const std::string &what) const
    {
        if (std::getenv("NIMB_SIM_SEED"))
            std::cout << m_time->elapsed().count() << " ms: " << who + 1 << ' ' << what << '\n';
    }

    // --- acting

    Copy *randomCopy(int &number)
    {
        number = m_dice.below(m_plan.copies);
        return m_copies[static_cast<std::size_t>(number)].get();
    }

    Conference *randomConference(Copy &copy, bool hosted)
    {
        std::vector<Conference *> fitting;
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const one = copy.engine.conferences().at(slot);
            if (one && one->isHostedHere() == hosted)
                fitting.push_back(one);
        }
        return fitting.empty() ? nullptr
                               : fitting[static_cast<std::size_t>(m_dice.below(static_cast<int>(fitting.size())))];
    }

    void act()
    {
        int who = 0;
        if (!randomCopy(who))
            return comeBack(who);
        const int what = m_dice.below(100);
        if (what < 8)
            create(who);
        else if (what < 30)
            invite();
        else if (what < 50)
            answer();
        else if (what < 75)
            talk();
        else if (what < 80)
            kick();
        else if (what < 87)
            refresh();
        else if (what < 93)
            closeWindow(false);
        else if (what < 95)
            closeWindow(true);
        else if (what < 97)
            leaveNetwork(who);
    }

    void create(int who)
    {
        if (m_plan.oneHost)
            who = 0;
        Copy *const copy = m_copies[static_cast<std::size_t>(who)].get();
        if (!copy)
            return;
        tell(who, "opens a conference");
        copy->engine.conferences().mnuCreateNewConf();
    }

    /// Some copy and one of its conferences, so that conferences are busy however many copies there are; null when
    /// there is none.
    Conference *someConference(int &who, bool hosted)
    {
        const int first = m_dice.below(m_plan.copies);
        for (int i = 0; i < m_plan.copies; ++i) {
            who = (first + i) % m_plan.copies;
            Copy *const copy = m_copies[static_cast<std::size_t>(who)].get();
            if (Conference *const found = copy ? randomConference(*copy, hosted) : nullptr)
                return found;
        }
        return nullptr;
    }

    void invite()
    {
        int who = 0;
        Conference *const conference = someConference(who, true);
        if (!conference)
            return;
        Copy &copy = *m_copies[static_cast<std::size_t>(who)];
        const int guests = 1 + m_dice.below(m_plan.copies / 5 + 1);
        for (int i = 0; i < guests; ++i) {
            const QString ip = copy.engine.contacts().at(m_dice.below(copy.engine.contacts().rowCount())).ip.text();
            tell(who, "invites " + ip.toStdString() + " to #" + std::to_string(conference->identity().fConfN));
            copy.engine.conferences().mnuInvite2Conf(conference->identity().fConfN, ip);
        }
    }

    void answer()
    {
        for (std::size_t i = 0; i < m_copies.size(); ++i) {
            Copy *const copy = m_copies[i].get();
            if (!copy || copy->engine.invitations().list().rowCount() == 0 || m_dice.percent(30))
                continue;
            Invitations &invitations = copy->engine.invitations();
            const int row = m_dice.below(invitations.list().rowCount());
            const Invitation invitation = invitations.list().at(row);
            const std::string which = invitation.host.toText() + " #" + std::to_string(invitation.number);
            const int what = m_dice.below(20);
            if (what < 15) {
                tell(static_cast<int>(i), "accepts " + which);
                invitations.ConfAgreebtn_Click(row);
                if (copy->engine.conferences().joined(invitation.host, invitation.number))
                    m_guestOf[static_cast<int>(i)].insert({addressText(invitation.host), invitation.number});
            } else if (what < 17) {
                tell(static_cast<int>(i), "refuses " + which);
                invitations.ConfDenybtn_Click(row);
            } else if (what < 18) {
                tell(static_cast<int>(i), "refuses all");
                invitations.ConfDenyAllbtn_Click();
            } else {
                tell(static_cast<int>(i), "clears its invitations");
                invitations.clearbtn_Click();
            }
        }
    }

    void talk()
    {
        int who = 0;
        if (Conference *const conference = someConference(who, m_dice.percent(30)))
            say(*m_copies[static_cast<std::size_t>(who)], who, *conference);
    }

    /// Empty when the conference is over.
    QString say(Copy &copy, int who, Conference &conference)
    {
        const QString text = QStringLiteral("text-%1").arg(++m_texts);
        copy.socket.sent.clear();
        const bool over = conference.isOver();
        tell(who,
             text.toStdString() + " in " + nameOf(conference).first.toStdString() + " #"
                 + std::to_string(nameOf(conference).second));
        const bool said = conference.send(text);
        require(said != over, "whether one can write is not whether the conference goes on");
        if (!said)
            return {};
        m_saidIn[text] = nameOf(conference);
        m_authors[text] = who;
        std::set<QString> expected{nameOf(conference).first};
        if (conference.isHostedHere()) {
            expected = presentIn(rowsOf(conference));
            expected.erase(copy.ip());
        }
        checkRelayed(copy, text, copy.ip(), conference.identity().ConfNum, expected);
        return text;
    }

    void kick()
    {
        int who = 0;
        Conference *const conference = someConference(who, true);
        if (!conference)
            return;
        const auto &rows = conference->partecipanti().rows();
        const QString ip = rows[static_cast<std::size_t>(m_dice.below(static_cast<int>(rows.size())))].ip.text();
        tell(who, "kicks " + ip.toStdString() + " from #" + std::to_string(conference->identity().fConfN));
        conference->kickuserbtn_Click(ip);
        require(conference->partecipanti().find(m_copies[static_cast<std::size_t>(who)]->ip()) != nullptr,
                "a host has kicked itself");
    }

    void refresh()
    {
        int who = 0;
        if (Conference *const conference = someConference(who, false)) {
            tell(who, "refreshes its list");
            conference->refreshlistbtn_Click();
        }
    }

    void closeWindow(bool hosted)
    {
        int who = 0;
        Conference *const conference = someConference(who, hosted);
        if (!conference)
            return;
        tell(who,
             "closes the window of " + nameOf(*conference).first.toStdString() + " #"
                 + std::to_string(nameOf(*conference).second));
        forget(who, *conference);
        if (conference->Form_QueryUnload(UnloadMode::closeBox) == CloseDecision::unload)
            conference->closed();
    }

    void leaveNetwork(int who)
    {
        auto &copy = m_copies[static_cast<std::size_t>(who)];
        const bool dies = m_plan.kind >= Plan::Kind::stormy && m_dice.percent(50);
        tell(who, dies ? "dies" : "leaves the network");
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            if (Conference *const conference = copy->engine.conferences().at(slot))
                forget(who, *conference);
        }
        if (!dies)
            copy->engine.mainWindow().Form_Unload();
        copy.reset();
        m_guestOf.erase(who);
        m_haveLeft.insert(addressOf(who));
    }

    void comeBack(int who)
    {
        tell(who, "comes back");
        m_copies[static_cast<std::size_t>(who)] = makeCopy(who);
    }

    // --- the hostile member, whose machine can send from any address

    void actHostile(int action)
    {
        int target = 0;
        Copy *const copy = randomCopy(target);
        if (!copy)
            return;
        if (m_dice.percent(3))
            return hideOrShow(*copy, target);
        if (action == m_plan.actions / 2)
            return sendCrowd(target);
        if (!m_dice.percent(25))
            return;
        const int burst = 1 + m_dice.below(12);
        for (int i = 0; i < burst; ++i)
            forge(*copy, target);
    }

    void hideOrShow(Copy &copy, int who)
    {
        constexpr int onlineEntry = 1, invisibleEntry = 4;
        const bool hides = !copy.common.isInvisible();
        tell(who, hides ? "becomes invisible" : "shows itself");
        copy.engine.ownState().choose(hides ? invisibleEntry : onlineEntry);
    }

    /// More strangers than may open windows introduce themselves, and each of them writes.
    void sendCrowd(int target)
    {
        constexpr int crowd = 120;
        tell(target, "is visited by a crowd");
        for (int i = 1; i <= crowd; ++i)
            forge(target, strangerAddress(i), "!ONLINE " + strangerAddress(i).toStdString() + " PC Stranger");
        m_network.pass(200ms);
        for (int i = 1; i <= crowd; ++i)
            forge(target, strangerAddress(i), '-' + forgedText());
    }

    static QString strangerAddress(int number) { return QStringLiteral("10.0.1.%1").arg(number); }
    std::string forgedText() { return "forged-" + std::to_string(++m_forgedTexts); }

    QString anyOf(const std::vector<QString> &addresses)
    {
        if (addresses.empty())
            return strangerAddress(1);
        return addresses[static_cast<std::size_t>(m_dice.below(static_cast<int>(addresses.size())))];
    }

    /// The addresses that mean something to the target.
    QString meaningfulAddress(Copy &target)
    {
        std::vector<QString> contacts, participants, hosts;
        for (const ContactAddress &ip : target.engine.contacts().addresses())
            contacts.push_back(ip.text());
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const conference = target.engine.conferences().at(slot);
            if (!conference)
                continue;
            hosts.push_back(nameOf(*conference).first);
            for (const Participant &row : conference->partecipanti().rows())
                participants.push_back(row.ip.text());
        }
        switch (m_dice.below(4)) {
        case 0:
            return target.ip();
        case 1:
            return anyOf(contacts);
        case 2:
            return anyOf(participants);
        default:
            return anyOf(hosts);
        }
    }

    /// Any address that a datagram can come from.
    QString anySource(Copy &target)
    {
        if (m_dice.percent(60))
            return meaningfulAddress(target);
        return anyOf({addressOf(m_plan.copies - 1), strangerAddress(1 + m_dice.below(30)), QStringLiteral("10.0.0.255"),
                      QStringLiteral("255.255.255.255"), QStringLiteral("127.0.0.1"), QStringLiteral("127.0.0.2"),
                      QStringLiteral("0.0.0.0"), QStringLiteral("224.0.0.1"), QStringLiteral("240.0.0.1"),
                      QStringLiteral("192.168.7.7")});
    }

    /// What may stand where a datagram names an address.
    std::string anyAddressField(Copy &target)
    {
        if (m_dice.percent(70))
            return anySource(target).toStdString();
        return anyOf({QStringLiteral("10.0.0.300"), QStringLiteral("010.0.0.2"), QStringLiteral("10.0.0.2."),
                      QStringLiteral("10.0.0"), QStringLiteral("localhost"), QString(1000, u'9'), QString(),
                      QStringLiteral("#1")})
            .toStdString();
    }

    std::string anyNumber()
    {
        static const std::array<std::string, 12> numbers{"1", "2",  "3", "4", "5",     "1",
                                                         "2", "-1", "0", "6", "32767", "99999"};
        return numbers[static_cast<std::size_t>(m_dice.below(static_cast<int>(numbers.size())))];
    }

    std::string anyDatagram(Copy &target)
    {
        const std::string number = anyNumber(), address = anyAddressField(target);
        const std::string identity = ' ' + address + " PC Copy " + std::to_string(m_dice.below(m_plan.copies));
        const std::array<std::string, 30> forms{
            "?ONLINE" + identity,
            "!ONLINE" + identity,
            "!OFFLINE" + identity,
            "?ONLINE",
            "!STATUS BUSY forged",
            "!STATUS Invisible",
            "!BUZZ",
            "!USER" + identity,
            "!TYPING",
            "?AVATARHEAD",
            "!AVATARHEAD 2026-11-21",
            "?AVATARBODY",
            "!AVATARBODY " + std::string(7500, 'x'),
            "!AVATARBODY short",
            "!AVATAROFF",
            "!MOOD 41.5",
            "!LIVETYPE forged",
            "?CONF INVITE #" + number,
            "?CONF USERS #" + number,
            "!CONF INVITE #" + number + " AGREE",
            "!CONF INVITE #" + number + " DENY",
            "!CONF USERS #" + number + ' ' + address + ' ' + anyAddressField(target) + ' ' + target.ip().toStdString(),
            "!CONF LEAVE #" + number,
            "!CONF CLOSE #" + number,
            '-' + forgedText(),
            '+' + address + " #" + number + ' ' + forgedText(),
            '+' + anySource(target).toStdString() + " #" + number + ' ' + forgedText(),
            "!CONF",
            "!NONSENSE " + address,
            address,
        };
        return forms[static_cast<std::size_t>(m_dice.below(static_cast<int>(forms.size())))];
    }

    /// In the name of somebody who belongs to one of the target's conferences, and about that one.
    void forgeFitting(Copy &target, int number)
    {
        Conference *const conference = randomConference(target, m_dice.percent(50));
        if (!conference)
            return;
        const auto &rows = conference->partecipanti().rows();
        const Participant &row = rows[static_cast<std::size_t>(m_dice.below(static_cast<int>(rows.size())))];
        const QString source = conference->isHostedHere() ? row.ip.text() : nameOf(*conference).first;
        const std::string sign = " #" + std::to_string(conference->identity().ConfNum);
        const std::array<std::string, 6> forms{
            '+' + row.ip.text().toStdString() + sign + ' ' + forgedText(),
            '+' + anySource(target).toStdString() + sign + ' ' + forgedText(),
            "!CONF USERS" + sign + ' ' + anyAddressField(target) + ' ' + anyAddressField(target),
            "!CONF INVITE" + sign + " AGREE",
            "!CONF LEAVE" + sign,
            "!CONF CLOSE" + sign,
        };
        forge(number, source, forms[static_cast<std::size_t>(m_dice.below(static_cast<int>(forms.size())))]);
    }

    void forge(Copy &target, int number)
    {
        if (m_dice.percent(10))
            return forgeFitting(target, number);
        const QString source = anySource(target);
        forge(number, source, anyDatagram(target));
    }

    void forge(int target, const QString &source, const std::string &bytes)
    {
        ++m_forged;
        tell(target, "is sent " + bytes.substr(0, 80) + " in the name of " + source.toStdString());
        m_network.send(source, addressOf(target), bytes);
    }

    /// Counts what a window has shown before it goes.
    void forget(int who, Conference &conference)
    {
        for (const RecorderLog::Piece &piece : viewOf(conference).log.pieces) {
            if (piece.text.startsWith(QLatin1String("text-")))
                ++m_shown[{who, piece.text}];
        }
        viewOf(conference).log.clear();
    }

    // --- watching arrivals

    std::array<Snapshot, ConferenceTable::lastSlot + 1> snapshotOf(Copy &copy, bool whole)
    {
        std::array<Snapshot, ConferenceTable::lastSlot + 1> snapshots;
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const conference = copy.engine.conferences().at(slot);
            if (!conference)
                continue;
            Snapshot &snapshot = snapshots[static_cast<std::size_t>(slot)];
            snapshot.conference = conference;
            snapshot.terminated = conference->isOver();
            snapshot.pieces = viewOf(*conference).log.pieces.size();
            if (whole)
                snapshot.rows = rowsOf(*conference);
        }
        return snapshots;
    }

    void arrival(const QString &from, const QString &to, const std::string &bytes, const std::function<void()> &arrive)
    {
        Copy &copy = *m_copies[static_cast<std::size_t>(copyWith(to))];
        const wire::Datagram datagram = wire::parse(bytes);
        const bool conference = bytes.starts_with('+') || bytes.starts_with("!CONF") || bytes.starts_with("?CONF");
        const auto before = snapshotOf(copy, conference);
        const bool hostile = m_plan.kind == Plan::Kind::hostile;
        const Surface surface = hostile ? surfaceOf(copy) : Surface();
        const bool fromContact = copy.engine.contacts().find(from);
        copy.socket.sent.clear();
        arrive();
        const auto after = snapshotOf(copy, conference);
        if (hostile)
            checkSurface(from, copy, bytes, datagram, surface);
        for (std::size_t slot = 1; slot < before.size(); ++slot)
            compare(from, copy, bytes, datagram, before[slot], after[slot]);
        if (const auto *close = std::get_if<wire::ConferenceClose>(&datagram); close && fromContact)
            m_guestOf[copyWith(to)].erase({from, close->id});
        if (const auto *message = std::get_if<wire::ConferenceMessage>(&datagram))
            checkMessage(from, copy, *message, fromContact ? before : decltype(before){}, after);
        else
            checkNothingRelayed(copy, bytes);
    }

    /// Whatever was forged, nothing grows without bound, nobody forbidden is taken for a peer, nothing stands where it
    /// was not sent, and who is invisible stays so.
    void checkSurface(const QString &from, Copy &copy, const std::string &bytes, const wire::Datagram &datagram,
                      const Surface &before)
    {
        const std::string what
            = " (" + from.toStdString() + " to " + copy.ip().toStdString() + ": " + bytes.substr(0, 80) + ')';
        const auto *list = std::get_if<wire::ConferenceList>(&datagram);
        const std::size_t named = list ? list->addresses.size() : 1;
        require(copy.engine.contacts().rowCount() <= before.contacts + static_cast<int>(named),
                "a datagram has made more contacts than it names" + what);
        require(copy.engine.invitations().list().rowCount() <= limits::invitations, "too many invitations" + what);
        require(copy.engine.invitations().list().rowCount()
                    <= before.invitations + int(std::holds_alternative<wire::ConferenceInvitation>(datagram)),
                "something else than an invitation has added one" + what);
        checkPrivateWindows(from, copy, datagram, before, what);
        checkSent(copy, named, what);
    }

    void checkContacts(Copy &copy, const std::string &what)
    {
        for (const ContactAddress &ip : copy.engine.contacts().addresses()) {
            require(!isForbidden(copy, ip.ipv4()),
                    "a contact has a forbidden address: " + ip.text().toStdString() + what);
            require(copy.engine.contacts().find(ip)->waitingMessages <= limits::waitingMessages,
                    "too many messages wait" + what);
        }
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const conference = copy.engine.conferences().at(slot);
            if (!conference)
                continue;
            for (const Participant &row : conference->partecipanti().rows())
                require(row.own || !isForbidden(copy, row.ip.ipv4()),
                        "a participant has a forbidden address: " + row.ip.text().toStdString() + what);
        }
    }

    void checkPrivateWindows(const QString &from, Copy &copy, const wire::Datagram &datagram, const Surface &before,
                             const std::string &what)
    {
        const auto &windows = copy.privateForms.views;
        const auto *message = std::get_if<wire::PrivateMessage>(&datagram);
        require(windows.size() <= before.privatePieces.size() + (message ? 1 : 0),
                "something else than a message has opened a window" + what);
        require(windows.size() <= limits::windowsOpenedUnasked, "too many windows are open" + what);
        m_fullOfWindows += windows.size() == limits::windowsOpenedUnasked;
        for (std::size_t i = 0; i < windows.size(); ++i) {
            const auto &pieces = windows[i]->log.pieces;
            for (std::size_t k = i < before.privatePieces.size() ? before.privatePieces[i] : 0; k < pieces.size();
                 ++k) {
                const bool isText = pieces[k].text.startsWith(QLatin1String("forged-"))
                    || pieces[k].text.startsWith(QLatin1String("text-"));
                require(!isText || (message && windows[i]->peer == from),
                        "a message stands in the window of somebody else" + what);
            }
        }
    }

    /// What a datagram provokes is bounded by what it names and by who is there to be told, and goes to peers alone.
    void checkSent(Copy &copy, std::size_t named, const std::string &what)
    {
        std::set<std::string> guests;
        std::size_t mostRows = 0;
        for (int slot = 1; slot <= ConferenceTable::lastSlot; ++slot) {
            Conference *const hosted = copy.engine.conferences().hosted(slot);
            if (!hosted)
                continue;
            for (const Participant &row : hosted->partecipanti().rows())
                guests.insert(row.ip.text().toStdString());
            mostRows = std::max(mostRows, hosted->partecipanti().rows().size());
        }
        require(copy.socket.sent.size() <= 3 * named + 1 + mostRows, "a datagram has provoked too many others" + what);
        for (const To &sent : copy.socket.sent)
            require(!isForbidden(copy, Ipv4Address::parse(sent.ip)), "sent to a forbidden address " + sent.ip + what);
        if (!copy.common.isInvisible())
            return;
        ++m_unseenArrivals;
        for (const To &sent : copy.socket.sent) {
            const bool isConference = sent.bytes.starts_with('+') || sent.bytes.starts_with("!CONF USERS #")
                || sent.bytes.starts_with("!CONF CLOSE #");
            require(isConference && (guests.contains(sent.ip) || sent.bytes.starts_with("!CONF CLOSE #")),
                    "who is invisible has sent " + sent.bytes.substr(0, 80) + " to " + sent.ip + what);
        }
    }

    /// Nobody changes what is not theirs.
    void compare(const QString &from, const Copy &copy, const std::string &bytes, const wire::Datagram &datagram,
                 const Snapshot &before, const Snapshot &after)
    {
        const std::string what = " (" + from.toStdString() + " to " + copy.ip().toStdString() + ": " + bytes + ')';
        if (before.conference != after.conference)
            return violated("a datagram has opened or closed a window" + what);
        if (!before.conference)
            return;
        const bool hosted = before.conference->isHostedHere();
        const bool fromHost = !hosted && nameOf(*before.conference).first == from;
        if (before.terminated != after.terminated) {
            const auto *close = std::get_if<wire::ConferenceClose>(&datagram);
            require(fromHost && close && close->id == before.conference->identity().ConfNum && after.terminated,
                    "somebody other than the host has closed a conference" + what);
        }
        if (before.rows == after.rows)
            return;
        const int number = before.conference->identity().ConfNum;
        if (hosted) {
            std::map<QString, bool> rest = before.rows, restAfter = after.rows;
            rest.erase(from);
            restAfter.erase(from);
            require(rest == restAfter, "a participant has changed another one's row" + what);
            require(before.rows.contains(from), "who was not invited is in the list" + what);
            const auto *reply = std::get_if<wire::ConferenceAnswer>(&datagram);
            const auto *leave = std::get_if<wire::ConferenceLeave>(&datagram);
            require((reply && reply->id == number) || (leave && leave->id == number),
                    "the host's list has changed without an answer or farewell" + what);
            require(!reply || reply->agreed || !after.rows.contains(from), "who has refused is still listed" + what);
            require(!leave || (before.rows.contains(from) && before.rows.at(from)),
                    "who was not present has left" + what);
        } else {
            const auto *list = std::get_if<wire::ConferenceList>(&datagram);
            require(fromHost && list && list->id == number && !before.terminated,
                    "a guest's list has changed without one from its host" + what);
        }
    }

    /// The slot that must take this message, 0 for none.
    std::size_t slotFor(const QString &from, Copy &copy, const wire::ConferenceMessage &message,
                        const std::array<Snapshot, ConferenceTable::lastSlot + 1> &before)
    {
        const std::optional<Ipv4Address> writtenBy = Ipv4Address::parse(message.origin);
        if (message.id < 1 || !writtenBy || !writtenBy->isUnicast())
            return 0;
        if (message.origin != copy.ip().toStdString()) {
            bool isOver = false;
            for (std::size_t slot = 1; slot < before.size(); ++slot) {
                const Snapshot &one = before[slot];
                if (!one.conference || one.conference->isHostedHere()
                    || nameOf(*one.conference) != Name(from, message.id))
                    continue;
                if (!one.terminated)
                    return slot;
                isOver = true;
            }
            if (isOver)
                return 0;
        }
        if (message.id > ConferenceTable::lastSlot)
            return 0;
        const Snapshot &hosted = before[static_cast<std::size_t>(message.id)];
        if (!hosted.conference || !hosted.conference->isHostedHere())
            return 0;
        const QString origin = QString::fromStdString(message.origin);
        const bool known = origin == copy.ip() || hosted.rows.contains(origin) || copy.engine.contacts().find(origin);
        const bool relayed = origin != from && origin != copy.ip()
            && (known || m_guestOf[copyWith(copy.ip())].contains(Name(from, message.id)));
        if (relayed)
            return 0;
        const auto writer = hosted.rows.find(from);
        return writer != hosted.rows.end() && writer->second ? static_cast<std::size_t>(message.id) : 0;
    }

    void checkMessage(const QString &from, Copy &copy, const wire::ConferenceMessage &message,
                      const std::array<Snapshot, ConferenceTable::lastSlot + 1> &before,
                      const std::array<Snapshot, ConferenceTable::lastSlot + 1> &after)
    {
        const int who = copyWith(copy.ip());
        const QString text = QString::fromStdString(message.text);
        ++m_delivered[{who, text}];
        const std::size_t expected = slotFor(from, copy, message, before);
        for (std::size_t slot = 1; slot < after.size(); ++slot) {
            Conference *const window = copy.engine.conferences().at(static_cast<int>(slot));
            if (!window || !before[slot].conference)
                continue;
            const auto &pieces = viewOf(*window).log.pieces;
            int shown = 0;
            for (std::size_t i = before[slot].pieces; i < pieces.size(); ++i)
                shown += pieces[i].text == text;
            require(shown == (slot == expected ? 1 : 0),
                    copy.ip().toStdString() + " has shown " + message.text + ' ' + std::to_string(shown)
                        + " times in slot " + std::to_string(slot) + ", and slot " + std::to_string(expected)
                        + " was meant");
            if (shown > 0)
                shownIn(*window, who, text);
        }
        const bool relays = expected > 0 && before[expected].conference->isHostedHere();
        if (!relays)
            return checkNothingRelayed(copy, message.text);
        std::set<QString> expectedReceivers = presentIn(before[expected].rows);
        expectedReceivers.erase(copy.ip());
        expectedReceivers.erase(from);
        checkRelayed(copy, text, from, message.id, expectedReceivers);
    }

    void shownIn(const Conference &window, int who, const QString &text)
    {
        if (text.startsWith(QLatin1String("forged-"))) {
            ++m_forgedShown; // where, checkMessage() has seen
            return;
        }
        ++m_arrivalsShown;
        const Name said = m_saidIn[text], shown = nameOf(window);
        require(m_authors[text] != who, "a message has come back to its author: " + text.toStdString());
        require(said.second == shown.second, "a message has changed its conference: " + text.toStdString());
        // Two hosts who are each other's guests under the same number send the same bytes for either conference.
        const bool sure = m_plan.oneHost && m_plan.kind != Plan::Kind::hostile;
        require(said.first == shown.first || !sure,
                "a message was shown in another host's conference: " + text.toStdString());
        m_misplaced += said.first != shown.first;
    }

    void checkNothingRelayed(const Copy &copy, const std::string &what)
    {
        for (const To &sent : copy.socket.sent)
            require(!sent.bytes.starts_with('+'), "something was relayed that must not be: " + what);
    }

    void checkRelayed(const Copy &copy, const QString &text, const QString &origin, int number,
                      const std::set<QString> &expected)
    {
        std::multiset<std::string> receivers, wanted;
        std::ostringstream bytes;
        bytes << '+' << origin.toStdString() << " #" << number << ' ' << text.toStdString();
        for (const To &sent : copy.socket.sent) {
            if (!sent.bytes.starts_with('+'))
                continue;
            require(sent.bytes == bytes.str(), "sent \"" + sent.bytes + "\" where \"" + bytes.str() + "\" was due");
            receivers.insert(sent.ip);
        }
        for (const QString &ip : expected)
            wanted.insert(ip.toStdString());
        require(receivers == wanted,
                copy.ip().toStdString() + " has not sent " + text.toStdString()
                    + " once to each of the others who are present, and to nobody else");
    }

    // --- the end

    /// No answer provokes more than a handful of answers after it, however many copies there are.
    void calmDown()
    {
        constexpr int longestChain = 10;
        require(m_network.calmDown(m_plan.weather.longest * longestChain), "the traffic does not die down");
    }

    void finish()
    {
        calmDown();
        m_network.setWeather({});
        m_network.pass(2000ms);
        calmDown();
        const std::uint64_t sent = m_network.sent();
        m_network.pass(60s);
        require(m_network.sent() == sent, "datagrams are sent though nobody acts");
        forAllConferences([](Copy &, int, Conference &conference) { conference.Broadcastlist({}); });
        calmDown();
        forAllConferences([this](Copy &copy, int, Conference &conference) { compareLists(copy, conference); });
        forAllConferences(
            [this](Copy &copy, int who, Conference &conference) { hearEachOther(copy, who, conference); });
        forAllConferences([this](Copy &, int who, Conference &conference) { forget(who, conference); });
        checkCounts();
    }

    template <class Action> void forAllConferences(const Action &action)
    {
        for (std::size_t i = 0; i < m_copies.size(); ++i) {
            for (int slot = 1; m_copies[i] && slot <= ConferenceTable::lastSlot; ++slot) {
                if (Conference *const conference = m_copies[i]->engine.conferences().at(slot))
                    action(*m_copies[i], static_cast<int>(i), *conference);
            }
        }
    }

    Copy *find(const QString &ip)
    {
        const int copy = copyWith(ip);
        const bool isCopys = copy >= 0 && copy < m_plan.copies && addressOf(copy) == ip;
        return isCopys ? m_copies[static_cast<std::size_t>(copy)].get() : nullptr;
    }
    Conference *hostsWindow(const Conference &joined)
    {
        Copy *const host = find(nameOf(joined).first);
        return host ? host->engine.conferences().hosted(joined.identity().ConfNum) : nullptr;
    }
    /// Both know the guest as present.
    bool isMember(const Copy &copy, const Conference &joined)
    {
        Conference *const host = hostsWindow(joined);
        const Participant *const row = host ? host->partecipanti().find(copy.ip()) : nullptr;
        return row && row->present && !joined.isOver();
    }

    /// With everything delivered before the next one acts, whom a host lists is there.
    void findGhosts(const Conference &hosted, const std::map<QString, bool> &rows)
    {
        for (const QString &ip : presentIn(rows)) {
            Copy *const guest = find(ip);
            const bool there = ip == nameOf(hosted).first
                || (guest
                    && guest->engine.conferences().joined(hosted.identity().ConfServerIP, hosted.identity().ConfNum));
            require(there || m_plan.kind != Plan::Kind::calm, "a host lists who is not there: " + ip.toStdString());
        }
    }

    void compareLists(const Copy &copy, Conference &conference)
    {
        if (conference.isHostedHere())
            return findGhosts(conference, rowsOf(conference));
        if (conference.isOver())
            return;
        const std::string whose = copy.ip().toStdString() + " in " + nameOf(conference).first.toStdString() + " #"
            + std::to_string(nameOf(conference).second);
        if (!isMember(copy, conference)) {
            // With everything delivered before the next one acts, nobody is left behind; unless an invitation was
            // accepted while its host was away.
            require(m_plan.kind != Plan::Kind::calm || m_haveLeft.contains(nameOf(conference).first),
                    "an open window belongs to nobody whom its host knows: " + whose);
            return;
        }
        ++m_listsCompared;
        require(presentIn(rowsOf(conference)) == presentIn(rowsOf(*hostsWindow(conference))),
                "a guest's list is not its host's: " + whose);
        require(presentIn(rowsOf(conference)).size() == rowsOf(conference).size(),
                "a guest lists who is not there: " + whose);
    }

    /// Whether what the guest writes to its host is taken for a message of the guest's own conference, be that one over
    /// for the host.
    bool isAmbiguous(const Copy &guest, const Conference &conference)
    {
        Copy *const host = find(nameOf(conference).first);
        return host && host->engine.conferences().hasWindowOf(guest.common.ownIP, conference.identity().ConfNum);
    }

    void hearEachOther(Copy &copy, int who, Conference &conference)
    {
        if (conference.isOver() || (!conference.isHostedHere() && !isMember(copy, conference)))
            return;
        if (!conference.isHostedHere() && isAmbiguous(copy, conference))
            return;
        const QString text = say(copy, who, conference);
        calmDown();
        const Name name = nameOf(conference);
        forAllConferences([&](Copy &other, int, Conference &window) {
            const bool member = nameOf(window) == name && (window.isHostedHere() || isMember(other, window));
            if (nameOf(window) != name || (!member && window.isOver()))
                return;
            const auto &pieces = viewOf(window).log.pieces;
            const auto shown = std::count_if(pieces.begin(), pieces.end(),
                                             [&](const RecorderLog::Piece &piece) { return piece.text == text; });
            require(shown == (member ? 1 : 0),
                    other.ip().toStdString() + " shows " + text.toStdString() + ' ' + std::to_string(shown) + " times");
        });
    }

    void checkCounts()
    {
        for (const auto &[key, shown] : m_shown) {
            const auto &[who, text] = key;
            const int most = m_authors[text] == who ? 1 : m_delivered[key];
            require(shown <= most,
                    addressOf(who).toStdString() + " has shown " + text.toStdString() + ' ' + std::to_string(shown)
                        + " times and got it " + std::to_string(most) + " times");
        }
        for (const auto &[text, who] : m_authors)
            require(m_shown[{who, text}] == 1, "an author does not see the own message: " + text.toStdString());
    }

    Plan m_plan;
    Dice m_dice;
    std::shared_ptr<VirtualTime> m_time = std::make_shared<VirtualTime>();
    ShakyNetwork m_network{m_time, static_cast<std::uint64_t>(m_plan.seed) + 1000000};
    std::vector<std::vector<StoredContact>> m_contacts;
    std::vector<std::unique_ptr<Copy>> m_copies; ///< null while away
    std::set<QString> m_haveLeft;
    std::map<int, std::set<Name>> m_guestOf; ///< by copy: what it has joined and nobody has told it is over
    int m_texts = 0;
    std::map<QString, Name> m_saidIn;
    std::map<QString, int> m_authors;
    std::map<std::pair<int, QString>, int> m_shown, m_delivered; ///< by copy and text
    int m_arrivalsShown = 0;
    int m_misplaced = 0;
    int m_listsCompared = 0;
    int m_forged = 0;
    int m_forgedTexts = 0;
    int m_forgedShown = 0;
    int m_fullOfWindows = 0;
    int m_unseenArrivals = 0;
    std::vector<std::string> m_violations;
};

int numberFrom(const char *variable, int otherwise)
{
    const char *const value = std::getenv(variable);
    return value ? std::atoi(value) : otherwise;
}

/// The seeds of one block: all of them are shared out, so that tests can run side by side.
std::pair<int, int> seedsOf(int block)
{
    const int all = numberFrom("NIMB_SIM_SEEDS", seeds), one = numberFrom("NIMB_SIM_SEED", -1);
    if (one >= 0)
        return {one, one + (block == 0)};
    return {all * block / blocks, all * (block + 1) / blocks};
}

class ConferenceSim : public testing::TestWithParam<int>
{
};

TEST_P(ConferenceSim, NobodyHearsTooMuchAndListsAgreeInTheEnd)
{
    const auto [first, last] = seedsOf(GetParam());
    int shown = 0, misplaced = 0, lists = 0;
    std::uint64_t datagrams = 0;
    for (int seed = first; seed < last; ++seed) {
        Simulation simulation{Plan(seed)};
        ASSERT_THAT(simulation.run(), IsEmpty()) << "run it again with NIMB_SIM_SEED=" << seed;
        shown += simulation.shownMessages();
        misplaced += simulation.misplacedMessages();
        lists += simulation.finalListsCompared();
        datagrams += simulation.datagrams();
    }
    if (last - first >= 10) {
        EXPECT_GT(shown, 0) << "nobody has heard anything";
        EXPECT_GT(lists, 0) << "no list was compared";
    }
    std::cout << datagrams << " datagrams, " << shown << " messages shown, " << misplaced << " of them misplaced, "
              << lists << " lists compared\n";
}

class HostileSim : public testing::TestWithParam<int>
{
};

TEST_P(HostileSim, AMemberWhoForgesEverythingGetsNothingThatIsNotItsOwn)
{
    const auto [first, last] = seedsOf(GetParam());
    int shown = 0, forged = 0, forgedShown = 0, full = 0, unseen = 0;
    for (int seed = first; seed < last; ++seed) {
        Simulation simulation{Plan(seed, Plan::Kind::hostile)};
        ASSERT_THAT(simulation.run(), IsEmpty()) << "run it again with NIMB_SIM_SEED=" << seed;
        shown += simulation.shownMessages();
        forged += simulation.forgedDatagrams();
        forgedShown += simulation.forgedMessagesShown();
        full += simulation.fullOfWindows();
        unseen += simulation.unseenArrivals();
    }
    if (last - first >= 10) {
        EXPECT_GT(shown, 0) << "nobody has heard anything";
        EXPECT_GT(forgedShown, 0) << "nothing was forged so well that it was believed";
        EXPECT_GT(full, 0) << "the crowd has never opened as many windows as it may";
        EXPECT_GT(unseen, 0) << "nothing has arrived while a copy was invisible";
    }
    std::cout << forged << " datagrams forged, " << forgedShown << " messages among them believed, " << unseen
              << " arrivals while invisible\n";
}

/// Ann, who hosts, and Ben, on a network that delivers everything at once.
class TwoAtAConference : public testing::Test
{
protected:
    TwoAtAConference()
    {
        ann.engine.conferences().mnuCreateNewConf();
        inviteBen();
        accept();
    }
    void inviteBen()
    {
        ann.engine.conferences().mnuInvite2Conf(1, QStringLiteral("10.0.0.2"));
        network.settle();
    }
    void accept()
    {
        ben.engine.invitations().ConfAgreebtn_Click(0);
        network.settle();
    }
    void closeBensWindow()
    {
        ben.engine.conferences().at(1)->closed();
        network.settle();
    }
    Conference *bensOpenWindow() { return ben.engine.conferences().joined(Ipv4Address(10, 0, 0, 1), 1); }
    bool isBenListed()
    {
        const Participant *const row
            = ann.engine.conferences().hosted(1)->partecipanti().find(QStringLiteral("10.0.0.2"));
        return row && row->present;
    }

    std::shared_ptr<VirtualTime> time = std::make_shared<VirtualTime>();
    SimulatedNetwork network;
    Copy ann{{.ip = QStringLiteral("10.0.0.1"), .contacts = {{QStringLiteral("10.0.0.2"), QStringLiteral("Ben")}}},
             &network,
             time};
    Copy ben{{.ip = QStringLiteral("10.0.0.2"), .contacts = {{QStringLiteral("10.0.0.1"), QStringLiteral("Ann")}}},
             &network,
             time};
};

TEST_F(TwoAtAConference, WhoIsInvitedAnewAndThenClosesTheOldWindowCanStillAccept)
{
    ASSERT_TRUE(isBenListed());
    ann.engine.conferences().hosted(1)->kickuserbtn_Click(QStringLiteral("10.0.0.2"));
    network.settle();
    inviteBen();
    closeBensWindow();
    accept();
    EXPECT_TRUE(isBenListed());
    EXPECT_NE(bensOpenWindow(), nullptr);
}

TEST_F(TwoAtAConference, WhoIsBackAndThenClosesTheOldWindowStays)
{
    ann.engine.conferences().hosted(1)->kickuserbtn_Click(QStringLiteral("10.0.0.2"));
    network.settle();
    inviteBen();
    accept();
    ASSERT_NE(ben.engine.conferences().at(2), nullptr);
    closeBensWindow();
    EXPECT_TRUE(isBenListed());
    EXPECT_NE(bensOpenWindow(), nullptr);
}

TEST_F(TwoAtAConference, WhoAcceptsAnInvitationThatNoLongerStandsIsToldSo)
{
    inviteBen();
    closeBensWindow();
    accept();
    EXPECT_FALSE(isBenListed());
    EXPECT_EQ(bensOpenWindow(), nullptr);
    EXPECT_EQ(ben.conference(2).log.lastLine(), "--- This conference is terminated.");
}

/// A guest whose own address is not the one that others see, as on a computer in two networks.
TEST(ConferenceOfThree, HearsAGuestWhoKnowsItselfByAnotherAddress)
{
    const auto time = std::make_shared<VirtualTime>();
    SimulatedNetwork network;
    const StoredContact toAnn{QStringLiteral("10.0.0.1"), QStringLiteral("Ann")};
    Copy ann{{.ip = toAnn.ip,
              .nickname = toAnn.nickname,
              .contacts = {{QStringLiteral("10.0.0.2"), QStringLiteral("Ben")},
                           {QStringLiteral("10.0.0.3"), QStringLiteral("Cleo")}}},
             &network,
             time};
    Copy ben{
        {.ip = QStringLiteral("10.0.0.2"), .nickname = QStringLiteral("Ben"), .contacts = {toAnn}}, &network, time};
    Copy cleo{
        {.ip = QStringLiteral("10.0.0.3"), .nickname = QStringLiteral("Cleo"), .contacts = {toAnn}}, &network, time};
    ben.common.ownIP = Ipv4Address(192, 168, 7, 2);
    ann.engine.conferences().mnuCreateNewConf();
    for (Copy *const guest : {&ben, &cleo}) {
        ann.engine.conferences().mnuInvite2Conf(1, guest->socket.LocalIP());
        network.settle();
        guest->engine.invitations().ConfAgreebtn_Click(0);
        network.settle();
    }

    EXPECT_TRUE(ben.engine.conferences().at(1)->send(QStringLiteral("Can you hear me?")));
    network.settle();
    EXPECT_EQ(ann.conference(1).log.lastLine(), "Ben> Can you hear me?");
    EXPECT_EQ(cleo.conference(1).log.lastLine(), "Ben> Can you hear me?");
    EXPECT_EQ(ben.conference(1).log.lastLine(), "Ben> Can you hear me?");
    EXPECT_TRUE(ann.engine.conferences().at(1)->send(QStringLiteral("Yes")));
    network.settle();
    EXPECT_EQ(ben.conference(1).log.lastLine(), "Ann> Yes");
}

/// Everybody hosts #1 and is still listed in the others' #1, for nobody heard the farewells.
class ConferenceStorm : public testing::Test
{
protected:
    /// The copies stand in a circle; each knows, invites and lists those who are at most `reach` steps away.
    void listEachOther(int reach)
    {
        for (int i = 0; i < count; ++i) {
            std::vector<StoredContact> others;
            for (const QString &ip : neighbours(i, reach))
                others.push_back({ip, QStringLiteral("Peer")});
            copies.push_back(std::make_unique<Copy>(CopySetup{.ip = addressOf(i), .contacts = others}, &network, time));
            copies.back()->engine.conferences().mnuCreateNewConf();
        }
        for (int i = 0; i < count; ++i) {
            for (const QString &ip : neighbours(i, reach))
                engine(i).conferences().mnuInvite2Conf(1, ip);
        }
        ASSERT_TRUE(network.calmDown(5s));
        for (int i = 0; i < count; ++i) {
            while (engine(i).invitations().list().rowCount() > 0)
                engine(i).invitations().ConfAgreebtn_Click(0);
        }
        ASSERT_TRUE(network.calmDown(5s));
        network.setWeather({.lost = 100});
        for (int i = 0; i < count; ++i) {
            for (int slot = 2; slot <= ConferenceTable::lastSlot; ++slot) {
                if (Conference *const joined = engine(i).conferences().at(slot))
                    joined->closed();
            }
            forgetStrangers(i, reach);
        }
        network.setWeather({});
        ASSERT_THAT(rowsOf(hosted(0)), testing::SizeIs(1 + neighbours(0, reach).size()));
    }
    Conference &hosted(int copy) { return *engine(copy).conferences().hosted(1); }

    std::shared_ptr<VirtualTime> time = std::make_shared<VirtualTime>();
    ShakyNetwork network{time, 1};

private:
    static constexpr int count = 4;

    static QString addressOf(int copy) { return QStringLiteral("10.0.0.%1").arg(copy + 1); }
    static std::vector<QString> neighbours(int copy, int reach)
    {
        std::vector<QString> found;
        for (int steps = 1; steps < count; ++steps) {
            if (std::min(steps, count - steps) <= reach)
                found.push_back(addressOf((copy + steps) % count));
        }
        return found;
    }
    /// Whom a list has made a contact.
    void forgetStrangers(int copy, int reach)
    {
        const std::vector<QString> known = neighbours(copy, reach);
        for (const ContactAddress &ip : engine(copy).contacts().addresses()) {
            if (std::find(known.begin(), known.end(), ip.text()) == known.end())
                engine(copy).contacts().remove(ip);
        }
    }
    Messenger &engine(int copy) { return copies[static_cast<std::size_t>(copy)]->engine; }

    std::vector<std::unique_ptr<Copy>> copies;
};

TEST_F(ConferenceStorm, HostsWhoListEachOtherWithoutAWindowDoNotRelayForEver)
{
    listEachOther(2);
    EXPECT_TRUE(hosted(0).send(QStringLiteral("Is anybody here?")));
    EXPECT_TRUE(network.calmDown(12ms)) << network.underWay() << " datagrams are under way";
}

/// Here a writer's address is unknown to the next but one, as a guest's other address is to its host.
TEST_F(ConferenceStorm, NorDoHostsWhoDoNotKnowTheWriter)
{
    listEachOther(1);
    const std::uint64_t sentBefore = network.sent();
    EXPECT_TRUE(hosted(0).send(QStringLiteral("Is anybody here?")));
    EXPECT_TRUE(network.calmDown(12ms)) << network.underWay() << " datagrams are under way";
    EXPECT_EQ(network.sent() - sentBefore, 4u) << "two to the neighbours, and one from each of them";
}

INSTANTIATE_TEST_SUITE_P(Block, ConferenceSim, testing::Range(0, blocks));
INSTANTIATE_TEST_SUITE_P(Block, HostileSim, testing::Range(0, blocks));

} // namespace
} // namespace nimb::test
