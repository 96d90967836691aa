#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

enum Position { online = 1, busy, away, invisible, addPersonalized, firstPersonalized };

/// Ann and Ben are there, Cleo is offline.
class OwnStateTest : public testing::Test
{
protected:
    OwnStateTest() { copy.settleStart({"10.0.0.2", "10.0.0.3"}); }
    void choose(int position) { copy.engine.ownState().choose(position); }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}, {"10.0.0.4", "Cleo"}}}};
};

TEST_F(OwnStateTest, TheChooserListsThePlainStatesInOrder)
{
    std::vector<std::string> texts;
    for (const OwnStateEntry &entry : copy.view.ownStates)
        texts.push_back(entry.text.toStdString());
    EXPECT_THAT(texts, ElementsAre("Online", "Busy", "Away", "Invisible", " ... add a personalized state..."));
    EXPECT_EQ(copy.view.ownStates[0].picture, Picture::green);
    EXPECT_EQ(copy.view.ownStates[1].picture, Picture::busy);
    EXPECT_EQ(copy.view.ownStates[2].picture, Picture::away);
    EXPECT_EQ(copy.view.ownStates[3].picture, Picture::invisible);
    EXPECT_EQ(copy.view.ownStates[4].key, QStringLiteral("_personalized"));
    EXPECT_EQ(copy.view.selectedState, 1);
}

TEST_F(OwnStateTest, BusyIsToldToPresentContactsOnly)
{
    choose(busy);
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "!STATUS BUSY"}, To{"10.0.0.3", "!STATUS BUSY"}));
    EXPECT_EQ(copy.view.statusPanel, QStringLiteral("Status: BUSY"));
}

TEST_F(OwnStateTest, APersonalizedStateCanBeRemoved)
{
    OwnState &state = copy.engine.ownState();
    for (const char *text : {"Lunch", "Meeting", "Home"})
        EXPECT_TRUE(state.addPersonalized(BaseState::away, QString::fromLatin1(text)));
    choose(firstPersonalized + 1);
    copy.sent();
    state.removePersonalized(firstPersonalized);
    EXPECT_EQ(state.storedValues(), QStringList({"5Meeting", "5Home"}));
    EXPECT_EQ(state.entries()[firstPersonalized - 1].key, QStringLiteral("Personalized1"));
    EXPECT_EQ(state.entries()[firstPersonalized].key, QStringLiteral("Personalized2"));
    EXPECT_EQ(copy.view.ownStates.size(), 7U);
    EXPECT_EQ(copy.view.selectedState, firstPersonalized) << "the state stays what it was";
    EXPECT_THAT(copy.sent(), IsEmpty());
    state.removePersonalized(online);
    state.removePersonalized(addPersonalized);
    state.removePersonalized(99);
    EXPECT_EQ(copy.view.ownStates.size(), 7U);
}

TEST_F(OwnStateTest, WhoIsInARemovedStateIsInItsBaseState)
{
    OwnState &state = copy.engine.ownState();
    EXPECT_TRUE(state.addPersonalized(BaseState::away, QStringLiteral("Lunch")));
    copy.sent();
    state.removePersonalized(firstPersonalized);
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "!STATUS AWAY"}, To{"10.0.0.3", "!STATUS AWAY"}));
    EXPECT_EQ(copy.view.selectedState, away);
    EXPECT_TRUE(copy.view.autoReply);
}

TEST_F(OwnStateTest, ContactsNotYetKnownAreNotTold)
{
    copy.announce();
    copy.sent();
    choose(busy);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(OwnStateTest, AContactThatIsBusyItselfIsTold)
{
    copy.arrive("10.0.0.2", "!STATUS AWAY");
    copy.arrive("10.0.0.3", "!STATUS BUSY");
    choose(online);
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.3", "!STATUS ONLINE"}, To{"10.0.0.2", "!STATUS ONLINE"}));
}

TEST_F(OwnStateTest, APersonalisedEntryIsShownSentAndStored)
{
    EXPECT_TRUE(copy.engine.ownState().addPersonalized(BaseState::busy, QStringLiteral("In a meeting")));
    EXPECT_EQ(copy.view.ownStates.back().text, QStringLiteral("Busy - In a meeting"));
    EXPECT_EQ(copy.view.ownStates.back().picture, Picture::busy);
    EXPECT_EQ(copy.view.ownStates.back().key, QStringLiteral("Personalized1"));
    EXPECT_EQ(copy.view.selectedState, firstPersonalized);
    EXPECT_FALSE(copy.view.personalizedVisible);
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "!STATUS BUSY In a meeting"}, To{"10.0.0.3", "!STATUS BUSY In a meeting"}));
    EXPECT_EQ(copy.view.statusPanel, QStringLiteral("Status: BUSY"));
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Settings", "PersonalizedState1"), "4In a meeting");
}

TEST_F(OwnStateTest, APersonalisedTextMayHoldTheSeparator)
{
    EXPECT_TRUE(copy.engine.ownState().addPersonalized(BaseState::online, QStringLiteral("a - b")));
    EXPECT_EQ(copy.view.ownStates.back().text, QStringLiteral("Online - a - b"));
    EXPECT_THAT(copy.engine.ownState().storedValues(), ElementsAre(QStringLiteral("1a - b")));
}

TEST_F(OwnStateTest, AnEmptyPersonalisedTextAddsNothing)
{
    EXPECT_FALSE(copy.engine.ownState().addPersonalized(BaseState::busy, {}));
    EXPECT_EQ(copy.view.ownStates.size(), 5u);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(OwnStateTest, AStatePlainAgainHasNoText)
{
    EXPECT_TRUE(copy.engine.ownState().addPersonalized(BaseState::busy, QStringLiteral("later")));
    copy.sent();
    choose(busy);
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "!STATUS BUSY"}, To{"10.0.0.3", "!STATUS BUSY"}));
    EXPECT_EQ(copy.common.ownPresence.words, QString());
}

TEST_F(OwnStateTest, TheNinthPersonalisedStateWorksAndSaysThatItIsNotKept)
{
    for (int n = 1; n <= 8; ++n)
        EXPECT_TRUE(copy.engine.ownState().addPersonalized(BaseState::away, QStringLiteral("text %1").arg(n)));
    EXPECT_EQ(copy.view.log.text(), QString());
    copy.sent();
    EXPECT_TRUE(copy.engine.ownState().addPersonalized(BaseState::away, QStringLiteral("text 9")));
    EXPECT_EQ(copy.sent().front().bytes, "!STATUS AWAY text 9");
    EXPECT_THAT(copy.view.log.lastLine(), testing::HasSubstr("Away - text 9"));
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Settings", "PersonalizedState8"), "5text 8");
    EXPECT_EQ(copy.settings.value("Settings", "PersonalizedState9"), "(missing)");
}

TEST_F(OwnStateTest, GoingInvisibleSaysFarewellToPresentContacts)
{
    copy.view.rescanEnabled = false;
    choose(invisible);
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "!OFFLINE 10.0.0.1 HERE Me"}, To{"10.0.0.3", "!OFFLINE 10.0.0.1 HERE Me"}));
    EXPECT_EQ(copy.view.statusPanel, QStringLiteral("Status: Invisible"));
    EXPECT_TRUE(copy.view.rescanEnabled);
    EXPECT_THAT(copy.view.rescanToolTip.toStdString(), testing::HasSubstr("invisible"));
}

TEST_F(OwnStateTest, ChoosingInvisibleTwiceSaysFarewellOnce)
{
    choose(invisible);
    copy.sent();
    choose(invisible);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(OwnStateTest, FromInvisibleToOnlineAsksEveryContactAndSendsNoStatus)
{
    choose(invisible);
    copy.sent();
    choose(online);
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.3", "?ONLINE 10.0.0.1 HERE Me"},
                            To{"10.0.0.4", "?ONLINE 10.0.0.1 HERE Me"}));
}

TEST_F(OwnStateTest, TheEntryThatAddsShowsThePanelAndLeavesTheState)
{
    choose(busy);
    copy.sent();
    choose(addPersonalized);
    EXPECT_TRUE(copy.view.personalizedVisible);
    EXPECT_FALSE(copy.view.autoReply);
    EXPECT_EQ(copy.common.ownPresence.base, BaseState::busy);
    EXPECT_THAT(copy.sent(), IsEmpty());
    choose(online);
    EXPECT_FALSE(copy.view.personalizedVisible);
}

TEST_F(OwnStateTest, GivingUpAPersonalisedStateShowsThePresentOneAgain)
{
    choose(busy);
    choose(addPersonalized);
    copy.sent();
    copy.engine.ownState().cancelPersonalized();
    EXPECT_FALSE(copy.view.personalizedVisible);
    EXPECT_EQ(copy.view.selectedState, busy);
    ASSERT_TRUE(copy.view.autoReply);
    EXPECT_EQ(copy.view.autoReply->caption, QStringLiteral("AutoReply text (when Busy)"));
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(OwnStateTest, BusyAndAwayShowTheirOwnAutomaticReply)
{
    copy.common.autoReply.onAway = true;
    choose(busy);
    ASSERT_TRUE(copy.view.autoReply);
    EXPECT_FALSE(copy.view.autoReply->on);
    EXPECT_EQ(copy.view.autoReply->text, QStringLiteral("I'm busy, please do not disturb"));
    EXPECT_EQ(copy.view.autoReply->caption, QStringLiteral("AutoReply text (when Busy)"));
    choose(away);
    ASSERT_TRUE(copy.view.autoReply);
    EXPECT_TRUE(copy.view.autoReply->on);
    EXPECT_EQ(copy.view.autoReply->text, QStringLiteral("At the moment I'm not at my PC"));
    EXPECT_EQ(copy.view.autoReply->caption, QStringLiteral("AutoReply text (when Away)"));
    choose(online);
    EXPECT_FALSE(copy.view.autoReply);
    choose(away);
    choose(invisible);
    EXPECT_FALSE(copy.view.autoReply);
}

TEST_F(OwnStateTest, AutomaticReplyBelongsToThePresentState)
{
    choose(busy);
    copy.engine.ownState().setAutoReply(true);
    copy.engine.ownState().setAutoReplyText(QStringLiteral("busy text"));
    choose(away);
    copy.engine.ownState().setAutoReplyText(QStringLiteral("away text"));
    EXPECT_TRUE(copy.common.autoReply.onBusy);
    EXPECT_FALSE(copy.common.autoReply.onAway);
    EXPECT_EQ(copy.common.autoReply.busyText, QStringLiteral("busy text"));
    EXPECT_EQ(copy.common.autoReply.awayText, QStringLiteral("away text"));
}

TEST_F(OwnStateTest, AnyOtherStateThanBusySetsTheAwayReply)
{
    choose(online);
    copy.engine.ownState().setAutoReply(true);
    copy.engine.ownState().setAutoReplyText(QStringLiteral("typed late"));
    EXPECT_TRUE(copy.common.autoReply.onAway);
    EXPECT_EQ(copy.common.autoReply.awayText, QStringLiteral("typed late"));
}

TEST_F(OwnStateTest, APositionThatDoesNotExistIsIgnored)
{
    choose(0);
    choose(6);
    choose(-1);
    EXPECT_EQ(copy.common.ownPresence.base, BaseState::unchosen);
}

TEST(StoredStates, AreLoadedWithBaseNameAndPicture)
{
    Copy copy({.settings = {{"Settings/PersonalizedState1", "1on the phone"},
                            {"Settings/PersonalizedState2", ""},
                            {"Settings/PersonalizedState3", "4In a meeting"},
                            {"Settings/PersonalizedState8", "5Lunch"}}});
    std::vector<std::string> texts;
    for (const OwnStateEntry &entry : copy.view.ownStates)
        texts.push_back(entry.text.toStdString());
    EXPECT_THAT(texts,
                ElementsAre("Online", "Busy", "Away", "Invisible", " ... add a personalized state...",
                            "Online - on the phone", "Busy - In a meeting", "Away - Lunch"));
    EXPECT_EQ(copy.view.ownStates[5].picture, Picture::green);
    EXPECT_EQ(copy.view.ownStates[7].key, QStringLiteral("Personalized3"));
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Settings", "PersonalizedState1"), "1on the phone");
    EXPECT_EQ(copy.settings.value("Settings", "PersonalizedState2"), "4In a meeting");
    EXPECT_EQ(copy.settings.value("Settings", "PersonalizedState3"), "5Lunch");
    EXPECT_EQ(copy.settings.value("Settings", "PersonalizedState8"), "");
}

TEST(StoredStates, OneWithoutAPictureDigitIsLeftOutAndSaidSo)
{
    Copy copy({.settings = {{"Settings/PersonalizedState1", "Lunch"}, {"Settings/PersonalizedState2", "9x"}}});
    EXPECT_EQ(copy.view.ownStates.size(), 5u);
    EXPECT_EQ(copy.view.log.lines().size(), 3u);
    EXPECT_THAT(copy.view.log.lastLine(), testing::HasSubstr("9x"));
}

} // namespace
} // namespace nimb::test
