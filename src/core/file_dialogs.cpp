#include "core/file_dialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QPageSetupDialog>

namespace nimb
{

void showFileOpen(QWidget &parent)
{
    // "*.*" would hide files without a dot; what stands before the last bracket is what is shown.
    auto *const dialog
        = new QFileDialog(&parent, QCoreApplication::translate("FileDialogs", "Open"), QString(),
                          QCoreApplication::translate("FileDialogs", "All Files (*.*)") + QLatin1String(" (*)"));
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void showPageSetup(QWidget &parent)
{
    auto *const dialog = new QPageSetupDialog(&parent);
    dialog->setWindowTitle(QCoreApplication::translate("FileDialogs", "Page Setup"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->QDialog::open();
}

} // namespace nimb
