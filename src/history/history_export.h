// Kept messages as a file that other programs read.
#pragma once

#include "base/history.h"

#include <QByteArray>

namespace nimb
{

enum class HistoryFormat { text, page, jsonLines };

/// Of the end of a file's name; text where it says nothing.
HistoryFormat historyFormatOf(const QString &path);

/// UTF-8. A file is one beginning, any number of messages, and one end.
QByteArray exportBegin(HistoryFormat format, const QString &title);
/// conversation: what it is called.
QByteArray exported(HistoryFormat format, const KeptMessage &message, const QString &conversation);
QByteArray exportEnd(HistoryFormat format);

} // namespace nimb
