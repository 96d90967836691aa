#include "main_window/recovery.h"

#include "base/limits.h"
#include "base/settings.h"

#include <algorithm>

namespace nimb
{
namespace
{

const QString usersSection = QStringLiteral("Users");
const QString nicknamePrefix = QStringLiteral("Nn:");
const QString workstationPrefix = QStringLiteral("Ws:"); // of the same length
const QString mutePrefix = QStringLiteral("Mt:");

/// Takes what would be saved.
class Collector : public SettingsSink
{
public:
    void write(const QString &section, const QString &key, const QString &value) override
    {
        values.insert_or_assign({section, key}, value);
    }

    std::map<std::pair<QString, QString>, QString> values;
};

} // namespace

Recovery::Recovery(const Parts &parts)
    : m_parts(parts), m_delay(parts.timers.oneShot(limits::keepDelay, [this] { keep(); })),
      m_retry(parts.timers.oneShot(limits::keepRetry, [this] { retry(); }))
{
}

void Recovery::takeOver()
{
    for (const ContactAddress &ip : m_parts.contacts.addresses())
        m_storedContacts.insert(ip);
    const RecoveredChanges recovered = m_parts.store.recovered();
    if (recovered.changes.empty() && recovered.unreadable == 0)
        return;
    for (const KeptChange &change : recovered.changes)
        takeOver(change);
    QString line = tr("--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---");
    if (recovered.unreadable > 0)
        line = tr("--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for "
                  "%1 damaged values ---")
                   .arg(recovered.unreadable);
    m_parts.log.remark(line);
}

/// The settings are read with their changes; only contacts have to be found by their address.
void Recovery::takeOver(const KeptChange &change)
{
    if (change.section != usersSection)
        return;
    const ContactAddress ip = change.key.mid(nicknamePrefix.size());
    if (!change.value) {
        m_parts.contacts.remove(ip);
        return;
    }
    const bool isNickname = change.key.startsWith(nicknamePrefix);
    const bool isMute = change.key.startsWith(mutePrefix);
    if (!isNickname && !isMute && !change.key.startsWith(workstationPrefix))
        return;
    if (!m_parts.contacts.find(ip)) {
        Contact contact;
        contact.ip = ip;
        contact.nickname = unknownName;
        contact.workstation = unknownName;
        m_parts.contacts.add(std::move(contact));
    }
    m_parts.contacts.change(ip, [&change, isNickname, isMute](Contact &contact) {
        if (isMute) {
            contact.muted = *change.value == storedMute;
            return;
        }
        (isNickname ? contact.nickname : contact.workstation) = nameOrUnknown(*change.value);
        contact.setUnheard();
    });
}

void Recovery::begin(const QStringList &storedStates)
{
    if (m_parts.store.problem())
        return; // which has been said; trying again and again would help nobody
    m_keptSettings = settings(storedStates);
    for (const ContactAddress &ip : m_parts.contacts.addresses())
        m_keptContacts.insert(ip, *toKeepOf(ip));
    watchContacts();
    m_begun = true;
}

void Recovery::watchContacts()
{
    ContactList &contacts = m_parts.contacts;
    const auto came = [this](const QModelIndex &, int first, int last) {
        for (int row = first; row <= last; ++row)
            m_changedContacts.insert(m_parts.contacts.at(row).ip);
        wait();
    };
    const auto goes = [this](const QModelIndex &, int first, int last) {
        for (int row = first; row <= last; ++row)
            contactGoes(m_parts.contacts.at(row).ip);
    };
    const auto changed = [this](const QModelIndex &first, const QModelIndex &last) {
        for (int row = first.row(); row <= last.row(); ++row)
            contactChanged(m_parts.contacts.at(row));
    };
    QObject::connect(&contacts, &ContactList::rowsInserted, &m_connections, came);
    QObject::connect(&contacts, &ContactList::rowsAboutToBeRemoved, &m_connections, goes);
    QObject::connect(&contacts, &ContactList::dataChanged, &m_connections, changed);
}

/// Most changes are of the presence, which is not kept.
void Recovery::contactChanged(const Contact &contact)
{
    const auto kept = m_keptContacts.constFind(contact.ip);
    if (kept != m_keptContacts.cend() && *kept == Kept{contact.nickname, contact.workstation, contact.muted})
        return;
    m_changedContacts.insert(contact.ip);
    wait();
}

/// Who came since the last time and goes before the next one leaves nothing to keep.
void Recovery::contactGoes(const ContactAddress &ip)
{
    if (!m_keptContacts.contains(ip) && !m_storedContacts.contains(ip)) {
        m_changedContacts.remove(ip);
        return;
    }
    m_changedContacts.insert(ip);
    wait();
}

void Recovery::settingsChanged()
{
    if (m_begun)
        wait();
}

void Recovery::end()
{
    m_begun = false;
    m_delay->stop();
    m_retry->stop();
    QObject::disconnect(&m_parts.contacts, nullptr, &m_connections, nullptr);
}

/// From the first change on, or a stream of them would never be kept.
void Recovery::wait()
{
    if (!m_delay->isActive())
        m_delay->start();
}

void Recovery::keep()
{
    m_retry->stop();
    Values now = settings(m_parts.ownState.storedValues());
    const Changes changes = changesOf(now);
    if (!changes.kept.empty() || !changes.undone.empty()) {
        const std::optional<QString> problem = m_parts.store.keep(changes.kept, changes.undone);
        if (problem && !std::exchange(m_failing, true))
            m_parts.log.fault(*problem);
        if (problem)
            return keepLater();
    }
    m_failing = false;
    m_pause = 0;
    keptAre(std::move(now));
}

void Recovery::keepLater()
{
    m_pause = std::clamp(m_pause * 2, 1, limits::longestKeepRetry);
    m_pauseLeft = m_pause;
    m_retry->start();
}

void Recovery::retry()
{
    if (--m_pauseLeft > 0)
        return m_retry->start();
    keep();
}

Recovery::Values Recovery::settings(const QStringList &states) const
{
    m_parts.common.mainPlace = m_parts.view.place();
    Collector collector;
    saveSettings(collector, m_parts.common, states);
    return std::move(collector.values);
}

std::optional<Recovery::Kept> Recovery::toKeepOf(const ContactAddress &ip) const
{
    const Contact *const contact = m_parts.contacts.find(ip);
    return contact ? std::optional(Kept{contact->nickname, contact->workstation, contact->muted}) : std::nullopt;
}

Recovery::Changes Recovery::changesOf(const Values &now) const
{
    Changes changes;
    for (const auto &[name, value] : now) {
        const auto kept = m_keptSettings.find(name);
        if (kept == m_keptSettings.end() || kept->second != value)
            changes.kept.push_back({name.first, name.second, value});
    }
    for (const ContactAddress &ip : m_changedContacts)
        addContact(ip, changes);
    return changes;
}

void Recovery::addContact(const ContactAddress &ip, Changes &changes) const
{
    const QString address = ip.text();
    if (address == endOfStoredContacts)
        return; // The stored list ends at this address, so it is not stored either.
    const QString nicknameKey = nicknamePrefix + address;
    const QString workstationKey = workstationPrefix + address;
    const QString muteKey = mutePrefix + address;
    const bool wasMuted = m_keptContacts.value(ip).muted;
    if (const std::optional<Kept> now = toKeepOf(ip)) {
        changes.kept.push_back({usersSection, nicknameKey, now->nickname});
        changes.kept.push_back({usersSection, workstationKey, now->workstation});
        if (now->muted || wasMuted)
            changes.kept.push_back({usersSection, muteKey, now->muted ? storedMute : QString()});
    } else if (m_storedContacts.contains(ip)) {
        changes.kept.push_back({usersSection, nicknameKey, std::nullopt});
        changes.kept.push_back({usersSection, workstationKey, std::nullopt});
        if (wasMuted)
            changes.undone.push_back({usersSection, muteKey});
    } else {
        changes.undone.push_back({usersSection, nicknameKey});
        changes.undone.push_back({usersSection, workstationKey});
        if (wasMuted)
            changes.undone.push_back({usersSection, muteKey});
    }
}

void Recovery::keptAre(Values now)
{
    m_keptSettings = std::move(now);
    for (const ContactAddress &ip : std::exchange(m_changedContacts, {})) {
        if (std::optional<Kept> kept = toKeepOf(ip))
            m_keptContacts.insert(ip, *std::move(kept));
        else
            m_keptContacts.remove(ip);
    }
}

} // namespace nimb
