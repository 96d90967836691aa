#include "log/link_finder.h"

#include "print_qt.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

namespace nimb
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The links of a line as they stand in it.
std::vector<std::string> texts(QStringView line)
{
    std::vector<std::string> found;
    for (const Link &link : findLinks(line))
        found.push_back(line.mid(link.start, link.length).toString().toStdString());
    return found;
}

/// What the links of a line open, as it travels.
std::vector<std::string> opened(QStringView line)
{
    std::vector<std::string> found;
    for (const Link &link : findLinks(line))
        found.push_back(link.target.toEncoded().toStdString());
    return found;
}

/// What a text opens that is one whole link, as links are in the logs.
std::optional<QUrl> linkTarget(QStringView text)
{
    const std::vector<Link> links = findLinks(text);
    if (links.size() != 1 || links[0].length != text.size())
        return std::nullopt;
    return links[0].target;
}

/// What is read before the only link of a line is clicked.
QString read(QStringView line)
{
    const std::vector<Link> links = findLinks(line);
    return links.size() == 1 ? readableAddress(links.front().target) : QStringLiteral("not one link");
}

QString repeated(const char *text, qsizetype length)
{
    const QString unit = QString::fromUtf8(text);
    return unit.repeated(length / unit.size() + 1).left(length);
}

// Which addresses are links

TEST(LinkFinder, PlainTextHoldsNoLink)
{
    EXPECT_THAT(texts(u""), IsEmpty());
    EXPECT_THAT(texts(u"Nothing to click here: x.org, http, www and mailto are words."), IsEmpty());
}

TEST(LinkFinder, HttpHttpsFtpMailtoAndWwwAreLinks)
{
    EXPECT_THAT(opened(u"http://x.org/a"), ElementsAre("http://x.org/a"));
    EXPECT_THAT(opened(u"https://x.org/a"), ElementsAre("https://x.org/a"));
    EXPECT_THAT(opened(u"ftp://x.org/a"), ElementsAre("ftp://x.org/a"));
    EXPECT_THAT(opened(u"mailto:ann@x.org"), ElementsAre("mailto:ann@x.org"));
    EXPECT_THAT(opened(u"www.x.org/a"), ElementsAre("http://www.x.org/a"));
}

TEST(LinkFinder, NoOtherSchemeIsEverALink)
{
    EXPECT_THAT(texts(u"file:///etc/passwd file://www.x.org/share smb://server/share smb://www.x.org/share"),
                IsEmpty());
    EXPECT_THAT(texts(u"javascript:alert(1) javascript://www.x.org/%0aalert(1) vbscript:x data:text/html,x"),
                IsEmpty());
    EXPECT_THAT(texts(u"ssh://x.org gopher://x.org ftps://x.org tel:1 about:config ms-settings:a C:/x.org"), IsEmpty());
    for (const QStringView text : {u"file:///etc/passwd", u"javascript:alert(1)", u"data:text/html,x", u"smb://a/b"})
        EXPECT_EQ(linkTarget(text), std::nullopt) << text.toString().toStdString();
}

TEST(LinkFinder, ASharePathIsNoLink)
{
    EXPECT_THAT(texts(u"\\\\server\\share \\\\www.x.org\\share //www.x.org/share //server/share"), IsEmpty());
    EXPECT_EQ(linkTarget(u"\\\\server\\share"), std::nullopt);
}

TEST(LinkFinder, TheSchemeMayBeWrittenInAnyCase)
{
    EXPECT_THAT(opened(u"HTTP://x.org hTTpS://x.org FTP://x.org MailTo:Ann@x.org WWW.x.org"),
                ElementsAre("http://x.org", "https://x.org", "ftp://x.org", "mailto:Ann@x.org", "http://www.x.org"));
}

TEST(LinkFinder, ALetterThatOnlyFoldsToOneOfTheSchemeIsAnotherLetter)
{
    EXPECT_THAT(texts(u"http\u017F://x.org \uFF48ttp://x.org"), IsEmpty());
}

TEST(LinkFinder, ASchemeAloneIsNoLink)
{
    EXPECT_THAT(texts(u"http:// https:// ftp:// mailto: www. http:///path http://?q http://#f http://:80"), IsEmpty());
    EXPECT_THAT(texts(u"http:x.org http:/x.org http:\\\\x.org mailto://ann@x.org"), IsEmpty());
}

TEST(LinkFinder, WwwNeedsAnotherLabel)
{
    EXPECT_THAT(texts(u"www www. www.. www..x www.-x www./x www.:80 www.?x"), IsEmpty());
    EXPECT_THAT(texts(u"www.x www.x.org"), ElementsAre("www.x", "www.x.org"));
}

// Where a link begins

TEST(LinkFinder, ALinkBeginsOnlyAtTheStartOfAWord)
{
    EXPECT_THAT(texts(u"xhttp://a.b 1http://a.b _http://a.b \u00E4http://a.b \u6F22http://a.b xmailto:a@b.c xwww.a.b"),
                IsEmpty());
    EXPECT_THAT(texts(u"(http://a.b -http://a.b :http://a.b ,www.a.b /mailto:a@b.c"),
                ElementsAre("http://a.b", "http://a.b", "http://a.b", "www.a.b", "mailto:a@b.c"));
}

TEST(LinkFinder, AnAccentWrittenAsAMarkBelongsToItsWord)
{
    EXPECT_THAT(texts(u"e\u0301http://a.b"), IsEmpty());
    EXPECT_THAT(texts(u"\U0001D49Chttp://a.b"), IsEmpty()); // a letter outside the first plane
}

TEST(LinkFinder, WwwInsideALongerAddressIsNoLink)
{
    EXPECT_THAT(texts(u"ann@www.x.org foo.www.x.org foo-www.x.org a/www.x.org"), IsEmpty());
    EXPECT_THAT(texts(u"see...www.x.org --www.x.org see:www.x.org"),
                ElementsAre("www.x.org", "www.x.org", "www.x.org"));
}

TEST(LinkFinder, ALinkMayBeTheWholeLineOrStandAtEitherEnd)
{
    EXPECT_THAT(texts(u"http://x.org/a"), ElementsAre("http://x.org/a"));
    EXPECT_THAT(texts(u"http://x.org/a is first"), ElementsAre("http://x.org/a"));
    EXPECT_THAT(texts(u"last is http://x.org/a"), ElementsAre("http://x.org/a"));
}

TEST(LinkFinder, PlaceAndLengthCountUtf16Units)
{
    const std::vector<Link> links = findLinks(u"\U0001F600 \u00E4 http://x.org/\U0001F600.");
    ASSERT_THAT(links, SizeIs(1));
    EXPECT_EQ(links[0].start, 5);
    EXPECT_EQ(links[0].length, 15);
    EXPECT_EQ(links[0].target.toEncoded(), QByteArray("http://x.org/%F0%9F%98%80"));
}

TEST(LinkFinder, ALineMayHoldManyLinks)
{
    EXPECT_THAT(texts(u"http://a.b, www.c.d; mailto:e@f.g (ftp://h.i) http://a.b"),
                ElementsAre("http://a.b", "www.c.d", "mailto:e@f.g", "ftp://h.i", "http://a.b"));
    EXPECT_THAT(texts(u"(http://a.b/c)(http://d.e/f)"), ElementsAre("http://a.b/c", "http://d.e/f"));
    EXPECT_THAT(texts(u"http://a.b,http://c.d"), ElementsAre("http://a.b", "http://c.d"));
    EXPECT_THAT(texts(u"http://a.b\u2192http://c.d"), ElementsAre("http://a.b", "http://c.d"));
}

TEST(LinkFinder, ASecondSchemeIsPartOfAPathButNotOfAHost)
{
    EXPECT_THAT(texts(u"http://a.b/http://c.d"), ElementsAre("http://a.b/http://c.d"));
    EXPECT_THAT(texts(u"http://http://c.d"), ElementsAre("http://c.d"));
}

// Where a link ends

TEST(LinkFinder, BlanksAndControlCharactersEndALink)
{
    for (const char16_t end : {u' ', u'\t', u'\r', u'\n', u'\0', u'\x1F', u'\x7F', u'\x85', u'\xA0', u'\u2003',
                               u'\u202F', u'\u3000', u'\u2028', u'\u2029'}) {
        const QString line = QStringLiteral("http://x.org/a") + QChar(end) + QStringLiteral("b");
        EXPECT_THAT(texts(line), ElementsAre("http://x.org/a")) << static_cast<int>(end);
    }
}

TEST(LinkFinder, AngleBracketsDoubleQuotesAndBackslashesEndALink)
{
    EXPECT_THAT(texts(u"<http://x.org/a> \"http://x.org/b\"c http://x.org/c<d http://x.org\\e"),
                ElementsAre("http://x.org/a", "http://x.org/b", "http://x.org/c", "http://x.org"));
}

TEST(LinkFinder, PicturesAndReplacedCharactersEndALink)
{
    EXPECT_THAT(texts(u"http://x.org/a\uFFFCb"), ElementsAre("http://x.org/a"));
    EXPECT_THAT(texts(u"http://x.org/a\uFFFDb"), ElementsAre("http://x.org/a"));
    EXPECT_THAT(texts(u"\uFFFChttp://x.org/a"), ElementsAre("http://x.org/a"));
}

TEST(LinkFinder, DirectionAndFormatCharactersEndALink)
{
    for (const char16_t end :
         {u'\u202E', u'\u202A', u'\u2066', u'\u200F', u'\u200B', u'\u200D', u'\u00AD', u'\uFEFF'}) {
        const QString line = QStringLiteral("http://x.org/a") + QChar(end) + QStringLiteral("gpj.exe");
        EXPECT_THAT(texts(line), ElementsAre("http://x.org/a")) << static_cast<int>(end);
    }
    EXPECT_THAT(texts(u"http://x.org/a\U000E0041b"), ElementsAre("http://x.org/a")); // a tag character, two units
}

TEST(LinkFinder, HalfASurrogatePairAndNonCharactersEndALink)
{
    for (const char16_t end : {char16_t(0xD83D), char16_t(0xDE00), char16_t(0xFFFF), char16_t(0xFDD0)}) {
        const QString line = QStringLiteral("http://x.org/a") + QChar(end) + QStringLiteral("b");
        EXPECT_THAT(texts(line), ElementsAre("http://x.org/a")) << static_cast<int>(end);
    }
}

TEST(LinkFinder, ClosingPunctuationBelongsToTheSentence)
{
    EXPECT_THAT(
        texts(u"http://x.org/a. http://x.org/b, http://x.org/c; http://x.org/d: http://x.org/e! http://x.org/f?"),
        ElementsAre("http://x.org/a", "http://x.org/b", "http://x.org/c", "http://x.org/d", "http://x.org/e",
                    "http://x.org/f"));
    EXPECT_THAT(
        texts(u"http://x.org. http://x.org, http://x.org; http://x.org: http://x.org! http://x.org?"),
        ElementsAre("http://x.org", "http://x.org", "http://x.org", "http://x.org", "http://x.org", "http://x.org"));
    EXPECT_THAT(texts(u"http://x.org/a?!... www.x.org... mailto:a@b.c?!"),
                ElementsAre("http://x.org/a", "www.x.org", "mailto:a@b.c"));
}

TEST(LinkFinder, PunctuationWithinALinkStays)
{
    EXPECT_THAT(texts(u"http://x.org/a.b,c;d:e!f?g=h.i&j'k http://x.org/a...b"),
                ElementsAre("http://x.org/a.b,c;d:e!f?g=h.i&j'k", "http://x.org/a...b"));
}

TEST(LinkFinder, QuotesAroundALinkAreNotPartOfIt)
{
    EXPECT_THAT(texts(u"'http://x.org/a' \"http://x.org/b\""), ElementsAre("http://x.org/a", "http://x.org/b"));
    EXPECT_THAT(texts(u"\u201Chttp://x.org/a\u201D \u2018http://x.org/b\u2019, \u201Ehttp://x.org/c\u201C"),
                ElementsAre("http://x.org/a", "http://x.org/b", "http://x.org/c"));
    EXPECT_THAT(texts(u"\u00ABhttp://x.org/a\u00BB \u00BBhttp://x.org/b\u00AB \u2039http://x.org\u203A"),
                ElementsAre("http://x.org/a", "http://x.org/b", "http://x.org"));
    EXPECT_THAT(texts(u"http://x.org/a\u201Eb\u201C http://x.org/c\u201E http://x.org/d\u201A"),
                ElementsAre("http://x.org/a\xE2\x80\x9E"
                            "b",
                            "http://x.org/c", "http://x.org/d"));
}

TEST(LinkFinder, ADashBehindTheHostIsNotPartOfIt)
{
    EXPECT_THAT(texts(u"http://x.org\u2014great, http://x.org\u2013http://y.org"),
                ElementsAre("http://x.org", "http://x.org", "http://y.org"));
    EXPECT_THAT(texts(u"http://my\u2011site.org"), IsEmpty()); // a hyphen that must not be taken for a dash
}

TEST(LinkFinder, EastAsianPunctuationAndTheEllipsisCloseToo)
{
    EXPECT_THAT(texts(u"http://x.org/a\u3002 http://x.org\u3002 http://x.org/b\u2026 http://x.org/c\uFF01"),
                ElementsAre("http://x.org/a", "http://x.org", "http://x.org/b", "http://x.org/c"));
    EXPECT_THAT(texts(u"\uFF08http://x.org/a\uFF09 \u300Chttp://x.org\u300D"),
                ElementsAre("http://x.org/a", "http://x.org"));
}

TEST(LinkFinder, ABracketThatTheLinkDidNotOpenIsNotPartOfIt)
{
    EXPECT_THAT(texts(u"(see http://x.org/a) [http://x.org/b] {http://x.org/c} (http://x.org)"),
                ElementsAre("http://x.org/a", "http://x.org/b", "http://x.org/c", "http://x.org"));
    EXPECT_THAT(texts(u"(http://x.org/a). (http://x.org/b)). (http://x.org/c.) (http://x.org?a=b)"),
                ElementsAre("http://x.org/a", "http://x.org/b", "http://x.org/c", "http://x.org?a=b"));
    EXPECT_THAT(texts(u"http://x.org/a)b"), ElementsAre("http://x.org/a"));
}

TEST(LinkFinder, BracketsThatPairWithinTheLinkStay)
{
    EXPECT_THAT(texts(u"http://x.org/a_(b) http://x.org/a[1] http://x.org/{c} http://x.org/(a)(b)"),
                ElementsAre("http://x.org/a_(b)", "http://x.org/a[1]", "http://x.org/{c}", "http://x.org/(a)(b)"));
    EXPECT_THAT(texts(u"(http://x.org/a_(b)) http://x.org/a_(b), http://x.org/a_(b.)."),
                ElementsAre("http://x.org/a_(b)", "http://x.org/a_(b)", "http://x.org/a_(b.)"));
    EXPECT_THAT(texts(u"http://x.org/?q=(a) http://x.org/#(a)"),
                ElementsAre("http://x.org/?q=(a)", "http://x.org/#(a)"));
    EXPECT_THAT(texts(u"http://x.org/\uFF08a\uFF09"),
                ElementsAre("http://x.org/\xEF\xBC\x88"
                            "a\xEF\xBC\x89"));
}

TEST(LinkFinder, AnEmojiBesideALinkIsNotPartOfIt)
{
    EXPECT_THAT(texts(u"\U0001F600http://x.org\U0001F600"), ElementsAre("http://x.org"));
    EXPECT_THAT(texts(u"\u2764\uFE0Fwww.x.org\u2764\uFE0F"), ElementsAre("www.x.org"));
    EXPECT_THAT(texts(u"1\uFE0F\u20E3http://x.org:80\U0001F44D"), ElementsAre("http://x.org:80"));
    EXPECT_THAT(texts(u"\U0001F600mailto:a@b.c\U0001F600"), ElementsAre("mailto:a@b.c"));
}

// Hosts

TEST(LinkFinder, AHostMayBeOneLabel)
{
    EXPECT_THAT(texts(u"http://fileserver/x http://localhost:8080 ftp://nas"),
                ElementsAre("http://fileserver/x", "http://localhost:8080", "ftp://nas"));
}

TEST(LinkFinder, AHostOfInvalidLabelsIsNoLinkAndNoShorterOne)
{
    EXPECT_THAT(texts(u"http://a_b.org http://-a.org http://a-.org http://a..b http://.a http://a.-b/c"), IsEmpty());
    EXPECT_THAT(texts(u"http://%65vil.org http://a%b http://a$b http://a=b http://a&b http://a*b http://a~b"),
                IsEmpty());
    EXPECT_THAT(texts(u"http://x.org./a http://x.org.:80 http://x.org...a"), IsEmpty());
    EXPECT_THAT(texts(u"http://\u0301a.org http://a.\u0301b.org http://paral\u00B7lel.cat"), IsEmpty());
}

TEST(LinkFinder, HyphensWithinALabelAreValid)
{
    EXPECT_THAT(texts(u"http://r3---sn-a.x-y.org"), ElementsAre("http://r3---sn-a.x-y.org"));
}

TEST(LinkFinder, ALabelHasUpTo63AndAHostUpTo253Characters)
{
    const QString label = repeated("a", 63);
    EXPECT_THAT(findLinks(QStringLiteral("http://") + label), SizeIs(1));
    EXPECT_THAT(findLinks(QStringLiteral("http://a") + label), IsEmpty());
    const QString host = repeated("abc.", 252);
    EXPECT_THAT(findLinks(QStringLiteral("http://") + host + QStringLiteral("a/")), SizeIs(1));
    EXPECT_THAT(findLinks(QStringLiteral("http://") + host + QStringLiteral("ab/")), IsEmpty());
    EXPECT_THAT(findLinks(QStringLiteral("http://") + repeated("\xC3\xA4", 60) + QStringLiteral(".de")), IsEmpty());
    // Both as it is written, with marks that punycode drops, and in punycode.
    EXPECT_THAT(findLinks(QStringLiteral("http://a") + repeated("\xEF\xB8\x8F", 300) + QStringLiteral(".org")),
                IsEmpty());
    EXPECT_THAT(findLinks(QStringLiteral("http://") + repeated("\xC3\xA4.", 62) + QStringLiteral("de")), SizeIs(1));
    EXPECT_THAT(findLinks(QStringLiteral("http://") + repeated("\xC3\xA4.", 64) + QStringLiteral("de")), IsEmpty());
}

TEST(LinkFinder, ANumericHostIsADottedAddress)
{
    EXPECT_THAT(texts(u"http://10.0.0.2/a http://255.255.255.255 http://1.2.3.4:80/"),
                ElementsAre("http://10.0.0.2/a", "http://255.255.255.255", "http://1.2.3.4:80/"));
    EXPECT_THAT(texts(u"http://1.2.3 http://256.1.1.1 http://1.2.3.4.5 http://2130706433 http://0x7f.1 http://a.0x1"),
                IsEmpty());
    EXPECT_THAT(texts(u"http://017.0.0.1 http://1.2.3.0004 http://a.1 www.1 http://0x"), IsEmpty());
    EXPECT_THAT(texts(u"http://1.2.3.4a http://4u.org"), ElementsAre("http://1.2.3.4a", "http://4u.org"));
}

TEST(LinkFinder, ABracketedAddressIsAHost)
{
    EXPECT_THAT(opened(u"http://[::1] http://[FE80::1]:80/a. [http://[::1]] ftp://[::ffff:1.2.3.4]/"),
                ElementsAre("http://[::1]", "http://[fe80::1]:80/a", "http://[::1]", "ftp://[::ffff:1.2.3.4]/"));
    EXPECT_THAT(texts(u"http://[] http://[:::]/ http://[::1 http://[1.2.3.4]/ http://[::1%25eth0]/ http://[v1.a]/"),
                IsEmpty());
    EXPECT_THAT(texts(u"mailto:a@[::1]"), IsEmpty());
}

TEST(LinkFinder, APortIsANumberFrom1To65535)
{
    EXPECT_THAT(opened(u"http://x.org:1 http://x.org:65535/a www.x.org:8080?b ftp://x.org:21."),
                ElementsAre("http://x.org:1", "http://x.org:65535/a", "http://www.x.org:8080?b", "ftp://x.org:21"));
    EXPECT_THAT(texts(u"http://x.org:0 http://x.org:65536 http://x.org:4294967376 http://www.x.org:99999/"), IsEmpty());
    EXPECT_THAT(texts(u"http://x.org:a http://x.org:80a http://x.org:-1 http://x.org:/a http://x.org:80:90"),
                IsEmpty());
    EXPECT_THAT(texts(u"http://x.org:00080 http://x.org:000080"), ElementsAre("http://x.org:00080"));
    EXPECT_THAT(texts(u"http://x.org:\u0661 http://x.org:80\u0661"), IsEmpty());
}

TEST(LinkFinder, AColonBehindTheHostClosesASentence)
{
    EXPECT_THAT(texts(u"http://x.org: http://x.org:80: www.x.org:, (http://x.org:) mailto:a@b.c:"),
                ElementsAre("http://x.org", "http://x.org:80", "www.x.org", "http://x.org", "mailto:a@b.c"));
}

TEST(LinkFinder, AnAddressWithUserInfoIsNoLinkNorIsAnyPartOfIt)
{
    EXPECT_THAT(
        texts(u"http://user@host ftp://a:b@h http://@host http://user@ https://u:p@h:80/x www.good.org@evil.org"),
        IsEmpty());
    EXPECT_THAT(texts(u"http://x@www.evil.org http://x@y/http://z.org http://www.good.org,a@evil.org"), IsEmpty());
    EXPECT_THAT(texts(u"http://a@b@c http://good.org:80@evil.org/ http://good.org(@evil.org http://[::1]@evil.org"),
                IsEmpty());
    EXPECT_EQ(linkTarget(u"http://user@host"), std::nullopt);
    EXPECT_THAT(texts(u"http://user@host http://x.org"), ElementsAre("http://x.org"));
}

TEST(LinkFinder, AnAtSignBehindTheHostIsOfNoAccount)
{
    EXPECT_THAT(opened(u"http://x.org/@ann http://x.org?a@b http://x.org#a@b"),
                ElementsAre("http://x.org/@ann", "http://x.org?a@b", "http://x.org#a@b"));
}

// Mail

TEST(LinkFinder, AMailLinkIsOnePlainAddress)
{
    EXPECT_THAT(opened(u"mailto:ann.b_c+d-1@mail.x.org, mailto:root@fileserver"),
                ElementsAre("mailto:ann.b_c+d-1@mail.x.org", "mailto:root@fileserver"));
    EXPECT_THAT(texts(u"mailto:@x.org mailto:ann mailto:ann@ mailto:.a@x.org mailto:a.@x.org mailto:a..b@x.org"),
                IsEmpty());
    EXPECT_THAT(texts(u"mailto:a%40b@x.org mailto:a:b@x.org mailto:a/b@x.org mailto:'a'@x.org mailto:\u00E4@x.org"),
                IsEmpty());
    EXPECT_THAT(texts(u"mailto:a@-x.org mailto:a@1.2.3.4 mailto:a@x.org:25 mailto:a@x.org/b mailto:a@x.org#b"),
                IsEmpty());
    EXPECT_THAT(texts(u"mailto:www.x@-y"), IsEmpty());
    EXPECT_THAT(findLinks(QStringLiteral("mailto:") + repeated("a", 64) + QStringLiteral("@x.org")), SizeIs(1));
    EXPECT_THAT(findLinks(QStringLiteral("mailto:") + repeated("a", 65) + QStringLiteral("@x.org")), IsEmpty());
}

TEST(LinkFinder, ABareMailAddressIsALinkWhereAWordBegins)
{
    EXPECT_THAT(opened(u"ann@x.org (Ben.K+lan@mail.x.org), <cleo_d@m\u00FCnchen.de>; dora@x.org!"),
                ElementsAre("mailto:ann@x.org", "mailto:Ben.K+lan@mail.x.org", "mailto:cleo_d@xn--mnchen-3ya.de",
                            "mailto:dora@x.org"));
    EXPECT_THAT(texts(u"Write to ann@x.org. Or not?"), ElementsAre("ann@x.org"));
}

TEST(LinkFinder, WhatOnlyLooksLikeABareMailAddressIsNoLink)
{
    EXPECT_THAT(texts(u"@ann ann@ ann@pc @x.org .a@x.org a.@x.org a..b@x.org ann@1.2.3.4 ann@[::1]"), IsEmpty());
    EXPECT_THAT(texts(u"\u00E4nn@x.org a:b@x.org a/b@x.org 'a'@x.org a%40b@x.org =a@x.org a@b.c@d.e"), IsEmpty());
    EXPECT_THAT(texts(u"a@x_y.org a@x.org:25 a@x.org/b"), IsEmpty());
    EXPECT_THAT(findLinks(repeated("a", 65) + QStringLiteral("@x.org")), IsEmpty());
}

TEST(LinkFinder, MailToSeveralIsNoLink)
{
    EXPECT_THAT(texts(u"mailto:a@b.org,c@d.org mailto:a@b.org;c@d.org mailto:a@b@c mailto:a@b.org,mailto:c@d.org"),
                IsEmpty());
}

TEST(LinkFinder, MailHeadersAreNeverOpened)
{
    EXPECT_THAT(opened(u"mailto:ann@x.org?attach=/etc/passwd&subject=a"), ElementsAre("mailto:ann@x.org"));
    EXPECT_THAT(texts(u"mailto:ann@x.org?attach=/etc/passwd"), ElementsAre("mailto:ann@x.org"));
    EXPECT_EQ(linkTarget(u"mailto:ann@x.org?attach=/etc/passwd"), std::nullopt);
    EXPECT_THAT(texts(u"mailto:?attach=a mailto:?to=a@b.c"), IsEmpty());
}

// What a link opens

TEST(LinkFinder, WhatAnAddressCannotHoldIsEncoded)
{
    EXPECT_THAT(opened(u"http://x.org/\u00E4?\u00F6=\u20AC#\U0001F600"),
                ElementsAre("http://x.org/%C3%A4?%C3%B6=%E2%82%AC#%F0%9F%98%80"));
    EXPECT_THAT(opened(u"http://x.org/a[b]{c}|^`e"), ElementsAre("http://x.org/a%5Bb%5D%7Bc%7D%7C%5E%60e"));
    EXPECT_THAT(opened(u"http://x.org/a#b#c"), ElementsAre("http://x.org/a#b%23c"));
    EXPECT_EQ(linkTarget(u"http://x.org/a#b#c"), QUrl(QStringLiteral("http://x.org/a#b%23c")));
    EXPECT_THAT(opened(u"http://x.org/-._~!$&'()*+,;=:@/?/?x"), ElementsAre("http://x.org/-._~!$&'()*+,;=:@/?/?x"));
}

TEST(LinkFinder, WhatIsEncodedStaysSoAndALonePercentSignIsEncoded)
{
    EXPECT_THAT(opened(u"http://x.org/%2F%20%c3%A4%E2%80%AE%00"), ElementsAre("http://x.org/%2F%20%C3%A4%E2%80%AE%00"));
    EXPECT_THAT(opened(u"http://x.org/100% http://x.org/%zz http://x.org/%4 http://x.org/%%41x http://x.org/%g1"),
                ElementsAre("http://x.org/100%25", "http://x.org/%25zz", "http://x.org/%254", "http://x.org/%25Ax",
                            "http://x.org/%25g1"));
}

TEST(LinkFinder, TheHostIsLookedUpInLowerCaseAndPunycode)
{
    EXPECT_THAT(opened(u"http://X.ORG/A http://M\u00DCNCHEN.de/ mailto:Ann@m\u00FCnchen.DE"),
                ElementsAre("http://x.org/A", "http://xn--mnchen-3ya.de/", "mailto:Ann@xn--mnchen-3ya.de"));
    EXPECT_THAT(opened(u"http://\uFF38.org http://\uFF11.2.3.4/"), ElementsAre("http://x.org", "http://1.2.3.4/"));
}

TEST(LinkFinder, TheTargetIsWhatTheTextAloneOpens)
{
    const std::vector<Link> links = findLinks(u"(www.x.org/a).");
    ASSERT_THAT(links, SizeIs(1));
    EXPECT_EQ(links[0].target, QUrl(QStringLiteral("http://www.x.org/a")));
    EXPECT_EQ(linkTarget(u"www.x.org/a"), QUrl(QStringLiteral("http://www.x.org/a")));
}

TEST(LinkFinder, ATextThatIsNotOneWholeLinkOpensNothing)
{
    for (const QStringView text : {u"", u"x", u" http://x.org", u"http://x.org ", u"http://x.org.", u"http://x.org/a b",
                                   u"see http://x.org", u"http://x.org\uFFFC", u"x.org"})
        EXPECT_EQ(linkTarget(text), std::nullopt) << text.toString().toStdString();
}

TEST(LinkFinder, ALongLinkIsOneLinkAndIsCutAt1023CharactersWhenOpened)
{
    const QString text = QStringLiteral("http://x.org/") + repeated("a", 5000);
    const std::vector<Link> links = findLinks(text);
    ASSERT_THAT(links, SizeIs(1));
    EXPECT_EQ(links[0].length, 5013);
    EXPECT_EQ(links[0].target.toEncoded().size(), 1023);
    EXPECT_EQ(linkTarget(text), links[0].target);
    EXPECT_EQ(linkTarget(text.left(1023))->toEncoded().size(), 1023);
    EXPECT_EQ(linkTarget(text.left(1022))->toEncoded().size(), 1022);
}

TEST(LinkFinder, TheCutCountsTheTextAndNotItsEncodedForm)
{
    const std::optional<QUrl> www = linkTarget(QStringLiteral("www.x.org/") + repeated("a", 5000));
    ASSERT_TRUE(www);
    EXPECT_EQ(www->toEncoded().size(), 1023 + 7); // "http://" stands before the cut text
    const std::optional<QUrl> umlauts = linkTarget(QStringLiteral("http://x.org/") + repeated("\xC3\xA4", 5000));
    ASSERT_TRUE(umlauts);
    EXPECT_EQ(umlauts->toEncoded().size(), 13 + 1010 * 6);
}

TEST(LinkFinder, TheCutSplitsNoSurrogatePair)
{
    const QString emojis = repeated("\xF0\x9F\x98\x80", 2000);
    const std::optional<QUrl> even = linkTarget(QStringLiteral("http://x.org/") + emojis);
    ASSERT_TRUE(even);
    EXPECT_EQ(even->toEncoded().size(), 13 + 505 * 12); // 1010 units
    const std::optional<QUrl> odd = linkTarget(QStringLiteral("http://x.org/a") + emojis);
    ASSERT_TRUE(odd);
    EXPECT_EQ(odd->toEncoded().size(), 14 + 504 * 12); // 1009 units, of which the last is half a pair
    EXPECT_TRUE(odd->toEncoded().endsWith("%F0%9F%98%80"));
}

// What is read before clicking

TEST(ReadableAddress, IsTheFullEncodedAddress)
{
    EXPECT_EQ(read(u"HTTPS://X.org:81/\u00E4/%2f?q=\u00F6#f"),
              QStringLiteral("https://x.org:81/%C3%A4/%2F?q=%C3%B6#f"));
    EXPECT_EQ(read(u"www.x.org"), QStringLiteral("http://www.x.org"));
    EXPECT_EQ(read(u"mailto:ann@x.org"), QStringLiteral("mailto:ann@x.org"));
    EXPECT_EQ(read(u"http://[::1]:80/a"), QStringLiteral("http://[::1]:80/a"));
    EXPECT_EQ(read(u"http://http/http"), QStringLiteral("http://http/http"));
    EXPECT_EQ(read(u"http://x.org/%E2%80%AEgpj.exe"), QStringLiteral("http://x.org/%E2%80%AEgpj.exe"));
}

TEST(ReadableAddress, ShowsAHostOfOneScriptAsItIs)
{
    EXPECT_EQ(read(u"http://m\u00FCnchen.de/"), QStringLiteral("http://m\u00FCnchen.de/"));
    EXPECT_EQ(read(u"http://\u043F\u0440\u0438\u043C\u0435\u0440.\u0440\u0444:80/"),
              QStringLiteral("http://\u043F\u0440\u0438\u043C\u0435\u0440.\u0440\u0444:80/"));
    EXPECT_EQ(read(u"http://xn--mnchen-3ya.de/"), QStringLiteral("http://m\u00FCnchen.de/"));
    EXPECT_EQ(read(u"mailto:a@m\u00FCnchen.de"), QStringLiteral("mailto:a@m\u00FCnchen.de"));
}

TEST(ReadableAddress, ShowsAHostOfMixedScriptsInPunycode)
{
    // Every letter of this "apple" is Cyrillic.
    EXPECT_EQ(read(u"http://\u0430\u0440\u0440\u04CF\u0435.com/"), QStringLiteral("http://xn--80ak6aa92e.com/"));
    EXPECT_EQ(read(u"http://p\u0430ypal.com/"), QStringLiteral("http://xn--pypal-4ve.com/"));
    EXPECT_EQ(read(u"http://\u043F\u0440\u0438\u043C\u0435\u0440.org"), QStringLiteral("http://xn--e1afmkfd.org"));
    EXPECT_EQ(read(u"http://xn--80ak6aa92e.com/"), QStringLiteral("http://xn--80ak6aa92e.com/"));
    EXPECT_EQ(read(u"mailto:a@p\u0430ypal.com"), QStringLiteral("mailto:a@xn--pypal-4ve.com"));
}

TEST(ReadableAddress, ShowsAHostOfSymbolsInPunycode)
{
    EXPECT_EQ(read(u"http://xn--ls8h.la/"), QStringLiteral("http://xn--ls8h.la/"));
    EXPECT_EQ(read(u"mailto:a@xn--80h6k"), QStringLiteral("mailto:a@xn--80h6k"));
}

TEST(ReadableAddress, ShowsBrokenPunycodeAsItIs)
{
    EXPECT_EQ(read(u"http://xn--80ak6/"), QStringLiteral("http://xn--80ak6/"));
    EXPECT_EQ(read(u"http://xn--a.org/"), QStringLiteral("http://xn--a.org/"));
}

TEST(ReadableAddress, ScriptsOfOneLanguageAreNoMixture)
{
    EXPECT_EQ(read(u"http://\u6F22\u3072\u30AB\u30FC.\u307F\u3093\u306A"),
              QStringLiteral("http://\u6F22\u3072\u30AB\u30FC.\u307F\u3093\u306A")); // Japanese
    EXPECT_EQ(read(u"http://\u6F22\uD55C.\uD55C\uAD6D"), QStringLiteral("http://\u6F22\uD55C.\uD55C\uAD6D"));
    EXPECT_EQ(read(u"http://\u6F22\u3105.\u53F0\u7063"), QStringLiteral("http://\u6F22\u3105.\u53F0\u7063"));
}

TEST(ReadableAddress, LatinBesideEastAsianScriptsAndTwoOfThemAreMixtures)
{
    EXPECT_EQ(read(u"http://\u65E5\u672C\u8A9E.jp"), QStringLiteral("http://xn--wgv71a119e.jp"));
    EXPECT_EQ(read(u"http://\uD55C\u3072.\u6F22"), QStringLiteral("http://xn--y9j4970c.xn--hex"));
}

TEST(ReadableAddress, ASignOfNoScriptDoesNotHideBetweenLatinLetters)
{
    // U+3033 looks like a slash.
    EXPECT_EQ(read(u"http://a\u3033b.org"), QStringLiteral("http://xn--ab-y53a.org"));
}

TEST(ReadableAddress, OtherTargetsAreShownAsTheyAre)
{
    EXPECT_EQ(readableAddress(QUrl(QStringLiteral("file:///a%20b"))), QStringLiteral("file:///a%20b"));
    EXPECT_EQ(readableAddress(QUrl(QStringLiteral("http://x.org:pw@x.org/a"))),
              QStringLiteral("http://x.org:pw@x.org/a"));
    EXPECT_EQ(readableAddress(QUrl(QStringLiteral("http://xn--mnchen-3ya.de@xn--mnchen-3ya.de/"))),
              QStringLiteral("http://xn--mnchen-3ya.de@m\u00FCnchen.de/"));
    EXPECT_EQ(readableAddress(QUrl()), QString());
}

// Whatever a peer sends

/// So many characters take a blink in linear time. In quadratic time they take longer than a test may.
constexpr qsizetype veryLong = 400000;

TEST(LinkFinder, ManyBeginningsInVainTakeNoQuadraticTime)
{
    for (const char *text :
         {"http://", "www.", "www..", "www...", "--www.", "mailto:", "mailto:a@", "mailto:a.mailto:b@", "http://a",
          "http://[::", "@http://", "\xCC\x81http://", "http://x...", "ftp://www.a:", "a@", "a ", ",a@b", "a@b.c,"}) {
        for (const Link &link : findLinks(repeated(text, veryLong)))
            EXPECT_TRUE(link.target.isValid()) << text;
    }
}

TEST(LinkFinder, ManyBeginningsBeforeALongEndTakeNoQuadraticTime)
{
    const QString many = QStringLiteral("http://").repeated(veryLong / 14);
    EXPECT_THAT(findLinks(many + repeated("a", veryLong / 2) + QStringLiteral("@b")), IsEmpty());
    EXPECT_THAT(findLinks(many + repeated("-", veryLong / 2)), IsEmpty());
    EXPECT_THAT(texts(many + QStringLiteral("x.org") + repeated(".", veryLong / 2)), ElementsAre("http://x.org"));
    EXPECT_THAT(texts(many + QStringLiteral("x/") + repeated("!?", veryLong / 2)), ElementsAre("http://x/"));
}

TEST(LinkFinder, ManyBracketsTakeNoQuadraticTime)
{
    EXPECT_THAT(findLinks(repeated("(", veryLong)), IsEmpty());
    EXPECT_THAT(findLinks(repeated("http://x/)", veryLong)), SizeIs(veryLong / 10));
    const QString nested = QStringLiteral("http://x/") + repeated("(", veryLong / 2) + repeated(")", veryLong / 2);
    const std::vector<Link> links = findLinks(nested + QStringLiteral(")"));
    ASSERT_THAT(links, SizeIs(1));
    EXPECT_EQ(links[0].length, nested.size());
}

TEST(LinkFinder, EveryPieceOfALineOfOdditiesIsSearchedSafely)
{
    const QString line
        = QStringLiteral("http://[::1]:8/\U0001F600(a%2) mailto:a@b?x www.\u00E4:1. ftp://u@h/ \u202Ehttp://a\u0301.b");
    for (qsizetype from = 0; from <= line.size(); ++from) {
        for (qsizetype length = 0; length <= line.size() - from; ++length) {
            const QString piece = line.mid(from, length);
            for (const Link &link : findLinks(piece))
                ASSERT_EQ(linkTarget(QStringView(piece).mid(link.start, link.length)), link.target);
        }
    }
}

} // namespace
} // namespace nimb
