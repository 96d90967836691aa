// The dictionaries that are installed, in the format of hunspell.
#pragma once

#include "base/spell_checker.h"
#include "platform/text_encoding.h"

#include <memory>
#include <string>
#include <string_view>

class Hunspell;

namespace nimb
{

struct DictionaryFiles {
    SpellingLanguage language;
    QString affixes;
    QString words;
};

/// Where the system and the user keep dictionaries.
QStringList dictionaryFolders();

/// Files that belong together, each pair once: links to it only give it other names. Of two with the same name the one
/// in the earlier folder counts. None where the program was built without hunspell.
std::vector<DictionaryFiles> installedDictionaries(const QStringList &folders);

/// Every call may take long. One thread at a time.
class HunspellDictionary
{
public:
    /// Null where the files cannot be read, are beyond limits::dictionaryFileBytes, or are no dictionary.
    static std::unique_ptr<HunspellDictionary> open(const DictionaryFiles &files);
    ~HunspellDictionary();
    HunspellDictionary(const HunspellDictionary &) = delete;
    HunspellDictionary &operator=(const HunspellDictionary &) = delete;

    bool has(const QString &word) const;
    QStringList suggestions(const QString &word) const;

private:
    explicit HunspellDictionary(const DictionaryFiles &files);
    bool hasAnyOf(const QByteArray &lines) const;

    std::unique_ptr<Hunspell> m_hunspell;
    TextEncoding m_encoding;
};

} // namespace nimb
