#include "copy.h"

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

QString ip(const char *address)
{
    return QLatin1String(address);
}

TEST(RemoveUser, AsksAndRemovesOnOk)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann", "PC-ANN"}}});
    copy.sent();
    copy.engine.contactCommands().mnuRemoveUser(ip("10.0.0.2"));
    EXPECT_THAT(copy.prompts.asked,
                ElementsAre("Please confirm user removal: Are you sure you want to remove the user 'Ann' on "
                            "workstation 'PC-ANN' (10.0.0.2) ?"));
    EXPECT_FALSE(copy.knows("10.0.0.2"));
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST(RemoveUser, ANameFromTheRightTurnsNoQuestion)
{
    Copy copy(
        {.contacts = {{"10.0.0.2", "\u05D3\u05E0\u05D4", "\u0645\u0643\u062A\u0628"}, {"10.0.0.3", "Ann", "PC"}}});
    copy.prompts.answer = false;
    copy.engine.contactCommands().mnuRemoveUser(ip("10.0.0.2"));
    copy.engine.contactCommands().removeUsers({ip("10.0.0.2"), ip("10.0.0.3")});
    EXPECT_THAT(copy.prompts.asked,
                ElementsAre("Please confirm user removal: Are you sure you want to remove the user "
                            "'\u2068\u05D3\u05E0\u05D4\u2069' on workstation '\u2068\u0645\u0643\u062A\u0628\u2069' "
                            "(10.0.0.2) ?",
                            "Please confirm user removal: Are you sure you want to remove these 2 users?\n"
                            "'\u2068\u05D3\u05E0\u05D4\u2069' (10.0.0.2)\n'Ann' (10.0.0.3)"));
}

TEST(RemoveUser, ChangesNothingOnCancel)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.prompts.answer = false;
    copy.engine.contactCommands().mnuRemoveUser(ip("10.0.0.2"));
    EXPECT_TRUE(copy.knows("10.0.0.2"));
}

TEST(RemoveUser, DoesNothingWithoutASelectedRow)
{
    Copy copy;
    copy.engine.contactCommands().mnuRemoveUser({});
    EXPECT_THAT(copy.prompts.asked, IsEmpty());
}

TEST(RemoveUser, PlaceMarkersInNamesAreNames)
{
    Copy copy({.contacts = {{"10.0.0.2", "%2 %3", "%1"}}});
    copy.prompts.answer = false;
    copy.engine.contactCommands().mnuRemoveUser(ip("10.0.0.2"));
    EXPECT_THAT(copy.prompts.asked,
                ElementsAre("Please confirm user removal: Are you sure you want to remove the user '%2 %3' on "
                            "workstation '%1' (10.0.0.2) ?"));
}

TEST(ContextMenu, CaptionsNameTheSelectedContact)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart({"10.0.0.2"});
    const ContactMenuCaptions captions = copy.engine.contactCommands().captions(ip("10.0.0.2"));
    EXPECT_EQ(captions.mnuPrivateChat, QStringLiteral("Private chat with 'Ann'"));
    EXPECT_EQ(captions.mnuBuzzUser, QStringLiteral("Buzz 'Ann'"));
    EXPECT_EQ(captions.mnuRemoveUser, QStringLiteral("Remove 'Ann' from the list"));
    EXPECT_EQ(captions.mnusendcontacts, QStringLiteral("Send &contacts to 'Ann'"));
    EXPECT_EQ(captions.mnuinviteuser, QStringLiteral("I&nvite user 'Ann'"));
}

TEST(ContextMenu, AnOfflineContactIsReachedByNetSend)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart();
    EXPECT_EQ(copy.engine.contactCommands().captions(ip("10.0.0.2")).mnuinviteuser,
              QStringLiteral("&Net send message to 'Ann'"));
}

TEST(ContextMenu, WithoutSelectionTheCaptionsNameNobody)
{
    const ContactMenuCaptions captions = Copy().engine.contactCommands().captions({});
    EXPECT_EQ(captions.mnuPrivateChat, QStringLiteral("&Private Chat"));
    EXPECT_EQ(captions.mnuBuzzUser, QStringLiteral("&Buzz User"));
    EXPECT_EQ(captions.mnuRemoveUser, QStringLiteral("Re&move User"));
    EXPECT_EQ(captions.mnusendcontacts, QStringLiteral("Send &Contacts"));
    EXPECT_EQ(captions.mnuinviteuser, QStringLiteral("I&nvite user"));
}

TEST(ToolTip, ShowsNicknameAndState)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart({"10.0.0.2"});
    EXPECT_EQ(copy.engine.contactCommands().toolTip(ip("10.0.0.2")), QStringLiteral("Ann"));
    copy.arrive("10.0.0.2", "!STATUS BUSY In a meeting");
    EXPECT_EQ(copy.engine.contactCommands().toolTip(ip("10.0.0.2")), QStringLiteral("Ann: BUSY - In a meeting"));
    EXPECT_EQ(copy.engine.contactCommands().toolTip({}), QString());
}

TEST(ToolTip, ANameFromTheRightTurnsNothing)
{
    Copy copy({.contacts = {{"10.0.0.2", "\u05D3\u05E0\u05D4", "PC"}}});
    copy.settleStart({"10.0.0.2"});
    copy.arrive("10.0.0.2", "!STATUS BUSY In a meeting");
    const ContactCommands &commands = copy.engine.contactCommands();
    EXPECT_EQ(commands.toolTip(ip("10.0.0.2")), QStringLiteral("\u2068\u05D3\u05E0\u05D4\u2069: BUSY - In a meeting"));
    EXPECT_EQ(commands.details(ip("10.0.0.2")), QStringLiteral("\u2068\u05D3\u05E0\u05D4\u2069 on PC (10.0.0.2)"));
    EXPECT_EQ(commands.captions(ip("10.0.0.2")).mnuPrivateChat,
              QStringLiteral("Private chat with '\u2068\u05D3\u05E0\u05D4\u2069'"));
}

TEST(ToolTip, CountsMessagesThatWaitAndLeavesPlaceMarkersInNamesAlone)
{
    Copy copy({.contacts = {{"10.0.0.2", "%2"}}});
    copy.settleStart({"10.0.0.2"});
    copy.engine.contacts().change(ip("10.0.0.2"), [](Contact &contact) { contact.waitingMessages = 7; });
    EXPECT_EQ(copy.engine.contactCommands().toolTip(ip("10.0.0.2")),
              QStringLiteral("%2 (messages that wait to be read: 7)"));
}

TEST(PrivateChatCommand, DoesNothingForAContactNotYetKnown)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.engine.contactCommands().mnuPrivateChat(ip("10.0.0.2"));
    EXPECT_THAT(copy.privateForms.views, IsEmpty());
    copy.settleStart();
    copy.engine.contactCommands().mnuPrivateChat(ip("10.0.0.2"));
    ASSERT_EQ(copy.privateForms.views.size(), 1u);
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::active));
}

TEST(PrivateChatCommand, SaysInTheLogWhyNothingHappens)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.engine.contactCommands().mnuPrivateChat(ip("10.0.0.2"));
    EXPECT_EQ(copy.view.log.lastLine(),
              "--- whether Ann is there is being asked: no window opens before that is known ---");
    copy.settleStart({"10.0.0.2"});
    copy.arrive("10.0.0.2", "!USER 10.0.0.7 PC Cleo");
    copy.engine.contactCommands().mnuPrivateChat(ip("10.0.0.7"));
    EXPECT_EQ(copy.view.log.lastLine(), "--- whether Cleo is there is not known: \"Rescan\" asks ---");
    copy.engine.ownState().choose(4);
    ASSERT_TRUE(copy.common.isInvisible());
    copy.engine.contactCommands().mnuPrivateChat(ip("10.0.0.7"));
    EXPECT_EQ(copy.view.log.lastLine(),
              "--- whether Cleo is there is not known: \"Rescan\" asks, and shows you to your contacts ---");
    EXPECT_THAT(copy.privateForms.views, IsEmpty());
}

TEST(PrivateChatCommand, SaysInTheLogThatAnOfflineContactHearsNothing)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart();
    copy.engine.contactCommands().mnuPrivateChat(ip("10.0.0.2"));
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- Ann is offline: what you write does not arrive ---"));
    EXPECT_EQ(copy.privateForms.views.size(), 1u);
}

TEST(PrivateChatCommand, OfWhoIsThereTheLogSaysNothing)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart({"10.0.0.2"});
    copy.engine.contactCommands().mnuPrivateChat(ip("10.0.0.2"));
    EXPECT_THAT(copy.view.log.lines(), IsEmpty());
}

TEST(MuteContact, IsShownInTheMenuAndSurvivesARestart)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}});
    copy.engine.contactCommands().mnuMuteContact(ip("10.0.0.3"), true);
    EXPECT_TRUE(copy.engine.contactCommands().captions(ip("10.0.0.3")).isMuted);
    EXPECT_FALSE(copy.engine.contactCommands().captions(ip("10.0.0.2")).isMuted);
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Users", "IP2"), "10.0.0.3");
    EXPECT_EQ(copy.settings.value("Users", "Mt2"), "1");
    EXPECT_EQ(copy.settings.value("Users", "Mt1"), "(missing)") << "who is not muted has no such key";

    Copy next({.loaded = false});
    next.settings.saved = copy.settings.saved;
    next.engine.mainWindow().Form_Load();
    EXPECT_TRUE(next.contact("10.0.0.3").muted);
    EXPECT_FALSE(next.contact("10.0.0.2").muted);
    next.engine.contactCommands().mnuMuteContact(ip("10.0.0.3"), false);
    next.engine.mainWindow().Form_Unload();
    EXPECT_EQ(next.settings.value("Users", "Mt2"), "");
}

TEST(MuteContact, FollowsItsContactToAnotherNumberAndGoesWithIt)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}});
    copy.engine.contactCommands().mnuMuteContact(ip("10.0.0.3"), true);
    copy.engine.mainWindow().Form_Unload();

    Copy next({.loaded = false});
    next.settings.saved = copy.settings.saved;
    next.engine.mainWindow().Form_Load();
    next.engine.contacts().remove(ip("10.0.0.2"));
    next.engine.mainWindow().Form_Unload();
    EXPECT_EQ(next.settings.value("Users", "IP1"), "10.0.0.3");
    EXPECT_EQ(next.settings.value("Users", "Mt1"), "1");
    EXPECT_EQ(next.settings.value("Users", "Mt2"), "");
}

TEST(PrivateChatCommand, DoesNothingWithoutASelectedRow)
{
    Copy copy;
    copy.engine.contactCommands().mnuPrivateChat({});
    EXPECT_THAT(copy.privateForms.views, IsEmpty());
}

TEST(RemovingManyContacts, AsksOnceAndNamesTheFirst)
{
    CopySetup setup;
    for (int i = 1; i <= 12; ++i)
        setup.contacts.push_back({QStringLiteral("10.0.1.%1").arg(i), QStringLiteral("N%1").arg(i)});
    Copy copy(setup);
    QStringList ips;
    for (int i = 1; i <= 12; ++i)
        ips.append(QStringLiteral("10.0.1.%1").arg(i));
    ips.append(QStringLiteral("10.9.9.9")); // has gone meanwhile
    copy.prompts.answer = false;
    copy.engine.contactCommands().removeUsers(ips);
    EXPECT_EQ(copy.engine.contacts().rowCount(), 12);
    copy.prompts.answer = true;
    copy.engine.contactCommands().removeUsers(ips.mid(1));
    EXPECT_EQ(copy.engine.contacts().rowCount(), 1);
    ASSERT_EQ(copy.prompts.asked.size(), 2u);
    EXPECT_EQ(copy.prompts.asked[0],
              "Please confirm user removal: Are you sure you want to remove these 12 users?\n'N1' (10.0.1.1)\n"
              "'N2' (10.0.1.2)\n'N3' (10.0.1.3)\n'N4' (10.0.1.4)\n'N5' (10.0.1.5)\n'N6' (10.0.1.6)\n'N7' (10.0.1.7)\n"
              "'N8' (10.0.1.8)\n'N9' (10.0.1.9)\n'N10' (10.0.1.10)\n... (2 more)");
    EXPECT_EQ(copy.engine.contactCommands().captions(QStringLiteral("10.0.1.1"), 3).mnuRemoveUser,
              QStringLiteral("Remove 3 users from the list"));
}

} // namespace
} // namespace nimb::test
