// Finds the words in a text whose spelling can be checked.
#pragma once

#include <QString>

#include <vector>

namespace nimb
{

/// Where a word stands in its text.
struct WordPlace {
    qsizetype start = 0;
    qsizetype length = 0;

    qsizetype end() const { return start + length; }
    /// Also where it only touches the word: a caret behind the last letter is still at it.
    bool touches(qsizetype position) const { return position >= start && position <= end(); }
    bool operator==(const WordPlace &) const = default;
};

/// Leaves out what no dictionary knows: web and mail addresses, words with digits or underscores, abbreviations in
/// capitals, single letters (those of emoticons among them), words beyond limits::spelledWordLength, and scripts that
/// put no blanks between words. Of words with hyphens each part counts; an apostrophe between letters belongs to its
/// word.
std::vector<WordPlace> wordsToCheck(const QString &text);

/// The word as dictionaries write it: with a plain apostrophe.
QString dictionaryForm(QStringView word);

} // namespace nimb
