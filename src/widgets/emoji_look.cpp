#include "widgets/emoji_look.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <array>

namespace nimb
{
namespace
{

struct CharacterRange {
    char32_t first, last;
};

/// Unicode's Emoji_Presentation below the planes that hold hardly anything else.
constexpr std::array<CharacterRange, 33> oldPictures{{
    {0x231A, 0x231B}, {0x23E9, 0x23EC}, {0x23F0, 0x23F0}, {0x23F3, 0x23F3}, {0x25FD, 0x25FE}, {0x2614, 0x2615},
    {0x2648, 0x2653}, {0x267F, 0x267F}, {0x2693, 0x2693}, {0x26A1, 0x26A1}, {0x26AA, 0x26AB}, {0x26BD, 0x26BE},
    {0x26C4, 0x26C5}, {0x26CE, 0x26CE}, {0x26D4, 0x26D4}, {0x26EA, 0x26EA}, {0x26F2, 0x26F3}, {0x26F5, 0x26F5},
    {0x26FA, 0x26FA}, {0x26FD, 0x26FD}, {0x2705, 0x2705}, {0x270A, 0x270B}, {0x2728, 0x2728}, {0x274C, 0x274C},
    {0x274E, 0x274E}, {0x2753, 0x2755}, {0x2757, 0x2757}, {0x2795, 0x2797}, {0x27B0, 0x27B0}, {0x27BF, 0x27BF},
    {0x2B1B, 0x2B1C}, {0x2B50, 0x2B50}, {0x2B55, 0x2B55},
}};
constexpr char32_t asText = 0xFE0E, asPicture = 0xFE0F, wordJoiner = 0x200D, keyCap = 0x20E3;

bool isPictureByItself(char32_t c)
{
    if (c >= 0x1F000)
        return c <= 0x1FAFF;
    const auto *const range
        = std::ranges::lower_bound(oldPictures, c, {}, [](const CharacterRange &one) { return one.last; });
    return range != oldPictures.end() && range->first <= c;
}

bool isSkin(char32_t c)
{
    return c >= 0x1F3FB && c <= 0x1F3FF;
}

/// What belongs to the emoji in front of it and shows nothing where there is none.
bool belongsToFormer(char32_t c)
{
    return c == asPicture || c == wordJoiner || c == keyCap || (c >= 0xE0020 && c <= 0xE007F);
}

struct Character {
    char32_t code = 0; ///< 0: behind the last one
    int units = 0;
};

Character characterAt(QStringView text, qsizetype at)
{
    if (at >= text.size())
        return {};
    const QChar c = text[at];
    if (c.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
        return {QChar::surrogateToUcs4(c, text[at + 1]), 2};
    return {c.unicode(), 1};
}

bool beginsEmoji(char32_t c, char32_t next)
{
    if (belongsToFormer(c) || next == asText)
        return false;
    return next == asPicture || isSkin(next) || isPictureByItself(c);
}

/// Cheap, for nearly no text of letters holds one.
bool mayHoldEmoji(const QString &text)
{
    return std::ranges::any_of(text, [](QChar c) { return c.unicode() >= 0x2300; });
}

/// The name under which systems with fontconfig know their font of emoji. No other font may come between: the joining
/// characters are in many of them.
QFont fontOfEmoji()
{
    QFont font(QStringLiteral("emoji"));
    font.setStyleStrategy(QFont::NoFontMerging);
    return font;
}

} // namespace

std::vector<TextPlace> emojiIn(const QString &text)
{
    std::vector<TextPlace> places;
    if (!mayHoldEmoji(text))
        return places;
    bool isInside = false, isJoined = false;
    for (int at = 0; at < text.size();) {
        const Character one = characterAt(text, at);
        const bool begins = beginsEmoji(one.code, characterAt(text, at + one.units).code);
        const bool goesOn = isInside && (isJoined || belongsToFormer(one.code));
        if (begins || goesOn) {
            if (!isInside)
                places.push_back({at, 0});
            places.back().length += one.units;
        }
        isInside = begins || goesOn;
        isJoined = one.code == wordJoiner;
        at += one.units;
    }
    return places;
}

EmojiLook::EmojiLook(QTextDocument &document) : QObject(&document), m_document(document)
{
    connect(&document, &QTextDocument::contentsChange, this, [this](int from, int, int added) { look(from, added); });
}

void EmojiLook::look(int from, int added)
{
    for (QTextBlock line = m_document.findBlock(from); line.isValid() && line.position() <= from + added;
         line = line.next()) {
        QTextLayout &layout = *line.layout();
        // What an input method composes has formats of its own; when it is done the line changes again.
        if (!layout.preeditAreaText().isEmpty())
            continue;
        QList<QTextLayout::FormatRange> looks = looksOf(line.text());
        if (looks != layout.formats())
            layout.setFormats(looks);
    }
}

QList<QTextLayout::FormatRange> EmojiLook::looksOf(const QString &text)
{
    QList<QTextLayout::FormatRange> looks;
    for (const TextPlace &place : emojiIn(text)) {
        if (!isInFont(QStringView(text).mid(place.start, place.length)))
            continue;
        QTextCharFormat format;
        format.setFontFamilies({fontOfEmoji().family()});
        format.setFontStyleStrategy(QFont::NoFontMerging);
        looks.append({place.start, place.length, format});
    }
    return looks;
}

/// Or what other fonts have would become boxes.
bool EmojiLook::isInFont(QStringView emoji)
{
    if (!m_metrics)
        m_metrics.emplace(fontOfEmoji());
    return std::ranges::all_of(emoji.toUcs4(),
                               [this](char32_t c) { return belongsToFormer(c) || m_metrics->inFontUcs4(c); });
}

} // namespace nimb
