// Reads the file of tips, line by line or item by item.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace nimb
{

/// Goes once through the bytes that one opening of the file gave. Lines end with CR LF, LF or CR alone; a break at the
/// very end begins no further line, and a byte order mark of UTF-8 is skipped. A line is decoded as received text is.
class TipReader
{
public:
    explicit TipReader(QByteArray bytes);

    /// True when there is nothing left to read, not even an empty line or item.
    bool atEnd() const { return !m_line && m_nextLine >= m_bytes.size(); }
    /// A whole line, or what the items before left of it. Nothing at the end.
    std::optional<QString> readLine();
    /// As readLine(), for a line that nobody needs. False at the end.
    bool skipLine();
    /// The next item: it ends at the first comma outside double quotes, or with its line, and so does a quotation that
    /// nobody closes. Blanks before it and quotes around it are left out. Nothing at the end.
    std::optional<QString> readItem();
    /// Back to the first line.
    void rewind();

private:
    QByteArray takeLine();

    QByteArray m_bytes;
    qsizetype m_nextLine = 0;
    std::optional<QString> m_line; ///< while items of it are left
    qsizetype m_nextItem = 0;      ///< its place in that line
};

} // namespace nimb
