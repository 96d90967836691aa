// The announcement: every contact is asked whether it is there, and the silent ones turn offline.
#pragma once

#include "base/Common.h"
#include "base/limits.h"
#include "base/main_window_view.h"
#include "base/timers.h"
#include "contacts/contact_list.h"
#include "protocol/datagram.h"
#include "protocol/winsock.h"

#include <QSet>

#include <deque>

namespace nimb
{

/// Sends a contact the presence datagram that goes with the own state; see the functions for which.
class PresenceSender
{
public:
    PresenceSender(const Common &common, Winsock &socket) : m_common(common), m_socket(socket) { }

    void question(const ContactAddress &ip) const;
    /// The same to an address that may be that of everybody on a network, and the own state behind it where that is
    /// busy or away; nothing else goes out as a broadcast. source: the own address that it names and leaves from, where
    /// that is not the usual one.
    void questionToAll(Ipv4Address ip, std::optional<Ipv4Address> source) const;
    void answer(const ContactAddress &ip) const;
    void farewell(const ContactAddress &ip) const;
    /// The own state word, with its text where it has one.
    void status(const ContactAddress &ip) const;
    /// The same, unless Online was chosen: peers take that for granted.
    void statusUnlessOnline(const ContactAddress &ip) const;

private:
    wire::Identity identityFor(const ContactAddress &ip) const;

    const Common &m_common;
    Winsock &m_socket;
};

/// At start, on demand and after leaving Invisible. Asks in batches, so that answers are read in between, and waits
/// limits::announcementTime after the last question. At most limits::questionsUnderWay wait for their answers at a
/// time; an answer, or as long a silence, makes room for the next. Running again starts over.
class Announcement
{
public:
    Announcement(Common &common, ContactList &contacts, PresenceSender &sender, Timers &timers, const WallClock &clock,
                 AnnouncementView &view);

    void run();
    /// Where the user has not asked for it.
    void runUnlessInvisible();
    /// Asks nobody further; what has been asked may still be answered.
    void stopAsking();

private:
    struct Question {
        ContactAddress ip;
        qint64 asked = 0; ///< milliseconds of the clock
    };

    void askNextBatch();
    bool isFull() const { return m_unanswered.size() >= limits::questionsUnderWay; }
    void contactChanged(const Contact &contact);
    void forgetTheSilent();
    void ask(const ContactAddress &ip);
    void Timer1_Timer();

    Common &m_common;
    ContactList &m_contacts;
    PresenceSender &m_sender;
    AnnouncementView &m_view;
    const WallClock &m_clock;
    std::vector<ContactAddress> m_toAsk; ///< the list's order when the announcement began
    std::size_t m_asked = 0;
    std::deque<Question> m_questions;  ///< in the order in which they were sent, the answered ones included
    QSet<ContactAddress> m_unanswered; ///< of those, who are silent so far
    std::unique_ptr<Timer> m_nextBatch;
    std::unique_ptr<Timer> m_look; ///< runs while no further question may be sent
    std::unique_ptr<Timer> m_timer1;
};

} // namespace nimb
