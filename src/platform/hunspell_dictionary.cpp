#include "platform/hunspell_dictionary.h"

#include "base/limits.h"
#include "platform/library_file_names.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <exception>
#include <utility>

#ifdef NIMB_HUNSPELL
#include <hunspell.hxx>
constexpr bool isBuiltWithHunspell = true;
#else
constexpr bool isBuiltWithHunspell = false;
/// Stands where the library is missing; no dictionary is ever found then.
class Hunspell
{
public:
    Hunspell(const char *, const char *) { }
    bool spell(const std::string &) { return true; }
    std::vector<std::string> suggest(const std::string &) { return {}; }
    const std::string &get_dict_encoding() const { return m_encoding; }

private:
    std::string m_encoding;
};
#endif

namespace nimb
{
namespace
{

constexpr qint64 lookedAt = qint64{64} * 1024; ///< bytes at the beginning of the words
constexpr int wordsTried = 100;

/// A language with what may follow it, "en_US" or "de_DE_frami"; "hyph_en_US" goes with no affixes anyway.
bool isLanguageName(const QString &name)
{
    const QRegularExpression form(QStringLiteral("^[A-Za-z]{2,3}([_@.-][A-Za-z0-9]+)*$"));
    return name != QLatin1String("off") && form.match(name).hasMatch();
}

std::vector<DictionaryFiles> dictionariesIn(const QString &folder)
{
    std::vector<DictionaryFiles> found;
    for (const QFileInfo &words : QDir(folder).entryInfoList({QStringLiteral("*.dic")}, QDir::Files, QDir::Name)) {
        const QString name = words.completeBaseName();
        const QString affixes = words.path() + u'/' + name + QLatin1String(".aff");
        if (isLanguageName(name) && QFileInfo(affixes).isFile())
            found.push_back({{name}, affixes, words.canonicalFilePath()});
    }
    return found;
}

/// Links come behind what they lead to, which gives the language its name.
void sortLinksBehind(std::vector<DictionaryFiles> &dictionaries)
{
    std::stable_partition(dictionaries.begin(), dictionaries.end(), [](const DictionaryFiles &one) {
        return QFileInfo(one.words).completeBaseName() == one.language.name;
    });
}

bool isOfRightSize(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() > 0 && file.size() <= limits::dictionaryFileBytes;
}

/// The number of words in the first line decides how much memory is taken.
bool isPlausible(const QByteArray &beginning, qint64 size)
{
    const QByteArray line = beginning.left(beginning.indexOf('\n')).trimmed();
    const QByteArray number = line.startsWith("\xEF\xBB\xBF") ? line.mid(3) : line;
    const auto *const end = std::ranges::find_if(number, [](char c) { return c < '0' || c > '9'; });
    const qint64 words = number.left(end - number.cbegin()).toLongLong();
    return words > 0 && words <= size;
}

} // namespace

QStringList dictionaryFolders()
{
    QStringList places = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    places.append(QStringLiteral("/usr/share"));
    QStringList folders;
    for (const QString &place : std::as_const(places)) {
        for (const char *const folder : {"/hunspell", "/myspell/dicts", "/myspell"})
            folders.append(place + QLatin1String(folder));
    }
    folders.removeDuplicates();
    return folders;
}

std::vector<DictionaryFiles> installedDictionaries(const QStringList &folders)
{
    std::vector<DictionaryFiles> all;
    if (!isBuiltWithHunspell)
        return all;
    for (const QString &folder : folders) {
        std::vector<DictionaryFiles> found = dictionariesIn(folder);
        sortLinksBehind(found);
        for (DictionaryFiles &one : found) {
            const auto isSame = [&one](const DictionaryFiles &other) {
                return other.words == one.words || other.language.name == one.language.name;
            };
            const auto same = std::ranges::find_if(all, isSame);
            if (same == all.end())
                all.push_back(std::move(one));
            else if (same->language.name != one.language.name && !same->language.otherNames.contains(one.language.name))
                same->language.otherNames.append(one.language.name);
        }
    }
    return all;
}

std::unique_ptr<HunspellDictionary> HunspellDictionary::open(const DictionaryFiles &files)
try {
    QFile words(files.words);
    if (!isOfRightSize(files.affixes) || !isOfRightSize(files.words) || !words.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray beginning = words.read(lookedAt);
    if (!isPlausible(beginning, words.size()))
        return nullptr;
    words.close();
    std::unique_ptr<HunspellDictionary> dictionary(new HunspellDictionary(files));
    return dictionary->m_encoding.isValid() && dictionary->hasAnyOf(beginning) ? std::move(dictionary) : nullptr;
} catch (const std::exception &) { // of the library, or no memory
    return nullptr;
}

HunspellDictionary::HunspellDictionary(const DictionaryFiles &files)
    : m_hunspell(std::make_unique<Hunspell>(fileNameForHunspell(files.affixes).constData(),
                                            fileNameForHunspell(files.words).constData())),
      m_encoding(m_hunspell->get_dict_encoding())
{
}

HunspellDictionary::~HunspellDictionary() = default;

/// The library does not say whether it could make sense of its files. One that has none of the first words in them,
/// some of which may only be parts of others, could not.
bool HunspellDictionary::hasAnyOf(const QByteArray &lines) const
{
    const QList<QByteArray> all = lines.split('\n');
    for (const QByteArray &line : all.mid(1, wordsTried)) {
        const auto *const end = std::ranges::find_if(line, [](char c) { return c == '/' || c == '\t' || c == '\r'; });
        if (end != line.cbegin() && m_hunspell->spell(std::string(line.cbegin(), end)))
            return true;
    }
    return false;
}

bool HunspellDictionary::has(const QString &word) const
try {
    const std::optional<std::string> written = m_encoding.fromUtf8(word.toStdString());
    return written && m_hunspell->spell(*written);
} catch (const std::exception &) {
    return true; // nobody can say
}

QStringList HunspellDictionary::suggestions(const QString &word) const
try {
    QStringList list;
    const std::optional<std::string> written = m_encoding.fromUtf8(word.toStdString());
    if (!written)
        return list;
    for (const std::string &one : m_hunspell->suggest(*written)) {
        if (const std::optional<std::string> text = m_encoding.toUtf8(one))
            list.append(QString::fromStdString(*text));
    }
    return list;
} catch (const std::exception &) {
    return {};
}

} // namespace nimb
