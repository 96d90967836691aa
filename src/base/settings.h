// Every key of the settings store, and how the main window's settings are read and written.
#pragma once

#include "base/Common.h"
#include "base/settings_store.h"

#include <QStringList>

#include <array>

namespace nimb
{

/// How the stored text is read. Every value is stored as text, a number as its decimal digits.
enum class SettingType {
    text,
    single, ///< a number that may have a fraction
    integer16,
    integer32,
    flag,       ///< a number, non-zero for true; true is written as -1
    avatarData, ///< bytes, one per character, U+0000 to U+00FF
};

struct SettingKey {
    const char *section;
    const char *key;
    SettingType type;
    const char *defaultValue;
    const char *meaning;
};

/// The whole store but for the options (base/options.h) and the contact list: section "Users", keys "IP", "Nn" and "Ws"
/// followed by 1, 2, ...
/// "PersonalizedState" stands for eight keys, followed by 1 to 8.
inline constexpr std::array settingKeys = {
    SettingKey{"Settings", "MyNickName", SettingType::text, "", "last nickname used"},
    SettingKey{"Settings", "MainLeft", SettingType::single, "1000", "left edge of the main window, twips"},
    SettingKey{"Settings", "MainTop", SettingType::single, "1000", "top edge of the main window, twips"},
    SettingKey{"Settings", "MainHeight", SettingType::single, "6200", "height of the main window, twips"},
    SettingKey{"Settings", "UDPPort", SettingType::integer32, "5549", "port to listen on and to send to"},
    SettingKey{"Settings", "AvatarHead", SettingType::text, "", "time stamp of the own avatar, empty for none"},
    SettingKey{"Settings", "AvatarBody", SettingType::avatarData, "", "the own avatar, 7500 bytes"},
    SettingKey{"Settings", "AutoReplyonBusyActive", SettingType::flag, "0", "automatic reply while busy"},
    SettingKey{"Settings", "AutoReplyonAwayActive", SettingType::flag, "0", "automatic reply while away"},
    SettingKey{"Settings", "AutoReplyonBusyText", SettingType::text, "I'm busy, please do not disturb",
               "its text while busy"},
    SettingKey{"Settings", "AutoReplyonawayText", SettingType::text, "At the moment I'm not at my PC",
               "its text while away"},
    SettingKey{"Settings", "StandardFontSize", SettingType::integer16, "8", "log font, points"},
    SettingKey{"Settings", "StandardFontFace", SettingType::text, "MS Sans Serif", "log font, face"},
    SettingKey{"Settings", "StandardFontStyle", SettingType::text, "", "log font: b for bold, i for italic"},
    SettingKey{"Settings", "OwnNetworkCard", SettingType::text, "",
               "network card whose address is the own one, empty: as the system chooses"},
    SettingKey{"Settings", "PersonalizedState", SettingType::text, "", "picture digit and text of an own state"},
    SettingKey{"Settings", "AutorefuseConf", SettingType::integer16, "0", "1: invitations are refused by age"},
    SettingKey{"Settings", "AutorefuseConfMins", SettingType::text, "5", "that age, minutes"},
    SettingKey{"Outbox", "WaitingMessages", SettingType::text, "",
               "messages that wait until their receivers are there, as JSON"},
    SettingKey{"Transfers", "UnfinishedFiles", SettingType::text, "", "files whose fetching has not ended, as JSON"},
    SettingKey{"Options", "RecentEmoji", SettingType::text, "",
               "emoji used lately, the latest first, with blanks between"},
    SettingKey{"Options", "TipOTDay", SettingType::text, "1", "exactly 1: a tip at every start"},
    SettingKey{"Options", "TipOTDayNum", SettingType::integer16, "0", "number of the next tip"},
    SettingKey{"Options", "KeepHistory", SettingType::text, "",
               "how long conversations are kept: year, ever, or no; empty: the user has not been asked"},
    SettingKey{"Options", "HistoryLeftOut", SettingType::text, "",
               "addresses of contacts with whom nothing is kept, between blanks"},
    SettingKey{"Options", "FilesExplained", SettingType::flag, "0",
               "the user has been told that files are not encrypted"},
    SettingKey{"Options", "Language", SettingType::text, "", "language of the program, empty: the desktop's"},
    SettingKey{"Options", "SpellingLanguage", SettingType::text, "",
               "name of the dictionary for what is written, empty: of the desktop's language, off: none"},
    SettingKey{"Options", "SpellingWords", SettingType::text, "", "words added to every dictionary, between blanks"},
};

/// The row of the table; the key must be in it.
const SettingKey &settingKey(QLatin1String key);

/// The stored text, or the table's default.
QString readSetting(const SettingsStore &store, QLatin1String key);
void writeSetting(SettingsSink &store, QLatin1String key, const QString &value);

/// The option: a tip at every start. Exactly "1" means yes.
bool tipsAtStart(const SettingsStore &store);

/// What the main window reads when it loads.
struct LoadedSettings {
    QStringList personalizedStates; ///< the eight stored values, empty ones included
    QStringList notices;            ///< one sentence for each stored value that could not be used
};

/// Reads the main window's settings in their order. A stored number that is none gives the default and a notice.
LoadedSettings loadSettings(const SettingsStore &store, Common &common);
/// Hands them over for saving, in their order. Of the personalised states the first eight are kept; without an avatar
/// head no body is.
void saveSettings(SettingsSink &store, const Common &common, const QStringList &personalizedStates);

} // namespace nimb
