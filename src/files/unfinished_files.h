// Files that were being fetched when the program ended, and are gone on with at its next start.
#pragma once

#include "base/main_log.h"
#include "base/settings_store.h"
#include "base/timers.h"
#include "files/received_files.h"

#include <memory>
#include <optional>

namespace nimb
{

/// Kept in the profile, the newest limits::filesUnfinished of them. They come back as paused: only the user says that
/// one is gone on with, and only its sender whether there is still something to be had. One that is not, and of which
/// something lies on the disk, comes back as failed, so that it can be discarded.
class UnfinishedFiles : public QObject
{
    Q_OBJECT

public:
    UnfinishedFiles(ReceivedFiles &files, SettingsStore &store, MainLog &log, Timers &timers);

    /// Reads what an earlier run has left, and says in the log how many there are.
    void load();
    /// Notes how far they are. What changes is saved at once, and what changes soon after that a moment later,
    /// together.
    void save();

private:
    void tellOfUnfinished();

    ReceivedFiles &m_files;
    SettingsStore &m_store;
    MainLog &m_log;
    QString m_saved;
    std::optional<QString> m_told;  ///< of the last save, until one goes well
    std::unique_ptr<Timer> m_delay; ///< since the last save
};

} // namespace nimb
