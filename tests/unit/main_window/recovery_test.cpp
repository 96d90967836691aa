#include "copy.h"

#include "base/limits.h"
#include "options/options.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// What stands beside the stored values: "section/key" and the value, or "(gone)".
std::map<std::string, std::string> kept(const Copy &copy)
{
    std::map<std::string, std::string> result;
    for (const auto &[name, value] : copy.settings.kept)
        result[(name.first + u'/' + name.second).toStdString()] = value.value_or("(gone)").toStdString();
    return result;
}

/// Another run over what that one left behind when it was killed.
std::unique_ptr<Copy> runAfterKill(const Copy &killed)
{
    auto next = std::make_unique<Copy>(CopySetup{.loaded = false});
    next->settings.saved = killed.settings.saved;
    next->settings.kept = killed.settings.kept;
    next->engine.mainWindow().Form_Load();
    return next;
}

const char *const takenOver
    = "--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---";

TEST(Recovery, KeepsALearnedContactWithinTwoSeconds)
{
    Copy copy;
    copy.settleStart();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    EXPECT_THAT(kept(copy), IsEmpty());
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), ElementsAre(Pair("Users/Nn:10.0.0.2", "Ann"), Pair("Users/Ws:10.0.0.2", "PC-ANN")));
    EXPECT_EQ(copy.settings.saves, 0) << "the stored values have their own time";
}

TEST(Recovery, AStreamOfChangesIsKeptOnceASecondAndWithoutWaitingForItsEnd)
{
    Copy copy;
    copy.settleStart();
    for (int i = 1; i <= 40; ++i) {
        const std::string ip = "10.0.1." + std::to_string(i);
        copy.arrive(ip.c_str(), "?ONLINE " + ip + " PC Nick");
        copy.advance(100ms);
    }
    EXPECT_GE(kept(copy).size(), 2u * 30);
    EXPECT_LE(copy.settings.keeps, 4);
    copy.advance(2000ms);
    EXPECT_EQ(kept(copy).size(), 2u * 40);
}

TEST(Recovery, NothingWakesUpWhenNothingChanges)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart({"10.0.0.2"});
    EXPECT_EQ(copy.time->nextDue(), std::nullopt);
    // A change of presence is none of what is kept.
    copy.arrive("10.0.0.2", "!STATUS AWAY");
    EXPECT_EQ(copy.time->nextDue(), std::nullopt);
    EXPECT_EQ(copy.settings.keeps, 0);
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Anna");
    EXPECT_NE(copy.time->nextDue(), std::nullopt);
    copy.advance(2000ms);
    EXPECT_EQ(copy.time->nextDue(), std::nullopt);
    EXPECT_EQ(copy.settings.keeps, 1);
}

TEST(Recovery, KeepsWhoIsMutedAndWhoIsNoLonger)
{
    Copy killed({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}, .settings = {{"Users/Mt2", "1"}}});
    killed.settleStart();
    ASSERT_TRUE(killed.contact("10.0.0.3").muted);
    killed.engine.contactCommands().mnuMuteContact(QStringLiteral("10.0.0.2"), true);
    killed.engine.contactCommands().mnuMuteContact(QStringLiteral("10.0.0.3"), false);
    killed.advance(2000ms);
    EXPECT_THAT(kept(killed), testing::IsSupersetOf({Pair("Users/Mt:10.0.0.2", "1"), Pair("Users/Mt:10.0.0.3", "")}));
    const auto next = runAfterKill(killed);
    EXPECT_TRUE(next->contact("10.0.0.2").muted);
    EXPECT_FALSE(next->contact("10.0.0.3").muted);
    EXPECT_EQ(next->contact("10.0.0.3").nickname, QStringLiteral("Ben"));
}

TEST(Recovery, AMutedContactThatIsRemovedStaysRemoved)
{
    Copy killed({.contacts = {{"10.0.0.2", "Ann"}}});
    killed.settleStart();
    killed.arrive("10.0.0.3", "?ONLINE 10.0.0.3 PC-BEN Ben");
    for (const char *const ip : {"10.0.0.2", "10.0.0.3"})
        killed.engine.contactCommands().mnuMuteContact(QLatin1String(ip), true);
    killed.advance(2000ms);
    for (const char *const ip : {"10.0.0.2", "10.0.0.3"})
        killed.engine.contacts().remove(QString::fromLatin1(ip));
    killed.advance(2000ms);
    EXPECT_THAT(kept(killed), ElementsAre(Pair("Users/Nn:10.0.0.2", "(gone)"), Pair("Users/Ws:10.0.0.2", "(gone)")));
    EXPECT_THAT(runAfterKill(killed)->names(), IsEmpty());
}

TEST(Recovery, KeepsARemovedContactAsGone)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart();
    copy.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), ElementsAre(Pair("Users/Nn:10.0.0.2", "(gone)"), Pair("Users/Ws:10.0.0.2", "(gone)")));
}

TEST(Recovery, KeepsNothingOfWhoComesAndGoesBetweenTwoTimes)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart();
    copy.arrive("10.0.0.3", "?ONLINE 10.0.0.3 PC-BEN Ben");
    copy.engine.contacts().remove(QStringLiteral("10.0.0.3"));
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), IsEmpty());
    EXPECT_EQ(copy.settings.keeps, 0);
}

TEST(Recovery, ForgetsWhoIsKeptButNotStoredOnceGone)
{
    Copy killed({.contacts = {{"10.0.0.2", "Ann"}}});
    killed.settleStart();
    for (const char *ip : {"10.0.0.3", "10.0.0.4"})
        killed.arrive(ip, "?ONLINE " + std::string(ip) + " PC Stranger");
    killed.advance(2000ms);
    ASSERT_EQ(kept(killed).size(), 4u);
    killed.engine.contacts().remove(QStringLiteral("10.0.0.3"));
    killed.advance(2000ms);
    EXPECT_THAT(kept(killed), ElementsAre(Pair("Users/Nn:10.0.0.4", "Stranger"), Pair("Users/Ws:10.0.0.4", "PC")));

    const std::unique_ptr<Copy> next = runAfterKill(killed);
    EXPECT_THAT(next->names(), ElementsAre("Ann", "Stranger"));
    next->engine.contacts().remove(QStringLiteral("10.0.0.4"));
    next->advance(2000ms);
    EXPECT_THAT(kept(*next), IsEmpty());
}

TEST(Recovery, AStoredContactThatReturnsAndGoesAgainStaysGone)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart();
    copy.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    copy.advance(2000ms);
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), ElementsAre(Pair("Users/Nn:10.0.0.2", "(gone)"), Pair("Users/Ws:10.0.0.2", "(gone)")));
    EXPECT_THAT(runAfterKill(copy)->names(), IsEmpty());
}

TEST(Recovery, WhatCouldNotBeKeptForAMomentIsKeptASecondLater)
{
    Copy copy;
    copy.settleStart();
    copy.settings.failure = QStringLiteral("Another program is using the file.");
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.advance(limits::keepDelay);
    EXPECT_THAT(kept(copy), IsEmpty());
    copy.settings.failure = std::nullopt;
    copy.advance(limits::keepRetry);
    EXPECT_EQ(kept(copy).size(), 2u);
}

TEST(Recovery, StrangersWithoutEndLeaveNothingWhileNothingCanBeKept)
{
    Copy copy;
    copy.settleStart();
    copy.settings.failure = QStringLiteral("The disk is full.");
    for (int i = 1; i <= 200; ++i) {
        const std::string ip = "10.0.1." + std::to_string(i);
        copy.arrive(ip.c_str(), "?ONLINE " + ip + " PC Stranger");
        copy.advance(1500ms);
        copy.engine.contacts().remove(QString::fromStdString(ip));
    }
    copy.settings.failure = std::nullopt;
    const int keeps = copy.settings.keeps;
    copy.advance(limits::keepRetry * limits::longestKeepRetry);
    EXPECT_THAT(kept(copy), IsEmpty());
    EXPECT_EQ(copy.settings.keeps, keeps) << "there was nothing left to keep";
}

TEST(Recovery, KeepsNothingOfTheAddressThatEndsTheStoredList)
{
    Copy copy;
    copy.settleStart();
    Contact contact;
    contact.ip = endOfStoredContacts;
    copy.engine.contacts().add(contact);
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), IsEmpty());
}

TEST(Recovery, KeepsOnlyThoseSettingsThatChanged)
{
    Copy copy;
    copy.settleStart();
    copy.common.options.liveType = false;
    copy.engine.recovery().settingsChanged();
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), ElementsAre(Pair("Options/LiveType", "0")));
    copy.common.options.liveType = true;
    copy.engine.recovery().settingsChanged();
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), ElementsAre(Pair("Options/LiveType", "1")));
}

TEST(Recovery, KeepsPersonalisedStatesAndAutomaticReplies)
{
    Copy copy;
    copy.settleStart();
    ASSERT_TRUE(copy.engine.ownState().addPersonalized(BaseState::busy, QStringLiteral("In a meeting")));
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), ElementsAre(Pair("Settings/PersonalizedState1", "4In a meeting")));
    copy.engine.ownState().setAutoReply(true);
    copy.advance(2000ms);
    EXPECT_EQ(kept(copy)["Settings/AutoReplyonBusyActive"], "-1");
    copy.engine.ownState().setAutoReplyText(QStringLiteral("Later"));
    copy.advance(2000ms);
    EXPECT_EQ(kept(copy)["Settings/AutoReplyonBusyText"], "Later");
}

TEST(Recovery, AStateThatIsAddedTakesNoOtherOnesPlace)
{
    Copy copy({.settings = {{"Settings/PersonalizedState1", QStringLiteral("1At lunch")},
                            {"Settings/PersonalizedState3", QStringLiteral("no digit")},
                            {"Settings/PersonalizedState4", QStringLiteral("1Reading")}}});
    copy.settleStart();
    ASSERT_TRUE(copy.engine.ownState().addPersonalized(BaseState::busy, QStringLiteral("In a meeting")));
    copy.advance(2000ms);
    const std::unique_ptr<Copy> next = runAfterKill(copy);
    std::vector<std::string> states;
    for (std::size_t i = OwnState::plainEntries; i < next->engine.ownState().entries().size(); ++i)
        states.push_back(next->engine.ownState().entries()[i].text.toStdString());
    EXPECT_THAT(states, ElementsAre("Online - At lunch", "Online - Reading", "Busy - In a meeting"));
}

TEST(Recovery, KeepsWhereTheWindowWasPut)
{
    Copy copy;
    copy.settleStart();
    copy.view.shownPlace = {600, 900, 6200};
    copy.engine.mainWindow().placeChanged();
    copy.advance(2000ms);
    EXPECT_THAT(kept(copy), ElementsAre(Pair("Settings/MainLeft", "600"), Pair("Settings/MainTop", "900")));
}

TEST(Recovery, TheNextStartTakesTheContactsOverAndSaysSoInOneLine)
{
    Copy killed({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben", "PC-BEN"}}});
    killed.settleStart();
    killed.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    killed.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC-BEN Benjamin");
    killed.arrive("10.0.0.4", "?ONLINE 10.0.0.4 PC-CLEO Cleo");
    killed.advance(2000ms);

    const std::unique_ptr<Copy> next = runAfterKill(killed);
    EXPECT_THAT(next->names(), ElementsAre("Benjamin", "Cleo"));
    EXPECT_EQ(next->contact("10.0.0.4").workstation, QStringLiteral("PC-CLEO"));
    EXPECT_EQ(next->contact("10.0.0.3").presence, Presence::unknown);
    EXPECT_THAT(next->view.log.lines(),
                ElementsAre("« NIMB-Chat [today:21/11/2026 - now:14:05:09] Ready »", takenOver));
    // They are asked like all others.
    EXPECT_THAT(next->sent(), testing::Contains(To{"10.0.0.4", "?ONLINE 10.0.0.1 HERE Me"}));
}

TEST(Recovery, TheNextStartTakesTheSettingsOver)
{
    Copy killed;
    killed.settleStart();
    killed.common.options.notifyWindow = false;
    killed.common.udpPort = 6000;
    killed.common.logFont = {QStringLiteral("Serif"), 11, QStringLiteral("bi")};
    killed.engine.recovery().settingsChanged();
    killed.advance(2000ms);

    const std::unique_ptr<Copy> next = runAfterKill(killed);
    EXPECT_FALSE(next->common.options.notifyWindow);
    EXPECT_EQ(next->socket.localPort, 6000);
    EXPECT_EQ(next->common.logFont, (LogFont{QStringLiteral("Serif"), 11, QStringLiteral("bi")}));
}

TEST(Recovery, WhatWasTakenOverIsStillKeptWhenTheNextRunIsKilledToo)
{
    Copy killed;
    killed.settleStart();
    killed.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    killed.advance(2000ms);
    const std::unique_ptr<Copy> again = runAfterKill(killed);
    again->arrive("10.0.0.3", "?ONLINE 10.0.0.3 PC-BEN Ben");
    again->advance(2000ms);
    EXPECT_THAT(runAfterKill(*again)->names(), ElementsAre("Ann", "Ben"));
}

TEST(Recovery, AnOrderlyEndSavesEverythingAndLeavesNothingBehind)
{
    Copy copy;
    copy.settleStart();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.advance(2000ms);
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(kept(copy), IsEmpty());
    EXPECT_EQ(copy.settings.value("Users", "Nn1"), "Ann");
    EXPECT_THAT(runAfterKill(copy)->view.log.lines(),
                ElementsAre("« NIMB-Chat [today:21/11/2026 - now:14:05:09] Ready »"));
}

TEST(Recovery, AnEndThatCannotSaveLeavesWhatWasKept)
{
    Copy copy;
    copy.settleStart();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.advance(2000ms);
    copy.settings.failure = QStringLiteral("The disk is full.");
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(kept(copy).size(), 2u);
}

TEST(Recovery, NothingIsKeptAfterTheEndHasBegun)
{
    Copy copy;
    copy.settleStart();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.engine.mainWindow().Form_Unload();
    copy.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    copy.engine.recovery().settingsChanged();
    copy.advance(60000ms);
    EXPECT_EQ(copy.settings.keeps, 0);
}

TEST(Recovery, AFailureIsSaidOnceAndTriedAgainUntilItSucceeds)
{
    Copy copy;
    copy.settleStart();
    copy.settings.failure = QStringLiteral("The disk is full.");
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.advance(120s);
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("The disk is full."));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x0000FFu);
    EXPECT_GE(copy.settings.keeps, 6);
    EXPECT_LE(copy.settings.keeps, 8);

    copy.settings.failure = std::nullopt;
    copy.advance(limits::keepRetry * limits::longestKeepRetry);
    EXPECT_EQ(kept(copy).size(), 2u);
    EXPECT_EQ(copy.time->nextDue(), std::nullopt);

    copy.settings.failure = QStringLiteral("The disk is full again.");
    copy.arrive("10.0.0.3", "?ONLINE 10.0.0.3 PC-BEN Ben");
    copy.advance(2000ms);
    EXPECT_EQ(copy.view.log.lastLine(), "The disk is full again.");
}

TEST(Recovery, AStoreThatCannotBeUsedIsNotTriedAgainAndAgain)
{
    Copy copy({.loaded = false});
    copy.settings.failure = QStringLiteral("The settings cannot be read.");
    copy.engine.mainWindow().Form_Load();
    copy.settleStart();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    EXPECT_EQ(copy.time->nextDue(), std::nullopt);
}

TEST(Recovery, DamagedValuesAreSaid)
{
    Copy copy({.loaded = false});
    copy.settings.damagedChanges = 2;
    copy.engine.mainWindow().Form_Load();
    EXPECT_EQ(copy.view.log.lastLine(),
              "--- NIMB-Chat could not save everything when it last ended: what had changed "
              "is taken over, but for 2 damaged values ---");
}

TEST(Recovery, StrangeKeysAreLeftAlone)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}, .loaded = false});
    for (const char *key : {"", "Nn", "Nn:", "Zz:10.0.0.9", "IP1"})
        copy.settings.kept[{"Users", QLatin1String(key)}] = QStringLiteral("strange");
    copy.engine.mainWindow().Form_Load();
    EXPECT_THAT(copy.names(), ElementsAre("Ann"));
}

} // namespace
} // namespace nimb::test
