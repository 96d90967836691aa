// The folder that holds what the program keeps for one user.
#pragma once

#include <QString>

#include <optional>
#include <utility>

class QFile;

namespace nimb
{

/// Makes the folder, and what is missing above it, for the user alone; what exists already stays as it is. Empty when
/// the folder is there afterwards, otherwise the system's reason why not.
[[nodiscard]] std::optional<QString> makePrivateFolder(const QString &path);

/// The same for an empty file in an existing folder.
[[nodiscard]] std::optional<QString> makePrivateFile(const QString &path);

/// Gives the file another name, at once and for good: what bore that name is gone, and a power cut brings neither state
/// back half. Empty on success, otherwise the system's reason.
[[nodiscard]] std::optional<QString> renameForGood(const QString &from, const QString &to);

/// Writes what an open file has in it to the disk, so that a power cut leaves it there. False when the system cannot.
[[nodiscard]] bool flushToDisk(QFile &file);

/// Device and number; nothing where there is no such file, or the system keeps an open file from being replaced anyway.
std::optional<std::pair<quint64, quint64>> identityOfFile(const QString &path);

/// Why the last call of the system on this thread has failed, in its own words.
QString systemTrouble();

/// That call has failed because there was no room on the disk, or none that the user may have. Told only of one that
/// was made after forgetTrouble().
bool wasDiskFull();
void forgetTrouble();

/// Takes the rights that others have to an existing file of this user, and gives none.
void takeFileFromOthers(const QString &path);

/// The same for a folder that holds nothing but files of this program: who names one that serves for more, be it /tmp,
/// wants it to stay as it is.
void takeFolderFromOthers(const QString &path);

} // namespace nimb
