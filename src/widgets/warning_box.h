// A box that says what went wrong with what the user has just done in a window.
#pragma once

#include <QMessageBox>

namespace nimb
{

/// Does not stop the program. The sentence is plain text.
inline void warn(QWidget &window, const QString &sentence)
{
    auto *const box = new QMessageBox(QMessageBox::Warning, window.windowTitle(), sentence, QMessageBox::Ok, &window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace nimb
