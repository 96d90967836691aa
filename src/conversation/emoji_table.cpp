#include "conversation/emoji_table.h"

#include <QFile>

#include <algorithm>
#include <array>

#ifdef NIMB_EMOJI
/// Of a static library; the macro wants to be outside of every namespace.
static void openEmojiResource()
{
    Q_INIT_RESOURCE(emoji);
}
#endif

namespace nimb
{
namespace
{

constexpr char englishNames[] = "en";
constexpr std::array namedLanguages = {"de", englishNames, "es", "fr", "it", "pl"};

/// How well a word fits, the best first.
enum Fit { fitAtBeginning, fitInName, fitInKeyword, fitWithin, fitNowhere, fitKinds };

QString readEmojiText(const QString &name)
{
    QFile file(QStringLiteral(":/emoji/%1.txt").arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString languageOf(const QStringList &uiLanguages)
{
    for (const QString &language : uiLanguages) {
        QString base = language.section(QLatin1Char('-'), 0, 0);
        if (std::ranges::find(namedLanguages, base, [](const char *one) { return QLatin1String(one); })
            != namedLanguages.end())
            return base;
    }
    return QLatin1String(englishNames);
}

std::vector<QStringView> linesOf(const QString &text)
{
    std::vector<QStringView> lines;
    lines.reserve(static_cast<std::size_t>(text.count(u'\n')));
    for (qsizetype at = 0, end = 0; (end = text.indexOf(u'\n', at)) >= 0; at = end + 1)
        lines.push_back(QStringView(text).mid(at, end - at));
    return lines;
}

/// Without case and accents, so that "Elephant" finds "éléphant" and "usmiech" finds "uśmiech".
QString comparable(const QString &text)
{
    QString folded = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    folded.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    // The letters of the six languages that do not come apart.
    return folded.replace(QChar(u'\u0142'), QChar(u'l')).replace(QChar(u'\u00DF'), QLatin1String("ss"));
}

Fit fitOf(QStringView line, QStringView word)
{
    Fit best = fitNowhere;
    for (qsizetype at = line.indexOf(word); at >= 0; at = line.indexOf(word, at + 1)) {
        const bool begins = at == 0 || !line[at - 1].isLetterOrNumber();
        if (at == 0)
            return fitAtBeginning;
        if (begins)
            return line.left(at).contains(u'\t') ? fitInKeyword : fitInName;
        best = fitWithin;
    }
    return best;
}

} // namespace

bool EmojiTable::isThere()
{
#ifdef NIMB_EMOJI
    return true;
#else
    return false;
#endif
}

EmojiTable::EmojiTable(const QStringList &uiLanguages)
{
#ifdef NIMB_EMOJI
    openEmojiResource();
#endif
    const QString language = languageOf(uiLanguages);
    m_order = readEmojiText(QStringLiteral("order"));
    m_names = readEmojiText(language);
    const std::vector<QStringView> order = linesOf(m_order);
    const std::vector<QStringView> names = linesOf(m_names);
    m_all.reserve(order.size());
    for (std::size_t i = 0; i < std::min(order.size(), names.size()); ++i) {
        const QStringView name = names[i].left(names[i].indexOf(u'\t'));
        m_all.push_back({order[i].mid(2), name, order[i].front().digitValue()});
    }
    m_searched.push_back(searchedOf(m_names));
    if (language != QLatin1String(englishNames))
        m_searched.push_back(searchedOf(readEmojiText(QLatin1String(englishNames))));
}

EmojiTable::Searched EmojiTable::searchedOf(const QString &text)
{
    Searched searched{comparable(text), {}};
    searched.lines = linesOf(searched.text);
    return searched;
}

std::optional<std::size_t> EmojiTable::find(QStringView text) const
{
    const auto found = std::ranges::find(m_all, text, &Emoji::text);
    if (found == m_all.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_all.begin());
}

std::vector<std::size_t> EmojiTable::search(const QString &typed) const
{
    const QStringList words = comparable(typed).split(u' ', Qt::SkipEmptyParts);
    const auto fitOfAll = [this, &words](std::size_t emoji) {
        Fit worst = fitAtBeginning;
        for (const QString &word : words) {
            Fit best = fitNowhere;
            for (const Searched &searched : m_searched)
                best = std::min(best, fitOf(searched.lines[emoji], word));
            worst = std::max(worst, best);
        }
        return worst;
    };
    std::array<std::vector<std::size_t>, fitKinds> found;
    for (std::size_t i = 0; i < m_all.size(); ++i)
        found[fitOfAll(i)].push_back(i);
    std::vector<std::size_t> places = std::move(found[fitAtBeginning]);
    for (const Fit fit : {fitInName, fitInKeyword, fitWithin})
        places.insert(places.end(), found[fit].begin(), found[fit].end());
    return places;
}

QString EmojiTable::groupName(int group)
{
    const std::array<QString, groups> names = {tr("Smileys"),
                                               tr("People"),
                                               tr("Animals and nature"),
                                               tr("Food and drink"),
                                               tr("Travel and places"),
                                               tr("Activities"),
                                               tr("Objects"),
                                               tr("Symbols"),
                                               tr("Flags")};
    return names.at(static_cast<std::size_t>(group));
}

} // namespace nimb
