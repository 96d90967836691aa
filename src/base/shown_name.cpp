#include "base/shown_name.h"

#include <QList>

#include <algorithm>
#include <array>

namespace nimb
{
namespace
{

struct Range {
    char32_t first, last;
};

/// Soft hyphens, fillers, selectors, joiners, tags, and what else takes no ink.
constexpr std::array invisible = {
    Range{0x00AD, 0x00AD},   Range{0x034F, 0x034F},   Range{0x061C, 0x061C},   Range{0x115F, 0x1160},
    Range{0x17B4, 0x17B5},   Range{0x180B, 0x180F},   Range{0x200B, 0x200F},   Range{0x202A, 0x202E},
    Range{0x2060, 0x206F},   Range{0x2800, 0x2800},   Range{0x3164, 0x3164},   Range{0xFE00, 0xFE0F},
    Range{0xFEFF, 0xFEFF},   Range{0xFFA0, 0xFFA0},   Range{0xFFF0, 0xFFFB},   Range{0x13430, 0x1343F},
    Range{0x16FE4, 0x16FE4}, Range{0x1BCA0, 0x1BCA3}, Range{0x1D159, 0x1D159}, Range{0x1D173, 0x1D17A},
    Range{0xE0000, 0xE0FFF},
};

constexpr char32_t nonJoiner = 0x200C, joiner = 0x200D, emojiSelector = 0xFE0F, keycap = 0x20E3, blackFlag = 0x1F3F4;

bool isDirectionMark(char32_t c)
{
    return c == 0x061C || c == 0x200E || c == 0x200F;
}

bool isTag(char32_t c)
{
    return c >= 0xE0020 && c <= 0xE007F;
}

bool isSymbol(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Symbol_Other:
    case QChar::Symbol_Modifier: // the colour of a skin
    case QChar::Symbol_Math:     // arrows, of which some are emoji
        return true;
    default:
        return c == 0x203C || c == 0x2049; // two exclamation marks, and one with a question mark
    }
}

/// Whether a joiner changes how this letter, or the mark on one, is written.
bool joins(char32_t c)
{
    switch (QChar::script(c)) {
    case QChar::Script_Arabic:
    case QChar::Script_Syriac:
    case QChar::Script_Nko:
    case QChar::Script_Mandaic:
    case QChar::Script_Mongolian:
    case QChar::Script_Devanagari:
    case QChar::Script_Bengali:
    case QChar::Script_Gurmukhi:
    case QChar::Script_Gujarati:
    case QChar::Script_Oriya:
    case QChar::Script_Tamil:
    case QChar::Script_Telugu:
    case QChar::Script_Kannada:
    case QChar::Script_Malayalam:
    case QChar::Script_Sinhala:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar:
        return QChar::isLetter(c) || QChar::isMark(c);
    default:
        return false;
    }
}

/// Whether an invisible character does something between these two; 0 stands for the end of the name.
bool isOfUse(char32_t c, char32_t before, char32_t after)
{
    if (isDirectionMark(c))
        return true;
    if (c == joiner && (isSymbol(before) || before == emojiSelector) && isSymbol(after))
        return true;
    if (c == joiner || c == nonJoiner)
        return joins(before) && joins(after);
    if (c == emojiSelector)
        return isSymbol(before) || after == keycap;
    return isTag(c) && (before == blackFlag || isTag(before));
}

} // namespace

bool isInvisible(char32_t c)
{
    return std::ranges::any_of(invisible, [c](const Range &range) { return c >= range.first && c <= range.last; });
}

QString withoutInvisible(const QString &name)
{
    if (std::ranges::none_of(name, [](QChar c) { return c.isSurrogate() || isInvisible(c.unicode()); }))
        return name;
    const QList<uint> all = name.toUcs4();
    std::u32string kept;
    for (qsizetype i = 0; i < all.size(); ++i) {
        const char32_t before = kept.empty() ? 0 : kept.back(), after = i + 1 < all.size() ? all[i + 1] : 0;
        if (!isInvisible(all[i]) || isOfUse(all[i], before, after))
            kept += static_cast<char32_t>(all[i]);
    }
    return QString::fromUcs4(kept.data(), static_cast<qsizetype>(kept.size()));
}

bool isBlank(const QString &name)
{
    const QList<uint> all = name.toUcs4();
    return std::ranges::all_of(all, [](uint c) { return isInvisible(c) || QChar::isSpace(c) || QChar::isMark(c); });
}

} // namespace nimb
