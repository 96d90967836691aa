#include "contacts/announcement.h"

#include "base/limits.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

namespace nimb
{
namespace
{

wire::Identity ownIdentity(const Common &common)
{
    return {common.ownIP.toText(), toWire(common.ownHostName), toWire(common.ownNickname)};
}

} // namespace

void PresenceSender::question(const ContactAddress &ip) const
{
    sendDatagram(m_socket, ip.ipv4(), wire::OnlineQuestion{ownIdentity(m_common)});
}

void PresenceSender::answer(const ContactAddress &ip) const
{
    sendDatagram(m_socket, ip.ipv4(), wire::OnlineAnswer{ownIdentity(m_common)});
}

void PresenceSender::farewell(const ContactAddress &ip) const
{
    sendDatagram(m_socket, ip.ipv4(), wire::Offline{ownIdentity(m_common)});
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
                           AnnouncementView &view)
    : m_common(common), m_contacts(contacts), m_sender(sender), m_view(view),
      m_nextBatch(timers.oneShot(std::chrono::milliseconds(0), [this] { askNextBatch(); })),
      m_timer1(timers.oneShot(limits::announcementTime, [this] { Timer1_Timer(); }))
{
}

void Announcement::run()
{
    m_timer1->stop();
    m_common.announcing = true;
    m_view.setRescanEnabled(false);
    m_toAsk = m_contacts.addresses();
    m_asked = 0;
    askNextBatch();
}

void Announcement::runUnlessInvisible()
{
    if (!m_common.isInvisible())
        run();
}

void Announcement::askNextBatch()
{
    const std::size_t end = std::min(m_toAsk.size(), m_asked + limits::announcementBatch);
    while (m_asked < end)
        ask(m_toAsk.at(m_asked++));
    if (m_asked < m_toAsk.size())
        m_nextBatch->start();
    else
        m_timer1->start();
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
