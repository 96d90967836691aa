// Tells the user of what arrives while he looks elsewhere: by a notice and, where he wants that, by a sound.
#pragma once

#include "base/Common.h"
#include "base/limits.h"
#include "base/notifications.h"
#include "base/sound.h"
#include "base/timers.h"
#include "contacts/contact_list.h"

#include <QCoreApplication>

#include <map>
#include <vector>

namespace nimb
{

/// One notice for each sender in each window, which counts what has come since the user last looked there. Silent while
/// the user is busy, and about contacts whom he has muted. The first notice is shown at once, those of the second after
/// it together: a flood of messages is no flood of notices.
class Notices : public Notifications
{
    Q_DECLARE_TR_FUNCTIONS(Notices)

public:
    struct Parts {
        const Common &common;
        const ContactList &contacts;
        Notifications &shown;
        Sound &sound;
        Timers &timers;
    };

    explicit Notices(const Parts &parts);

    // Each is called only when nobody looks at the window that it concerns. name: as the sender is called there.
    void message(Ipv4Address ip, const QString &name, const QString &text);
    void conferenceMessage(Ipv4Address ip, int slot, const QString &name, const QString &text);
    void invitation(Ipv4Address ip, const QString &name);
    void buzz(Ipv4Address ip, const QString &name);
    /// Everything there has been seen, or nobody will ever see it.
    void seen(const NoticePlace &place);
    /// The conference in this slot has been looked at, or is closed.
    void conferenceSeen(int slot);

    /// Who comes and goes.
    void add(const Notification &notification) override;
    void startTimer() override { m_parts.shown.startTimer(); }
    void show(const Notice &notice) override { m_parts.shown.show(notice); }
    void withdraw(const NoticePlace &place) override { m_parts.shown.withdraw(place); }

private:
    /// What has come, before anybody composes a sentence of it.
    struct News {
        NoticePlace place;
        QString name; ///< of the sender
        QString text{};
        bool isBuzz = false;
    };
    struct Unseen {
        int messages = 0; ///< or invitations
        int buzzes = 0;
        bool isShown = false;
    };

    void contactRemoved(Ipv4Address ip);
    bool isQuietAbout(Ipv4Address ip) const;
    void tell(const News &news, bool wantsSound);
    void showWaiting();
    void playSound();
    Notice noticeOf(const News &news, const Unseen &unseen) const;
    /// What a message says, as far as the user wants that to be seen.
    QString shownMessage(const QString &text, int count) const;

    Parts m_parts;
    std::map<NoticePlace, Unseen> m_unseen;
    std::vector<News> m_waiting; ///< to be shown, the oldest first
    std::unique_ptr<Timer> m_pause;
    std::unique_ptr<Timer> m_silence; ///< after a sound
};

} // namespace nimb
