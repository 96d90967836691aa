// A strip that says what the user should know before he goes on.
#pragma once

#include "widgets/form_layout.h"
#include "widgets/link_colours.h"

#include <QLabel>

namespace nimb
{

/// Hidden at first. The desktop's colours for what explains something.
inline QLabel *makeBand(QWidget *parent)
{
    auto *const band = new QLabel(parent);
    band->setWordWrap(true);
    band->setMargin(form_layout::margin);
    band->setAutoFillBackground(true);
    band->setBackgroundRole(QPalette::ToolTipBase);
    band->setForegroundRole(QPalette::ToolTipText);
    band->hide();
    return band;
}

/// The same for a text that holds a link and nothing that is not the program's own.
inline QLabel *makeBandWithLink(QWidget *parent)
{
    QLabel *const band = makeBand(parent);
    band->setTextFormat(Qt::RichText);
    band->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    keepLinkColours(*band);
    return band;
}

} // namespace nimb
