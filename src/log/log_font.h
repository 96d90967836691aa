// The font of logs and input boxes.
#pragma once

#include "base/Common.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

namespace nimb
{

/// In points.
namespace log_font_size
{
constexpr int smallest = 6, largest = 24;
} // namespace log_font_size

/// The stored font; the desktop's own where its face is not installed, so that the store keeps the name, and where
/// nobody has chosen one.
inline QFont fontOf(const LogFont &stored)
{
    QFont font = QGuiApplication::font();
    if (stored == LogFont())
        return font;
    if (QFontDatabase::hasFamily(stored.face))
        font.setFamily(stored.face);
    font.setPointSize(qBound(log_font_size::smallest, int(stored.size), log_font_size::largest));
    font.setBold(stored.bold());
    font.setItalic(stored.italic());
    return font;
}

} // namespace nimb
