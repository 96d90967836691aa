#include "conversation/history_choice.h"

#include "base/limits.h"

namespace nimb
{

HistoryChoice::HistoryChoice(History &history, Common &common, const WallClock &clock)
    : m_history(history), m_common(common), m_clock(clock)
{
}

void HistoryChoice::said(const KeptConversation &conversation, const KeptMessage &message)
{
    if (isKept(conversation.address))
        return m_history.keep(conversation, message);
    if (!isToBeAsked() || isLeftOut(conversation.address))
        return;
    m_undecided.emplace_back(conversation, message);
    if (m_undecided.size() > limits::historyUndecided)
        m_undecided.pop_front();
}

void HistoryChoice::leftUnread(const KeptConversation &conversation)
{
    if (conversation.kind == KeptConversation::Kind::contact && isKept(conversation.address))
        m_history.leaveUnread(conversation);
}

void HistoryChoice::wasRead(const KeptConversation &conversation, int unread)
{
    if (conversation.kind == KeptConversation::Kind::contact && isKept(conversation.address))
        m_history.setRead(conversation, unread);
}

void HistoryChoice::listUnread(History::Unread listed)
{
    if (m_common.history.keep == KeepHistory::year || m_common.history.keep == KeepHistory::ever)
        m_history.listUnread(std::move(listed));
}

void HistoryChoice::cleared(const KeptConversation &conversation)
{
    std::erase_if(m_undecided, [&](const auto &said) { return said.first == conversation; });
}

void HistoryChoice::choose(KeepHistory keep)
{
    if (keep == m_common.history.keep)
        return;
    m_common.history.keep = keep;
    for (const auto &[conversation, message] : std::exchange(m_undecided, {}))
        said(conversation, message);
    removeOld();
    Q_EMIT chosen();
}

void HistoryChoice::leaveOut(const QString &address, bool leftOut)
{
    QStringList &all = m_common.history.leftOut;
    all.removeAll(address);
    if (leftOut)
        all.append(address);
    if (all.size() > limits::historyLeftOut)
        all.removeFirst();
    Q_EMIT chosen();
}

void HistoryChoice::removeOld()
{
    if (m_common.history.keep == KeepHistory::year)
        m_history.eraseBefore(m_clock.now().addYears(-1));
}

} // namespace nimb
