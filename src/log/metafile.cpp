#include "log/metafile.h"

#include "log/emoticon_tables.h"

#include <QRegularExpression>

#include <iterator>
#include <span>

namespace nimb
{
namespace
{

constexpr int largestSide = 64; ///< of a bitmap, in pixels

/// A reader over little-endian words that never leaves its bytes: beyond them it reads zeros and remembers it.
class Words
{
public:
    explicit Words(std::span<const char> bytes) : m_bytes(bytes) { }

    qsizetype position() const { return m_at; } ///< in words
    void seek(qsizetype word) { m_at = word; }
    /// Takes sizes as the bytes give them, which no signed number of a 32-bit machine holds.
    bool has(std::uint32_t words) const
    {
        const qsizetype left = std::ssize(m_bytes) / 2 - m_at;
        return left >= 0 && words <= static_cast<std::uint64_t>(left);
    }
    bool overrun() const { return m_overrun; }

    std::uint32_t word()
    {
        const std::uint32_t low = byteAt(2 * m_at), high = byteAt(2 * m_at + 1);
        ++m_at;
        return low | high << 8;
    }
    std::uint32_t dword()
    {
        const std::uint32_t low = word();
        return low | word() << 16;
    }

private:
    std::uint32_t byteAt(qsizetype at)
    {
        if (at < std::ssize(m_bytes))
            return static_cast<std::uint8_t>(m_bytes[static_cast<std::size_t>(at)]);
        m_overrun = true;
        return 0;
    }

    std::span<const char> m_bytes;
    qsizetype m_at = 0;
    bool m_overrun = false;
};

bool readHeader(Words &in)
{
    constexpr std::uint32_t inMemory = 1, headerSize = 9, version = 0x0300;
    const bool known = in.word() == inMemory && in.word() == headerSize && in.word() == version;
    const std::uint32_t totalSize = in.dword();
    in.word();  // objects
    in.dword(); // largest record
    in.word();
    return known && !in.overrun() && totalSize >= headerSize && in.has(totalSize - headerSize);
}

struct Extent {
    std::uint32_t width = 0, height = 0;
};

/// The corner measures of a stretched bitmap: the whole of it over the whole window.
bool readPlacement(Words &in, Extent &size, const Extent &window)
{
    size.height = in.word();
    size.width = in.word();
    const bool wholeBitmap = in.word() == 0 && in.word() == 0;
    const bool wholeWindow = in.word() == window.height && in.word() == window.width;
    const bool atOrigin = in.word() == 0 && in.word() == 0;
    return wholeBitmap && wholeWindow && atOrigin;
}

bool readBitmapHeader(Words &in, const Extent &size)
{
    constexpr std::uint32_t headerBytes = 40, planes = 1, bitsAPixel = 4, uncompressed = 0;
    const bool known = in.dword() == headerBytes && in.dword() == size.width && in.dword() == size.height
        && in.word() == planes && in.word() == bitsAPixel && in.dword() == uncompressed;
    for (int unused = 0; unused < 3; ++unused) // sizes in bytes and in metres
        in.dword();
    const std::uint32_t coloursUsed = in.dword();
    in.dword(); // important ones
    const bool plain = coloursUsed == 0 || coloursUsed == 16;
    return known && plain && size.width > 0 && size.height > 0 && size.width <= largestSide
        && size.height <= largestSide;
}

/// start: the word behind the record's function number; the bytes end where the record does.
std::optional<IndexedBitmap> readStretchedBitmap(const QByteArray &bytes, qsizetype start, const Extent &window)
{
    constexpr std::uint32_t copySource = 0x00CC0020, paletteOfColours = 0;
    Words in(bytes);
    in.seek(start);
    const bool plainCopy = in.dword() == copySource && in.word() == paletteOfColours;
    Extent size;
    if (!plainCopy || !readPlacement(in, size, window) || !readBitmapHeader(in, size))
        return std::nullopt;

    IndexedBitmap bitmap;
    bitmap.width = static_cast<int>(size.width);
    bitmap.height = static_cast<int>(size.height);
    for (std::uint32_t &colour : bitmap.palette)
        colour = in.dword() & 0xFFFFFF;
    bitmap.pixels.resize(std::size_t(size.width) * size.height);
    const std::uint32_t wordsARow = (size.width + 7) / 8 * 2;
    for (std::uint32_t row = size.height; row-- > 0;) {
        for (std::uint32_t pair = 0; pair < wordsARow; ++pair) {
            const std::uint32_t word = in.word();
            // Four pixels: the byte that comes first holds the left two, its upper half the leftmost.
            const std::array<std::uint32_t, 4> four = {word >> 4 & 0xF, word & 0xF, word >> 12 & 0xF, word >> 8 & 0xF};
            for (std::uint32_t i = 0; i < four.size() && 4 * pair + i < size.width; ++i)
                bitmap.pixels[std::size_t(row) * size.width + std::size_t(4) * pair + i]
                    = static_cast<std::uint8_t>(four[i]);
        }
    }
    return in.overrun() ? std::nullopt : std::optional(bitmap);
}

} // namespace

std::optional<IndexedBitmap> decodeMetafile(const QByteArray &bytes)
{
    constexpr std::uint32_t setWindowExt = 0x020C, stretchDib = 0x0F43, end = 0;
    constexpr std::uint32_t smallestRecord = 3;
    Words in(bytes);
    if (!readHeader(in))
        return std::nullopt;
    Extent window;
    std::optional<IndexedBitmap> bitmap;
    while (in.has(smallestRecord)) {
        const qsizetype start = in.position();
        const std::uint32_t size = in.dword();
        const std::uint32_t function = in.word();
        if (function == end)
            return bitmap;
        if (size < smallestRecord || !in.has(size - smallestRecord))
            return std::nullopt;
        if (function == setWindowExt) {
            window.height = in.word();
            window.width = in.word();
        } else if (function == stretchDib) {
            bitmap = readStretchedBitmap(bytes.first(2 * (start + qsizetype(size))), in.position(), window);
        }
        in.seek(start + qsizetype(size));
    }
    return std::nullopt;
}

std::optional<IndexedBitmap> decodePictureFragment(QStringView fragment)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A\{\\pict\\picw\d{1,5}\\pich\d{1,5}\\wmetafile8 ([0-9a-f]++)\}\z)"));
    const QRegularExpressionMatch match = form.match(fragment.toString());
    if (!match.hasMatch() || match.capturedLength(1) % 2 != 0)
        return std::nullopt;
    return decodeMetafile(QByteArray::fromHex(match.captured(1).toLatin1()));
}

QString emoticonFragment(std::size_t picture)
{
    return QLatin1String(R"({\pict\picw318\pich318\wmetafile8 )") + emoticonTables.pictureHex(picture)
        + QLatin1Char('}');
}

} // namespace nimb
