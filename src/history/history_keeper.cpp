#include "history/history_keeper.h"

#include "base/event_loop_calls.h"
#include "base/limits.h"
#include "history/history_file.h"

#include <QDir>
#include <QFile>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace nimb
{
namespace
{

QString translated(const char *text)
{
    return QCoreApplication::translate("HistoryKeeper", text);
}

} // namespace

/// Where answers come back to.
class HistoryKeeper::Caller : public EventLoopCalls
{
public:
    explicit Caller(HistoryKeeper &owner) : m_owner(owner) { }

    void setTrouble(const std::optional<QString> &sentence) { m_trouble = sentence; }
    const std::optional<QString> &troubleNow() const { return m_trouble; }

    void tell(const QString &sentence) const
    {
        if (m_owner.trouble)
            m_owner.trouble(sentence);
    }

private:
    HistoryKeeper &m_owner;
    std::optional<QString> m_trouble; ///< of the event loop's thread alone
};

/// What both threads share: what is to be written, and what is to be done with the file, in the order in which it came.
class HistoryKeeper::Desk
{
public:
    using Entries = std::vector<HistoryFile::Entry>;
    using Task = std::function<void(HistoryFile *)>; ///< with nothing where the file cannot be used
    struct Work {
        Entries entries; ///< to be written before the task
        Task task{};     ///< empty: none
        bool onlyReads = false;
        bool isLast = false;
    };

    void put(HistoryFile::Entry entry)
    {
        const std::lock_guard lock(m_mutex);
        if (m_entries.empty())
            m_wake.notify_one();
        m_entries.push_back(std::move(entry));
    }

    void put(Task task, bool onlyReads)
    {
        const std::lock_guard lock(m_mutex);
        m_tasks.push_back({std::exchange(m_entries, {}), std::move(task), onlyReads});
        m_wake.notify_one();
    }

    void end()
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
        m_wake.notify_one();
    }

    /// Waits for it. Messages alone are gathered for a moment, so that a burst costs one writing.
    Work take()
    {
        std::unique_lock lock(m_mutex);
        m_wake.wait(lock, [this] { return m_ends || !m_tasks.empty() || !m_entries.empty(); });
        m_wake.wait_for(lock, limits::historyGathered, [this] { return m_ends || !m_tasks.empty(); });
        if (m_tasks.empty())
            return {.entries = std::exchange(m_entries, {}), .task = {}, .isLast = m_ends};
        Work work = std::move(m_tasks.front());
        m_tasks.pop_front();
        return work;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_wake;
    Entries m_entries; ///< behind the last task
    std::deque<Work> m_tasks;
    bool m_ends = false;
};

/// What the thread does. Tells the same trouble once until something has gone well.
class HistoryKeeper::Worker
{
public:
    Worker(QString folder, std::shared_ptr<Desk> desk, Caller &caller)
        : m_folder(std::move(folder)), m_desk(std::move(desk)), m_caller(caller)
    {
    }

    void run()
    {
        for (;;) {
            const Desk::Work work = m_desk->take();
            m_unwritten.insert(m_unwritten.end(), work.entries.begin(), work.entries.end());
            dropOldest();
            if (!attempt(work.task) && work.task && !(work.onlyReads && readAllTheSame(work.task)))
                work.task(nullptr);
            if (work.isLast)
                return;
        }
    }

private:
    void open()
    {
        if (m_file && m_file->leaveIfGone()) {
            m_file.reset();
            tell(translated(
                     QT_TRANSLATE_NOOP("HistoryKeeper",
                                       "The history in %1 has been removed or replaced while NIMB-Chat runs: what is "
                                       "said from now on goes into the one that is there now."))
                     .arg(QDir::toNativeSeparators(HistoryFile::pathIn(m_folder))));
        }
        if (!m_file)
            m_file.emplace(m_folder);
        if (const std::optional<QString> sentence = m_file->takeTakenOver())
            tell(*sentence);
    }

    void write()
    {
        if (m_unwritten.empty())
            return;
        m_file->write(m_unwritten);
        m_unwritten.clear();
        m_told.clear();
    }

    /// Before the answer that says so by what it holds.
    void goesWell()
    {
        if (std::exchange(m_isInTrouble, false))
            m_caller.put([caller = &m_caller] { caller->setTrouble({}); });
    }

    /// What cannot be written waits for the next time, within bounds.
    void dropOldest()
    {
        const std::size_t most = limits::historyWaiting;
        if (m_unwritten.size() > most)
            m_unwritten.erase(m_unwritten.begin(), m_unwritten.end() - static_cast<std::ptrdiff_t>(most));
    }

    /// A damaged file is set aside, once, and what can be read of it tried with.
    bool attempt(const Desk::Task &task)
    {
        for (const bool again : {false, true}) {
            try {
                open();
                write();
                goesWell();
                if (task)
                    task(&*m_file);
                return true;
            } catch (const sqlite::Failure &failure) {
                if (!again && failure.damaged && m_file && setAside())
                    continue;
                tellFailure(failure);
                return false;
            }
        }
        return false;
    }

    /// A full disk, or one that cannot be written, keeps nobody from reading what is on it.
    bool readAllTheSame(const Desk::Task &task)
    {
        try {
            if (m_file) {
                task(&*m_file);
                return true;
            }
            if (!HistoryFile::canOnlyBeRead(m_folder))
                return false;
            HistoryFile file(m_folder, HistoryFile::ForReading());
            task(&file);
            return true;
        } catch (const sqlite::Failure &) {
            return false; // told already
        }
    }

    bool setAside()
    {
        try {
            m_file->setAside();
            return true;
        } catch (const sqlite::Failure &failure) {
            tellFailure(failure);
            m_file.reset();
            return false;
        }
    }

    void tellFailure(const sqlite::Failure &failure)
    {
        const char *const form = !m_file && HistoryFile::canOnlyBeRead(m_folder)
            ? QT_TRANSLATE_NOOP("HistoryKeeper",
                                "The history in %1 can only be read now (%2): nothing more is kept until that changes.")
            : QT_TRANSLATE_NOOP("HistoryKeeper",
                                "The history in %1 cannot be used now (%2); what was kept before is unchanged.");
        const QString sentence
            = translated(form).arg(QDir::toNativeSeparators(HistoryFile::pathIn(m_folder)), failure.reason);
        m_isInTrouble = true;
        m_caller.put([caller = &m_caller, sentence] { caller->setTrouble(sentence); });
        if (sentence != m_told)
            tell(m_told = sentence);
    }

    void tell(const QString &sentence)
    {
        m_caller.put([caller = &m_caller, sentence] { caller->tell(sentence); });
    }

    QString m_folder;
    std::shared_ptr<Desk> m_desk;
    Caller &m_caller;
    std::optional<HistoryFile> m_file;
    std::vector<HistoryFile::Entry> m_unwritten;
    QString m_told;
    bool m_isInTrouble = false;
};

HistoryKeeper::HistoryKeeper(QString folder)
    : m_folder(std::move(folder)), m_caller(std::make_unique<Caller>(*this)), m_desk(std::make_shared<Desk>())
{
}

HistoryKeeper::~HistoryKeeper()
{
    if (!m_thread.joinable())
        return;
    m_desk->end();
    m_thread.join();
}

void HistoryKeeper::begin()
{
    if (!m_thread.joinable())
        m_thread = std::thread([worker = std::make_shared<Worker>(m_folder, m_desk, *m_caller)] { worker->run(); });
}

void HistoryKeeper::keep(const KeptConversation &conversation, const KeptMessage &message)
{
    begin();
    m_desk->put(HistoryFile::Entry{conversation, message});
}

/// Puts a question to the file on its thread, and its answer to the thread of the event loop. ask: may throw.
template <class Ask, class Answered> void HistoryKeeper::put(Access access, Ask ask, Answered answered)
{
    begin();
    m_desk->put(
        [ask = std::move(ask), answered = std::move(answered), caller = m_caller.get()](HistoryFile *file) {
            auto answer = file ? ask(*file) : decltype(ask(*file)){};
            caller->put([answered, answer = std::move(answer)] { answered(answer); });
        },
        access == Access::reads);
}

void HistoryKeeper::find(const HistoryQuestion &question, Found found)
{
    put(
        Access::reads, [question](HistoryFile &file) { return file.find(question); }, std::move(found));
}

void HistoryKeeper::findIn(const KeptConversation &conversation, const HistoryQuestion &question, Found found)
{
    put(
        Access::reads,
        [conversation, question](HistoryFile &file) {
            HistoryQuestion there = question;
            there.conversation = file.numberOf(conversation);
            return there.conversation ? file.find(there) : std::vector<StoredMessage>();
        },
        std::move(found));
}

void HistoryKeeper::list(Listed listed)
{
    put(
        Access::reads, [](HistoryFile &file) { return file.list(); }, std::move(listed));
}

void HistoryKeeper::leaveUnread(const KeptConversation &conversation)
{
    put(
        Access::changes,
        [conversation](HistoryFile &file) {
            file.leaveUnread(conversation);
            return true;
        },
        [](bool) {});
}

void HistoryKeeper::setRead(const KeptConversation &conversation, int unread)
{
    put(
        Access::changes,
        [conversation, unread](HistoryFile &file) {
            file.setRead(conversation, unread);
            return true;
        },
        [](bool) {});
}

/// Where nothing was ever kept no file is made for it.
void HistoryKeeper::listUnread(Unread listed)
{
    if (QFile::exists(HistoryFile::pathIn(m_folder)))
        put(
            Access::reads, [](HistoryFile &file) { return file.listUnread(); }, std::move(listed));
}

void HistoryKeeper::erase(const HistorySelection &selection, Done done)
{
    put(
        Access::changes,
        [selection](HistoryFile &file) {
            file.erase(selection);
            return true;
        },
        std::move(done));
}

std::optional<QString> HistoryKeeper::troubleNow() const
{
    return m_caller->troubleNow();
}

void HistoryKeeper::eraseBefore(const QDateTime &time)
{
    if (!QFile::exists(HistoryFile::pathIn(m_folder)))
        return;
    put(
        Access::changes,
        [time](HistoryFile &file) {
            file.eraseBefore(time);
            return true;
        },
        [](bool) {});
}

} // namespace nimb
