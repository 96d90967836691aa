#include "notify/notices.h"

#include "base/isolated.h"
#include "base/remote_text.h"

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

QString counted(const QString &text, int count)
{
    return count > 1 ? QStringLiteral("%1 (%2)").arg(text, QString::number(count)) : text;
}

QString messagesAsWell(int count)
{
    return count > 1 ? Notices::tr("%1 new messages").arg(count) : Notices::tr("1 new message");
}

} // namespace

Notices::Notices(const Parts &parts)
    : m_parts(parts), m_pause(parts.timers.oneShot(limits::noticePause, [this] { showWaiting(); })),
      m_silence(parts.timers.oneShot(limits::noticePause, [] {}))
{
    const ContactList &contacts = parts.contacts;
    // A list that is full lets strangers go for others; what they have sent must not be counted for ever.
    QObject::connect(&contacts, &ContactList::rowsAboutToBeRemoved, &contacts,
                     [this, &contacts](const QModelIndex &, int first, int last) {
                         for (int row = first; row <= last; ++row) {
                             if (const std::optional<Ipv4Address> ip = contacts.at(row).ip.ipv4())
                                 contactRemoved(*ip);
                         }
                     });
}

void Notices::message(Ipv4Address ip, const QString &name, const QString &text)
{
    tell({.place = {NoticeWindow::privateChat, ip}, .name = name, .text = text},
         m_parts.common.options.soundForMessage);
}

void Notices::conferenceMessage(Ipv4Address ip, int slot, const QString &name, const QString &text)
{
    tell({.place = {NoticeWindow::conference, ip, slot}, .name = name, .text = text},
         m_parts.common.options.soundForMessage);
}

void Notices::invitation(Ipv4Address ip, const QString &name)
{
    tell({.place = {NoticeWindow::invitations, ip}, .name = name}, m_parts.common.options.soundForInvitation);
}

void Notices::buzz(Ipv4Address ip, const QString &name)
{
    // It has a sound of its own.
    tell({.place = {NoticeWindow::privateChat, ip}, .name = name, .isBuzz = true}, false);
}

void Notices::add(const Notification &notification)
{
    const Contact *const contact = m_parts.contacts.find(notification.ip);
    if (contact && contact->muted)
        return;
    m_parts.shown.add(notification);
    const bool came = isPresent(notification.presence);
    if (came && m_parts.common.options.soundForOnline && !isQuietAbout(notification.ip))
        playSound();
}

bool Notices::isQuietAbout(Ipv4Address ip) const
{
    const Contact *const contact = m_parts.contacts.find(ip);
    return m_parts.common.ownPresence.base == BaseState::busy || (contact && contact->muted);
}

Notice Notices::noticeOf(const News &news, const Unseen &unseen) const
{
    const QString name = isolated(paintedName(news.name));
    Notice notice{.place = news.place, .title = name, .picture = QStringLiteral("message"), .mayBeAnswered = true};
    if (news.place.window == NoticeWindow::invitations) {
        notice.text = notice.line = counted(tr("%1 invites you to a conference").arg(name), unseen.messages);
        notice.mayBeAnswered = false;
        return notice;
    }
    const QString buzz = counted(tr("%1 buzzes you").arg(name), unseen.buzzes);
    if (news.isBuzz) {
        notice.picture = QStringLiteral("buzz");
        notice.text = unseen.messages > 0 ? tr("%1 · %2").arg(buzz, messagesAsWell(unseen.messages)) : buzz;
        notice.line = notice.text;
        return notice;
    }
    if (news.place.window == NoticeWindow::conference)
        notice.title = tr("%1 in conference #%2").arg(name, QString::number(news.place.conference));
    notice.title = counted(notice.title, unseen.messages);
    const QString message = shownMessage(news.text, unseen.messages);
    notice.text = unseen.buzzes > 0 ? tr("%1 · %2").arg(isolated(message), buzz) : message;
    notice.line = tr("%1: %2").arg(notice.title, unseen.buzzes > 0 ? notice.text : isolated(notice.text));
    return notice;
}

QString Notices::shownMessage(const QString &text, int count) const
{
    if (!m_parts.common.options.showMessageText)
        return count > 1 ? tr("new messages") : tr("new message");
    const QString line = remoteLine(cutText(text, limits::noticeLength + 1)).simplified();
    return line.size() > limits::noticeLength ? cutText(line, limits::noticeLength) + QChar(0x2026) : line;
}

void Notices::tell(const News &news, bool wantsSound)
{
    // What was not heard is not told later: by then it calls nobody any more.
    if (news.isBuzz && isQuietAbout(news.place.ip))
        return;
    Unseen &unseen = m_unseen[news.place];
    int &count = news.isBuzz ? unseen.buzzes : unseen.messages;
    count = std::min(count + 1, limits::unreadCounted);
    if (isQuietAbout(news.place.ip))
        return;
    if (wantsSound)
        playSound();
    if (!m_parts.common.options.notifyMessages)
        return;
    std::erase_if(m_waiting, [&news](const News &older) { return older.place == news.place; });
    if (m_waiting.size() == limits::noticesAtOnce)
        m_waiting.erase(m_waiting.begin());
    m_waiting.push_back(news);
    if (!m_pause->isActive())
        showWaiting();
}

void Notices::showWaiting()
{
    if (m_waiting.empty())
        return;
    m_pause->start();
    for (const News &news : std::exchange(m_waiting, {})) {
        Unseen &unseen = m_unseen[news.place];
        unseen.isShown = true;
        show(noticeOf(news, unseen));
    }
}

void Notices::playSound()
{
    if (m_silence->isActive())
        return;
    m_silence->start();
    m_parts.sound.playNotice();
}

void Notices::seen(const NoticePlace &place)
{
    const auto unseen = m_unseen.find(place);
    if (unseen == m_unseen.end())
        return;
    const bool isShown = unseen->second.isShown;
    m_unseen.erase(unseen);
    std::erase_if(m_waiting, [&place](const News &waiting) { return waiting.place == place; });
    if (isShown)
        withdraw(place);
}

void Notices::contactRemoved(Ipv4Address ip)
{
    for (const NoticeWindow window : {NoticeWindow::privateChat, NoticeWindow::invitations})
        seen({window, ip});
}

void Notices::conferenceSeen(int slot)
{
    std::vector<NoticePlace> places;
    for (const auto &[place, unseen] : m_unseen) {
        if (place.conference == slot)
            places.push_back(place);
    }
    for (const NoticePlace &place : places)
        seen(place);
}

} // namespace nimb
