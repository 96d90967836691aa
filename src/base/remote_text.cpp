#include "base/remote_text.h"

#include "base/limits.h"
#include "base/line_break.h"
#include "base/shown_name.h"

#include <QCoreApplication>
#include <QVector>

namespace nimb
{
namespace
{

constexpr char16_t carriageReturn = u'\r';
constexpr char16_t lineFeed = u'\n';
constexpr char16_t popDirectionalFormatting = 0x202C;
constexpr char16_t popDirectionalIsolate = 0x2069;

bool opensEmbedding(char16_t c)
{
    return c == 0x202A || c == 0x202B || c == 0x202D || c == 0x202E;
}

bool opensIsolate(char16_t c)
{
    return c >= 0x2066 && c <= 0x2068;
}

bool isDirectionControl(char16_t c)
{
    return opensEmbedding(c) || opensIsolate(c) || c == popDirectionalFormatting || c == popDirectionalIsolate;
}

bool isLineBreak(char16_t c)
{
    return c == carriageReturn || c == lineFeed || c == 0x0B || c == 0x0C || c == 0x85 || c == 0x2028 || c == 0x2029;
}

/// Control characters, and the characters that Qt's documents keep for their own marks.
bool isUnshowable(char16_t c)
{
    const bool control = c < 0x20 || (c >= 0x7F && c <= 0x9F);
    const bool documentMark = c == 0xFFFC || (c >= 0xFDD0 && c <= 0xFDEF) || c >= 0xFFFE;
    return control || documentMark;
}

qsizetype lengthOfBreak(const QString &text, qsizetype at)
{
    const bool pair = text[at] == carriageReturn && at + 1 < text.size() && text[at + 1] == lineFeed;
    return pair ? 2 : 1;
}

/// Ends what a line opened, innermost first, so that it cannot turn what stands behind it.
QString closingsOf(const QString &line)
{
    QString open;
    for (const QChar c : line) {
        if (opensEmbedding(c.unicode()))
            open.prepend(QChar(popDirectionalFormatting));
        else if (opensIsolate(c.unicode()))
            open.prepend(QChar(popDirectionalIsolate));
        else if (!open.isEmpty() && c == open.front())
            open.remove(0, 1);
    }
    return open;
}

/// Behind the last of the first lines, so many of them, or behind the whole text when it has no more.
qsizetype endOfLines(const QString &text, int lines)
{
    qsizetype end = text.indexOf(lineBreak);
    for (int line = 1; line < lines && end >= 0; ++line)
        end = text.indexOf(lineBreak, end + lineBreak.size());
    return end < 0 ? text.size() : end;
}

QString withClosedDirections(const QString &text)
{
    QStringList lines = text.split(lineBreak);
    for (QString &line : lines)
        line += closingsOf(line);
    return lines.join(lineBreak);
}

} // namespace

QString cutText(const QString &text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    if (length <= 0)
        return {};
    const QChar last = text[length - 1];
    const QChar next = text[length];
    const bool splits
        = (last.isHighSurrogate() && next.isLowSurrogate()) || (last == carriageReturn && next == lineFeed);
    return text.left(splits ? length - 1 : length);
}

QString remoteLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (isDirectionControl(c))
            continue;
        if (isLineBreak(c))
            i += lengthOfBreak(text, i) - 1;
        line += isLineBreak(c) || isUnshowable(c) ? QChar(u' ') : QChar(c);
    }
    return line;
}

QString remoteName(const QString &text)
{
    // Without what followed, the last character may show nothing any more, and would be left out when it is read back.
    return withoutInvisible(cutText(withoutInvisible(remoteLine(text)), limits::nameLength));
}

QString remoteBody(const QString &text)
{
    QString body;
    body.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (isLineBreak(c)) {
            i += lengthOfBreak(text, i) - 1;
            body += lineBreak;
        } else {
            body += isUnshowable(c) && c != u'\t' ? QChar(u' ') : QChar(c);
        }
    }
    return body;
}

QString shownText(const QString &text)
{
    const qsizetype linesEnd = endOfLines(text, limits::shownLines);
    const QString kept = cutText(text, qMin(linesEnd, limits::shownTextLength));
    QString shown = withClosedDirections(kept);
    if (kept.size() == text.size())
        return shown;
    if (linesEnd <= limits::shownTextLength)
        return shown
            + QCoreApplication::translate("RemoteText", "... (%1 more lines)").arg(text.mid(linesEnd).count(lineBreak));
    return shown + QCoreApplication::translate("RemoteText", "... (%1 more characters)").arg(text.size() - kept.size());
}

QString paintedName(const QString &name, qsizetype length)
{
    return name.size() <= length ? name : cutText(name, length) + QChar(0x2026);
}

QString menuName(const QString &name)
{
    return paintedName(name).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace nimb
