// Knows which words are written as they should be.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace nimb
{

/// One for which a dictionary is installed.
struct SpellingLanguage {
    QString name;             ///< as its files are called: "en_GB"
    QStringList otherNames{}; ///< that stand for the same files
};

/// Every question returns at once, whatever its answer takes; the answer comes later on the thread of the event loop.
/// None comes any more once the checker has been destroyed. Nothing is read before the first question.
class SpellChecker
{
public:
    virtual ~SpellChecker() = default;

    using LanguagesFound = std::function<void(const std::vector<SpellingLanguage> &languages)>;
    virtual void findLanguages(LanguagesFound found) = 0;

    /// misspelt: those of the words that the language does not have; nothing where its dictionary cannot be used.
    using Checked = std::function<void(const std::optional<QStringList> &misspelt)>;
    virtual void check(const QString &language, const QStringList &words, Checked checked) = 0;

    /// What the word may have been meant to be, the likeliest first. Goes before words that wait to be checked.
    using Suggested = std::function<void(const QStringList &suggestions)>;
    virtual void suggest(const QString &language, const QString &word, Suggested suggested) = 0;

    /// Nothing is to be checked for now: what was read of a dictionary need not be kept.
    virtual void rest() = 0;
};

} // namespace nimb
