#include "conference/conference.h"

#include "base/clock_text.h"
#include "base/limits.h"
#include "base/remote_text.h"
#include "conversation/message_text.h"
#include "log/emoticons.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

namespace nimb
{
namespace
{

QString withoutOuterBlanks(const QString &text)
{
    qsizetype first = 0, end = text.size();
    while (first < end && text[first] == u' ')
        ++first;
    while (end > first && text[end - 1] == u' ')
        --end;
    return text.mid(first, end - first);
}

} // namespace

Conference::Conference(const Services &services, Identity identity, std::function<void()> unloaded)
    : m_services(services), m_identity(std::move(identity)), m_unloaded(std::move(unloaded))
{
    m_participants.add({.ip = services.common.ownIP,
                        .name = tr("%1 (you)").arg(services.common.ownNickname),
                        .present = true,
                        .own = true});
    m_view = services.forms.makeConferenceForm(*this);
    m_view->setCaption(caption());
}

QString Conference::caption() const
{
    if (isHostedHere())
        return tr("Conference #%1 (Hosted here) - NIMB-Chat").arg(m_identity.fConfN);
    const Contact *const host = m_services.contacts.find(m_identity.ConfServerIP);
    return tr("Conference #%1 (Hosted by '%2') - NIMB-Chat")
        .arg(m_identity.fConfN)
        .arg(host ? host->nickname : m_identity.ConfServerIP);
}

// --- writing

void Conference::Clearbtn_Click()
{
    const LogFont &font = m_services.common.logFont;
    m_view->setLogFont(font);
    RichTextLog &log = m_view->outtext();
    log.clear();
    log.setSelStart(0);
    log.setSelColor(colours::banner);
    log.setSelFont(font);
    const QDateTime now = m_services.clock.now();
    log.setSelText(tr("« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »")
                       .arg(shortDate(now), longTime(now))
                       .arg(m_identity.fConfN)
                   + QLatin1String("\r\n"));
}

void Conference::appendMessage(const Writer &writer, const QString &text)
{
    RichTextLog &log = m_view->outtext();
    appendText(log, writer.name + QLatin1String("> "), writer.colour);
    AddTextWithEmoticons(log, text, writer.colour);
    appendText(log, QStringLiteral("\r\n"), writer.colour);
}

bool Conference::sendbtn_Click(const QString &typed)
{
    if (typed.isEmpty() || m_terminated)
        return false;
    const QString text = TrimTrailingBreaks(withoutOuterBlanks(cutText(typed, limits::messageLength)));
    relay(text, m_services.common.ownIP);
    appendMessage({m_services.common.ownNickname, m_view->windowTextColour()}, text);
    showOwnAvatar();
    return true;
}

void Conference::relay(const QString &text, const QString &origin)
{
    const bool isOwn = origin == m_services.common.ownIP;
    const wire::ConferenceMessage message{origin.toStdString(), m_identity.ConfNum, toWire(text)};
    if (!isHostedHere()) {
        if (isOwn)
            sendDatagram(m_services.socket, m_identity.ConfServerIP, message);
        return;
    }
    const std::string bytes = wire::serialise(message);
    for (const Participant &participant : m_participants.rows()) {
        if (participant.isPresentPeer() && participant.ip != origin)
            sendBytes(m_services.socket, participant.ip, bytes);
    }
}

// --- receiving

Conference::Writer Conference::writerOf(const QString &ip) const
{
    const Participant *const row = m_participants.find(ip);
    if (row)
        return {row->name, row->colour.value_or(colours::presence)};
    const Contact *const contact = m_services.contacts.find(ip);
    return {contact ? contact->nickname : remoteName(ip), colours::presence};
}

void Conference::ReceiveMessage(const QString &IP, const QString &msg)
{
    const QString text = TrimLeadingBreaks(TrimTrailingBreaks(msg));
    appendMessage(writerOf(IP), remoteBody(text));
    const QDateTime now = m_services.clock.now();
    m_view->setPanel(tr("Last message: %1 @ %2").arg(shortDate(now), longTime(now)));
    if (isHostedHere())
        relay(text, IP);
    showAvatarOf(IP);
}

void Conference::ReceiveCommand(const QString &msg, Colour color)
{
    appendText(m_view->outtext(), msg + QLatin1String("\r\n"), color);
}

void Conference::terminate()
{
    m_terminated = true;
    ReceiveCommand(tr("--- This conference is terminated."), colours::banner);
    m_view->setInputEnabled(false);
}

void Conference::outtext_Change()
{
    if (m_services.common.windowFlashingAvailable && m_view->isMinimisedOrInactive())
        m_view->flash();
}

QString Conference::dateAndTime() const
{
    const QDateTime now = m_services.clock.now();
    return shortDate(now) + QLatin1Char(' ') + longTime(now);
}

// --- participants

void Conference::invite(const QString &ip)
{
    const Contact *const contact = m_services.contacts.find(ip);
    if (!contact || !isHostedHere())
        return;
    m_participants.add({.ip = ip, .name = contact->nickname});
    sendDatagram(m_services.socket, ip, wire::ConferenceInvitation{m_identity.ConfNum});
}

void Conference::kickuserbtn_Click(const QString &ip)
{
    const Participant *const participant = m_participants.find(ip);
    if (!participant || participant->own || !isHostedHere())
        return;
    sendDatagram(m_services.socket, ip, wire::ConferenceClose{m_identity.ConfNum});
    m_participants.remove(ip);
}

void Conference::refreshlistbtn_Click()
{
    if (!isHostedHere())
        sendDatagram(m_services.socket, m_identity.ConfServerIP, wire::ConferenceListQuestion{m_identity.ConfNum});
}

void Conference::Broadcastlist(const QString &dest)
{
    if (!isHostedHere())
        return;
    wire::ConferenceList list{m_identity.ConfNum, {m_services.common.ownIP.toStdString()}};
    for (const Participant &participant : m_participants.rows()) {
        if (participant.isPresentPeer())
            list.addresses.push_back(participant.ip.toStdString());
    }
    const std::string bytes = wire::serialise(list);
    if (!dest.isEmpty())
        return sendBytes(m_services.socket, dest, bytes);
    for (const Participant &participant : m_participants.rows()) {
        if (!participant.own)
            sendBytes(m_services.socket, participant.ip, bytes);
    }
}

void Conference::BroadcastClose()
{
    if (!isHostedHere())
        return;
    for (const Participant &participant : m_participants.rows()) {
        if (!participant.own)
            sendDatagram(m_services.socket, participant.ip, wire::ConferenceClose{m_identity.ConfNum});
    }
}

// --- the avatar frame

void Conference::showAvatar(const QString &name, const std::optional<QByteArray> &picture)
{
    m_avatarLabel = name;
    m_view->showAvatar(name, picture);
}

void Conference::showOwnAvatar()
{
    const QString &name = m_services.common.ownNickname;
    if (m_avatarLabel != name)
        showAvatar(name, m_services.ownAvatar.picture());
}

void Conference::showAvatarOf(const QString &ip)
{
    const Contact *const contact = m_services.contacts.find(ip);
    if (!contact || contact->nickname == m_avatarLabel)
        return;
    const QByteArray &body = m_services.avatars.of(ip).body;
    showAvatar(contact->nickname, body.size() == avatarBytes ? std::optional(body) : std::nullopt);
}

// --- the end

bool Conference::Form_QueryUnload(UnloadMode mode)
{
    if (mode != UnloadMode::closeBox)
        return true;
    if (isHostedHere())
        return m_participants.rowCount() < 2
            || m_services.prompts.ask(tr("Closing that window will terminate the conference. Proceed?"), programTitle);
    return m_terminated || m_services.prompts.ask(tr("Leave the conference?"), programTitle);
}

void Conference::Form_Unload(bool sayGoodbye)
{
    if (isHostedHere())
        BroadcastClose();
    else if (sayGoodbye)
        sendDatagram(m_services.socket, m_identity.ConfServerIP, wire::ConferenceLeave{m_identity.ConfNum});
}

} // namespace nimb
