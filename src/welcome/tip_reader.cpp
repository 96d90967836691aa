#include "welcome/tip_reader.h"

#include "protocol/wire_text.h"

#include <algorithm>

namespace nimb
{
namespace
{

const QByteArray byteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");
constexpr QChar quote = u'"';

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

bool isLineBreak(char byte)
{
    return byte == '\r' || byte == '\n';
}

/// Place of the comma, or the line's length.
qsizetype endOfItem(QStringView line, qsizetype start)
{
    bool quoted = false;
    for (qsizetype i = start; i < line.size(); ++i) {
        if (line[i] == quote)
            quoted = !quoted;
        else if (line[i] == u',' && !quoted)
            return i;
    }
    return line.size();
}

/// Only one pair that stands around the whole item goes.
QStringView withoutQuotes(QStringView item)
{
    const qsizetype closing = item.startsWith(quote) ? item.indexOf(quote, 1) : -1;
    if (closing < 0 || !std::all_of(item.begin() + closing + 1, item.end(), isBlank))
        return item;
    return item.sliced(1, closing - 1);
}

} // namespace

TipReader::TipReader(QByteArray bytes) : m_bytes(std::move(bytes))
{
    rewind();
}

void TipReader::rewind()
{
    m_line.reset();
    m_nextLine = m_bytes.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
}

QByteArray TipReader::takeLine()
{
    const auto start = m_bytes.cbegin() + m_nextLine;
    const auto end = std::find_if(start, m_bytes.cend(), isLineBreak);
    QByteArray line = m_bytes.mid(m_nextLine, end - start);
    m_nextLine += line.size();
    if (end != m_bytes.cend())
        m_nextLine += *end == '\r' && end + 1 != m_bytes.cend() && end[1] == '\n' ? 2 : 1;
    return line;
}

std::optional<QString> TipReader::readLine()
{
    if (atEnd())
        return std::nullopt;
    if (!m_line)
        return fromWire(takeLine().toStdString());
    const QString rest = m_line->sliced(m_nextItem);
    m_line.reset();
    return rest;
}

bool TipReader::skipLine()
{
    if (atEnd())
        return false;
    if (!m_line)
        takeLine();
    m_line.reset();
    return true;
}

std::optional<QString> TipReader::readItem()
{
    if (atEnd())
        return std::nullopt;
    if (!m_line) {
        m_line = fromWire(takeLine().toStdString());
        m_nextItem = 0;
    }
    const QStringView line = *m_line;
    const qsizetype start = std::find_if_not(line.begin() + m_nextItem, line.end(), isBlank) - line.begin();
    const qsizetype end = endOfItem(line, start);
    const QString item = withoutQuotes(line.sliced(start, end - start)).toString();
    if (end == line.size())
        m_line.reset();
    else
        m_nextItem = end + 1;
    return item;
}

} // namespace nimb
