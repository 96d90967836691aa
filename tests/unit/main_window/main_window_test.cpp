#include "copy.h"

#include "main_window/offer_good_copy.h"

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

TEST(TrayTip, SaysNicknameStateAndHowManyAreUnread)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}});
    copy.settleStart({"10.0.0.2", "10.0.0.3"});
    EXPECT_EQ(copy.tray.tip, "NIMB-Chat: Me, Online");
    EXPECT_EQ(copy.tray.unread, 0);
    copy.arrive("10.0.0.2", "-one");
    copy.arrive("10.0.0.3", "-two");
    EXPECT_EQ(copy.tray.tip, "NIMB-Chat: Me, Online, 2 unread");
    EXPECT_EQ(copy.tray.unread, 2);
    copy.engine.ownState().choose(3);
    EXPECT_EQ(copy.tray.tip, "NIMB-Chat: Me, Away, 2 unread");
    copy.window(1).inBackground = false;
    copy.window(1).chat.endSeen();
    EXPECT_EQ(copy.tray.tip, "NIMB-Chat: Me, Away, 1 unread");
    copy.engine.contacts().remove(QStringLiteral("10.0.0.3"));
    EXPECT_EQ(copy.tray.tip, "NIMB-Chat: Me, Away");
    EXPECT_EQ(copy.tray.unread, 0);
}

TEST(TrayTip, OfALongNicknameTheCountIsStillSeen)
{
    Copy copy({.nickname = QString(200, u'x'), .contacts = {{"10.0.0.2", "Ann"}}});
    copy.engine.ownState().choose(4);
    copy.engine.contacts().change(QStringLiteral("10.0.0.2"), [](Contact &contact) { contact.waitingMessages = 999; });
    EXPECT_EQ(copy.tray.tip, "NIMB-Chat: " + std::string(20, 'x') + "\u2026, Invisible, 999 unread");
    EXPECT_LE(QString::fromStdString(copy.tray.tip).size(), 63);
}

TEST(MainWindowLoad, WithNoSettingStoredThePortIs5549)
{
    EXPECT_EQ(Copy().socket.localPort, 5549);
}

TEST(MainWindowLoad, TheAddressOfTheChosenCardIsTheOwnOneAndWhatIsSentLeavesFromIt)
{
    Copy copy{{.contacts = {{QStringLiteral("10.0.0.2"), QStringLiteral("Ann")}},
               .settings = {{"Settings/OwnNetworkCard", QStringLiteral("wlan0")}},
               .loaded = false}};
    copy.ownAddresses.running
        = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1)}, {QStringLiteral("wlan0"), Ipv4Address(192, 168, 7, 1)}};
    copy.engine.mainWindow().Form_Load();
    EXPECT_EQ(copy.common.ownIP, Ipv4Address(192, 168, 7, 1));
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 192.168.7.1 HERE Me"}, To{"10.0.0.2", "!STATUS Online"}));
    EXPECT_THAT(copy.socket.sources, testing::Each(Ipv4Address(192, 168, 7, 1)));
    copy.engine.search().ask({{Ipv4Address(10, 0, 0, 255), Ipv4Address(10, 0, 0, 1)}}, QStringLiteral("others"));
    EXPECT_EQ(copy.socket.sources.back(), Ipv4Address(10, 0, 0, 1)) << "a question through another card";
    EXPECT_EQ(copy.socket.source(), Ipv4Address(192, 168, 7, 1));
}

TEST(MainWindowLoad, AFixedAddressGoesBeforeTheChosenCard)
{
    Copy copy{{.settings = {{"Settings/OwnNetworkCard", QStringLiteral("wlan0")}}, .loaded = false}};
    copy.ownAddresses.fixed = true;
    copy.ownAddresses.running = {{QStringLiteral("wlan0"), Ipv4Address(192, 168, 7, 1)}};
    copy.engine.mainWindow().Form_Load();
    EXPECT_EQ(copy.common.ownIP, Ipv4Address(10, 0, 0, 1));
    EXPECT_EQ(copy.socket.source(), std::nullopt);
    EXPECT_THAT(copy.view.log.lines(), testing::SizeIs(1)) << "nothing is to be said of it";
}

TEST(MainWindowLoad, AChosenCardThatIsNotThereIsSaidAndKept)
{
    Copy copy{{.settings = {{"Settings/OwnNetworkCard", QStringLiteral("wlan0")}}, .loaded = false}};
    copy.engine.mainWindow().Form_Load();
    EXPECT_EQ(copy.common.ownIP, Ipv4Address(10, 0, 0, 1));
    EXPECT_EQ(copy.socket.source(), std::nullopt);
    EXPECT_THAT(copy.view.log.lines(),
                testing::Contains("The network card wlan0, whose address the options name as yours, is not connected; "
                                  "your address is 10.0.0.1 until it is."));
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Settings", "OwnNetworkCard"), "wlan0");
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

TEST(MainWindowUnload, AnAutomaticReplyThatWasSwitchedOnIsOnAtTheNextStart)
{
    Copy copy;
    constexpr int busy = 2; // the second entry
    copy.engine.ownState().choose(busy);
    copy.engine.ownState().setAutoReply(true);
    copy.engine.mainWindow().Form_Unload();
    const std::string stored = copy.settings.value("Settings", "AutoReplyonBusyActive");
    EXPECT_EQ(stored, "-1");
    const Copy next({.settings = {{"Settings/AutoReplyonBusyActive", QString::fromStdString(stored)}}});
    EXPECT_TRUE(next.common.autoReply.onBusy);
    EXPECT_FALSE(next.common.autoReply.onAway);
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

TEST(MainWindowUnload, MessagesThatArriveMeanwhileAreToldAtTheNextStart)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.socket.waiting = {{"10.0.0.2", "-one"},
                           {"10.0.0.2", "!TYPING"},
                           {"10.0.0.2", "+10.0.0.2 #1 two"},
                           {"10.0.0.9", "-of a stranger"}};
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.nextStart.sentences, QStringList("Messages that arrived while the program ended are lost: 1."))
        << "nobody takes part in that conference here";
}

TEST(MainWindowUnload, WithNothingArrivingSaysNothingAtTheNextStart)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.socket.waiting = {{"10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann"}};
    copy.engine.mainWindow().Form_Unload();
    EXPECT_TRUE(copy.nextStart.sentences.isEmpty());
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

TEST(MainWindowUnload, AFailedSaveThatNobodySawIsLeftForTheNextStart)
{
    Copy copy;
    copy.settings.failure = QStringLiteral("The disk is full.");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_TRUE(copy.nextStart.sentences.isEmpty()) << "the user has read it";
    copy.prompts.attended = false;
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.nextStart.sentences, QStringList("The disk is full."));
}

TEST(MainWindowLoad, WhatTheLastRunLeftToBeToldIsToldOnce)
{
    Copy copy({.loaded = false});
    copy.nextStart.sentences = {QStringLiteral("The disk is full.")};
    copy.engine.mainWindow().Form_Load();
    EXPECT_EQ(copy.view.log.lastLine(), "When NIMB-Chat last ended: The disk is full.");
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x0000FFu);
    EXPECT_TRUE(copy.nextStart.sentences.isEmpty());
}

TEST(MainWindowUnload, WithoutAScreenTheContactsAreToldAndEverythingIsSavedOnce)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart();
    copy.arrive("10.0.0.2", "-hello");
    copy.sent();
    copy.steps.clear();
    copy.engine.mainWindow().endWithoutWindows();
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "!OFFLINE 10.0.0.1 HERE Me"}));
    EXPECT_EQ(copy.settings.value("Users", "Nn1"), "Ann");
    EXPECT_EQ(copy.settings.saves, 1);
    EXPECT_THAT(copy.steps, IsEmpty()) << "no window is touched";
    EXPECT_FALSE(copy.window(1).gone);
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    copy.engine.mainWindow().endWithoutWindows();
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_EQ(copy.settings.saves, 1);
}

TEST(MainWindowUnload, TheGoodCopyIsRenewedAfterASaveThatSucceeded)
{
    Copy copy;
    copy.settings.failure = QStringLiteral("The disk is full.");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(copy.goodCopy.done, IsEmpty());
    copy.settings.failure = std::nullopt;
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(copy.goodCopy.done, ElementsAre("renew"));
}

TEST(MainWindowUnload, AGoodCopyThatNobodyDecidedAboutStays)
{
    Copy copy({.loaded = false});
    copy.goodCopy.offered = QDateTime(QDate(2026, 11, 20), QTime(9, 30));
    copy.engine.mainWindow().Form_Load();
    EXPECT_EQ(copy.view.log.lastLine(),
              "There is a copy of the settings, saved on 20/11/2026 at 09:30; NIMB-Chat offers "
              "it when it is started without a nickname.");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(copy.goodCopy.done, IsEmpty());
}

TEST(MainWindowUnload, AGoodCopyThatCannotBeRenewedIsSaidAtTheNextStart)
{
    Copy copy;
    copy.goodCopy.failure = QStringLiteral("The copy could not be renewed.");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.nextStart.sentences, QStringList("The copy could not be renewed."));
}

TEST(OfferGoodCopy, AsksOnlyWhenThereIsOne)
{
    RecorderGoodCopy copy;
    MemoryStore store;
    RecorderPrompts prompts;
    offerGoodCopy(copy, store, prompts);
    EXPECT_THAT(prompts.asked, IsEmpty());
}

TEST(OfferGoodCopy, SaysWhatIsWrongAndDoesWhatTheUserSays)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    for (const bool answer : {true, false}) {
        RecorderGoodCopy copy;
        MemoryStore store;
        RecorderPrompts prompts;
        prompts.answer = answer;
        copy.offered = QDateTime(QDate(2026, 11, 20), QTime(9, 30));
        store.failure = QStringLiteral("The settings cannot be read.");
        offerGoodCopy(copy, store, prompts);
        EXPECT_THAT(prompts.asked,
                    ElementsAre("NIMB-Chat: The settings cannot be read.\n\nThere is a copy of the settings, saved on "
                                "20/11/2026 at 09:30. Is NIMB-Chat to go on with that copy? What is not used is kept "
                                "under another name."));
        EXPECT_THAT(copy.done, ElementsAre(answer ? "take" : "decline"));
    }
}

TEST(OfferGoodCopy, AQuestionThatNobodyAnswersDecidesNothing)
{
    RecorderGoodCopy copy;
    MemoryStore store;
    RecorderPrompts prompts;
    prompts.attended = false;
    copy.offered = QDateTime(QDate(2026, 11, 20), QTime(9, 30));
    offerGoodCopy(copy, store, prompts);
    EXPECT_EQ(prompts.asked.size(), 1u);
    EXPECT_THAT(copy.done, IsEmpty());
}

TEST(OfferGoodCopy, SaysThatTheSettingsAreEmpty)
{
    RecorderGoodCopy copy;
    MemoryStore store;
    RecorderPrompts prompts;
    copy.offered = QDateTime(QDate(2026, 11, 20), QTime(9, 30));
    offerGoodCopy(copy, store, prompts);
    EXPECT_THAT(prompts.asked, ElementsAre(testing::StartsWith("NIMB-Chat: The settings are empty.\n\n")));
}

TEST(OfferGoodCopy, ACopyThatCannotBeTakenIsSaid)
{
    RecorderGoodCopy copy;
    MemoryStore store;
    RecorderPrompts prompts;
    copy.offered = QDateTime(QDate(2026, 11, 20), QTime(9, 30));
    copy.failure = QStringLiteral("The disk is full.");
    offerGoodCopy(copy, store, prompts);
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: The disk is full."));
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
