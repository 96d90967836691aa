// The font of logs and input boxes.
#pragma once

#include "core/Common.h"

#include <QFont>
#include <QFontDatabase>

namespace nimb
{

/// In points.
namespace logFontSize
{
constexpr int smallest = 6, largest = 24;
} // namespace logFontSize

/// The stored font; the desktop's own where its face is not installed, so that the store keeps the name.
inline QFont fontOf(const LogFont &stored)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    if (QFontDatabase::hasFamily(stored.face))
        font.setFamily(stored.face);
    font.setPointSize(qBound(logFontSize::smallest, int(stored.size), logFontSize::largest));
    font.setBold(stored.bold());
    font.setItalic(stored.italic());
    return font;
}

} // namespace nimb
