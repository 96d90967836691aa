#include "log/saved_log.h"

#include "log/log_marks.h"
#include "log/log_pictures.h"
#include "log/rich_text_log.h"
#include "widgets/muted_colour.h"

#include <QPagedPaintDevice>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

namespace nimb
{
namespace
{

/// The last one is what the next text begins with.
bool isAfterLast(const QTextBlock &block)
{
    return !block.next().isValid() && block.length() <= 1;
}

/// The widest time of a log, in characters; 0 without times.
qsizetype timeColumn(const QTextDocument &log)
{
    qsizetype width = 0;
    for (QTextBlock block = log.begin(); block.isValid(); block = block.next())
        width = qMax(width, LogMarks::timeOf(block.blockFormat()).size());
    return width;
}

/// A link that leads somewhere; commands of the program are none.
QString addressOf(const QTextCharFormat &format)
{
    const QUrl target(format.anchorHref(), QUrl::StrictMode);
    return format.isAnchor() && !target.scheme().isEmpty() ? QString::fromLatin1(target.toEncoded()) : QString();
}

QString pieceAsHtml(const QTextFragment &fragment)
{
    const QTextCharFormat format = fragment.charFormat();
    const QString alternative = alternativeText(format);
    const QString text = (alternative.isEmpty() ? fragment.text() : alternative.repeated(fragment.length()))
                             .toHtmlEscaped()
                             .replace(QChar::LineSeparator, QLatin1String("<br>"));
    const QString address = addressOf(format);
    if (!address.isEmpty())
        return QStringLiteral("<a href=\"%1\">%2</a>").arg(address.toHtmlEscaped(), text);
    const bool isBold = format.fontWeight() > QFont::Normal;
    const QString shown = isBold ? QStringLiteral("<b>%1</b>").arg(text) : text;
    const std::optional<QColor> colour = meantColour(format);
    if (!colour)
        return shown;
    return QStringLiteral("<span style=\"color:%1\">%2</span>")
        .arg(contrastingOn(*colour, QColor(Qt::white)).name(), shown);
}

QString lineAsHtml(const QTextBlock &block)
{
    QString line;
    for (auto it = block.begin(); !it.atEnd(); ++it)
        line += pieceAsHtml(it.fragment());
    const QTextBlockFormat format = block.blockFormat();
    if (const QString time = LogMarks::timeOf(format); !time.isEmpty())
        line += QStringLiteral(" <span class=\"time\">%1</span>").arg(time.toHtmlEscaped());
    const char *const kind = LogMarks::isOwnMessage(format) ? " class=\"own\"" : "";
    return QStringLiteral("<p%1>%2</p>\n").arg(QLatin1String(kind), line.isEmpty() ? QStringLiteral("&nbsp;") : line);
}

constexpr auto pageHead = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n<style>\n"
                          "body { color: #000; background: #fff; font-family: sans-serif; max-width: 50em; margin: 2em "
                          "auto; padding: 0 1em; }\n"
                          "p { margin: 2px 0; padding: 1px 6px 1px 24px; text-indent: -18px; white-space: pre-wrap; }\n"
                          ".own { background-color: #eef3fa; }\n"
                          ".day { color: #5b6570; text-align: center; margin-top: 14px; }\n"
                          ".time { color: #5b6570; font-size: small; }\n"
                          "</style>\n</head>\n<body>\n<h1>%1</h1>\n";

} // namespace

QString logAsText(const QTextDocument &log)
{
    const qsizetype column = timeColumn(log);
    QString text;
    for (QTextBlock block = log.begin(); block.isValid() && !isAfterLast(block); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        if (const QString day = LogMarks::dayOf(format); !day.isEmpty())
            text += QStringLiteral("\n%1\n").arg(day);
        if (column > 0)
            text += LogMarks::timeOf(format).leftJustified(column) + QLatin1String("  ");
        text += textWithAlternatives(log, block.position(), block.position() + block.length() - 1) + u'\n';
    }
    return text;
}

QString logAsHtml(const QTextDocument &log, const QString &title)
{
    QString page = QString::fromLatin1(pageHead).arg(title.toHtmlEscaped());
    for (QTextBlock block = log.begin(); block.isValid() && !isAfterLast(block); block = block.next()) {
        if (const QString day = LogMarks::dayOf(block.blockFormat()); !day.isEmpty())
            page += QStringLiteral("<p class=\"day\">%1</p>\n").arg(day.toHtmlEscaped());
        page += lineAsHtml(block);
    }
    return page + QLatin1String("</body>\n</html>\n");
}

void printLog(const QTextDocument &log, const QString &title, QPagedPaintDevice &printer)
{
    QTextDocument page;
    page.setHtml(logAsHtml(log, title));
    page.print(&printer);
}

QString saveLog(const QTextDocument &log, const QString &title, const QString &path)
{
    const bool isPage = path.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)
        || path.endsWith(QLatin1String(".htm"), Qt::CaseInsensitive);
    const QByteArray bytes = (isPage ? logAsHtml(log, title) : logAsText(log)).toUtf8();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return file.errorString();
}

} // namespace nimb
