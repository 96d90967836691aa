#include "history/history_export.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace nimb
{
namespace
{

const QLatin1String pageBegin(
    "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title>\n<style>\n"
    "body { font-family: sans-serif; max-width: 50em; margin: 2em auto; color: #1f2328; background: #ffffff; }\n"
    ".head { color: #59636e; font-size: 85%; margin-top: 0.8em; }\n.text { white-space: pre-wrap; }\n"
    ".own .text { background: #eef4fb; }\n"
    "@media (prefers-color-scheme: dark) { body { color: #e6e6e6; background: #1c1e21; } .head { color: #a0a8b0; } "
    ".own .text { background: #24303c; } }\n</style></head><body>\n<h1>%1</h1>\n");

QString plainLines(const QString &text)
{
    return QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QString headOf(const KeptMessage &message, const QString &conversation)
{
    return message.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) + QLatin1String(" [") + conversation
        + QLatin1String("] ") + message.writer;
}

QByteArray asText(const KeptMessage &message, const QString &conversation)
{
    // A message of several lines goes on indented, so that nobody takes one of them for a message of its own.
    const QString text = plainLines(message.text).replace(u'\n', QLatin1String("\n    "));
    return (headOf(message, conversation) + QLatin1String("> ") + text + u'\n').toUtf8();
}

QByteArray asPage(const KeptMessage &message, const QString &conversation)
{
    return (QLatin1String(message.isOwn ? "<div class=\"own\">" : "<div>") + QLatin1String("<div class=\"head\">")
            + headOf(message, conversation).toHtmlEscaped() + QLatin1String("</div><div class=\"text\">")
            + plainLines(message.text).toHtmlEscaped() + QLatin1String("</div></div>\n"))
        .toUtf8();
}

QByteArray asJson(const KeptMessage &message, const QString &conversation)
{
    const QJsonObject object{{QStringLiteral("time"), message.time.toUTC().toString(Qt::ISODateWithMs)},
                             {QStringLiteral("conversation"), conversation},
                             {QStringLiteral("own"), message.isOwn},
                             {QStringLiteral("writer"), message.writer},
                             {QStringLiteral("address"), message.address},
                             {QStringLiteral("workstation"), message.workstation},
                             {QStringLiteral("text"), plainLines(message.text)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

HistoryFormat historyFormatOf(const QString &path)
{
    if (path.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)
        || path.endsWith(QLatin1String(".htm"), Qt::CaseInsensitive))
        return HistoryFormat::page;
    return path.endsWith(QLatin1String(".jsonl"), Qt::CaseInsensitive) ? HistoryFormat::jsonLines : HistoryFormat::text;
}

QByteArray exportBegin(HistoryFormat format, const QString &title)
{
    return format == HistoryFormat::page ? QString(pageBegin).arg(title.toHtmlEscaped()).toUtf8() : QByteArray();
}

QByteArray exported(HistoryFormat format, const KeptMessage &message, const QString &conversation)
{
    switch (format) {
    case HistoryFormat::text:
        return asText(message, conversation);
    case HistoryFormat::page:
        return asPage(message, conversation);
    case HistoryFormat::jsonLines:
        return asJson(message, conversation);
    }
    return {};
}

QByteArray exportEnd(HistoryFormat format)
{
    return format == HistoryFormat::page ? QByteArray("</body></html>\n") : QByteArray();
}

} // namespace nimb
