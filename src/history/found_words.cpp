#include "history/found_words.h"

#include <utility>

namespace nimb
{
namespace
{

struct FoldedText {
    QString text;
    std::vector<qsizetype> places; ///< of each of its characters in what was folded, and behind them its end
};

/// Latin ones alone lose their accents, as in the index of words (history_file.cpp).
char32_t foldedLetter(char32_t letter)
{
    const QString parts = QString::fromUcs4(&letter, 1).normalized(QString::NormalizationForm_D);
    const char16_t base = parts.front().unicode();
    const bool isAccented = parts.size() > 1 && base < 0x80 && parts.front().isLetter();
    return QChar::toCaseFolded(isAccented ? char32_t{base} : letter);
}

bool isAccent(char32_t c)
{
    constexpr char32_t first = 0x300, last = 0x36F; // combining ones
    return c >= first && c <= last;
}

FoldedText foldedText(const QString &text)
{
    FoldedText folded;
    qsizetype place = 0, next = 0;
    for (const char32_t c : text.toUcs4()) {
        place = std::exchange(next, next + (QChar::requiresSurrogates(c) ? 2 : 1));
        if (isAccent(c))
            continue;
        const char32_t letter = foldedLetter(c);
        folded.text += QString::fromUcs4(&letter, 1);
        folded.places.resize(static_cast<std::size_t>(folded.text.size()), place);
    }
    folded.places.push_back(text.size());
    return folded;
}

} // namespace

std::vector<FoundWord> findWords(const QStringList &words, const QString &text)
{
    std::vector<FoundWord> found;
    const FoldedText where = foldedText(text);
    const auto place = [&where](qsizetype index) { return where.places[static_cast<std::size_t>(index)]; };
    for (const QString &word : words) {
        const QString what = foldedText(word).text;
        for (qsizetype at = what.isEmpty() ? -1 : where.text.indexOf(what); at >= 0;
             at = where.text.indexOf(what, at + what.size()))
            found.push_back({place(at), place(at + what.size())});
    }
    return found;
}

} // namespace nimb
