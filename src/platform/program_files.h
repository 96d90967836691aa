// The files that ship with the program.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <optional>

namespace nimb
{

/// Full path of a readable file: beside the program, so that a copied folder is complete, else in the data folder of
/// the installation, which moves with the program. Empty when it is in neither. Needs the application object unless
/// the folder is given.
std::optional<QString> findProgramFile(const QString &name,
                                       const QString &programFolder = QCoreApplication::applicationDirPath());

/// Full path of the folder with the pages of the manual: beside the program, else among the documents of the
/// installation. Empty when it was built without them, or the system leaves documents out.
std::optional<QString> findManual(const QString &programFolder = QCoreApplication::applicationDirPath());

/// All that is in a file; nothing when it is not there, cannot be read, or has more than a mebibyte, for then somebody
/// has put something else in its place.
std::optional<QByteArray> readProgramFile(const QString &name,
                                          const QString &programFolder = QCoreApplication::applicationDirPath());

} // namespace nimb
