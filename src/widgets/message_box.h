// How the program's message boxes look.
#pragma once

#include "widgets/pictures.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace nimb
{

/// With a picture of our own, and none on the buttons, where desktops would bring theirs. The text is plain text.
inline void dress(QMessageBox &box, const QString &picture)
{
    constexpr int side = 40; // pixels
    box.setTextFormat(Qt::PlainText);
    box.setIconPixmap(namedPicture(picture).pixmap(side, side));
    for (QAbstractButton *const button : box.buttons())
        button->setIcon(QIcon());
}

inline const QString questionPicture = QStringLiteral("help"), warningPicture = QStringLiteral("warning");

/// Says what went wrong with what the user has just done in this window. Does not stop the program.
inline void warn(QWidget &window, const QString &sentence)
{
    auto *const box = new QMessageBox(QMessageBox::NoIcon, window.windowTitle(), sentence, QMessageBox::Ok, &window);
    dress(*box, warningPicture);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace nimb
