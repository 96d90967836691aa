#include "base/settings.h"

#include "base/avatar.h"

#include "base/limits.h"
#include "base/program_languages.h"
#include "base/remote_text.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace nimb
{
namespace
{

const QLatin1String optionSection("Options");

QString personalizedStateKey(int number)
{
    return QLatin1String("PersonalizedState") + QString::number(number);
}

/// Reads numbers and remembers which of them were none.
class Reader
{
public:
    Reader(const SettingsStore &store, QStringList &notices) : m_store(store), m_notices(notices) { }

    QString text(const char *key) const { return readSetting(m_store, QLatin1String(key)); }

    template <class Number> Number number(const char *key, Number lowest, Number highest)
    {
        return numberOf(key, text(key), QLatin1String(settingKey(QLatin1String(key)).defaultValue), lowest, highest);
    }

    std::int16_t integer16(const char *key) { return number<std::int16_t>(key, Range16::min(), Range16::max()); }

    Switch option(const OptionRow &row)
    {
        const QString fallback = QString::number(row.defaultValue().number());
        const QString stored = m_store.read(optionSection, QLatin1String(row.key), fallback);
        return Switch::ofNumber(numberOf(row.key, stored, fallback, Range16::min(), Range16::max()));
    }

    /// Twips; no screen is wider than a million of them.
    double twips(const char *key) { return number<double>(key, -1e6, 1e6); }

    bool flag(const char *key) { return number<double>(key, -1e9, 1e9) != 0; }

private:
    using Range16 = std::numeric_limits<std::int16_t>;

    template <class Number>
    Number numberOf(const char *key, const QString &stored, const QString &fallback, Number lowest, Number highest)
    {
        bool isNumber = false;
        const double value = QLocale::c().toDouble(stored.trimmed(), &isNumber);
        const bool whole = std::is_floating_point_v<Number> || value == std::floor(value);
        if (isNumber && std::isfinite(value) && whole && value >= double(lowest) && value <= double(highest))
            return static_cast<Number>(value);
        m_notices.append(
            QCoreApplication::translate("Settings", "The stored setting %1 cannot be \"%2\"; %3 is used instead.")
                .arg(QLatin1String(key), remoteLine(stored.left(40)), fallback));
        return static_cast<Number>(fallback.toDouble());
    }

    const SettingsStore &m_store;
    QStringList &m_notices;
};

/// The newest of them, each once and of a length that is checked.
QStringList ownWords(const QString &stored)
{
    QStringList words = stored.simplified().split(u' ', Qt::SkipEmptyParts);
    words.removeIf([](const QString &word) { return word.size() > limits::spelledWordLength; });
    words.removeDuplicates();
    return words.mid(qMax(qsizetype{0}, words.size() - limits::ownSpellingWords));
}

QString numberText(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

/// As many as are offered; what is too long is none.
QStringList emojiOf(const QString &stored)
{
    QStringList emoji = stored.split(u' ', Qt::SkipEmptyParts);
    emoji.removeIf([](const QString &one) { return one.size() > limits::emojiLength; });
    return emoji.mid(0, limits::recentEmoji);
}

constexpr std::array keepHistoryTexts = {
    std::pair(KeepHistory::notAsked, QLatin1String("")),
    std::pair(KeepHistory::no, QLatin1String("no")),
    std::pair(KeepHistory::year, QLatin1String("year")),
    std::pair(KeepHistory::ever, QLatin1String("ever")),
};

/// Of a text that says nothing: the user is asked.
KeepHistory keepHistoryOf(const QString &stored)
{
    for (const auto &[keep, text] : keepHistoryTexts) {
        if (stored == text)
            return keep;
    }
    return KeepHistory::notAsked;
}

QString textOf(KeepHistory wanted)
{
    for (const auto &[keep, text] : keepHistoryTexts) {
        if (keep == wanted)
            return text;
    }
    return {};
}

/// The newest of them.
QStringList leftOutOf(const QString &stored)
{
    QStringList addresses = stored.simplified().split(u' ', Qt::SkipEmptyParts);
    addresses.removeDuplicates();
    return addresses.mid(qMax(qsizetype{0}, addresses.size() - limits::historyLeftOut));
}

QString flagText(bool value)
{
    return value ? QStringLiteral("-1") : QStringLiteral("0");
}

} // namespace

const SettingKey &settingKey(QLatin1String key)
{
    const auto *const found
        = std::ranges::find_if(settingKeys, [key](const SettingKey &row) { return key == QLatin1String(row.key); });
    Q_ASSERT(found != settingKeys.end());
    return *found;
}

QString readSetting(const SettingsStore &store, QLatin1String key)
{
    const SettingKey &row = settingKey(key);
    return store.read(QLatin1String(row.section), key, QLatin1String(row.defaultValue));
}

void writeSetting(SettingsSink &store, QLatin1String key, const QString &value)
{
    store.write(QLatin1String(settingKey(key).section), key, value);
}

bool tipsAtStart(const SettingsStore &store)
{
    return readSetting(store, QLatin1String("TipOTDay")) == QLatin1String("1");
}

LoadedSettings loadSettings(const SettingsStore &store, Common &common)
{
    LoadedSettings loaded;
    Reader read(store, loaded.notices);
    common.mainPlace.left = read.twips("MainLeft");
    common.mainPlace.top = read.twips("MainTop");
    common.mainPlace.height = read.twips("MainHeight");
    common.udpPort = read.number<std::uint16_t>("UDPPort", 1, 65535);
    for (const OptionRow &row : optionRows)
        common.options.*row.member = read.option(row);
    common.avatarHead = read.text("AvatarHead");
    common.avatarBody = read.text("AvatarBody").toLatin1();
    if (common.avatarBody.size() != avatarBytes)
        common.avatarBody.clear();
    common.autoReply.onBusy = read.flag("AutoReplyonBusyActive");
    common.autoReply.onAway = read.flag("AutoReplyonAwayActive");
    common.autoReply.busyText = read.text("AutoReplyonBusyText");
    common.autoReply.awayText = read.text("AutoReplyonawayText");
    common.logFont.size = read.integer16("StandardFontSize");
    common.logFont.face = read.text("StandardFontFace");
    common.logFont.style = read.text("StandardFontStyle");
    common.ownCard = read.text("OwnNetworkCard");
    common.language = knownLanguage(read.text("Language"));
    common.recentEmoji = emojiOf(read.text("RecentEmoji"));
    common.spelling.language = read.text("SpellingLanguage");
    common.spelling.words = ownWords(read.text("SpellingWords"));
    common.history.keep = keepHistoryOf(read.text("KeepHistory"));
    common.history.leftOut = leftOutOf(read.text("HistoryLeftOut"));
    common.filesExplained = read.flag("FilesExplained");
    for (int n = 1; n <= limits::storedPersonalizedStates; ++n)
        loaded.personalizedStates.append(store.read(
            QLatin1String(settingKey(QLatin1String("PersonalizedState")).section), personalizedStateKey(n), {}));
    return loaded;
}

void saveSettings(SettingsSink &store, const Common &common, const QStringList &personalizedStates)
{
    const auto write
        = [&store](const char *key, const QString &value) { writeSetting(store, QLatin1String(key), value); };
    write("UDPPort", QString::number(common.udpPort));
    for (const OptionRow &row : optionRows)
        store.write(optionSection, QLatin1String(row.key), QString::number((common.options.*row.member).number()));
    write("MainLeft", numberText(common.mainPlace.left));
    write("MainTop", numberText(common.mainPlace.top));
    write("MainHeight", numberText(common.mainPlace.height));
    write("AvatarHead", common.avatarHead);
    write("AvatarBody", common.avatarHead.isEmpty() ? QString() : QString::fromLatin1(common.avatarBody));
    write("AutoReplyonBusyActive", flagText(common.autoReply.onBusy));
    write("AutoReplyonAwayActive", flagText(common.autoReply.onAway));
    write("AutoReplyonBusyText", common.autoReply.busyText);
    write("AutoReplyonawayText", common.autoReply.awayText);
    write("StandardFontSize", QString::number(common.logFont.size));
    write("StandardFontFace", common.logFont.face);
    write("StandardFontStyle", common.logFont.style);
    write("OwnNetworkCard", common.ownCard);
    write("Language", common.language);
    write("RecentEmoji", common.recentEmoji.join(u' '));
    write("SpellingLanguage", common.spelling.language);
    write("SpellingWords", common.spelling.words.join(u' '));
    write("KeepHistory", textOf(common.history.keep));
    write("HistoryLeftOut", common.history.leftOut.join(u' '));
    write("FilesExplained", flagText(common.filesExplained));
    // Unused numbers are emptied, or entries of an earlier, longer list would come back.
    for (int n = 1; n <= limits::storedPersonalizedStates; ++n)
        store.write(QLatin1String(settingKey(QLatin1String("PersonalizedState")).section), personalizedStateKey(n),
                    personalizedStates.value(n - 1));
}

} // namespace nimb
