#include "conversation/spelling.h"

#include "base/limits.h"
#include "contacts/contact_list.h"

#include <QLocale>

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

/// "en" of "en_GB" and of "en-GB-large".
QString languageAlone(const QString &name)
{
    const auto *const end = std::find_if(name.cbegin(), name.cend(), [](QChar c) { return !c.isLetter(); });
    return name.left(end - name.cbegin());
}

} // namespace

QString languageTitle(const QString &name)
{
    const QLocale locale(name);
    const QString title = locale.nativeLanguageName();
    if (locale.language() == QLocale::C || title.isEmpty())
        return name;
    return locale.toUpper(title.left(1)) + title.mid(1);
}

Spelling::Spelling(SpellChecker &checker, Common &common, QString desktopLanguage)
    : m_checker(checker), m_common(common), m_desktopLanguage(std::move(desktopLanguage)),
      m_known(limits::spelledWordsKept)
{
}

// --- languages

void Spelling::begin()
{
    if (std::exchange(m_begun, true))
        return;
    addWordsOfUser();
    if (m_contacts)
        followNames(*std::exchange(m_contacts, nullptr));
    m_checker.findLanguages([this](const std::vector<SpellingLanguage> &languages) {
        m_installed = languages;
        m_languagesKnown = true;
        use(wantedLanguage());
    });
}

std::vector<Spelling::Language> Spelling::languages() const
{
    std::vector<Language> languages;
    for (const SpellingLanguage &one : m_installed)
        languages.push_back({one.name, languageTitle(one.name), !m_unusable.contains(one.name)});
    // Several dictionaries of one language differ by their names alone.
    const std::vector<Language> plain = languages;
    for (Language &language : languages) {
        const auto bearsTitle = [&language](const Language &other) { return other.title == language.title; };
        if (std::ranges::count_if(plain, bearsTitle) > 1)
            language.title = QStringLiteral("%1 (%2)").arg(language.title, language.name);
    }
    std::ranges::sort(languages, [](const Language &a, const Language &b) {
        return std::pair(a.title.toCaseFolded(), a.name) < std::pair(b.title.toCaseFolded(), b.name);
    });
    return languages;
}

void Spelling::choose(const QString &name)
{
    m_common.spelling.language = name;
    use(wantedLanguage());
    Q_EMIT chosen();
}

void Spelling::use(const QString &language)
{
    m_language = language;
    m_known.clear();
    m_asked.clear();
    m_suggestions = {};
    if (m_language.isEmpty())
        m_checker.rest();
    Q_EMIT changed();
}

QString Spelling::wantedLanguage() const
{
    const QString &choice = m_common.spelling.language;
    if (choice == offChoice)
        return {};
    const QString name = nameOfInstalled(choice.isEmpty() ? m_desktopLanguage : choice);
    if (!name.isEmpty() || !choice.isEmpty())
        return m_unusable.contains(name) ? QString() : name;
    // English of another country is better than none.
    const auto found = std::ranges::find_if(m_installed, [this](const SpellingLanguage &one) {
        return languageAlone(one.name) == languageAlone(m_desktopLanguage) && !m_unusable.contains(one.name);
    });
    return found == m_installed.end() ? QString() : found->name;
}

QString Spelling::nameOfInstalled(const QString &wanted) const
{
    const auto found = std::ranges::find_if(m_installed, [&wanted](const SpellingLanguage &one) {
        return one.name == wanted || one.otherNames.contains(wanted);
    });
    return found == m_installed.end() ? QString() : found->name;
}

// --- words

Spelling::Findings Spelling::find(const QString &text, std::optional<qsizetype> typed)
{
    Findings findings;
    if (m_language.isEmpty())
        return findings;
    QStringList wanted;
    for (const WordPlace &place : wordsToCheck(text)) {
        if (place.start == typed)
            continue;
        const QString word = dictionaryForm(QStringView(text).sliced(place.start, place.length));
        if (const bool *const misspelt = m_known.object(word)) {
            if (*misspelt && !isKnownElsewhere(word))
                findings.misspelt.push_back(place);
            continue;
        }
        findings.areComplete = false;
        if (!m_asked.contains(word)) {
            m_asked.insert(word);
            wanted.append(word);
        }
    }
    ask(wanted);
    return findings;
}

void Spelling::ask(const QStringList &words)
{
    for (qsizetype i = 0; i < words.size(); i += limits::spelledWordsAtOnce) {
        const QStringList some = words.mid(i, limits::spelledWordsAtOnce);
        m_checker.check(m_language, some,
                        [this, some, language = m_language](const std::optional<QStringList> &misspelt) {
                            if (language == m_language)
                                take(some, misspelt);
                        });
    }
}

void Spelling::take(const QStringList &words, const std::optional<QStringList> &misspelt)
{
    if (!misspelt) {
        m_unusable.insert(m_language);
        return use({});
    }
    for (const QString &word : words) {
        m_known.insert(word, new bool(misspelt->contains(word))); // the cache owns it
        m_asked.remove(word);
    }
    Q_EMIT answered();
}

/// A word at the beginning of a sentence may be one that was added without its capital.
bool Spelling::isKnownElsewhere(const QString &word) const
{
    return m_ownWords.contains(word) || m_ownWords.contains(word.toLower()) || m_names.contains(word.toCaseFolded());
}

void Spelling::addWordsOfUser()
{
    const QStringList &own = m_common.spelling.words;
    m_ownWords = QSet<QString>(own.cbegin(), own.cend());
}

void Spelling::addWord(const QString &word)
{
    const QString form = dictionaryForm(word);
    QStringList &own = m_common.spelling.words;
    if (form.isEmpty() || own.contains(form))
        return;
    own.append(form);
    if (own.size() > limits::ownSpellingWords)
        own.removeFirst();
    addWordsOfUser();
    Q_EMIT chosen();
    Q_EMIT changed();
}

// --- names

void Spelling::followNames(const ContactList &contacts)
{
    addNames(contacts, 0, contacts.rowCount() - 1);
    connect(&contacts, &ContactList::rowsInserted, this,
            [this, &contacts](const QModelIndex &, int first, int last) { addNames(contacts, first, last); });
    connect(&contacts, &ContactList::dataChanged, this,
            [this, &contacts](const QModelIndex &first, const QModelIndex &last) {
                addNames(contacts, first.row(), last.row());
            });
}

void Spelling::addNames(const ContactList &contacts, int first, int last)
{
    for (int row = first; row <= last; ++row)
        addName(contacts.at(row).nickname);
}

/// Who is gone may still be written about, so no name is ever taken away.
void Spelling::addName(const QString &name)
{
    const QString folded = name.toCaseFolded();
    for (const WordPlace &place : wordsToCheck(folded)) {
        if (m_names.size() < limits::namesKnownToSpelling)
            m_names.insert(dictionaryForm(QStringView(folded).sliced(place.start, place.length)));
    }
}

// --- suggestions

void Spelling::suggest(const QString &word)
{
    if (m_suggestions.word == word || m_language.isEmpty())
        return;
    m_suggestions = {word, std::nullopt};
    m_checker.suggest(m_language, dictionaryForm(word), [this, word](const QStringList &list) {
        if (m_suggestions.word != word)
            return;
        m_suggestions.list = list.mid(0, limits::spellingSuggestions);
        Q_EMIT suggested();
    });
}

std::optional<QStringList> Spelling::suggestions(const QString &word) const
{
    return m_suggestions.word == word ? m_suggestions.list : std::nullopt;
}

} // namespace nimb
