#include "log/link_finder.h"

#include "base/remote_text.h"
#include "protocol/ipv4_address.h"

#include <QByteArray>
#include <QChar>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <set>
#include <string_view>

namespace nimb
{
namespace
{

constexpr qsizetype longestOpenedText = 1023;
constexpr qsizetype longestHost = 253;
constexpr qsizetype longestLabel = 63;
constexpr qsizetype longestLocalPart = 64;
constexpr qsizetype longestPort = 5;
constexpr qsizetype longestBracketedHost = 47;

enum class Kind { web, www, mail, bareMail };

struct Beginning {
    std::string_view text; ///< in lower case
    Kind kind;
};

bool isMail(Kind kind)
{
    return kind == Kind::mail || kind == Kind::bareMail;
}

constexpr std::array<Beginning, 5> beginnings{{{"http://", Kind::web},
                                               {"https://", Kind::web},
                                               {"ftp://", Kind::web},
                                               {"mailto:", Kind::mail},
                                               {"www.", Kind::www}}};

/// A mail address that stands for itself.
constexpr Beginning bareMail{"", Kind::bareMail};

struct BracketPair {
    char32_t opening, closing;
};

/// Those of ASCII, and those of East Asian writing.
constexpr std::array<BracketPair, 8> bracketPairs{{{U'(', U')'},
                                                   {U'[', U']'},
                                                   {U'{', U'}'},
                                                   {0xFF08, 0xFF09},
                                                   {0x3008, 0x3009},
                                                   {0x300A, 0x300B},
                                                   {0x300C, 0x300D},
                                                   {0x3010, 0x3011}}};

// Characters

/// Both halves of a surrogate pair are asked with the same answer, so that nothing ever ends between them.
char32_t characterAt(QStringView line, qsizetype at)
{
    const QChar unit = line[at];
    if (unit.isHighSurrogate() && at + 1 < line.size() && line[at + 1].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, line[at + 1]);
    if (unit.isLowSurrogate() && at > 0 && line[at - 1].isHighSurrogate())
        return QChar::surrogateToUcs4(line[at - 1], unit);
    return unit.unicode();
}

bool isAscii(char32_t c)
{
    return c < 0x80;
}

char32_t asciiLower(char32_t c)
{
    return c >= U'A' && c <= U'Z' ? c - U'A' + U'a' : c;
}

bool isAsciiDigit(char32_t c)
{
    return c >= U'0' && c <= U'9';
}

bool isAsciiHexDigit(char32_t c)
{
    return isAsciiDigit(c) || (asciiLower(c) >= U'a' && asciiLower(c) <= U'f');
}

bool isAsciiLetterOrDigit(char32_t c)
{
    return isAsciiDigit(c) || (asciiLower(c) >= U'a' && asciiLower(c) <= U'z');
}

bool isOneOf(std::u32string_view characters, char32_t c)
{
    return characters.find(c) != std::u32string_view::npos;
}

bool isLetterOrDigit(char32_t c)
{
    return QChar::isLetter(c) || QChar::isDigit(c);
}

/// A mark that belongs to the letter before it. One that encloses makes a sign of it, as in a key cap.
bool isCombining(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining;
}

/// No link reaches over such a character, wherever it stands.
bool endsEveryLink(char32_t c)
{
    if (isAscii(c))
        return c <= U' ' || c == 0x7F || isOneOf(U"<>\"\\", c);
    if (c == QChar::ObjectReplacementCharacter || c == QChar::ReplacementCharacter || QChar::isNonCharacter(c))
        return true;
    switch (QChar::category(c)) {
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
        return true;
    default:
        return false;
    }
}

bool isBracket(char32_t c)
{
    return std::ranges::any_of(bracketPairs,
                               [c](const BracketPair &pair) { return c == pair.opening || c == pair.closing; });
}

/// Punctuation that belongs to the sentence where a link ends with it.
bool isClosingPunctuation(char32_t c)
{
    if (isAscii(c))
        return isOneOf(U".,;:!?'", c);
    const QChar::Category category = QChar::category(c);
    const bool isQuote = category == QChar::Punctuation_InitialQuote || category == QChar::Punctuation_FinalQuote;
    // Two low quotes, the ellipsis and the marks of East Asian sentences.
    return isQuote || isOneOf(U"\u201A\u201E\u2026\u3001\u3002\uFF01\uFF0C\uFF0E\uFF1A\uFF1B\uFF1F\uFF61\uFF64", c);
}

bool isHostCharacter(char32_t c)
{
    if (isAscii(c))
        return isAsciiLetterOrDigit(c) || c == U'-' || c == U'.';
    return isLetterOrDigit(c) || isCombining(c);
}

/// What plainly belongs to no host: a link without a path ends before it. Behind any other character that a host
/// cannot hold ("http://a_b") the address is malformed, and its first half would be another address.
bool endsHost(char32_t c)
{
    if (isAscii(c))
        return isOneOf(U",;!'", c) || isBracket(c);
    const QChar::Category category = QChar::category(c);
    const bool isSymbol = category >= QChar::Symbol_Math && category <= QChar::Symbol_Other;
    const bool isDash = c == 0x2013 || c == 0x2014;
    return isSymbol || isDash || isClosingPunctuation(c) || isBracket(c);
}

bool beginsTail(char32_t c)
{
    return isOneOf(U"/?#", c);
}

bool isLocalPartCharacter(char32_t c)
{
    return isAsciiLetterOrDigit(c) || isOneOf(U"._+-", c);
}

// Hosts

bool isValidLabel(std::string_view label)
{
    const auto isValidCharacter
        = [](char c) { return isAsciiLetterOrDigit(static_cast<unsigned char>(c)) || c == '-'; };
    return !label.empty() && label.size() <= longestLabel && label.front() != '-' && label.back() != '-'
        && std::ranges::all_of(label, isValidCharacter);
}

std::vector<std::string_view> labelsOf(std::string_view host)
{
    std::vector<std::string_view> labels;
    for (;;) {
        const std::size_t dot = host.find('.');
        labels.push_back(host.substr(0, dot));
        if (dot == std::string_view::npos)
            return labels;
        host.remove_prefix(dot + 1);
    }
}

/// Systems read "0x7f" and "127" alike as a part of an address.
bool isNumber(std::string_view label)
{
    const bool hexadecimal = label.starts_with("0x");
    const std::string_view digits = hexadecimal ? label.substr(2) : label;
    return std::ranges::all_of(digits, [hexadecimal](char c) {
        const auto digit = static_cast<unsigned char>(c);
        return hexadecimal ? isAsciiHexDigit(digit) : isAsciiDigit(digit);
    });
}

/// A host in the form that is looked up.
struct Host {
    QByteArray name; ///< lower case, in punycode where it is not ASCII
    qsizetype labels = 0;
    bool isName = true; ///< no numeric address
};

/// A mark without a letter would be drawn upon the dot or the slash before it.
bool holdsLooseMark(QStringView host)
{
    for (qsizetype i = 0; i < host.size(); ++i) {
        if ((i == 0 || host[i - 1] == u'.') && isCombining(characterAt(host, i)))
            return true;
    }
    return false;
}

std::optional<Host> readHost(QStringView text)
{
    if (text.isEmpty() || text.size() > longestHost || holdsLooseMark(text))
        return std::nullopt;
    Host host;
    host.name = QUrl::toAce(text.toString());
    if (host.name.isEmpty() || host.name.size() > longestHost)
        return std::nullopt;
    const std::string_view name(host.name.constData(), static_cast<std::size_t>(host.name.size()));
    const std::vector<std::string_view> labels = labelsOf(name);
    if (!std::ranges::all_of(labels, isValidLabel))
        return std::nullopt;
    host.labels = static_cast<qsizetype>(labels.size());
    host.isName = !isNumber(labels.back());
    // Other numeric spellings ("2130706433", "127.1") hide where they lead.
    if (!host.isName && !Ipv4Address::parse(name))
        return std::nullopt;
    return host;
}

std::optional<Host> readBracketedHost(QStringView text)
{
    const auto isValidCharacter = [](QChar c) { return isAsciiHexDigit(c.unicode()) || c == u':' || c == u'.'; };
    const QStringView inner = text.sliced(1, text.size() - 2);
    if (!std::ranges::all_of(inner, isValidCharacter))
        return std::nullopt;
    const QByteArray name = text.toLatin1().toLower();
    if (!QUrl::fromEncoded("http://" + name, QUrl::StrictMode).isValid())
        return std::nullopt;
    return Host{name, 1, false};
}

// Where links stand

/// A link and its pieces, as positions in the line.
struct FoundLink {
    Kind kind = Kind::web;
    qsizetype start = 0;
    qsizetype hostStart = 0;
    qsizetype hostEnd = 0;
    qsizetype authorityEnd = 0; ///< behind the port
    qsizetype end = 0;
    QByteArray host;
};

// What is looked for in a line, place by place

bool isReachEnd(QStringView line, qsizetype at)
{
    return endsEveryLink(characterAt(line, at));
}

bool isAuthorityEnd(QStringView line, qsizetype at)
{
    return beginsTail(characterAt(line, at)) || isReachEnd(line, at);
}

bool isAtSign(QStringView line, qsizetype at)
{
    return line[at] == u'@';
}

/// A dot with no label behind it is no part of a host.
bool isHostEnd(QStringView line, qsizetype at)
{
    const auto isLabelCharacter
        = [&](qsizetype i) { return i < line.size() && line[i] != u'.' && isHostCharacter(characterAt(line, i)); };
    return !isLabelCharacter(at) && !(line[at] == u'.' && isLabelCharacter(at + 1));
}

/// Finds the next place of a kind. Asked for rising positions it looks at each place once, and so many links that begin
/// in vain cost no more than one.
class NextOf
{
public:
    using Wanted = bool (*)(QStringView line, qsizetype at);

    NextOf(QStringView line, Wanted isWanted) : m_line(line), m_isWanted(isWanted) { }

    /// The first at or behind this position; the line's length where there is none.
    qsizetype from(qsizetype position)
    {
        if (position < m_asked || position > m_found)
            m_found = position;
        m_asked = position;
        while (m_found < m_line.size() && !m_isWanted(m_line, m_found))
            ++m_found;
        return m_found;
    }

private:
    QStringView m_line;
    Wanted m_isWanted;
    qsizetype m_asked = 0;
    qsizetype m_found = 0;
};

class LinkScanner
{
public:
    explicit LinkScanner(QStringView line) : m_line(line) { }

    /// The first link that begins at or behind this position. Positions of further calls must rise.
    std::optional<FoundLink> next(qsizetype from)
    {
        m_passed = from;
        while (m_passed < m_line.size()) {
            const qsizetype start = m_passed++;
            const Beginning *beginning = beginningAt(start);
            if (!beginning && !mayBeginMailBox(start))
                continue;
            if (std::optional<FoundLink> link = linkAt(start, beginning ? *beginning : bareMail))
                return link;
        }
        return std::nullopt;
    }

private:
    const Beginning *beginningAt(qsizetype start) const
    {
        const auto *const found
            = std::ranges::find_if(beginnings, [&](const Beginning &b) { return standsAt(b.text, start); });
        return found != beginnings.end() && mayBegin(*found, start) ? found : nullptr;
    }

    /// Compares ASCII letters alone without regard to case: U+017F is no "s" of "https".
    bool standsAt(std::string_view text, qsizetype start) const
    {
        const auto length = static_cast<qsizetype>(text.size());
        return length <= m_line.size() - start
            && std::equal(text.begin(), text.end(), m_line.begin() + start, [](char letter, QChar c) {
                   return asciiLower(c.unicode()) == static_cast<unsigned char>(letter);
               });
    }

    bool mayBegin(const Beginning &beginning, qsizetype start) const
    {
        qsizetype before = start - 1;
        while (before >= 0 && isCombining(characterAt(m_line, before)))
            --before;
        if (before < 0)
            return true;
        const char32_t c = characterAt(m_line, before);
        if (isLetterOrDigit(c) || c == U'_')
            return false;
        if (beginning.kind != Kind::www)
            return true;
        // There "www." is the inside of a longer address: of a host, a mail box, a share.
        const bool isInHost = isOneOf(U".-", c) && before > 0 && isLetterOrDigit(characterAt(m_line, before - 1));
        return !isInHost && !isOneOf(U"@/\\", c);
    }

    /// Where a word does. Behind other characters it may be the end of something that leads elsewhere.
    bool mayBeginMailBox(qsizetype start) const
    {
        if (!isLocalPartCharacter(m_line[start].unicode()))
            return false;
        const char32_t before = start == 0 ? U' ' : characterAt(m_line, start - 1);
        return isOneOf(U" \t<>\",;", before) || isBracket(before) || QChar::category(before) == QChar::Separator_Space;
    }

    std::optional<FoundLink> linkAt(qsizetype start, const Beginning &beginning)
    {
        FoundLink link;
        link.kind = beginning.kind;
        link.start = start;
        link.hostStart = link.kind == Kind::www ? start : start + static_cast<qsizetype>(beginning.text.size());
        if (isMail(link.kind) && !readLocalPart(link))
            return std::nullopt;
        if (namesUser(link))
            return std::nullopt;
        const bool found = readHostOf(link) && readPort(link) && readTail(link);
        return found ? std::optional(link) : std::nullopt;
    }

    /// The box of a mail address: hostStart moves behind its "@".
    bool readLocalPart(FoundLink &link) const
    {
        const qsizetype begin = link.hostStart;
        qsizetype end = begin;
        while (end < m_line.size() && end - begin <= longestLocalPart && isLocalPartCharacter(m_line[end].unicode()))
            ++end;
        const QStringView part = m_line.sliced(begin, end - begin);
        const bool isPlain = !part.isEmpty() && part.size() <= longestLocalPart && part.front() != u'.'
            && part.back() != u'.' && !part.contains(QLatin1String(".."));
        if (!isPlain || end == m_line.size() || m_line[end] != u'@')
            return false;
        link.hostStart = end + 1;
        return true;
    }

    /// An address with user info, or a second mail address. It is passed whole, for a link to a part of it would lead
    /// elsewhere than the whole.
    bool namesUser(const FoundLink &link)
    {
        if (m_nextAtSign.from(link.hostStart) >= m_authorityEnd.from(link.hostStart))
            return false;
        m_passed = m_reach.from(link.hostStart);
        return true;
    }

    bool readHostOf(FoundLink &link)
    {
        const std::optional<Host> host = standsAt("[", link.hostStart) ? bracketedHostOf(link) : namedHostOf(link);
        if (!host || (isMail(link.kind) && !host->isName))
            return false;
        // What has nothing in front that says what it is.
        const bool isBare = link.kind == Kind::www || link.kind == Kind::bareMail;
        if (isBare && host->labels < 2)
            return false;
        if (link.kind == Kind::bareMail && host->name.startsWith("www."))
            return false;
        link.host = host->name;
        link.authorityEnd = link.hostEnd;
        return true;
    }

    std::optional<Host> namedHostOf(FoundLink &link)
    {
        link.hostEnd = m_hostEnd.from(link.hostStart);
        return readHost(m_line.sliced(link.hostStart, link.hostEnd - link.hostStart));
    }

    std::optional<Host> bracketedHostOf(FoundLink &link) const
    {
        const QStringView start = m_line.sliced(link.hostStart).left(longestBracketedHost);
        const qsizetype closing = start.indexOf(u']');
        if (closing < 0)
            return std::nullopt;
        link.hostEnd = link.hostStart + closing + 1;
        return readBracketedHost(start.left(closing + 1));
    }

    /// A colon without digits is left to the tail, which takes it for punctuation or for a fault.
    bool readPort(FoundLink &link) const
    {
        const qsizetype digits = link.hostEnd + 1;
        qsizetype end = digits;
        if (isMail(link.kind) || !standsAt(":", link.hostEnd))
            return true;
        while (end < m_line.size() && end - digits <= longestPort && isAsciiDigit(m_line[end].unicode()))
            ++end;
        if (end == digits)
            return true;
        const int port = m_line.sliced(digits, end - digits).toInt();
        link.authorityEnd = end;
        return end - digits <= longestPort && port >= 1 && port <= 65535;
    }

    bool readTail(FoundLink &link)
    {
        const qsizetype reach = m_reach.from(link.authorityEnd);
        const char32_t next = link.authorityEnd < reach ? characterAt(m_line, link.authorityEnd) : U' ';
        link.end = link.authorityEnd;
        if (isMail(link.kind))
            return next == U'?' || mayEndAt(link.end, reach);
        if (!beginsTail(next))
            return mayEndAt(link.end, reach);
        link.end = endOfTail(link.authorityEnd, reach);
        return true;
    }

    /// True if nothing of the address follows, punctuation of the sentence apart.
    bool mayEndAt(qsizetype end, qsizetype reach) const
    {
        while (end < reach && isOneOf(U".:?", m_line[end].unicode()))
            ++end;
        return end == reach || endsHost(characterAt(m_line, end));
    }

    /// Where path, query and fragment end: before closing punctuation and before a bracket that none of them opened.
    qsizetype endOfTail(qsizetype begin, qsizetype reach) const
    {
        std::array<qsizetype, bracketPairs.size()> open{};
        qsizetype end = begin;
        for (qsizetype i = begin; i < reach; ++i) {
            const char32_t c = characterAt(m_line, i);
            for (std::size_t pair = 0; pair < bracketPairs.size(); ++pair) {
                open[pair] += c == bracketPairs[pair].opening ? 1 : 0;
                open[pair] -= c == bracketPairs[pair].closing ? 1 : 0;
                if (open[pair] < 0)
                    return end;
            }
            if (!isClosingPunctuation(c))
                end = i + 1;
        }
        return end;
    }

    QStringView m_line;
    NextOf m_reach{m_line, isReachEnd};
    NextOf m_authorityEnd{m_line, isAuthorityEnd};
    NextOf m_hostEnd{m_line, isHostEnd};
    NextOf m_nextAtSign{m_line, isAtSign};
    qsizetype m_passed = 0;
};

// What links open

bool isUrlCharacter(char c)
{
    return isAsciiLetterOrDigit(static_cast<unsigned char>(c))
        || std::string_view("-._~:/?@!$&'()*+,;=").find(c) != std::string_view::npos;
}

bool isEscape(const QByteArray &text, qsizetype at)
{
    const auto isDigitAt
        = [&](qsizetype i) { return i < text.size() && isAsciiHexDigit(static_cast<unsigned char>(text[i])); };
    return text[at] == '%' && isDigitAt(at + 1) && isDigitAt(at + 2);
}

/// Path, query and fragment as they travel. What is encoded already stays so.
QByteArray encodedTail(QStringView tail)
{
    const QByteArray text = tail.toUtf8();
    const qsizetype fragment = text.indexOf('#');
    QByteArray encoded;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isUrlCharacter(text[i]) || isEscape(text, i) || i == fragment)
            encoded += text[i];
        else
            encoded += '%' + QByteArray(1, text[i]).toHex().toUpper();
    }
    return encoded;
}

/// Host and port are never reached by the cut: they end before the 300th character.
QUrl targetOf(QStringView line, const FoundLink &link)
{
    const QByteArray beginning = line.sliced(link.start, link.hostStart - link.start).toLatin1();
    if (isMail(link.kind)) {
        const QByteArray box = link.kind == Kind::mail ? beginning.mid(7) : beginning;
        return QUrl::fromEncoded("mailto:" + box + link.host, QUrl::StrictMode);
    }
    const QString text = cutText(line.sliced(link.start, link.end - link.start).toString(), longestOpenedText);
    const QByteArray scheme = link.kind == Kind::www ? QByteArray("http://") : beginning.toLower();
    const QByteArray port = line.sliced(link.hostEnd, link.authorityEnd - link.hostEnd).toLatin1();
    const QByteArray tail = encodedTail(QStringView(text).sliced(link.authorityEnd - link.start));
    return QUrl::fromEncoded(scheme + link.host + port + tail, QUrl::StrictMode);
}

// What links show

/// Scripts that one language writes side by side. The long vowel mark of Japanese belongs to no script.
bool areUsedTogether(const std::set<QChar::Script> &scripts)
{
    const std::set<QChar::Script> japanese{QChar::Script_Common, QChar::Script_Han, QChar::Script_Hiragana,
                                           QChar::Script_Katakana};
    const std::set<QChar::Script> korean{QChar::Script_Han, QChar::Script_Hangul};
    const std::set<QChar::Script> taiwanese{QChar::Script_Han, QChar::Script_Bopomofo};
    const auto includesAll = [&](const std::set<QChar::Script> &usual) {
        return std::includes(usual.begin(), usual.end(), scripts.begin(), scripts.end());
    };
    return scripts.size() <= 1 || includesAll(japanese) || includesAll(korean) || includesAll(taiwanese);
}

/// Symbols and mixed scripts deceive: the host is better read in punycode.
bool isReadable(const QString &host)
{
    std::set<QChar::Script> scripts;
    for (const char32_t c : host.toUcs4()) {
        if (!isHostCharacter(c))
            return false;
        const QChar::Script script = QChar::script(c);
        // Beyond digits, dot and hyphen, signs of no script are counted: some look like a slash or a colon.
        const bool suitsAll = script == QChar::Script_Inherited || (script == QChar::Script_Common && isAscii(c));
        if (!suitsAll)
            scripts.insert(script);
    }
    return areUsedTogether(scripts);
}

QString readableHost(const QString &encodedHost)
{
    const QString host = QUrl::fromAce(encodedHost.toLatin1(), QUrl::IgnoreIDNWhitelist);
    // Broken punycode is decoded to a host that is not the one it opens.
    const bool isThatHost = QUrl::toAce(host, QUrl::IgnoreIDNWhitelist) == encodedHost.toLatin1();
    return isThatHost && isReadable(host) ? host : encodedHost;
}

} // namespace

std::vector<Link> findLinks(QStringView line)
{
    std::vector<Link> links;
    LinkScanner scanner(line);
    for (auto link = scanner.next(0); link; link = scanner.next(link->end))
        links.push_back({link->start, link->end - link->start, targetOf(line, *link)});
    return links;
}

QString readableAddress(const QUrl &target)
{
    QString address = target.toString(QUrl::FullyEncoded);
    if (target.scheme() == QLatin1String("mailto")) {
        const qsizetype domain = address.lastIndexOf(u'@') + 1;
        return address.left(domain) + readableHost(address.mid(domain));
    }
    const QString host = target.host(QUrl::FullyEncoded);
    if (host.isEmpty())
        return address;
    const qsizetype at
        = address.indexOf(host, address.indexOf(QLatin1String("//")) + 2 + target.userInfo(QUrl::FullyEncoded).size());
    return address.replace(at, host.size(), readableHost(host));
}

} // namespace nimb
