#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(MainWindowLoad, SetsCaptionPlaceBannerPortsContactsAndIcon)
{
    Copy copy(
        {.contacts = {{"10.0.0.2", "Ann"}}, .settings = {{"Settings/MainLeft", "300"}, {"Settings/UDPPort", "6000"}}});
    EXPECT_EQ(copy.view.shownCaption, QStringLiteral("NIMB-Chat 1.2 - Me"));
    EXPECT_EQ(copy.view.shownPlace.left, 300);
    EXPECT_EQ(copy.view.shownPlace.height, 6200);
    EXPECT_EQ(copy.socket.localPort, 6000);
    EXPECT_EQ(copy.socket.remotePort, 6000);
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("« NIMB-Chat [today:21/11/2026 - now:14:05:09] Ready »"));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0xA0A0A0u);
    EXPECT_THAT(copy.names(), ElementsAre("Ann"));
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::unknown);
    EXPECT_THAT(copy.steps, ElementsAre("AddIcon NIMB-Chat"));
}

TEST(MainWindowLoad, WithNoSettingStoredThePortIs5549)
{
    EXPECT_EQ(Copy().socket.localPort, 5549);
}

TEST(MainWindowLoad, TheCaptionEndsWithTheWholeNickname)
{
    EXPECT_EQ(Copy({.nickname = QStringLiteral("Bob the Builder")}).view.shownCaption,
              QStringLiteral("NIMB-Chat 1.2 - Bob the Builder"));
}

TEST(MainWindowClose, TheCloseBoxHidesWhenTheOptionSaysSo)
{
    Copy copy({.settings = {{"Options/CloseButtonDoesMinimize", "1"}}});
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::hide);
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::code), CloseDecision::unload);
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::sessionEnd), CloseDecision::unload);
}

TEST(MainWindowClose, WithoutATrayTheWindowIsMinimisedInsteadOfHidden)
{
    Copy copy({.settings = {{"Options/CloseButtonDoesMinimize", "1"}}});
    copy.tray.shown = false;
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::minimise);
}

TEST(MainWindowClose, WhyItIsMinimisedIsSaidOnce)
{
    Copy copy({.settings = {{"Options/CloseButtonDoesMinimize", "1"}}});
    copy.tray.shown = false;
    for (int close = 0; close < 3; ++close)
        copy.engine.mainWindow().Form_QueryUnload(UnloadMode::closeBox);
    const std::string said = "--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---";
    EXPECT_EQ(copy.view.log.lastLine(), said);
    const std::vector<std::string> lines = copy.view.log.lines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), said), 1);
}

TEST(MainWindowClose, ATrayThatAppearsLaterIsUsed)
{
    Copy copy({.settings = {{"Options/CloseButtonDoesMinimize", "1"}}});
    copy.tray.shown = false;
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::minimise);
    copy.tray.shown = true;
    EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::hide);
}

TEST(MainWindowClose, TheCloseBoxEndsTheProgramOtherwise)
{
    for (const char *value : {"0", "2", "-1"}) {
        Copy copy({.settings = {{"Options/CloseButtonDoesMinimize", QLatin1String(value)}}});
        EXPECT_EQ(copy.engine.mainWindow().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::unload) << value;
    }
}

TEST(MainWindowUnload, EndsEverythingInOrder)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.arrive("10.0.0.2", "-hello");
    copy.engine.conferences().mnuCreateNewConf();
    copy.steps.clear();
    const auto note = [&](const char *step) { return [&copy, step] { copy.steps.push_back(step); }; };
    copy.window(1).whenLetGo = note("let a private window go");
    copy.conferenceForms.views.front()->whenLetGo = note("let a conference go");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(copy.steps,
                ElementsAre("let a conference go", "let a private window go", "unload notify", "unload invitations",
                            "unload tip", "remove icon"));
}

TEST(MainWindowUnload, EveryContactGetsItsOwnFarewellWhateverItsState)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}});
    copy.settleStart({"10.0.0.3"});
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.3", "!OFFLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!OFFLINE 10.0.0.1 HERE Me"}));
}

TEST(MainWindowUnload, SavesInvitationsThenContactsAndTheirEndThenTheSettingsInOneSave)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.engine.mainWindow().Form_Unload();
    ASSERT_GE(copy.settings.order.size(), 7u);
    const std::vector<std::string> first(copy.settings.order.begin(), copy.settings.order.begin() + 7);
    EXPECT_THAT(first,
                ElementsAre("Settings/AutorefuseConf", "Settings/AutorefuseConfMins", "Users/IP1", "Users/Nn1",
                            "Users/Ws1", "Users/IP2", "Settings/UDPPort"));
    EXPECT_EQ(copy.settings.order.back(), "Settings/PersonalizedState8");
    EXPECT_EQ(copy.settings.saves, 1);
}

TEST(MainWindowUnload, SavesThePlaceOfTheNormalWindow)
{
    Copy copy;
    copy.view.shownPlace = {1500, 750, 6000};
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Settings", "MainLeft"), "1500");
    EXPECT_EQ(copy.settings.value("Settings", "MainTop"), "750");
    EXPECT_EQ(copy.settings.value("Settings", "MainHeight"), "6000");
}

TEST(MainWindowUnload, ClosesThePrivateWindowsWithoutAsking)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.arrive("10.0.0.2", "-hello");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_TRUE(copy.window(1).gone);
}

TEST(MainWindowUnload, WhoIsLeavingAnswersNobody)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.engine.mainWindow().Form_Unload();
    copy.sent();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    copy.arrive("10.0.0.2", "-hello");
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(copy.privateForms.views, IsEmpty());
}

TEST(MainWindowUnload, AFailedSaveIsToldToTheUser)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settings.failure = QStringLiteral("The disk is full.");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(copy.prompts.told, ElementsAre("NIMB-Chat: The disk is full."));
    EXPECT_EQ(copy.settings.saves, 0);
    EXPECT_EQ(copy.steps.back(), "remove icon");
}

TEST(MainWindowUnload, AStoreThatCannotBeUsedIsSaidAtTheStart)
{
    Copy copy({.loaded = false});
    copy.settings.failure = QStringLiteral("The settings cannot be read.");
    copy.engine.mainWindow().Form_Load();
    EXPECT_EQ(copy.view.log.lastLine(), "The settings cannot be read.");
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x0000FFu);
}

TEST(MainLog, ClearingLeavesExactlyOneBanner)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.arrive("10.0.0.2", "garbage");
    copy.engine.log().clear();
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("« NIMB-Chat [today:21/11/2026 - now:14:05:09] Ready »"));
}

} // namespace
} // namespace nimb::test
