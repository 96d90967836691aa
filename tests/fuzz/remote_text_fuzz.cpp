// Feeds any text to what makes a peer's text fit to be shown, stored and compared, and to the readers of numbers and
// stored states that take texts. The input is taken as UTF-8 and as UTF-16, where halves of pairs may stand alone.
#include "require.h"

#include "base/limits.h"
#include "base/look_alike.h"
#include "base/own_state_entry.h"
#include "base/remote_text.h"
#include "base/shown_name.h"
#include "contacts/contact_list.h"
#include "private_chat/mood.h"

#include <algorithm>
#include <cstring>

namespace
{

using namespace nimb;

bool isControl(QChar c)
{
    return c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() <= 0x9F);
}

/// What turns the text behind it, whoever wrote that.
bool turns(QChar c)
{
    const char16_t unit = c.unicode();
    return (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}

void checkLine(const QString &text)
{
    const QString line = remoteLine(text);
    require(std::ranges::none_of(line, [](QChar c) { return isControl(c) || turns(c); }), "a line is one line");
    require(!line.contains(QChar(0x2028)) && !line.contains(QChar(0x2029)), "a line has no other break either");
    require(line.size() <= text.size(), "a line does not grow");
    require(remoteLine(line) == line, "a line that is fit is left alone");
}

void checkName(const QString &text)
{
    const QString name = remoteName(text);
    require(name.size() <= limits::nameLength, "a name has its limit");
    require(std::ranges::none_of(name, [](QChar c) { return isControl(c) || turns(c); }), "a name is one line");
    require(remoteName(name) == name, "a stored name is read back as it was");
    const QString shown = nameOrUnknown(text);
    require(!isBlank(shown), "something of a name can be seen");
    require(nameOrUnknown(shown) == shown, "what is shown for a name is read back as it was");
    require(paintedName(name).size() <= limits::paintedNameLength + 1, "a painted name has its limit");
    require(!menuName(name).replace(QLatin1String("&&"), QString()).contains(u'&'), "a name marks no access key");
    require(lookOf(name + u' ') == lookOf(name), "a blank behind a name makes no other look");
}

void checkBody(const QString &text)
{
    const QString body = remoteBody(text);
    QString rest = body;
    rest.replace(QLatin1String("\r\n"), QString());
    require(std::ranges::none_of(rest, [](QChar c) { return isControl(c) && c != u'\t'; }),
            "a body breaks its lines in one way");
    require(remoteBody(body) == body, "a body that is fit is left alone");
    const QString shown = shownText(body);
    require(shown.count(QLatin1String("\r\n")) <= limits::shownLines, "a shown text has its limit of lines");
    // Each direction that is left open is closed by one character.
    require(shown.size() <= 2 * limits::shownTextLength + 100, "a shown text has its limit");
    const QString cut = cutText(body, limits::shownTextLength);
    require(body.startsWith(cut), "a cut text is the beginning");
    require(cut.isEmpty() || cut.size() == body.size()
                || !(cut.back().isHighSurrogate() && body[cut.size()].isLowSurrogate()),
            "no pair is cut in two");
}

void checkNumbers(const QString &text)
{
    if (const std::optional<std::int16_t> mood = Mood::parse(text)) {
        if (const std::optional<MoodMark> mark = Mood::peers(*mood))
            require(mark->value >= 0 && mark->value < Mood::scaleEnd, "a mood is on its scale");
    }
    if (const std::optional<OwnStateEntry> entry = entryOfStored(text)) {
        const std::optional<OwnStateEntry> again = entryOfStored(storedForm(*entry));
        require(again && again->text == entry->text && again->base == entry->base, "a state is read back as it was");
    }
}

void check(const QString &text)
{
    checkLine(text);
    checkName(text);
    checkBody(text);
    checkNumbers(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    check(QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    QString units(static_cast<qsizetype>(size / 2), QChar());
    if (size >= 2)
        std::memcpy(units.data(), data, size / 2 * 2);
    check(units);
    return 0;
}
