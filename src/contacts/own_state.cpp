#include "contacts/own_state.h"

#include "base/limits.h"

namespace nimb
{
namespace
{

const QString separator = QStringLiteral(" - ");

/// A stored value is the position digit of the picture, directly followed by the text.
std::optional<OwnStateEntry> entryOf(const QString &stored)
{
    const std::optional<Picture> picture = pictureAt(stored.front().digitValue());
    if (!picture)
        return std::nullopt;
    const QString text = stored.mid(1);
    return OwnStateEntry{OwnState::baseName(*picture) + separator + text, *picture, {}, text};
}

} // namespace

OwnState::OwnState(Common &common, ContactList &contacts, PresenceSender &sender, Announcement &announcement,
                   MainLog &log, OwnStateView &view)
    : m_common(common), m_contacts(contacts), m_sender(sender), m_announcement(announcement), m_log(log), m_view(view)
{
}

QString OwnState::baseName(Picture picture)
{
    if (picture == Picture::green)
        return QStringLiteral("Online");
    QString name = pictureKey(picture);
    name[0] = name[0].toUpper();
    return name;
}

void OwnState::append(OwnStateEntry entry)
{
    m_view.addOwnState(entry);
    m_entries.push_back(std::move(entry));
}

QStringList OwnState::load(const QStringList &storedValues)
{
    append({tr("Online"), Picture::green, {}, {}});
    append({tr("Busy"), Picture::busy, {}, {}});
    append({tr("Away"), Picture::away, {}, {}});
    append({tr("Invisible"), Picture::invisible, {}, {}});
    append({tr(" ... add a personalized state..."), std::nullopt, QStringLiteral("_personalized"), {}});
    QStringList malformed;
    for (const QString &value : storedValues) {
        if (value.isEmpty())
            continue;
        std::optional<OwnStateEntry> entry = entryOf(value);
        if (!entry) {
            malformed.append(value);
            continue;
        }
        entry->key = QStringLiteral("Personalized%1").arg(m_entries.size() - plainEntries + 1);
        append(std::move(*entry));
    }
    m_view.selectOwnState(1);
    showRescanHint();
    return malformed;
}

QStringList OwnState::storedValues() const
{
    QStringList values;
    for (auto entry = m_entries.begin() + plainEntries; entry != m_entries.end(); ++entry)
        values.append(QString::number(picturePosition(*entry->picture)) + entry->personalizedText);
    return values;
}

void OwnState::choose(int position)
{
    if (position < 1 || position > static_cast<int>(m_entries.size()))
        return;
    const bool wasInvisible = m_common.isInvisible();
    const OwnStateEntry entry = m_entries[static_cast<std::size_t>(position - 1)];
    const Picture picture = entry.picture.value_or(Picture::yellow);

    const bool asksForText = picture == Picture::yellow || picture == Picture::red;
    m_view.setPersonalizedStateVisible(asksForText);
    if (asksForText)
        return m_view.setAutoReply({});
    m_chosen = position;
    if (picture == Picture::green)
        setState(QStringLiteral("ONLINE"), entry.personalizedText, wasInvisible);
    else if (picture == Picture::busy)
        setState(QStringLiteral("BUSY"), entry.personalizedText, wasInvisible);
    else if (picture == Picture::away)
        setState(QStringLiteral("AWAY"), entry.personalizedText, wasInvisible);
    else if (!wasInvisible)
        goInvisible();
    showAutoReply();
    showRescanHint();
}

void OwnState::cancelPersonalized()
{
    m_view.setPersonalizedStateVisible(false);
    m_view.selectOwnState(m_chosen);
    showAutoReply();
}

void OwnState::setState(const QString &word, const QString &text, bool wasInvisible)
{
    m_common.ownState = word;
    m_common.ownStateText = text;
    m_view.setStatusPanel(tr("Status: %1").arg(word));
    if (wasInvisible) {
        m_view.setRescanEnabled(true);
        m_announcement.run();
    } else {
        tellPresentContacts(&PresenceSender::status);
    }
}

void OwnState::goInvisible()
{
    m_common.ownState = QStringLiteral("Invisible");
    m_common.ownStateText.clear();
    m_view.setStatusPanel(tr("Status: %1").arg(m_common.ownState));
    tellPresentContacts(&PresenceSender::farewell);
    m_view.setRescanEnabled(true);
}

void OwnState::tellPresentContacts(void (PresenceSender::*tell)(const QString &) const)
{
    for (const QString &ip : m_contacts.addresses()) {
        if (isPresent(m_contacts.find(ip)->presence))
            (m_sender.*tell)(ip);
    }
}

void OwnState::showAutoReply()
{
    const AutoReply &reply = m_common.autoReply;
    if (m_common.ownState == QLatin1String("BUSY"))
        m_view.setAutoReply(AutoReplyPanel{reply.onBusy, reply.busyText, tr("AutoReply text (when Busy)")});
    else if (m_common.ownState == QLatin1String("AWAY"))
        m_view.setAutoReply(AutoReplyPanel{reply.onAway, reply.awayText, tr("AutoReply text (when Away)")});
    else
        m_view.setAutoReply({});
}

void OwnState::showRescanHint()
{
    m_view.setRescanToolTip(m_common.isInvisible() ? tr("You are invisible: rescanning shows you to your contacts")
                                                   : tr("Ask all contacts whether they are there"));
}

bool OwnState::addPersonalized(Picture base, const QString &text)
{
    if (text.isEmpty())
        return false;
    const int number = static_cast<int>(m_entries.size()) - plainEntries + 1;
    append({baseName(base) + separator + text, base, QStringLiteral("Personalized%1").arg(number), text});
    if (number > limits::storedPersonalizedStates)
        m_log.remark(tr("Only %1 personalized states are kept: \"%2\" lasts until NIMB-Chat ends.")
                         .arg(QString::number(limits::storedPersonalizedStates), m_entries.back().text));
    const int position = static_cast<int>(m_entries.size());
    m_view.selectOwnState(position);
    choose(position);
    return true;
}

void OwnState::setAutoReply(bool on)
{
    const bool busy = m_common.ownState == QLatin1String("BUSY");
    (busy ? m_common.autoReply.onBusy : m_common.autoReply.onAway) = on;
}

void OwnState::setAutoReplyText(const QString &text)
{
    const bool busy = m_common.ownState == QLatin1String("BUSY");
    (busy ? m_common.autoReply.busyText : m_common.autoReply.awayText) = text;
}

} // namespace nimb
