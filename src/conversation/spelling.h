// What of a text is misspelt: the language, the words that are known by now, and those of the user.
#pragma once

#include "base/Common.h"
#include "base/spell_checker.h"
#include "conversation/spelled_words.h"

#include <QCache>
#include <QObject>
#include <QSet>

#include <optional>

namespace nimb
{

class ContactList;

/// One for all input boxes. Nothing here waits: what is not known yet is asked for, and a signal says when to look
/// again.
class Spelling : public QObject
{
    Q_OBJECT

public:
    /// The stored choice of no language.
    static inline const QString offChoice = QStringLiteral("off");

    /// desktopLanguage: as QLocale names it, "en_GB". checker and common outlive this.
    Spelling(SpellChecker &checker, Common &common, QString desktopLanguage);

    /// Names in this list are never misspelt, from begin() on.
    void setContacts(const ContactList &contacts) { m_contacts = &contacts; }

    /// Something is written, or about to be: from now on the languages are known soon.
    void begin();
    /// False until the answer has come.
    bool areLanguagesKnown() const { return m_languagesKnown; }

    struct Language {
        QString name;
        QString title; ///< in the language itself
        bool isUsable = true;
    };
    /// Those for which a dictionary is installed, by title.
    std::vector<Language> languages() const;
    /// The one that words are checked in; empty: none.
    QString language() const { return m_language; }
    /// A name of languages(), or offChoice.
    void choose(const QString &name);

    struct Findings {
        std::vector<WordPlace> misspelt;
        bool areComplete = true; ///< otherwise more is known after answered()
    };
    /// typed: where a word that is still being typed begins, which is left out.
    Findings find(const QString &text, std::optional<qsizetype> typed = std::nullopt);

    /// The suggestions for a word are known soon; see suggested().
    void suggest(const QString &word);
    /// At most limits::spellingSuggestions; nothing until they are known.
    std::optional<QStringList> suggestions(const QString &word) const;

    /// The word counts as written well from now on, whatever the language.
    void addWord(const QString &word);

Q_SIGNALS:
    /// Some of the words that were asked for are known now.
    void answered();
    /// Everything is to be looked at anew: the language has changed, or what counts as a word.
    void changed();
    void suggested();
    /// The user has chosen a language or added a word.
    void chosen();

private:
    void use(const QString &language);
    QString wantedLanguage() const;
    QString nameOfInstalled(const QString &wanted) const;
    void ask(const QStringList &words);
    void take(const QStringList &words, const std::optional<QStringList> &misspelt);
    bool isKnownElsewhere(const QString &word) const;
    void addWordsOfUser();
    void followNames(const ContactList &contacts);
    void addNames(const ContactList &contacts, int first, int last);
    void addName(const QString &name);

    struct Suggestions {
        QString word;
        std::optional<QStringList> list;
    };

    SpellChecker &m_checker;
    Common &m_common;
    QString m_desktopLanguage;
    bool m_begun = false;
    bool m_languagesKnown = false;
    std::vector<SpellingLanguage> m_installed;
    QSet<QString> m_unusable; ///< languages whose dictionary was tried in vain
    QString m_language;
    QCache<QString, bool> m_known; ///< by word: is it misspelt?
    QSet<QString> m_asked;
    const ContactList *m_contacts = nullptr; ///< until begin()
    QSet<QString> m_names;                   ///< case folded
    QSet<QString> m_ownWords;                ///< those in common
    Suggestions m_suggestions;
};

/// How a language that is called after this file calls itself.
QString languageTitle(const QString &name);

} // namespace nimb
