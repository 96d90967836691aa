// The flat buttons between a log and its input box.
#pragma once

#include "widgets/pictures.h"

#include <QToolButton>

namespace nimb
{

/// picture: its name among the program's own.
inline QToolButton *toolButton(QWidget *parent, const char *name, const QString &caption, const char *picture)
{
    auto *const button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setText(caption);
    button->setIcon(namedPicture(QLatin1String(picture)));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace nimb
