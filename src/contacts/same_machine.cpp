#include "contacts/same_machine.h"

#include "base/isolated.h"
#include "base/limits.h"
#include "base/remote_text.h"

#include <algorithm>
#include <cstdlib>

namespace nimb
{
namespace
{

bool haveSameNames(const Contact &one, const Contact &other)
{
    return one.nickname == other.nickname && one.workstation == other.workstation && one.nickname != unknownName
        && one.workstation != unknownName;
}

bool mayBeHidden(const Contact &contact)
{
    return !contact.spokenTo && !contact.soughtByUser && contact.privateWindow == 0 && contact.waitingMessages == 0;
}

bool mayBeElsewhere(const Contact &contact)
{
    return contact.ip.ipv4() && !contact.ip.ipv4()->isLoopback();
}

} // namespace

SameMachine::SameMachine(ContactList &contacts, MainLog &log) : m_contacts(contacts), m_log(log)
{
    m_connections
        = {QObject::connect(&contacts, &ContactList::dataChanged,
                            [this](const QModelIndex &first) { checkThoseOf(m_contacts.at(first.row()).ip); }),
           QObject::connect(&contacts, &ContactList::rowsRemoved, [this] { check(); })};
}

SameMachine::~SameMachine()
{
    for (const QMetaObject::Connection &connection : m_connections)
        QObject::disconnect(connection);
}

void SameMachine::seenOnline(Ipv4Address ip, bool)
{
    const Contact *const seen = m_contacts.find(ip);
    if (!seen || seen->shownBy || !mayBeElsewhere(*seen))
        return;
    const std::vector<const Contact *> others = m_contacts.lookAlikesOf(ip, limits::lookAlikesCompared);
    const auto isSame = [seen](const Contact *other) {
        return !other->shownBy && mayBeElsewhere(*other) && isPresent(other->presence) && haveSameNames(*seen, *other)
            && std::abs(seen->seenAt - other->seenAt) <= limits::sameMachineTime.count();
    };
    if (const auto same = std::ranges::find_if(others, isSame); same != others.end())
        showOnce(*seen, **same);
}

void SameMachine::showOnce(const Contact &later, const Contact &earlier)
{
    const bool laterGoes
        = mayBeHidden(later) && (!mayBeHidden(earlier) || !later.isAcquaintance() || earlier.isAcquaintance());
    if (laterGoes)
        hide(*later.ip.ipv4(), *earlier.ip.ipv4());
    else if (mayBeHidden(earlier))
        hide(*earlier.ip.ipv4(), *later.ip.ipv4());
}

void SameMachine::hide(Ipv4Address hidden, Ipv4Address shown)
{
    if (m_hidden.size() >= limits::machinesShownOnce)
        return;
    m_hidden.insert({hidden, shown});
    m_contacts.change(hidden, [shown](Contact &contact) { contact.shownBy = shown; });
    m_log.note(
        tr("%1 answers from %2 and from %3 and is shown once")
            .arg(isolated(paintedName(m_contacts.find(shown)->nickname)), addressText(shown), addressText(hidden)));
}

bool SameMachine::staysHidden(Ipv4Address hiddenAddress, Ipv4Address shownAddress) const
{
    const Contact *const hidden = m_contacts.find(hiddenAddress), *const shown = m_contacts.find(shownAddress);
    return hidden && shown && mayBeHidden(*hidden) && haveSameNames(*hidden, *shown)
        && shown->presence != Presence::offline && (hidden->presence != Presence::offline || !hidden->isAcquaintance());
}

/// Every datagram of a contact changes its row, and nearly none is one of these.
void SameMachine::checkThoseOf(const ContactAddress &changed)
{
    const std::optional<Ipv4Address> &ip = changed.ipv4();
    if (std::ranges::any_of(m_hidden, [&ip](const auto &pair) { return ip == pair.first || ip == pair.second; }))
        check();
}

void SameMachine::check()
{
    std::vector<Ipv4Address> shownAgain;
    for (const auto &[hidden, shown] : m_hidden) {
        if (!staysHidden(hidden, shown))
            shownAgain.push_back(hidden);
    }
    for (const Ipv4Address address : shownAgain) {
        m_hidden.erase(address);
        m_contacts.change(address, [](Contact &contact) { contact.shownBy.reset(); });
    }
}

} // namespace nimb
