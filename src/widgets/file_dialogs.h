// The system's dialogs for files and printers. They do not stop the program: it goes on answering while they stand
// there.
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace nimb
{

/// Asks for one file that exists. filter: what is shown, a blank, and the patterns in brackets. chosen is called when
/// the user takes one.
void askForFile(QWidget &parent, const QString &filter, std::function<void(const QString &path)> chosen);
/// The same for any number of files.
void askForFiles(QWidget &parent, std::function<void(const QStringList &paths)> chosen);
/// Asks for a folder that is to be sent.
void askForSentFolder(QWidget &parent, std::function<void(const QString &path)> chosen);
/// Asks for a folder in which something is to be saved, beginning with this one.
void askForSaveFolder(QWidget &parent, const QString &folder, std::function<void(const QString &path)> chosen);
/// Asks where a file is to be written, which is offered this name; who chooses one that exists is asked again. Several
/// filters are parted by two semicolons, and a name without a suffix gets that of the one which is chosen.
void askForNewFile(QWidget &parent, const QString &name, const QString &filter,
                   std::function<void(const QString &path)> chosen);
/// Asks for a folder with pictures, beginning with this one.
void askForFolder(QWidget &parent, const QString &folder, std::function<void(const QString &path)> chosen);
void showPageSetup(QWidget &parent);

} // namespace nimb
