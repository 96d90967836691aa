// Feeds any text to the search for links and stops the program when a promise of it is broken. The bytes are read as
// UTF-8, as they come from a peer, and as UTF-16, which may hold half a surrogate pair.
#include "log/link_finder.h"
#include "require.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

namespace
{

using namespace nimb;

constexpr qsizetype longestOpenedText = 1023;

bool isPlain(QChar c)
{
    return c > QChar(u' ') && c != QChar(0x7F) && !c.isSpace() && c.category() != QChar::Other_Control
        && c.category() != QChar::Other_Format && c != QChar::ObjectReplacementCharacter
        && c != QChar::ReplacementCharacter && c != u'<' && c != u'>' && c != u'"' && c != u'\\';
}

bool isVisibleAscii(char c)
{
    return c > ' ' && c < 0x7F;
}

/// What a text opens that is one whole link, as links are in the logs.
std::optional<QUrl> linkTarget(QStringView text)
{
    const std::vector<Link> links = findLinks(text);
    if (links.size() != 1 || links[0].length != text.size())
        return std::nullopt;
    return links[0].target;
}

void checkText(QStringView text)
{
    require(std::all_of(text.begin(), text.end(), isPlain), "no blank, control or format character is in a link");
    require(text.isValidUtf16(), "no surrogate pair is split");
    require(!QStringView(u".,;:!?'").contains(text.back()), "closing punctuation is in no link");
    const std::vector<Link> again = findLinks(text);
    require(again.size() == 1 && again[0].start == 0 && again[0].length == text.size(), "a link's text is that link");
}

void checkTarget(QStringView text, const QUrl &target)
{
    static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("ftp"),
                                     QStringLiteral("mailto")};
    const QByteArray encoded = target.toEncoded();
    require(target.isValid() && !encoded.isEmpty(), "a target is a valid address");
    require(schemes.contains(target.scheme()), "a target has one of four schemes");
    require(target.userInfo().isEmpty(), "a target names no user");
    require(linkTarget(text) == target, "a link's target follows from its text alone");
    require(std::all_of(encoded.begin(), encoded.end(), isVisibleAscii), "a target travels as visible ASCII");
    require(encoded.size() <= 7 + 9 * longestOpenedText, "no more than 1023 characters are opened");
    require(QUrl::fromEncoded(encoded, QUrl::StrictMode) == target, "what travels is the target");
    if (target.scheme() == QLatin1String("mailto")) {
        require(target.path().count(u'@') == 1 && !target.hasQuery(), "mail goes to one address, without headers");
    } else {
        require(!target.host().isEmpty(), "a target names a host");
        require(target.port(1) >= 1 && target.port(1) <= 65535, "a port is in its range");
    }
}

void checkReadable(const QUrl &target)
{
    const QString address = readableAddress(target);
    require(std::all_of(address.begin(), address.end(), isPlain), "a readable address holds nothing unseen");
    require(address.startsWith(target.scheme() + u':'), "a readable address begins with the scheme");
    const bool isMail = target.scheme() == QLatin1String("mailto");
    const QUrl meant = isMail ? linkTarget(address).value_or(QUrl()) : QUrl(address, QUrl::StrictMode);
    require(meant == target, "a readable address is the target");
}

void checkLine(QStringView line)
{
    qsizetype passed = 0;
    for (const Link &link : findLinks(line)) {
        require(link.start >= passed && link.length > 0, "links come in order and do not overlap");
        require(link.length <= line.size() - link.start, "a link lies within its line");
        passed = link.start + link.length;
        const QStringView text = line.sliced(link.start, link.length);
        checkText(text);
        checkTarget(text, link.target);
        checkReadable(link.target);
    }
}

QString asUtf16(const std::uint8_t *data, std::size_t size)
{
    std::vector<char16_t> units(size / sizeof(char16_t));
    if (!units.empty())
        std::memcpy(units.data(), data, units.size() * sizeof(char16_t));
    return QString::fromUtf16(units.data(), static_cast<qsizetype>(units.size()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    checkLine(QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    checkLine(asUtf16(data, size));
    return 0;
}
