#include "files/zip_layout.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace nimb
{
namespace
{

constexpr quint16 versionOfZip64 = 45;
constexpr quint16 sumFollows = 1U << 3, namesAreUtf8 = 1U << 11;
constexpr quint32 inZip64 = 0xFFFFFFFF;
constexpr quint16 madeOnUnix = 3 << 8;

/// Eight tables: as many bytes are added at a time.
constexpr auto crcTables = [] {
    std::array<std::array<quint32, 256>, 8> tables{};
    for (quint32 i = 0; i < 256; ++i) {
        quint32 value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1) ^ (value & 1 ? 0xEDB88320U : 0U);
        tables[0][i] = value;
    }
    for (std::size_t table = 1; table < tables.size(); ++table) {
        for (std::size_t i = 0; i < 256; ++i)
            tables[table][i] = (tables[table - 1][i] >> 8) ^ tables[0][tables[table - 1][i] & 0xFF];
    }
    return tables;
}();

/// Numbers in the order of ZIP, the low byte first.
class ZipBytes
{
public:
    ZipBytes &u16(quint16 number) { return put(number, 2); }
    ZipBytes &u32(quint32 number) { return put(number, 4); }
    ZipBytes &u64(quint64 number) { return put(number, 8); }
    ZipBytes &text(const QByteArray &bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    QByteArray take() { return std::move(m_bytes); }

private:
    ZipBytes &put(quint64 number, int bytes)
    {
        for (int i = 0; i < bytes; ++i)
            m_bytes += static_cast<char>(number >> (8 * i) & 0xFF);
        return *this;
    }

    QByteArray m_bytes;
};

quint16 dosTime(const QDateTime &modified)
{
    const QTime time = modified.time();
    return modified.isValid() ? static_cast<quint16>(time.hour() << 11 | time.minute() << 5 | time.second() / 2)
                              : quint16{0};
}

/// The calendar of DOS begins with 1980.
quint16 dosDate(const QDateTime &modified)
{
    const QDate date = modified.isValid() && modified.date().year() >= 1980 ? modified.date() : QDate(1980, 1, 1);
    const int years = std::min(date.year() - 1980, 127);
    return static_cast<quint16>(years << 9 | date.month() << 5 | date.day());
}

/// Folders have no sum behind them, for they have no bytes.
quint16 flagsOf(const ZipEntry &entry)
{
    return entry.isFolder() ? namesAreUtf8 : namesAreUtf8 | sumFollows;
}

quint64 nameLength(const ZipEntry &entry)
{
    return static_cast<quint64>(entry.name.toUtf8().size());
}

constexpr quint64 headerLength = 30 + 20, sumLength = 24, directoryLength = 46 + 28, endLength = 56 + 20 + 22;

} // namespace

quint32 crc32(quint32 sum, std::span<const char> bytes)
{
    const auto &t = crcTables;
    quint32 crc = ~sum;
    const auto byteAt = [&](std::size_t i) { return static_cast<quint32>(static_cast<unsigned char>(bytes[i])); };
    std::size_t i = 0;
    for (; i + 8 <= bytes.size(); i += 8) {
        crc ^= byteAt(i) | byteAt(i + 1) << 8 | byteAt(i + 2) << 16 | byteAt(i + 3) << 24;
        crc = t[7][crc & 0xFF] ^ t[6][crc >> 8 & 0xFF] ^ t[5][crc >> 16 & 0xFF] ^ t[4][crc >> 24] ^ t[3][byteAt(i + 4)]
            ^ t[2][byteAt(i + 5)] ^ t[1][byteAt(i + 6)] ^ t[0][byteAt(i + 7)];
    }
    for (; i < bytes.size(); ++i)
        crc = crc >> 8 ^ t[0][(crc ^ byteAt(i)) & 0xFF];
    return ~crc;
}

ZipLayout::ZipLayout(std::vector<ZipEntry> entries) : m_entries(std::move(entries))
{
    quint64 place = 0;
    for (const ZipEntry &entry : m_entries) {
        m_starts.push_back(place);
        place += headerLength + nameLength(entry) + entry.size + (entry.isFolder() ? 0 : sumLength);
    }
    m_directoryStart = place;
    for (const ZipEntry &entry : m_entries) {
        m_directory.push_back(place);
        place += directoryLength + nameLength(entry);
    }
    m_directoryEnd = place;
    m_size = m_directoryEnd + endLength;
}

ZipLayout::Piece ZipLayout::at(quint64 place) const
{
    if (place >= m_directoryEnd)
        return End{place - m_directoryEnd};
    const bool isDirectory = place >= m_directoryStart;
    const std::vector<quint64> &starts = isDirectory ? m_directory : m_starts;
    const auto next = std::upper_bound(starts.begin(), starts.end(), place);
    const auto entry = static_cast<std::size_t>(std::distance(starts.begin(), next)) - 1;
    const quint64 offset = place - starts[entry];
    if (isDirectory)
        return Directory{entry, offset};
    const quint64 header = headerLength + nameLength(m_entries[entry]);
    const quint64 size = m_entries[entry].size;
    if (offset < header)
        return Header{entry, offset};
    if (offset < header + size)
        return FileBytes{entry, offset - header, size - (offset - header)};
    return Sum{entry, offset - header - size};
}

QByteArray ZipLayout::header(std::size_t index) const
{
    const ZipEntry &entry = m_entries[index];
    const QByteArray name = entry.name.toUtf8();
    return ZipBytes()
        .u32(0x04034B50)
        .u16(versionOfZip64)
        .u16(flagsOf(entry))
        .u16(0) // stored
        .u16(dosTime(entry.modified))
        .u16(dosDate(entry.modified))
        .u32(0) // the sum follows
        .u32(inZip64)
        .u32(inZip64)
        .u16(static_cast<quint16>(name.size()))
        .u16(20)
        .text(name)
        .u16(1)
        .u16(16)
        .u64(entry.size)
        .u64(entry.size)
        .take();
}

QByteArray ZipLayout::sum(std::size_t index, quint32 crc) const
{
    const quint64 size = m_entries[index].size;
    return ZipBytes().u32(0x08074B50).u32(crc).u64(size).u64(size).take();
}

QByteArray ZipLayout::directory(std::size_t index, quint32 crc) const
{
    constexpr quint32 folderMode = 0040755U << 16 | 0x10, fileMode = 0100644U << 16;
    const ZipEntry &entry = m_entries[index];
    const QByteArray name = entry.name.toUtf8();
    return ZipBytes()
        .u32(0x02014B50)
        .u16(madeOnUnix | versionOfZip64)
        .u16(versionOfZip64)
        .u16(flagsOf(entry))
        .u16(0)
        .u16(dosTime(entry.modified))
        .u16(dosDate(entry.modified))
        .u32(crc)
        .u32(inZip64)
        .u32(inZip64)
        .u16(static_cast<quint16>(name.size()))
        .u16(28)
        .u16(0) // no remark
        .u16(0)
        .u16(0)
        .u32(entry.isFolder() ? folderMode : fileMode)
        .u32(inZip64)
        .text(name)
        .u16(1)
        .u16(24)
        .u64(entry.size)
        .u64(entry.size)
        .u64(m_starts[index])
        .take();
}

QByteArray ZipLayout::end() const
{
    const quint64 count = m_entries.size(), length = m_directoryEnd - m_directoryStart;
    return ZipBytes()
        .u32(0x06064B50)
        .u64(44)
        .u16(madeOnUnix | versionOfZip64)
        .u16(versionOfZip64)
        .u32(0)
        .u32(0)
        .u64(count)
        .u64(count)
        .u64(length)
        .u64(m_directoryStart)
        .u32(0x07064B50) // where that record is
        .u32(0)
        .u64(m_directoryEnd)
        .u32(1)
        .u32(0x06054B50)
        .u16(0)
        .u16(0)
        .u16(0xFFFF)
        .u16(0xFFFF)
        .u32(inZip64)
        .u32(inZip64)
        .u16(0)
        .take();
}

} // namespace nimb
