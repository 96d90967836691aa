#include "files/file_link.h"

#include "files/file_name.h"
#include "protocol/address_text.h"

#include <algorithm>

namespace nimb
{
namespace
{

constexpr std::size_t tokenLength = 32;
constexpr qsizetype longestSizeText = 20;
constexpr QLatin1String beforeAddress(" http://");

bool isToken(std::string_view text)
{
    const auto isDigit = [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
    return text.size() == tokenLength && std::ranges::all_of(text, isDigit);
}

/// Digits, a dot and letters: nothing else is said there.
bool isSizeText(QStringView text)
{
    const auto isPart = [](QChar c) { return c.unicode() < 128 && (c.isLetterOrNumber() || c == u'.' || c == u' '); };
    return !text.isEmpty() && text.size() <= longestSizeText && text.front().isDigit()
        && std::ranges::all_of(text, isPart);
}

/// The place behind " http://", whose left side is left in front.
std::optional<std::pair<Ipv4Address, std::uint16_t>> readHostAndPort(QStringView text)
{
    const qsizetype colon = text.indexOf(u':');
    if (colon < 0)
        return std::nullopt;
    const std::optional<Ipv4Address> host = readAddress(text.left(colon));
    const QStringView digits = text.mid(colon + 1);
    const bool areDigits = !digits.isEmpty() && digits.size() <= 5
        && std::ranges::all_of(digits, [](QChar c) { return c >= u'0' && c <= u'9'; });
    const int port = areDigits ? digits.toInt() : 0;
    if (!host || !host->isUnicast() || port < 1 || port > 65535)
        return std::nullopt;
    return std::pair{*host, static_cast<std::uint16_t>(port)};
}

} // namespace

/// Piece by piece: a name may hold what looks like the place of another piece.
QString fileMessage(const QString &name, quint64 size, Ipv4Address host, std::uint16_t port, const QString &token)
{
    const QString place = addressText(host) + QLatin1Char(':') + QString::number(port);
    return name + QLatin1String(" (") + fileSizeText(size) + QLatin1String(") http://") + place + QLatin1Char('/')
        + token + QLatin1Char('/') + QString::fromLatin1(encodedFileName(name));
}

QString messageOf(const FileLink &link)
{
    return link.name + QLatin1String(" (") + link.sizeText + QLatin1String(") http://") + addressText(link.host)
        + QLatin1Char(':') + QString::number(link.port) + QString::fromLatin1(link.path);
}

std::optional<FileLink> fileLinkIn(const QString &message)
{
    const QString text = message.trimmed();
    const qsizetype address = text.lastIndexOf(beforeAddress);
    const qsizetype bracket = text.lastIndexOf(QLatin1String(" ("), address);
    if (address <= 0 || bracket <= 0 || text[address - 1] != u')')
        return std::nullopt;
    const QStringView sizeText = QStringView(text).sliced(bracket + 2, address - 1 - (bracket + 2));
    const QStringView place = QStringView(text).sliced(address + beforeAddress.size());
    const qsizetype slash = place.indexOf(u'/');
    if (!isSizeText(sizeText) || slash < 0)
        return std::nullopt;
    const auto hostAndPort = readHostAndPort(place.left(slash));
    const bool isAscii = std::ranges::all_of(place, [](QChar c) { return c > u' ' && c < QChar(0x7F); });
    if (!hostAndPort || !isAscii)
        return std::nullopt;
    const QByteArray path = place.sliced(slash).toLatin1();
    const std::optional<AskedFile> asked = askedFile({path.constData(), static_cast<std::size_t>(path.size())});
    const QString name = text.left(bracket);
    if (!asked || asked->name != name.toUtf8())
        return std::nullopt;
    return FileLink{.name = name,
                    .sizeText = sizeText.toString(),
                    .host = hostAndPort->first,
                    .port = hostAndPort->second,
                    .token = QString::fromLatin1(asked->token.data(), static_cast<qsizetype>(asked->token.size())),
                    .path = path};
}

std::optional<AskedFile> askedFile(std::string_view path)
{
    if (path.size() < tokenLength + 3 || path.front() != '/' || path[tokenLength + 1] != '/')
        return std::nullopt;
    const std::string_view token = path.substr(1, tokenLength);
    std::optional<QByteArray> name = decodedPart(path.substr(tokenLength + 2));
    if (!isToken(token) || !name || name->contains('/') || name->contains('\0'))
        return std::nullopt;
    return AskedFile{token, std::move(*name)};
}

} // namespace nimb
