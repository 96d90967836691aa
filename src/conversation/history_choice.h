// Whether what is said is kept.
#pragma once

#include "base/Common.h"
#include "base/history.h"
#include "base/timers.h"

#include <QObject>

#include <deque>
#include <utility>

namespace nimb
{

/// One for all conversations. What is said before the user has been asked waits for his answer.
class HistoryChoice : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive this.
    HistoryChoice(History &history, Common &common, const WallClock &clock);

    /// The user has not said yet what he wants.
    bool isToBeAsked() const { return m_common.history.keep == KeepHistory::notAsked; }
    bool isKept(const QString &address) const { return m_common.history.isKept(address); }
    bool isLeftOut(const QString &address) const { return m_common.history.leftOut.contains(address); }

    /// A message was shown in a conversation.
    void said(const KeptConversation &conversation, const KeptMessage &message);
    /// What is said from now on is unread. Only a conversation with a contact outlives the program.
    void leftUnread(const KeptConversation &conversation);
    /// All was read but for this many messages.
    void wasRead(const KeptConversation &conversation, int unread);
    /// What an earlier run has left unread, as far as the user wants conversations kept.
    void listUnread(History::Unread listed);
    /// The user has cleared a conversation: nothing of it waits for his answer any more.
    void cleared(const KeptConversation &conversation);
    /// The user's answer, now or later: what was kept before stays but for what is older than he wants.
    void choose(KeepHistory keep);
    /// From now on nothing of a contact is kept, or all is as with the others. What was kept stays.
    void leaveOut(const QString &address, bool leftOut);
    /// What the choice says is too old goes.
    void removeOld();

    History &history() const { return m_history; }

Q_SIGNALS:
    /// The user has chosen; the settings have changed.
    void chosen();

private:
    History &m_history;
    Common &m_common;
    const WallClock &m_clock;
    std::deque<std::pair<KeptConversation, KeptMessage>> m_undecided;
};

} // namespace nimb
