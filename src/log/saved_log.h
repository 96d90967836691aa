// A log as a file or on paper.
#pragma once

#include <QString>

class QPagedPaintDevice;
class QTextDocument;

namespace nimb
{

/// What a reader sees: the days, the times beside the lines, and the lines, pictures as what they stand for.
QString logAsText(const QTextDocument &log);

/// The same as a page of its own for a browser: in colours, with links, without scripts. Nothing that somebody has
/// written becomes anything but text.
QString logAsHtml(const QTextDocument &log, const QString &title);

/// That page on paper.
void printLog(const QTextDocument &log, const QString &title, QPagedPaintDevice &printer);

/// Writes all of it or leaves the file as it was; nothing, or what the system says against it. A name that ends in
/// ".html" or ".htm" asks for a page, each other one for text in UTF-8.
[[nodiscard]] QString saveLog(const QTextDocument &log, const QString &title, const QString &path);

} // namespace nimb
