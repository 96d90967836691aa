// What the user is told of while he looks elsewhere, as the engine tells it.
#pragma once

#include "base/presence.h"
#include "protocol/ipv4_address.h"

#include <QString>

namespace nimb
{

struct Notification {
    QString text;
    Presence presence = Presence::online; ///< what the contact has become
    Ipv4Address ip;                       ///< of the contact it is about
};

/// The windows in which there may be something to see.
enum class NoticeWindow { main, privateChat, conference, invitations };

/// Whom a notice is from, and in which window it stands: there is one notice for each.
struct NoticePlace {
    NoticeWindow window = NoticeWindow::main;
    Ipv4Address ip{};   ///< of the sender
    int conference = 0; ///< slot of its window; 0 where it is none

    bool operator==(const NoticePlace &) const = default;
    bool operator<(const NoticePlace &other) const
    {
        if (window != other.window)
            return window < other.window;
        return ip == other.ip ? conference < other.conference : ip < other.ip;
    }
};

/// What somebody has sent to a window at which nobody looks.
struct Notice {
    NoticePlace place{};
    QString title{};            ///< who
    QString text{};             ///< what
    QString line{};             ///< both in one line
    QString picture{};          ///< name of one of the program's own
    bool mayBeAnswered = false; ///< a text that is written back goes to the sender
};

/// The pop-up, or what the desktop has in its place. Never takes the focus.
class Notifications
{
public:
    virtual ~Notifications() = default;
    /// Adds a row. The list keeps limits::notifications rows.
    virtual void add(const Notification &notification) = 0;
    /// Starts the timer that brings the window into view.
    virtual void startTimer() = 0;
    /// Shows the notice instead of the one of the same place.
    virtual void show(const Notice &notice) = 0;
    /// The user has seen what the notice of this place was about.
    virtual void withdraw(const NoticePlace &place) = 0;
};

} // namespace nimb
