// The thread that keeps messages, so that no window waits for a disk.
#pragma once

#include "base/history.h"

#include <QCoreApplication>

#include <memory>
#include <thread>

namespace nimb
{

/// The file is opened with the first thing that is to be kept or found. The end waits until all is kept that was given
/// before. Needs the application object.
class HistoryKeeper : public History
{
public:
    explicit HistoryKeeper(QString folder);
    ~HistoryKeeper() override;
    HistoryKeeper(const HistoryKeeper &) = delete;
    HistoryKeeper &operator=(const HistoryKeeper &) = delete;

    void keep(const KeptConversation &conversation, const KeptMessage &message) override;
    void find(const HistoryQuestion &question, Found found) override;
    void findIn(const KeptConversation &conversation, const HistoryQuestion &question, Found found) override;
    void list(Listed listed) override;
    void leaveUnread(const KeptConversation &conversation) override;
    void setRead(const KeptConversation &conversation, int unread) override;
    void listUnread(Unread listed) override;
    void erase(const HistorySelection &selection, Done done) override;
    void eraseBefore(const QDateTime &time) override;
    std::optional<QString> troubleNow() const override;

private:
    class Desk;
    class Worker;
    class Caller;

    void begin();
    enum class Access { reads, changes };
    template <class Ask, class Answered> void put(Access access, Ask ask, Answered answered);

    QString m_folder;
    std::unique_ptr<Caller> m_caller; ///< where answers are called, on the thread of the event loop
    std::shared_ptr<Desk> m_desk;
    std::thread m_thread;
};

} // namespace nimb
