// Files that were being fetched when the program ended, and are gone on with at its next start.
#pragma once

#include "base/main_log.h"
#include "base/settings_store.h"
#include "files/received_files.h"

namespace nimb
{

/// Kept in the profile, the newest limits::filesUnfinished of them. They come back as paused: only the user says that
/// one is gone on with, and only its sender whether there is still something to be had.
class UnfinishedFiles : public QObject
{
    Q_OBJECT

public:
    UnfinishedFiles(ReceivedFiles &files, SettingsStore &store, MainLog &log);

    /// Reads what an earlier run has left.
    void load();
    /// Notes how far they are.
    void save();

private:
    ReceivedFiles &m_files;
    SettingsStore &m_store;
    MainLog &m_log;
    QString m_saved;
};

} // namespace nimb
