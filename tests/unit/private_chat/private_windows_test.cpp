#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class PrivateWindowsTest : public testing::Test
{
protected:
    PrivateWindowsTest() { copy.settleStart({"10.0.0.2", "10.0.0.3"}); }

    /// The user closes the window by its close box.
    void close(std::size_t number)
    {
        PrivateChat &chat = copy.window(number).chat;
        if (chat.Form_QueryUnload(UnloadMode::closeBox) == CloseDecision::unload)
            chat.closed();
        else
            copy.window(number).hideWindow();
    }
    void open(const char *ip) { copy.engine.contactCommands().mnuPrivateChat(QLatin1String(ip)); }
    std::size_t made() const { return copy.privateForms.views.size(); }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}}};
};

TEST_F(PrivateWindowsTest, AMessageMakesAWindowForItsSender)
{
    copy.arrive("10.0.0.3", "-hello");
    ASSERT_EQ(made(), 1u);
    EXPECT_EQ(copy.window(1).caption, QStringLiteral("Ben - NIMB-Chat - Private Chat Window"));
    EXPECT_EQ(copy.window(1).peer, QStringLiteral("10.0.0.3"));
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 1);
    EXPECT_EQ(copy.contact("10.0.0.2").privateWindow, 0);
    EXPECT_EQ(copy.window(1).log.lastLine(), "Ben> hello");
    EXPECT_EQ(copy.window(1).log.lines().size(), 2u);
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.3", "?AVATARHEAD"}));
}

TEST_F(PrivateWindowsTest, WhoIsInvisibleAsksForAnAvatarOnlyWhenTheUserOpensTheWindow)
{
    copy.engine.ownState().choose(4);
    copy.sent();
    copy.arrive("10.0.0.3", "-are you there?");
    EXPECT_EQ(copy.window(1).log.lastLine(), "Ben> are you there?");
    EXPECT_THAT(copy.sent(), IsEmpty());
    open("10.0.0.2");
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "?AVATARHEAD"}));
}

TEST_F(PrivateWindowsTest, ContactsWithTextsInPlaceOfAddressesHaveWindowsOfTheirOwnAndFindThemAgain)
{
    const auto add = [this](const char *place) {
        Contact contact;
        contact.ip = QString::fromLatin1(place);
        contact.nickname = contact.ip.text();
        contact.setPresence(Presence::offline);
        copy.engine.contacts().add(std::move(contact));
    };
    add("here");
    add("there");
    open("here");
    open("there");
    ASSERT_EQ(made(), 2u);
    EXPECT_EQ(copy.window(1).peer, QStringLiteral("here"));
    EXPECT_EQ(copy.window(2).peer, QStringLiteral("there"));
    EXPECT_TRUE(copy.window(2).chat.send(QStringLiteral("hello")));
    EXPECT_THAT(copy.sent(), IsEmpty()) << "nothing can be sent there";

    copy.engine.contacts().remove(QStringLiteral("there"));
    copy.engine.privateWindows().contactRemoved(QStringLiteral("there"));
    add("there");
    open("there");
    EXPECT_EQ(made(), 2u);
    EXPECT_EQ(copy.contact("there").privateWindow, 2);
}

TEST_F(PrivateWindowsTest, TheOptionDecidesHowAPeersWindowIsShown)
{
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::minimised));
    copy.common.options.privateWindowsOnTop = true;
    copy.arrive("10.0.0.2", "-hello");
    EXPECT_THAT(copy.window(2).shows, ElementsAre(ShowMode::onTop));
}

TEST_F(PrivateWindowsTest, AWindowThatIsSeenStaysAsItIs)
{
    open("10.0.0.3");
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::active));
    EXPECT_EQ(made(), 1u);
}

TEST_F(PrivateWindowsTest, AHiddenWindowIsShownAgainAsTheOptionSays)
{
    open("10.0.0.3");
    close(1);
    EXPECT_TRUE(copy.window(1).hidden);
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::active, ShowMode::minimised));
}

TEST_F(PrivateWindowsTest, TheUserOpensAWindowNormalAndActiveAndFindsItAgain)
{
    open("10.0.0.2");
    open("10.0.0.2");
    EXPECT_EQ(made(), 1u);
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::active, ShowMode::active));
}

TEST_F(PrivateWindowsTest, AHiddenWindowKeepsItsLog)
{
    copy.arrive("10.0.0.3", "-one");
    close(1);
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 1);
    copy.arrive("10.0.0.3", "-two");
    EXPECT_EQ(made(), 1u);
    EXPECT_EQ(copy.window(1).log.lines().size(), 3u);
}

TEST_F(PrivateWindowsTest, AnUnloadedWindowIsGoneAndTheNextMessageOpensAFreshOne)
{
    copy.common.options.closedWindowsGo = true;
    copy.arrive("10.0.0.3", "-one");
    close(1);
    EXPECT_TRUE(copy.window(1).gone);
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 0);
    copy.arrive("10.0.0.3", "-two");
    ASSERT_EQ(made(), 2u);
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 2);
    EXPECT_EQ(copy.window(2).log.lines().size(), 2u);
    EXPECT_THAT(copy.window(2).log.lines().front(), testing::HasSubstr("Ready"));
}

TEST_F(PrivateWindowsTest, ARemovedContactsVisibleWindowIsFoundAgainWhenItReturns)
{
    open("10.0.0.3");
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.3"));
    EXPECT_FALSE(copy.window(1).gone);
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Ben");
    copy.arrive("10.0.0.3", "-back");
    EXPECT_EQ(made(), 1u);
    EXPECT_EQ(copy.contact("10.0.0.3").privateWindow, 1);
    EXPECT_EQ(copy.window(1).log.lastLine(), "Ben> back");
}

TEST_F(PrivateWindowsTest, ARemovedContactsHiddenWindowIsUnloaded)
{
    open("10.0.0.3");
    close(1);
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.3"));
    EXPECT_TRUE(copy.window(1).gone);
    EXPECT_EQ(copy.engine.privateWindows().at(1), nullptr);
}

TEST_F(PrivateWindowsTest, ClosingAWindowOfARemovedContactHarmsNobody)
{
    copy.common.options.closedWindowsGo = true;
    open("10.0.0.3");
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.3"));
    close(1);
    EXPECT_TRUE(copy.window(1).gone);
}

TEST_F(PrivateWindowsTest, TheSenderIsNamedAsItsRowIsAtThatMoment)
{
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Benjamin");
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_EQ(copy.window(1).log.lastLine(), "Benjamin> hello");
}

TEST_F(PrivateWindowsTest, UnknownNumbersAreNoWindows)
{
    EXPECT_EQ(copy.engine.privateWindows().at(0), nullptr);
    EXPECT_EQ(copy.engine.privateWindows().at(1), nullptr);
    EXPECT_EQ(copy.engine.privateWindows().at(-3), nullptr);
    copy.engine.privateWindows().appendPresence(7, QStringLiteral("x"));
    EXPECT_EQ(made(), 0u);
}

} // namespace
} // namespace nimb::test
