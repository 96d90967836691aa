// The files that others offer, and those of them that are fetched.
#pragma once

#include "base/file_fetcher.h"
#include "files/file_link.h"

#include <QAbstractTableModel>

#include <algorithm>
#include <optional>
#include <vector>

namespace nimb
{

struct ReceivedFile {
    enum class State {
        offered, ///< nothing has been done with it
        waiting, ///< for others to be fetched first, here or there
        summing, ///< what is here of it already is read, so that the whole can be checked
        running,
        paused,
        checking,
        done,
        failed,
    };

    int number = 0; ///< by which it is known; never comes again
    FileLink link;
    QString sender; ///< nickname
    Ipv4Address from{};
    State state = State::offered;
    quint64 place = 0, size = 0, perSecond = 0;
    QString folder{}; ///< once the user has chosen one
    QString path{};   ///< once it is there
    bool isChecked = false;
    bool isLookedAt = false; ///< it is fetched, or was, to be shown and not to be kept
    QString picture{};       ///< path of what can be shown
    QString sentence{};      ///< why it failed
    bool isGone = false;     ///< it will not be had any more

    /// 0 to 100.
    int percent() const { return size > 0 ? static_cast<int>(std::min(place, size) * 100 / size) : 0; }
    /// It can be shown before it is saved.
    bool isPicture() const;
    bool isUnderWay() const
    {
        return state == State::waiting || state == State::summing || state == State::running
            || state == State::checking;
    }
    /// It came to a halt before all was here.
    bool isHalted() const { return state == State::paused || state == State::failed; }
    /// It is to be saved, and there is a chance that it will be.
    bool isUnfinished() const
    {
        const bool isBroken = state == State::paused || (state == State::failed && !isGone);
        return !isLookedAt && !folder.isEmpty() && (isUnderWay() || isBroken);
    }
    /// It will not be had any more, and what has come of it is still on the disk.
    bool isRemnant() const { return state == State::failed && isGone && !isLookedAt && !folder.isEmpty() && place > 0; }
};

/// One row for each, the newest last. At most limits::filesReceivedAtOnce are fetched at a time, the others wait.
class ReceivedFiles : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { File, From, Progress, Folder, ColumnCount };

    explicit ReceivedFiles(FileFetcher &fetcher);
    ~ReceivedFiles() override;

    /// The number of what a message offers, where it offers a file that has no row yet and comes from where the file
    /// is. own: the address
    /// under which the sender knows this copy.
    std::optional<int> add(const QString &message, Ipv4Address writer, const QString &sender, Ipv4Address own);
    /// Another row, paused, or failed where it is gone, for what an earlier run has left. How far it is says the file
    /// itself, once that was asked; of one that is gone and has left nothing the row goes.
    void restore(ReceivedFile file);
    /// Null once it has gone to make room.
    const ReceivedFile *find(int number) const;
    const ReceivedFile &at(int row) const { return m_files.at(static_cast<std::size_t>(row)); }

    /// Fetches it into that folder, where nothing is overwritten.
    void save(int number, const QString &folder);
    /// Fetches it into a folder for what is thrown away, to be shown.
    void look(int number, const QString &folder);
    void pause(int number);
    /// After a pause or a failure.
    void resume(int number);
    /// After a pause or a failure: takes its row away, and from the disk what has come of it.
    void discard(int number);

    /// The folder of the last save(); empty before.
    const QString &lastFolder() const { return m_lastFolder; }
    int underWay() const;
    /// The numbers of those with which nothing has been done yet.
    std::vector<int> offered() const;
    /// For people: how far it is.
    static QString progressOf(const ReceivedFile &file);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void changed(int number);
    /// Nothing of it is left, as the user wants it; its row has gone.
    void discarded(int number);
    /// Another one is unfinished now, or one is not any more, or has come to a halt.
    void unfinishedChanged();

private:
    ReceivedFile *findRow(int number);
    bool has(const FileLink &link) const;
    void insert(ReceivedFile file);
    void told(const FetchedBytes &fetched);
    static QString goneSentence(const ReceivedFile &file);
    void finish(ReceivedFile &file, const FetchedBytes &fetched);
    void begin(ReceivedFile &file);
    static WantedFile wantedOf(const ReceivedFile &file);
    bool hasFreePlace(Ipv4Address sender) const;
    void beginNext();
    void makeRoom();
    void removeRow(int row);
    void forget(const ReceivedFile &file);
    void rowChanged(const ReceivedFile &file);

    FileFetcher &m_fetcher;
    std::vector<ReceivedFile> m_files;
    std::vector<int> m_fetching; ///< numbers of those that the fetcher has
    QString m_lastFolder;
    int m_last = 0;
};

} // namespace nimb
