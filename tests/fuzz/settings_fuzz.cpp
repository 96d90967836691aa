// Starts whole copies over any stored values, and over any changes that a killed run has kept beside them.
//
// The input is a sequence of entries: one byte that chooses the key (keyOf), one that says where the value stands
// (`places`), one with its length, and that many bytes of UTF-8.
#include "input.h"
#include "require.h"
#include "whole_engine.h"

#include "simulated_network.h"

#include "base/limits.h"
#include "base/settings.h"
#include "base/shown_name.h"

#include <memory>
#include <set>

namespace
{

using namespace nimb;
using namespace nimb::test;

enum Place { stored, keptBeside, keptAsGone, places };

struct Copy : WholeEngine<SimulatedWinsock> {
    Copy()
        : WholeEngine(std::make_shared<VirtualTime>(), [](DropCounts &) {
              return SimulatedWinsock(QStringLiteral("10.0.0.1"), QStringLiteral("HERE"), nullptr);
          })
    {
        common.ownIP = Ipv4Address(10, 0, 0, 1);
        common.ownHostName = QStringLiteral("HERE");
        common.ownNickname = QStringLiteral("Me");
    }

    void start()
    {
        engine.invitations().Form_Load(invitationsView);
        engine.mainWindow().Form_Load();
        time->advance(limits::announcementTime + limits::keepDelay);
    }
};

using Name = std::pair<QString, QString>;

/// Every key that there is, then those of contacts: as they are stored, and as they are kept.
Name keyOf(std::uint8_t choice)
{
    static const std::vector<Name> named = [] {
        std::vector<Name> all;
        for (const SettingKey &key : settingKeys)
            all.emplace_back(QLatin1String(key.section), QLatin1String(key.key));
        for (const OptionRow &row : optionRows)
            all.emplace_back(QStringLiteral("Options"), QLatin1String(row.key));
        for (int n = 1; n <= limits::storedPersonalizedStates + 1; ++n)
            all.emplace_back(QStringLiteral("Settings"), QStringLiteral("PersonalizedState%1").arg(n));
        return all;
    }();
    if (choice < named.size())
        return named[choice];
    static const std::array kinds{QStringLiteral("IP"), QStringLiteral("Nn"), QStringLiteral("Ws"),
                                  QStringLiteral("Nn:"), QStringLiteral("Ws:")};
    const std::size_t number = choice - named.size();
    const QString kind = kinds[number % kinds.size()];
    const QString rest = kind.endsWith(u':') ? QStringLiteral("10.0.0.%1").arg(number / kinds.size())
                                             : QString::number(1 + number / kinds.size());
    return {QStringLiteral("Users"), kind + rest};
}

void fill(MemoryStore &store, FuzzInput input)
{
    while (!input.atEnd()) {
        const Name name = keyOf(input.next());
        const int place = input.next() % places;
        const QString text = QString::fromStdString(input.nextBytes(input.next()));
        if (place == stored)
            store.saved[name] = text;
        else
            store.kept[name] = place == keptBeside ? std::optional(text) : std::nullopt;
    }
    // A picture is longer than an entry: a short text stands for that many of its first character.
    QString &body = store.saved[{QStringLiteral("Settings"), QStringLiteral("AvatarBody")}];
    if (body.size() == 1)
        body = QString(avatarBytes, body.front());
}

std::map<QString, std::pair<QString, QString>> contactsOf(Copy &copy)
{
    std::map<QString, std::pair<QString, QString>> all;
    for (int row = 0; row < copy.engine.contacts().rowCount(); ++row) {
        const Contact &contact = copy.engine.contacts().at(row);
        require(all.emplace(contact.ip.text(), std::pair(contact.nickname, contact.workstation)).second,
                "no contact is listed twice");
    }
    return all;
}

std::vector<QString> statesOf(Copy &copy)
{
    std::vector<QString> all;
    for (const OwnStateEntry &entry : copy.engine.ownState().entries())
        all.push_back(entry.text);
    return all;
}

void checkLoaded(Copy &copy)
{
    const Common &common = copy.common;
    require(common.udpPort >= 1 && copy.socket.localPort == common.udpPort, "a port is one that can be bound");
    require(std::isfinite(common.mainPlace.left) && std::isfinite(common.mainPlace.top)
                && std::isfinite(common.mainPlace.height),
            "a place is somewhere");
    require(common.recentEmoji.size() <= limits::recentEmoji, "no more emoji are remembered than are offered");
    require(common.avatarBody.isEmpty() || common.avatarBody.size() == avatarBytes, "a picture is whole or none");
    require(copy.invitationsView.autorefuseMins >= -32768 && copy.invitationsView.autorefuseMins <= 32767,
            "minutes fit 16 bits");
    require(copy.engine.ownState().entries().size() <= OwnState::plainEntries + limits::storedPersonalizedStates,
            "there are no more states than are stored");
    for (const auto &[ip, names] : contactsOf(copy)) {
        require(!ip.isEmpty(), "every contact has an address or what stands in its place");
        for (const QString &name : {names.first, names.second}) {
            require(name.size() <= limits::nameLength && !isBlank(name), "a name can be seen and has its limit");
            require(!name.contains(u'\n') && !name.contains(u'\r'), "a name is one line");
        }
    }
    for (const To &sent : copy.socket.sent) {
        const std::optional<Ipv4Address> ip = Ipv4Address::parse(sent.ip);
        require(ip && !SimulatedWinsock::isBroadcast(*ip), "nothing but one address is written to");
    }
}

bool saysThatSomethingWasTakenOver(const Copy &copy)
{
    return copy.view.log.text().contains(QLatin1String("could not save everything"));
}

/// What a start has made of it, but for addresses that end the stored list.
struct State {
    std::map<QString, std::pair<QString, QString>> contacts;
    std::vector<QString> states;
    QString avatarHead, font, busy, away;
    std::uint16_t port = 0;
    bool operator==(const State &) const = default;
};

State stateOf(Copy &copy)
{
    State state{.contacts = contactsOf(copy),
                .states = statesOf(copy),
                .avatarHead = copy.common.avatarHead,
                .font
                = copy.common.logFont.face + copy.common.logFont.style + QString::number(copy.common.logFont.size),
                .busy = copy.common.autoReply.busyText,
                .away = copy.common.autoReply.awayText,
                .port = copy.common.udpPort};
    state.contacts.erase(endOfStoredContacts);
    return state;
}

/// A next run over what that one has left behind.
std::unique_ptr<Copy> nextRun(const Copy &former)
{
    auto next = std::make_unique<Copy>();
    next->settings.saved = former.settings.saved;
    next->settings.kept = former.settings.kept;
    next->start();
    checkLoaded(*next);
    return next;
}

/// What the user and peers change before the run is killed.
void changeSomething(Copy &copy)
{
    Contact contact;
    contact.ip = Ipv4Address(10, 0, 9, 9);
    contact.nickname = contact.workstation = QStringLiteral("New");
    contact.setUnheard();
    copy.engine.contacts().add(std::move(contact));
    if (copy.engine.contacts().rowCount() > 1)
        copy.engine.contacts().remove(copy.engine.contacts().at(0).ip);
    static_cast<void>(copy.engine.ownState().addPersonalized(BaseState::busy, QStringLiteral("Reading")));
    copy.time->advance(2 * limits::keepDelay);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Copy first;
    fill(first.settings, FuzzInput(data, size));
    const bool somethingKept = !first.settings.kept.empty();
    first.start();
    checkLoaded(first);
    require(saysThatSomethingWasTakenOver(first) == somethingKept, "what was taken over is said");

    changeSomething(first); // then it is killed
    const State changed = stateOf(first);
    const std::unique_ptr<Copy> second = nextRun(first);
    State found = stateOf(*second);
    // Of the states only so many are kept.
    while (found.states.size() < changed.states.size()
           && found.states.size() == OwnState::plainEntries + limits::storedPersonalizedStates)
        found.states.push_back(changed.states[found.states.size()]);
    require(found == changed, "what had changed survives the end of a killed run");

    second->engine.mainWindow().Form_Unload();
    require(second->settings.kept.empty(), "an orderly end leaves nothing to be taken over");
    const std::unique_ptr<Copy> third = nextRun(*second);
    require(stateOf(*third) == stateOf(*second), "what was saved is read back");
    require(!saysThatSomethingWasTakenOver(*third), "after an orderly end nothing is taken over");
    third->engine.mainWindow().Form_Unload();
    require(third->settings.saved == second->settings.saved, "a run in which nothing happens saves what it has read");
    return 0;
}
