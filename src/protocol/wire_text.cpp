#include "protocol/wire_text.h"

#include <QStringConverter>

#include <algorithm>
#include <array>
#include <optional>

namespace nimb
{
namespace
{

/// windows-1252, bytes 0x80 to 0x9F; every other byte is the character of the same value. An own table, for Qt's
/// codec needs ICU, which not every build has, and writes 0x1A for what the page lacks.
constexpr std::array<char16_t, 32> westernUpper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned char firstUpper = 0x80;
constexpr unsigned char lastUpper = 0x9F;

std::optional<char> westernByte(char16_t c)
{
    if (c < firstUpper || (c > lastUpper && c <= 0xFF))
        return static_cast<char>(c);
    const auto *const found = std::ranges::find(westernUpper, c);
    if (found == westernUpper.end())
        return std::nullopt;
    return static_cast<char>(firstUpper + (found - westernUpper.begin()));
}

char16_t westernCharacter(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    if (value < firstUpper || value > lastUpper)
        return value;
    return westernUpper[value - firstUpper];
}

std::optional<std::string> toWestern(const QString &text)
{
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar c : text) {
        const std::optional<char> byte = westernByte(c.unicode());
        if (!byte)
            return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

bool isAscii(std::string_view bytes)
{
    return std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

QByteArrayView viewOf(std::string_view bytes)
{
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

bool isMultiByteUtf8(std::string_view bytes)
{
    return !isAscii(bytes) && QUtf8StringView(viewOf(bytes)).isValidUtf8();
}

} // namespace

std::string toWire(const QString &text)
{
    const std::optional<std::string> western = toWestern(text);
    if (western && !isMultiByteUtf8(*western))
        return *western;
    return text.toStdString();
}

QString fromWire(std::string_view bytes)
{
    if (isMultiByteUtf8(bytes)) {
        // QString::fromUtf8 would swallow a leading U+FEFF.
        QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
        return decoder.decode(viewOf(bytes));
    }
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (const char byte : bytes)
        text += QChar(westernCharacter(byte));
    return text;
}

QString oneWord(const QString &name)
{
    return name.simplified().replace(QLatin1Char(' '), QLatin1Char('-'));
}

} // namespace nimb
