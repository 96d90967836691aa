#include "copy.h"

#include "base/settings.h"

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(Settings, AnEmptyStoreGivesTheDefaults)
{
    Common common;
    const LoadedSettings loaded = loadSettings(MemoryStore(), common);
    EXPECT_EQ(common.mainPlace.left, 1000);
    EXPECT_EQ(common.mainPlace.top, 1000);
    EXPECT_EQ(common.mainPlace.height, 6200);
    EXPECT_EQ(common.udpPort, 5549);
    EXPECT_TRUE(common.options.presenceLines);
    EXPECT_FALSE(common.options.playOwnBuzz);
    EXPECT_TRUE(common.options.playReceivedBuzz);
    EXPECT_FALSE(common.options.privateWindowsOnTop);
    EXPECT_FALSE(common.options.closedWindowsGo);
    EXPECT_TRUE(common.options.notifyWindow);
    EXPECT_TRUE(common.options.liveType);
    EXPECT_FALSE(common.options.closeBoxHides);
    EXPECT_TRUE(common.options.notifyMessages);
    EXPECT_TRUE(common.options.showMessageText);
    EXPECT_FALSE(common.options.soundForMessage);
    EXPECT_FALSE(common.options.soundForOnline);
    EXPECT_FALSE(common.options.soundForInvitation);
    EXPECT_EQ(common.autoReply.busyText, QStringLiteral("I'm busy, please do not disturb"));
    EXPECT_EQ(common.autoReply.awayText, QStringLiteral("At the moment I'm not at my PC"));
    EXPECT_FALSE(common.autoReply.onBusy);
    EXPECT_FALSE(common.autoReply.onAway);
    EXPECT_EQ(common.logFont.face, QStringLiteral("MS Sans Serif"));
    EXPECT_EQ(common.logFont.size, 8);
    EXPECT_EQ(common.logFont.style, QString());
    EXPECT_EQ(common.avatarHead, QString());
    EXPECT_TRUE(common.avatarBody.isEmpty());
    EXPECT_EQ(loaded.personalizedStates.join(QString()), QString());
    EXPECT_THAT(loaded.notices, IsEmpty());
}

TEST(Settings, TheDefaultsInMemoryAreThoseOfTheTable)
{
    Common loaded;
    loadSettings(MemoryStore(), loaded);
    const Common made;
    EXPECT_EQ(made.udpPort, loaded.udpPort);
    EXPECT_EQ(made.logFont, loaded.logFont);
    EXPECT_EQ(made.autoReply.busyText, loaded.autoReply.busyText);
    EXPECT_EQ(made.mainPlace.height, loaded.mainPlace.height);
}

TEST(Settings, EveryKeyIsThereOnceInItsSection)
{
    std::vector<std::string> options;
    std::set<std::string> keys;
    for (const OptionRow &row : optionRows) {
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
        options.push_back(row.key);
    }
    for (const SettingKey &row : settingKeys) {
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
        EXPECT_STRNE(row.meaning, "");
        if (std::string(row.section) == "Options")
            options.push_back(row.key);
        else if (const std::string key = row.key; key == "WaitingMessages" || key == "UnfinishedFiles")
            EXPECT_STREQ(row.section, key == "WaitingMessages" ? "Outbox" : "Transfers");
        else
            EXPECT_STREQ(row.section, "Settings");
    }
    EXPECT_THAT(options,
                ElementsAre("ShowStatusOnPrivate", "BuzzLocal", "BuzzRemote", "PrivateBehaviour", "DontDestroyWindow",
                            "NotifyWin", "LiveType", "CloseButtonDoesMinimize", "NotifyMessages", "NotifyMessageText",
                            "SoundMessage", "SoundOnline", "SoundInvitation", "RecentEmoji", "TipOTDay", "TipOTDayNum",
                            "KeepHistory", "HistoryLeftOut", "FilesExplained", "Language", "SpellingLanguage",
                            "SpellingWords"));
    EXPECT_EQ(keys.size(), 42u);
}

TEST(Settings, SavingKeepsItsOrder)
{
    MemoryStore store;
    saveSettings(store, Common(), {});
    EXPECT_THAT(
        store.order,
        ElementsAre("Settings/UDPPort", "Options/ShowStatusOnPrivate", "Options/BuzzLocal", "Options/BuzzRemote",
                    "Options/PrivateBehaviour", "Options/DontDestroyWindow", "Options/NotifyWin", "Options/LiveType",
                    "Options/CloseButtonDoesMinimize", "Options/NotifyMessages", "Options/NotifyMessageText",
                    "Options/SoundMessage", "Options/SoundOnline", "Options/SoundInvitation", "Settings/MainLeft",
                    "Settings/MainTop", "Settings/MainHeight", "Settings/AvatarHead", "Settings/AvatarBody",
                    "Settings/AutoReplyonBusyActive", "Settings/AutoReplyonAwayActive", "Settings/AutoReplyonBusyText",
                    "Settings/AutoReplyonawayText", "Settings/StandardFontSize", "Settings/StandardFontFace",
                    "Settings/StandardFontStyle", "Settings/OwnNetworkCard", "Options/Language", "Options/RecentEmoji",
                    "Options/SpellingLanguage", "Options/SpellingWords", "Options/KeepHistory",
                    "Options/HistoryLeftOut", "Options/FilesExplained", "Settings/PersonalizedState1",
                    "Settings/PersonalizedState2", "Settings/PersonalizedState3", "Settings/PersonalizedState4",
                    "Settings/PersonalizedState5", "Settings/PersonalizedState6", "Settings/PersonalizedState7",
                    "Settings/PersonalizedState8"));
}

TEST(Settings, RecentEmojiAreStoredWithBlanksBetweenAndReadNoLongerThanTheyAre)
{
    Common common;
    common.recentEmoji = {QStringLiteral("😀"), QStringLiteral("❤️")};
    MemoryStore store;
    saveSettings(store, common, {});
    store.save();
    EXPECT_EQ(store.value("Options", "RecentEmoji"), "😀 ❤️");
    Common next;
    loadSettings(store, next);
    EXPECT_EQ(next.recentEmoji, common.recentEmoji);
    store.put("Options", "RecentEmoji", QString(41, u'x') + QStringLiteral("  😀 ") + QStringLiteral("👍 ").repeated(30));
    loadSettings(store, next);
    EXPECT_EQ(next.recentEmoji.size(), 24);
    EXPECT_EQ(next.recentEmoji.front(), QStringLiteral("😀"));
}

TEST(Settings, ALanguageThatTheProgramDoesNotSpeakIsTheDesktops)
{
    Common common;
    common.language = QStringLiteral("pt_BR");
    MemoryStore store;
    saveSettings(store, common, {});
    store.save();
    EXPECT_EQ(store.value("Options", "Language"), "pt_BR");
    Common next;
    loadSettings(store, next);
    EXPECT_EQ(next.language, QStringLiteral("pt_BR"));
    store.put("Options", "Language", QStringLiteral("tlh"));
    loadSettings(store, next);
    EXPECT_EQ(next.language, QString());
}

TEST(Settings, WhatIsSaidOfTheHistoryIsReadAsItWasSaved)
{
    for (const auto &[keep, text] : {std::pair(KeepHistory::notAsked, ""), std::pair(KeepHistory::no, "no"),
                                     std::pair(KeepHistory::year, "year"), std::pair(KeepHistory::ever, "ever")}) {
        Common common;
        common.history = {keep, {QStringLiteral("10.0.0.2"), QStringLiteral("10.0.0.3")}};
        MemoryStore store;
        saveSettings(store, common, {});
        store.save();
        EXPECT_EQ(store.value("Options", "KeepHistory"), text);
        EXPECT_EQ(store.value("Options", "HistoryLeftOut"), "10.0.0.2 10.0.0.3");
        Common next;
        loadSettings(store, next);
        EXPECT_EQ(next.history.keep, keep);
        EXPECT_EQ(next.history.leftOut, common.history.leftOut);
    }
    MemoryStore odd;
    odd.put("Options", "KeepHistory", QStringLiteral("perhaps"));
    Common next;
    loadSettings(odd, next);
    EXPECT_EQ(next.history.keep, KeepHistory::notAsked);
}

TEST(Settings, WordsThatWereAddedAreReadAsTheyWereSaved)
{
    Common common;
    common.spelling = {QStringLiteral("off"), {QStringLiteral("helo"), QStringLiteral("Grüezi")}};
    MemoryStore store;
    saveSettings(store, common, {});
    store.save();
    EXPECT_EQ(store.value("Options", "SpellingWords"), "helo Grüezi");
    Common next;
    loadSettings(store, next);
    EXPECT_EQ(next.spelling.language, QStringLiteral("off"));
    EXPECT_EQ(next.spelling.words, common.spelling.words);
}

TEST(Settings, OfStoredWordsOnlyThoseCountThatCanBeChecked)
{
    MemoryStore store;
    store.put("Options", "SpellingWords", QStringLiteral(" one\ntwo  one ") + QString(65, u'x'));
    Common common;
    loadSettings(store, common);
    EXPECT_EQ(common.spelling.words, (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
}

TEST(Settings, ATrueFlagIsStoredAsMinusOneAndReadAsActive)
{
    Common common;
    common.autoReply.onBusy = true;
    MemoryStore store;
    saveSettings(store, common, {});
    store.save();
    EXPECT_EQ(store.value("Settings", "AutoReplyonBusyActive"), "-1");
    EXPECT_EQ(store.value("Settings", "AutoReplyonAwayActive"), "0");
    Common next;
    loadSettings(store, next);
    EXPECT_TRUE(next.autoReply.onBusy);
    EXPECT_FALSE(next.autoReply.onAway);
}

TEST(Settings, AnyNonZeroNumberIsTrue)
{
    MemoryStore store;
    store.put("Settings", "AutoReplyonAwayActive", QStringLiteral("1"));
    Common common;
    loadSettings(store, common);
    EXPECT_TRUE(common.autoReply.onAway);
}

TEST(Settings, EverythingComesBackAsItWasSaved)
{
    Common common;
    common.mainPlace = {-150, 2020.5, 7000};
    common.udpPort = 65535;
    common.options = {.presenceLines = false,
                      .playOwnBuzz = true,
                      .playReceivedBuzz = false,
                      .privateWindowsOnTop = true,
                      .closedWindowsGo = true,
                      .notifyWindow = false,
                      .liveType = false,
                      .closeBoxHides = true,
                      .notifyMessages = false,
                      .showMessageText = false,
                      .soundForMessage = true,
                      .soundForOnline = true,
                      .soundForInvitation = true};
    common.avatarHead = QStringLiteral("2026-11-21");
    for (int i = 0; i < 7500; ++i)
        common.avatarBody.append(static_cast<char>(i));
    common.autoReply = {true, true, QStringLiteral("a\r\nb"), QStringLiteral("ü")};
    common.logFont = {QStringLiteral("DejaVu Sans"), 24, QStringLiteral("bi")};
    MemoryStore store;
    saveSettings(store, common, {QStringLiteral("4x")});
    store.save();
    Common next;
    const LoadedSettings loaded = loadSettings(store, next);
    EXPECT_EQ(next.mainPlace.left, -150);
    EXPECT_EQ(next.mainPlace.top, 2020.5);
    EXPECT_EQ(next.udpPort, 65535);
    EXPECT_FALSE(next.options.presenceLines);
    EXPECT_TRUE(next.options.playOwnBuzz);
    EXPECT_FALSE(next.options.playReceivedBuzz);
    EXPECT_TRUE(next.options.privateWindowsOnTop);
    EXPECT_TRUE(next.options.closedWindowsGo);
    EXPECT_FALSE(next.options.notifyWindow);
    EXPECT_FALSE(next.options.liveType);
    EXPECT_TRUE(next.options.closeBoxHides);
    EXPECT_FALSE(next.options.notifyMessages);
    EXPECT_FALSE(next.options.showMessageText);
    EXPECT_TRUE(next.options.soundForMessage);
    EXPECT_TRUE(next.options.soundForOnline);
    EXPECT_TRUE(next.options.soundForInvitation);
    EXPECT_EQ(next.avatarBody, common.avatarBody);
    EXPECT_EQ(next.autoReply.busyText, QStringLiteral("a\r\nb"));
    EXPECT_EQ(next.autoReply.awayText, QStringLiteral("ü"));
    EXPECT_EQ(next.logFont, common.logFont);
    EXPECT_EQ(loaded.personalizedStates.front(), QStringLiteral("4x"));
    EXPECT_THAT(loaded.notices, IsEmpty());
}

TEST(Settings, ABodyWithoutAHeadIsDropped)
{
    Common common;
    common.avatarBody = QByteArray(7500, 'x');
    MemoryStore store;
    saveSettings(store, common, {});
    store.save();
    EXPECT_EQ(store.value("Settings", "AvatarHead"), "");
    EXPECT_EQ(store.value("Settings", "AvatarBody"), "");
}

class MalformedSetting : public testing::TestWithParam<const char *>
{
};

TEST_P(MalformedSetting, GivesTheDefaultAndOneNotice)
{
    MemoryStore store;
    for (const char *key : {"MainLeft", "MainHeight", "UDPPort", "AutoReplyonBusyActive", "StandardFontSize"})
        store.put("Settings", key, QString::fromUtf8(GetParam()));
    store.put("Options", "BuzzRemote", QString::fromUtf8(GetParam()));
    Common common;
    const LoadedSettings loaded = loadSettings(store, common);
    EXPECT_EQ(common.mainPlace.left, 1000);
    EXPECT_EQ(common.mainPlace.height, 6200);
    EXPECT_EQ(common.udpPort, 5549);
    EXPECT_FALSE(common.autoReply.onBusy);
    EXPECT_EQ(common.logFont.size, 8);
    EXPECT_TRUE(common.options.playReceivedBuzz);
    EXPECT_EQ(loaded.notices.size(), 6);
    EXPECT_THAT(loaded.notices.front().toStdString(), HasSubstr("MainLeft"));
}

INSTANTIATE_TEST_SUITE_P(, MalformedSetting,
                         testing::Values("", "abc", "12abc", "nan", "inf", "1e300", "99999999999999999999", "0x10",
                                         "--1", "1,5"));

TEST(Settings, APortOutsideItsRangeIsThe5549)
{
    for (const char *port : {"0", "65536", "-1", "5549.5"}) {
        MemoryStore store;
        store.put("Settings", "UDPPort", QLatin1String(port));
        Common common;
        EXPECT_EQ(loadSettings(store, common).notices.size(), 1) << port;
        EXPECT_EQ(common.udpPort, 5549) << port;
    }
}

TEST(Settings, NoticesStandInTheMainLogAfterTheBanner)
{
    Copy copy({.settings = {{"Settings/UDPPort", "x"}}});
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("« NIMB-Chat [today:21/11/2026 - now:14:05:09] Ready »",
                            "The stored setting UDPPort cannot be \"x\"; 5549 is used instead."));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x0000FFu);
}

} // namespace
} // namespace nimb::test
