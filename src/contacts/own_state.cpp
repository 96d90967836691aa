#include "contacts/own_state.h"

#include "base/limits.h"

#include <algorithm>

namespace nimb
{

OwnState::OwnState(Common &common, ContactList &contacts, PresenceSender &sender, Announcement &announcement,
                   MainLog &log, OwnStateView &view, std::function<void()> changed)
    : m_common(common), m_contacts(contacts), m_sender(sender), m_announcement(announcement), m_log(log), m_view(view),
      m_changed(std::move(changed))
{
}

void OwnState::append(OwnStateEntry entry)
{
    m_view.addOwnState(entry);
    m_entries.push_back(std::move(entry));
}

void OwnState::appendPersonalized(OwnStateEntry entry)
{
    entry.key = personalizedKey(m_entries.size() - plainEntries + 1);
    append(std::move(entry));
}

QString OwnState::personalizedKey(std::size_t number)
{
    return QStringLiteral("Personalized%1").arg(number);
}

QStringList OwnState::load(const QStringList &storedValues)
{
    const auto appendPlain = [this](BaseState base, const QString &text) {
        append({.text = text, .picture = pictureOf(base), .key = {}, .personalizedText = {}, .base = base});
    };
    appendPlain(BaseState::online, tr("Online"));
    appendPlain(BaseState::busy, tr("Busy"));
    appendPlain(BaseState::away, tr("Away"));
    appendPlain(BaseState::invisible, tr("Invisible"));
    append({.text = tr(" ... add a personalized state..."),
            .picture = {},
            .key = QStringLiteral("_personalized"),
            .personalizedText = {},
            .base = {}});
    QStringList malformed;
    for (const QString &value : storedValues) {
        if (value.isEmpty())
            continue;
        if (std::optional<OwnStateEntry> entry = entryOfStored(value))
            appendPersonalized(std::move(*entry));
        else
            malformed.append(value);
    }
    m_view.selectOwnState(1);
    showRescanHint();
    return malformed;
}

QStringList OwnState::storedValues() const
{
    QStringList values;
    for (auto entry = m_entries.begin() + plainEntries; entry != m_entries.end(); ++entry)
        values.append(storedForm(*entry));
    return values;
}

void OwnState::choose(int position)
{
    if (position < 1 || position > static_cast<int>(m_entries.size()))
        return;
    const OwnStateEntry entry = m_entries[static_cast<std::size_t>(position - 1)];
    m_view.setPersonalizedStateVisible(!entry.base);
    if (!entry.base)
        return m_view.setAutoReply({});
    take(position, {*entry.base, entry.personalizedText});
}

void OwnState::take(int position, const OwnPresence &chosen)
{
    m_chosen = position;
    if (chosen.base != BaseState::invisible)
        become(chosen);
    else if (!m_common.isInvisible())
        goInvisible();
    showAutoReply();
    showRescanHint();
    m_changed();
}

void OwnState::become(BaseState base, const QString &words)
{
    if (m_common.ownPresence == OwnPresence{base, words})
        return; // everybody knows
    const auto isIt = [&](const OwnStateEntry &entry) { return entry.base == base && entry.personalizedText == words; };
    auto entry = std::ranges::find_if(m_entries, isIt);
    if (entry == m_entries.end())
        entry = std::ranges::find(m_entries, std::optional(base), &OwnStateEntry::base);
    const int position = static_cast<int>(entry - m_entries.begin()) + 1;
    m_view.setPersonalizedStateVisible(false);
    m_view.selectOwnState(position);
    take(position, {base, words});
}

void OwnState::cancelPersonalized()
{
    m_view.setPersonalizedStateVisible(false);
    m_view.selectOwnState(m_chosen);
    showAutoReply();
}

void OwnState::become(const OwnPresence &chosen)
{
    const bool wasInvisible = m_common.isInvisible();
    m_common.ownPresence = chosen;
    m_view.setStatusPanel(tr("Status: %1").arg(stateWord(chosen.base)));
    if (wasInvisible) {
        m_view.setRescanEnabled(true);
        m_announcement.run();
    } else {
        tellPresentContacts(&PresenceSender::status);
    }
}

void OwnState::goInvisible()
{
    m_common.ownPresence = {BaseState::invisible, {}};
    m_view.setStatusPanel(tr("Status: %1").arg(stateWord(BaseState::invisible)));
    tellPresentContacts(&PresenceSender::farewell);
    m_announcement.stopAsking();
    m_view.setRescanEnabled(true);
}

void OwnState::tellPresentContacts(void (PresenceSender::*tell)(const ContactAddress &) const)
{
    for (const ContactAddress &ip : m_contacts.addresses()) {
        if (isPresent(m_contacts.find(ip)->presence))
            (m_sender.*tell)(ip);
    }
}

void OwnState::showAutoReply()
{
    const AutoReply &reply = m_common.autoReply;
    if (m_common.ownPresence.base == BaseState::busy)
        m_view.setAutoReply(AutoReplyPanel{reply.onBusy, reply.busyText, tr("AutoReply text (when Busy)")});
    else if (m_common.ownPresence.base == BaseState::away)
        m_view.setAutoReply(AutoReplyPanel{reply.onAway, reply.awayText, tr("AutoReply text (when Away)")});
    else
        m_view.setAutoReply({});
}

void OwnState::showRescanHint()
{
    m_view.setRescanToolTip(m_common.isInvisible() ? tr("You are invisible: rescanning shows you to your contacts")
                                                   : tr("Ask all contacts whether they are there"));
}

bool OwnState::addPersonalized(BaseState base, const QString &text)
{
    if (text.isEmpty())
        return false;
    appendPersonalized(personalizedEntry(base, text));
    const int position = static_cast<int>(m_entries.size());
    if (position - plainEntries > limits::storedPersonalizedStates)
        m_log.remark(tr("Only %1 personalized states are kept: \"%2\" lasts until NIMB-Chat ends.")
                         .arg(QString::number(limits::storedPersonalizedStates), m_entries.back().text));
    m_view.selectOwnState(position);
    choose(position);
    return true;
}

void OwnState::removePersonalized(int position)
{
    if (position <= plainEntries || position > static_cast<int>(m_entries.size()))
        return;
    const auto removed = m_entries.begin() + position - 1;
    const BaseState base = *removed->base;
    const auto behind = m_entries.erase(removed);
    for (auto entry = behind; entry != m_entries.end(); ++entry)
        entry->key = personalizedKey(static_cast<std::size_t>(entry - m_entries.begin()) - plainEntries + 1);
    m_view.removeOwnState(position);
    if (position == m_chosen) {
        const auto plain = std::ranges::find(m_entries, std::optional(base), &OwnStateEntry::base);
        choose(static_cast<int>(plain - m_entries.begin()) + 1);
    } else if (position < m_chosen) {
        --m_chosen;
    }
    m_view.selectOwnState(m_chosen);
    m_changed();
}

void OwnState::setAutoReply(bool on)
{
    const bool busy = m_common.ownPresence.base == BaseState::busy;
    (busy ? m_common.autoReply.onBusy : m_common.autoReply.onAway) = on;
    m_changed();
}

void OwnState::setAutoReplyText(const QString &text)
{
    const bool busy = m_common.ownPresence.base == BaseState::busy;
    (busy ? m_common.autoReply.busyText : m_common.autoReply.awayText) = text;
    m_changed();
}

} // namespace nimb
