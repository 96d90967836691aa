// Feeds any bytes to the reader of tips, which shows them whole and in pieces. The first byte says how items and lines
// take turns.
#include "require.h"
#include "welcome/tip_reader.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>

namespace
{

using namespace nimb;

bool holdsLineBreak(const QString &text)
{
    return text.contains(u'\r') || text.contains(u'\n');
}

qsizetype countLines(const QByteArray &bytes)
{
    TipReader reader(bytes);
    TipReader skipping(bytes);
    qsizetype lines = 0;
    while (!reader.atEnd()) {
        const std::optional<QString> line = reader.readLine();
        require(line.has_value(), "what is not at its end has a line");
        require(!holdsLineBreak(*line), "no line holds a line break");
        require(skipping.skipLine(), "a line can be skipped");
        ++lines;
    }
    require(!reader.readLine() && !reader.readItem() && !reader.skipLine(), "at the end nothing is read");
    require(!skipping.skipLine(), "skipping passes the same lines");
    require(lines <= bytes.size(), "no more lines than bytes");
    reader.rewind();
    require(reader.readLine() == TipReader(bytes).readLine(), "rewinding is a new start");
    return lines;
}

void checkItems(const QByteArray &bytes, qsizetype lines)
{
    TipReader reader(bytes);
    qsizetype items = 0;
    while (!reader.atEnd()) {
        const std::optional<QString> item = reader.readItem();
        require(item.has_value(), "what is not at its end has an item");
        require(!holdsLineBreak(*item), "no item holds a line break");
        require(!item->contains(u',') || bytes.contains('"'), "only a quotation keeps a comma");
        ++items;
    }
    require(items >= lines && items <= lines + bytes.count(','), "an item ends at a comma or with its line");
}

/// A line without quotes is what its items say, but for the blanks before them.
void checkPieces(const QByteArray &bytes)
{
    TipReader whole(bytes);
    TipReader pieces(bytes);
    while (const std::optional<QString> line = whole.readLine()) {
        if (line->contains(u'"')) {
            pieces.skipLine();
            continue;
        }
        for (const QString &expected : line->split(u',')) {
            const std::optional<QString> piece = pieces.readItem();
            require(piece && expected.endsWith(*piece), "an item is the end of what stands between two commas");
            require(!piece->startsWith(u' ') && !piece->startsWith(u'\t'), "no item begins with a blank");
        }
    }
    require(pieces.atEnd(), "items and lines end together");
}

void checkTurns(const QByteArray &bytes, std::uint8_t turns)
{
    TipReader reader(bytes);
    qsizetype steps = 0;
    while (!reader.atEnd()) {
        const bool isItem = (turns >> (steps % 8)) & 1;
        require((isItem ? reader.readItem() : reader.readLine()).has_value(), "every turn reads something");
        require(++steps <= bytes.size() + 1, "reading comes to an end");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size) - 1);
    checkItems(bytes, countLines(bytes));
    checkPieces(bytes);
    checkTurns(bytes, data[0]);
    return 0;
}
