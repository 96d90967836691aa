#include "conference/invitations.h"

#include "base/clock_text.h"
#include "base/leading_number.h"
#include "base/limits.h"
#include "base/settings.h"
#include "protocol/send_datagram.h"

#include <algorithm>
#include <limits>

namespace nimb
{
namespace
{

constexpr std::chrono::milliseconds ageingInterval{5000};
/// An age is kept in 16 bits.
constexpr qint64 oldestAge = std::numeric_limits<std::int16_t>::max(); // seconds

} // namespace

// --- the rows

int InvitationList::rowOf(Ipv4Address host, std::int16_t number) const
{
    const auto found
        = std::ranges::find_if(m_rows, [&](const Invitation &one) { return one.host == host && one.number == number; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

void InvitationList::add(const Invitation &invitation)
{
    beginInsertRows({}, rowCount(), rowCount());
    m_rows.push_back(invitation);
    endInsertRows();
}

void InvitationList::remove(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
}

void InvitationList::setState(int row, Invitation::State state)
{
    if (std::exchange(changeable(row).state, state) != state)
        Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

void InvitationList::setMinutes(int row, int minutes)
{
    int &kept = changeable(row).minutes;
    if (std::exchange(kept, minutes) != minutes)
        Q_EMIT dataChanged(index(row, Age), index(row, Age));
}

QString InvitationList::age(const Invitation &invitation) const
{
    switch (invitation.state) {
    case Invitation::State::pending:
        return tr("%1 minute(s)").arg(invitation.minutes);
    case Invitation::State::refused:
        return tr("Refused");
    case Invitation::State::autorefused:
        return tr("Autorefused");
    case Invitation::State::closed:
        return tr("Closed");
    }
    return {};
}

int InvitationList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int InvitationList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant InvitationList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Invitation &invitation = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        break;
    case Qt::ToolTipRole: // for what the column cuts off
        return invitation.text;
    case KeyRole:
        return QStringLiteral("IP%1:%2").arg(addressText(invitation.host)).arg(invitation.number);
    case TagRole:
        return addressText(invitation.host);
    case PictureRole:
        return invitation.state == Invitation::State::pending ? QStringLiteral("green") : QStringLiteral("red");
    default:
        return {};
    }
    switch (index.column()) {
    case Text:
        return invitation.text;
    case Arrived:
        return QString(shortDate(invitation.arrived) + QLatin1Char(' ') + longTime(invitation.arrived));
    case Age:
        return age(invitation);
    default:
        return QString::number(invitation.number);
    }
}

QVariant InvitationList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Text:
        return tr("Invitation");
    case Arrived:
        return tr("Arrived");
    case Age:
        return tr("Age");
    default:
        return tr("Number");
    }
}

// --- the rules

Invitations::Invitations(const Services &services)
    : m_services(services), m_timer1(services.timers.repeating(ageingInterval, [this] { Timer1_Timer(); }))
{
}

void Invitations::Form_Load(InvitationsView &view)
{
    m_view = &view;
    m_autorefuse = readSetting(m_services.store, QLatin1String("AutorefuseConf")).trimmed() == QLatin1String("1");
    setAutorefuseMins(readSetting(m_services.store, QLatin1String("AutorefuseConfMins")));
    view.setAutoRefusal(m_autorefuse, m_autorefuseMins);
}

/// What one host sends must not keep out what others send.
bool Invitations::makeRoom(Ipv4Address host)
{
    int ofHost = 0, overOfHost = -1, over = -1;
    for (int row = m_list.rowCount() - 1; row >= 0; --row) {
        const bool isHosts = m_list.at(row).host == host;
        ofHost += isHosts;
        if (!isPending(row))
            over = row;
        if (isHosts && !isPending(row))
            overOfHost = row;
    }
    const bool hostIsFull = ofHost >= limits::invitationsOfHost;
    if (!hostIsFull && m_list.rowCount() < limits::invitations)
        return true;
    const int oldest = hostIsFull ? overOfHost : over;
    if (oldest >= 0)
        m_list.remove(oldest);
    return oldest >= 0;
}

bool Invitations::arrived(Ipv4Address host, std::int16_t number)
{
    const Contact *const contact = m_services.contacts.find(host);
    if (!contact)
        return false;
    if (const int old = m_list.rowOf(host, number); old >= 0)
        m_list.remove(old);
    else if (!makeRoom(host))
        return false;
    Invitation invitation;
    invitation.host = host;
    invitation.number = number;
    invitation.arrived = m_services.clock.now();
    invitation.text = tr("%1 %2 - %3 invited you to a conference")
                          .arg(shortDate(invitation.arrived), longTime(invitation.arrived), contact->nickname);
    m_list.add(invitation);
    if (!m_timer1->isActive())
        m_timer1->start();
    if (m_view)
        m_view->showWithoutFocus();
    tell(host, contact->nickname);
    return true;
}

void Invitations::tell(Ipv4Address host, const QString &name)
{
    if (!m_view || !m_view->isActive())
        m_services.notices.invitation(host, name);
}

void Invitations::Form_Activate()
{
    for (int row = 0; row < m_list.rowCount(); ++row)
        m_services.notices.seen({NoticeWindow::invitations, m_list.at(row).host});
}

void Invitations::closed(Ipv4Address host, std::int16_t number)
{
    if (const int row = m_list.rowOf(host, number); row >= 0)
        m_list.setState(row, Invitation::State::closed);
}

void Invitations::mnushowinvitations()
{
    if (m_view)
        m_view->showWindow();
}

bool Invitations::isPending(int row) const
{
    return row >= 0 && row < m_list.rowCount() && m_list.at(row).state == Invitation::State::pending;
}

bool Invitations::isAnyOver() const
{
    for (int row = 0; row < m_list.rowCount(); ++row) {
        if (!isPending(row))
            return true;
    }
    return false;
}

bool Invitations::isAnyPending() const
{
    for (int row = 0; row < m_list.rowCount(); ++row) {
        if (isPending(row))
            return true;
    }
    return false;
}

void Invitations::ConfAgreebtn_Click(int row)
{
    if (!isPending(row))
        return;
    const Invitation invitation = m_list.at(row);
    Conference *const there = m_services.conferences.joined(invitation.host, invitation.number);
    if (there)
        there->view().showWindow();
    if (there || m_services.conferences.CreateNewConfWin(false, invitation.number, invitation.host) > 0) {
        sendDatagram(m_services.socket, invitation.host, wire::ConferenceAnswer{invitation.number, true});
        m_list.remove(m_list.rowOf(invitation.host, invitation.number));
    }
    RefreshVisibility();
}

void Invitations::deny(int row)
{
    const Invitation &invitation = m_list.at(row);
    sendDatagram(m_services.socket, invitation.host, wire::ConferenceAnswer{invitation.number, false});
}

void Invitations::ConfDenybtn_Click(int row)
{
    if (row < 0 || row >= m_list.rowCount())
        return;
    deny(row);
    m_list.remove(row);
    RefreshVisibility();
}

void Invitations::ConfDenyAllbtn_Click()
{
    for (int row = 0; row < m_list.rowCount(); ++row) {
        if (!isPending(row))
            continue;
        deny(row);
        m_list.setState(row, Invitation::State::refused);
    }
}

void Invitations::clearbtn_Click()
{
    for (int row = m_list.rowCount() - 1; row >= 0; --row) {
        if (!isPending(row))
            m_list.remove(row);
    }
    RefreshVisibility();
}

void Invitations::RefreshVisibility()
{
    if (m_list.rowCount() == 0 && m_view)
        m_view->hideWindow();
}

QString Invitations::setAutorefuseMins(const QString &text)
{
    m_autorefuseMins = within16Bits(leadingNumber(text));
    return QString::number(m_autorefuseMins);
}

/// Age ends no conference that the user is in, and gives nobody away who is invisible: it is told later.
bool Invitations::isToBeAutorefused(const Invitation &invitation) const
{
    return m_autorefuse && !m_services.common.isInvisible() && invitation.minutes >= m_autorefuseMins
        && !m_services.conferences.joined(invitation.host, invitation.number);
}

/// The timer rests while nothing is pending.
void Invitations::Timer1_Timer()
{
    bool pending = false;
    const QDateTime now = m_services.clock.now();
    for (int row = 0; row < m_list.rowCount(); ++row) {
        if (!isPending(row))
            continue;
        const QDateTime arrived = m_list.at(row).arrived;
        const auto minutes = static_cast<int>(qBound<qint64>(0, arrived.secsTo(now), oldestAge) / 60);
        m_list.setMinutes(row, minutes);
        if (isToBeAutorefused(m_list.at(row))) {
            deny(row);
            m_list.setState(row, Invitation::State::autorefused);
        } else {
            pending = true;
        }
    }
    if (!pending)
        m_timer1->stop();
}

void Invitations::Form_Unload()
{
    m_view = nullptr;
    m_timer1->stop();
    m_services.store.write(QStringLiteral("Settings"), QStringLiteral("AutorefuseConf"),
                           m_autorefuse ? QStringLiteral("1") : QStringLiteral("0"));
    m_services.store.write(QStringLiteral("Settings"), QStringLiteral("AutorefuseConfMins"),
                           QString::number(m_autorefuseMins));
}

} // namespace nimb
