#include "contacts/announcement.h"

#include "base/limits.h"
#include "base/own_address.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

namespace nimb
{
namespace
{

wire::Identity ownIdentity(const Common &common, Ipv4Address ip)
{
    return {ip.toText(), toWire(common.ownHostName), toWire(common.ownNickname)};
}

} // namespace

wire::Identity PresenceSender::identityFor(const ContactAddress &ip) const
{
    return ownIdentity(m_common, ownAddressTowards(m_common, m_socket, ip.ipv4()));
}

void PresenceSender::question(const ContactAddress &ip) const
{
    sendDatagram(m_socket, ip.ipv4(), wire::OnlineQuestion{identityFor(ip)});
}

void PresenceSender::questionToAll(Ipv4Address ip, std::optional<Ipv4Address> source) const
{
    const wire::Identity identity = ownIdentity(m_common, source ? *source : ownAddressTowards(m_common, m_socket, ip));
    const std::optional<Ipv4Address> usual = m_socket.source();
    m_socket.setBroadcast(true);
    m_socket.setSource(source ? source : usual);
    sendDatagram(m_socket, ip, wire::OnlineQuestion{identity});
    const BaseState own = m_common.ownPresence.base;
    if (own == BaseState::busy || own == BaseState::away)
        status(ip);
    m_socket.setSource(usual);
    m_socket.setBroadcast(false);
}

void PresenceSender::answer(const ContactAddress &ip) const
{
    sendDatagram(m_socket, ip.ipv4(), wire::OnlineAnswer{identityFor(ip)});
}

void PresenceSender::farewell(const ContactAddress &ip) const
{
    sendDatagram(m_socket, ip.ipv4(), wire::Offline{identityFor(ip)});
}

void PresenceSender::status(const ContactAddress &ip) const
{
    const OwnPresence &own = m_common.ownPresence;
    sendDatagram(m_socket, ip.ipv4(), wire::Status{toWire(stateWord(own.base)), toWire(own.words)});
}

void PresenceSender::statusUnlessOnline(const ContactAddress &ip) const
{
    if (m_common.ownPresence.base != BaseState::online)
        status(ip);
}

Announcement::Announcement(Common &common, ContactList &contacts, PresenceSender &sender, Timers &timers,
                           const WallClock &clock, AnnouncementView &view)
    : m_common(common), m_contacts(contacts), m_sender(sender), m_view(view), m_clock(clock),
      m_nextBatch(timers.oneShot(std::chrono::milliseconds(0), [this] { askNextBatch(); })),
      m_look(timers.oneShot(limits::questionsLooked, [this] { askNextBatch(); })),
      m_timer1(timers.oneShot(limits::announcementTime, [this] { Timer1_Timer(); }))
{
    QObject::connect(&contacts, &ContactList::dataChanged, &contacts,
                     [this](const QModelIndex &first) { contactChanged(m_contacts.at(first.row())); });
}

void Announcement::run()
{
    m_timer1->stop();
    m_common.announcing = true;
    m_view.setRescanEnabled(false);
    m_toAsk = m_contacts.addresses();
    m_asked = 0;
    m_questions.clear();
    m_unanswered.clear();
    askNextBatch();
}

void Announcement::runUnlessInvisible()
{
    if (!m_common.isInvisible())
        run();
}

void Announcement::stopAsking()
{
    if (m_asked == m_toAsk.size())
        return;
    m_toAsk.resize(m_asked);
    m_nextBatch->stop();
    m_look->stop();
    m_timer1->start();
}

void Announcement::askNextBatch()
{
    m_look->stop();
    forgetTheSilent();
    const std::size_t end = std::min(m_toAsk.size(), m_asked + limits::announcementBatch);
    while (m_asked < end && !isFull())
        ask(m_toAsk.at(m_asked++));
    if (m_asked == m_toAsk.size())
        m_timer1->start();
    else if (isFull())
        m_look->start();
    else
        m_nextBatch->start();
}

/// Whoever has been heard of has answered.
void Announcement::contactChanged(const Contact &contact)
{
    const bool waits = m_look->isActive();
    if (contact.presence == Presence::unknown || !m_unanswered.remove(contact.ip) || !waits)
        return;
    m_look->stop();
    m_nextBatch->start();
}

void Announcement::forgetTheSilent()
{
    const qint64 now = m_clock.now().toMSecsSinceEpoch();
    const auto isOver = [now](const Question &question) {
        return now - question.asked >= limits::announcementTime.count() || now < question.asked; // or set back
    };
    for (; !m_questions.empty() && isOver(m_questions.front()); m_questions.pop_front())
        m_unanswered.remove(m_questions.front().ip);
}

void Announcement::ask(const ContactAddress &ip)
{
    const bool stillThere = m_contacts.change(ip, [](Contact &contact) {
        contact.setPresence(Presence::unknown);
        contact.state.clear();
    });
    if (!stillThere)
        return;
    m_sender.question(ip);
    m_sender.statusUnlessOnline(ip);
    if (!ip.ipv4())
        return; // nothing was sent
    m_questions.push_back({ip, m_clock.now().toMSecsSinceEpoch()});
    m_unanswered.insert(ip);
}

void Announcement::Timer1_Timer()
{
    for (const ContactAddress &ip : m_contacts.addresses()) {
        if (m_contacts.find(ip)->presence == Presence::unknown)
            m_contacts.change(ip, [](Contact &contact) { contact.setPresence(Presence::offline); });
    }
    m_view.refreshContextMenu();
    m_view.setRescanEnabled(true);
    m_common.announcing = false;
}

} // namespace nimb
