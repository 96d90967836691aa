#include "widgets/file_dialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QRegularExpression>

namespace nimb
{

namespace
{

/// A dialog says what was chosen while it is still there: what may bring up a question is called once it has gone.
constexpr auto onceItHasGone = Qt::QueuedConnection;

void open(QFileDialog *dialog, std::function<void(const QString &path)> chosen,
          Qt::ConnectionType when = Qt::AutoConnection)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(
        dialog, &QFileDialog::fileSelected, dialog, [chosen = std::move(chosen)](const QString &path) { chosen(path); },
        when);
    dialog->QDialog::open();
}

void openForFolder(QWidget &parent, const QString &title, const QString &folder,
                   std::function<void(const QString &path)> chosen, Qt::ConnectionType when = Qt::AutoConnection)
{
    auto *const dialog = new QFileDialog(&parent, title, folder);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    open(dialog, std::move(chosen), when);
}

} // namespace

void askForFile(QWidget &parent, const QString &filter, std::function<void(const QString &path)> chosen)
{
    auto *const dialog
        = new QFileDialog(&parent, QCoreApplication::translate("FileDialogs", "Open"), QString(), filter);
    // What stands before the last bracket is what is shown.
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setFileMode(QFileDialog::ExistingFile);
    open(dialog, std::move(chosen));
}

void askForNewFile(QWidget &parent, const QString &name, const QString &filter,
                   std::function<void(const QString &path)> chosen)
{
    auto *const dialog
        = new QFileDialog(&parent, QCoreApplication::translate("FileDialogs", "Save"), QString(), filter);
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(QFileInfo(name).suffix());
    dialog->selectFile(name);
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString &kind) {
        static const QRegularExpression suffix(QStringLiteral("\\(\\*\\.(\\w+)"));
        dialog->setDefaultSuffix(suffix.match(kind).captured(1));
    });
    open(dialog, std::move(chosen));
}

void askForFolder(QWidget &parent, const QString &folder, std::function<void(const QString &path)> chosen)
{
    openForFolder(parent, QCoreApplication::translate("FileDialogs", "Choose a folder with pictures"), folder,
                  std::move(chosen));
}

void askForSentFolder(QWidget &parent, std::function<void(const QString &path)> chosen)
{
    openForFolder(parent, QCoreApplication::translate("FileDialogs", "Choose a folder to send"), {}, std::move(chosen),
                  onceItHasGone);
}

void askForSaveFolder(QWidget &parent, const QString &folder, std::function<void(const QString &path)> chosen)
{
    openForFolder(parent, QCoreApplication::translate("FileDialogs", "Choose a folder to save in"), folder,
                  std::move(chosen));
}

void askForFiles(QWidget &parent, std::function<void(const QStringList &paths)> chosen)
{
    auto *const dialog = new QFileDialog(&parent, QCoreApplication::translate("FileDialogs", "Choose files to send"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(
        dialog, &QFileDialog::filesSelected, dialog,
        [chosen = std::move(chosen)](const QStringList &paths) { chosen(paths); }, onceItHasGone);
    dialog->QDialog::open();
}

void showPageSetup(QWidget &parent)
{
    auto *const dialog = new QPageSetupDialog(&parent);
    dialog->setWindowTitle(QCoreApplication::translate("FileDialogs", "Page Setup"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->QDialog::open();
}

} // namespace nimb
