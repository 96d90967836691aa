// The font of logs and input boxes.
#pragma once

#include "core/Common.h"

#include <QFont>
#include <QFontDatabase>

namespace nimb
{

/// The stored font; the desktop's own where its face is not installed, so that the store keeps the name.
inline QFont fontOf(const LogFont &stored)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    if (QFontDatabase::hasFamily(stored.face))
        font.setFamily(stored.face);
    font.setPointSize(qBound(6, int(stored.size), 24));
    font.setBold(stored.bold());
    font.setItalic(stored.italic());
    return font;
}

} // namespace nimb
