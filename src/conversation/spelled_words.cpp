#include "conversation/spelled_words.h"

#include "base/limits.h"

#include <algorithm>

namespace nimb
{
namespace
{

constexpr QChar typographicApostrophe = u'\u2019';

bool isApostrophe(QChar c)
{
    return c == u'\'' || c == typographicApostrophe;
}

/// Letters of words that hold a digit or an underscore are no words by themselves.
bool belongsToWord(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c == u'_';
}

bool needsNoBlanks(QChar c)
{
    switch (c.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar:
        return true;
    default:
        return false;
    }
}

bool isAddress(QStringView token)
{
    return token.contains(u'@') || token.contains(u"://") || token.startsWith(u"www.", Qt::CaseInsensitive)
        || token.startsWith(u"mailto:", Qt::CaseInsensitive);
}

bool canBeChecked(QStringView word)
{
    if (word.size() < 2 || word.size() > limits::spelledWordLength)
        return false;
    bool capitals = false;
    bool others = false;
    for (const QChar c : word) {
        if (!c.isLetter() && !c.isMark() && !isApostrophe(c))
            return false;
        if (c.unicode() > 0x0E00 && needsNoBlanks(c)) // of these scripts none is below
            return false;
        if (c.isLetter())
            (c.isUpper() ? capitals : others) = true;
    }
    return others || !capitals;
}

/// From where on this is a word; an apostrophe counts between two of its characters.
qsizetype endOfWord(QStringView text, qsizetype start)
{
    qsizetype end = start;
    while (end < text.size()
           && (belongsToWord(text[end])
               || (isApostrophe(text[end]) && end > start && end + 1 < text.size() && belongsToWord(text[end + 1]))))
        ++end;
    return end;
}

void addWords(QStringView token, qsizetype offset, std::vector<WordPlace> &places)
{
    for (qsizetype i = 0; i < token.size();) {
        const qsizetype end = endOfWord(token, i);
        if (canBeChecked(token.sliced(i, end - i)))
            places.push_back({offset + i, end - i});
        i = end + 1;
    }
}

} // namespace

std::vector<WordPlace> wordsToCheck(const QString &text)
{
    std::vector<WordPlace> places;
    for (qsizetype start = 0; start < text.size();) {
        const auto *const blank = std::find_if(text.cbegin() + start, text.cend(), [](QChar c) { return c.isSpace(); });
        const QStringView token = QStringView(text).sliced(start, blank - text.cbegin() - start);
        if (!isAddress(token))
            addWords(token, start, places);
        start += token.size() + 1;
    }
    return places;
}

QString dictionaryForm(QStringView word)
{
    QString form = word.toString();
    return form.replace(typographicApostrophe, u'\'');
}

} // namespace nimb
