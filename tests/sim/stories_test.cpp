// Whole copies on a simulated network, told as stories.
#include "copy.h"

#include "base/picture_source.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;

class Story : public testing::Test
{
protected:
    Copy &enter(const char *ip, const char *name, const std::vector<StoredContact> &contacts)
    {
        m_copies.push_back(std::make_unique<Copy>(CopySetup{.ip = QLatin1String(ip),
                                                            .host = QLatin1String("PC"),
                                                            .nickname = QLatin1String(name),
                                                            .contacts = contacts},
                                                  &network, time));
        return *m_copies.back();
    }
    void leave(Copy &copy)
    {
        copy.engine.mainWindow().Form_Unload();
        network.settle();
        std::erase_if(m_copies, [&copy](const auto &one) { return one.get() == &copy; });
    }
    /// Everything under way arrives, and a second and a half pass.
    void pass()
    {
        network.settle();
        time->advance(1500ms);
        network.settle();
    }

    /// The private messages that a copy sent since the last look.
    static std::vector<std::string> messages(Copy &copy)
    {
        std::vector<std::string> texts;
        for (const To &datagram : copy.sent()) {
            if (datagram.bytes.starts_with('-'))
                texts.push_back(datagram.bytes);
        }
        return texts;
    }

    std::shared_ptr<VirtualTime> time = std::make_shared<VirtualTime>();
    SimulatedNetwork network;

private:
    std::vector<std::unique_ptr<Copy>> m_copies;
};

TEST_F(Story, TwoWhoKnowEachOtherMeetChangeStateLeaveAndComeBack)
{
    Copy &ann = enter("10.0.0.1", "Ann", {{"10.0.0.2", "Ben"}});
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::offline);

    Copy *ben = &enter("10.0.0.2", "Ben", {{"10.0.0.1", "Ann"}});
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::online);
    EXPECT_EQ(ben->contact("10.0.0.1").presence, Presence::online);
    EXPECT_THAT(ann.notifications.rows, ElementsAre("Ben is online [green]"));

    EXPECT_TRUE(ben->engine.ownState().addPersonalized(BaseState::busy, QStringLiteral("In a meeting")));
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::busy);
    EXPECT_EQ(ann.contact("10.0.0.2").state, QStringLiteral("BUSY - In a meeting"));

    ben->engine.ownState().choose(4);
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::offline);
    EXPECT_EQ(ben->contact("10.0.0.1").presence, Presence::online);

    ann.announce();
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::offline) << "an invisible copy gave itself away";

    ben->engine.ownState().choose(1);
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::online);

    leave(*ben);
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::offline);
    ben = &enter("10.0.0.2", "Benjamin", {{"10.0.0.1", "Ann"}});
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").nickname, QStringLiteral("Benjamin"));
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::online);
}

TEST_F(Story, StrangersMeetWhenBothHaveAsked)
{
    Copy &ann = enter("10.0.0.1", "Ann", {});
    Copy &ben = enter("10.0.0.2", "Ben", {{"10.0.0.1", "whoever"}});
    pass();
    ASSERT_TRUE(ann.knows("10.0.0.2"));
    EXPECT_EQ(ann.contact("10.0.0.2").presence, Presence::online);
    EXPECT_EQ(ben.contact("10.0.0.1").presence, Presence::offline) << "the first question of a stranger was answered";
    EXPECT_EQ(ben.contact("10.0.0.1").nickname, QStringLiteral("whoever"));

    ben.announce();
    pass();
    EXPECT_EQ(ben.contact("10.0.0.1").presence, Presence::online);
    EXPECT_EQ(ben.contact("10.0.0.1").nickname, QStringLiteral("Ann"));
}

TEST_F(Story, ThreeWriteToEachOther)
{
    Copy &ann = enter("10.0.0.1", "Ann", {{"10.0.0.2", "Ben"}, {"10.0.0.3", "Cleo"}});
    Copy &ben = enter("10.0.0.2", "Ben", {{"10.0.0.1", "Ann"}, {"10.0.0.3", "Cleo"}});
    Copy &cleo = enter("10.0.0.3", "Cleo", {{"10.0.0.1", "Ann"}, {"10.0.0.2", "Ben"}});
    pass();
    ann.engine.contactCommands().mnuPrivateChat(QStringLiteral("10.0.0.2"));
    EXPECT_TRUE(ann.window(1).chat.send(QStringLiteral("Grüße, Ben 😀")));
    pass();
    ASSERT_EQ(ben.privateForms.views.size(), 1u);
    EXPECT_EQ(ben.window(1).log.lastLine(), "Ann> Grüße, Ben 😀");
    EXPECT_TRUE(cleo.privateForms.views.empty());
    EXPECT_TRUE(ben.window(1).chat.send(QStringLiteral("hi")));
    pass();
    EXPECT_EQ(ann.window(1).log.lastLine(), "Ben> hi");
    EXPECT_EQ(ann.privateForms.views.size(), 1u);
}

TEST_F(Story, ABusyFriendRepliesByItself)
{
    Copy &ann = enter("10.0.0.1", "Ann", {{"10.0.0.2", "Ben"}});
    Copy &ben = enter("10.0.0.2", "Ben", {{"10.0.0.1", "Ann"}});
    pass();
    ben.engine.ownState().choose(2);
    ben.engine.ownState().setAutoReply(true);
    pass();
    ann.engine.contactCommands().mnuPrivateChat(QStringLiteral("10.0.0.2"));
    EXPECT_TRUE(ann.window(1).chat.send(QStringLiteral("there?")));
    pass();
    EXPECT_EQ(ann.window(1).log.lastLine(), "Ben> [AutoReply] I'm busy, please do not disturb");
    EXPECT_EQ(ben.window(1).log.lastLine(), "Ann> there?");
}

TEST_F(Story, TwoBusyFriendsExchangeOneMessageAndOneReply)
{
    Copy &ann = enter("10.0.0.1", "Ann", {{"10.0.0.2", "Ben"}});
    Copy &ben = enter("10.0.0.2", "Ben", {{"10.0.0.1", "Ann"}});
    pass();
    for (Copy *const copy : {&ann, &ben}) {
        copy->engine.ownState().choose(2);
        copy->engine.ownState().setAutoReply(true);
    }
    pass();
    ann.engine.contactCommands().mnuPrivateChat(QStringLiteral("10.0.0.2"));
    ann.sent();
    ben.sent();
    EXPECT_TRUE(ann.window(1).chat.send(QStringLiteral("there?")));
    for (int i = 0; i < 10; ++i)
        pass();
    EXPECT_THAT(messages(ann), ElementsAre("-there?"));
    EXPECT_THAT(messages(ben), ElementsAre("-[AutoReply] I'm busy, please do not disturb"));
}

TEST_F(Story, ACopyOnAnotherNetworkAddressNeverBecomesItsOwnContact)
{
    Copy &ann = enter("10.0.0.1", "Ann", {});
    ann.arrive("10.0.0.1", "?ONLINE 10.0.0.1 PC Ann");
    ann.arrive("127.0.0.1", "!ONLINE 127.0.0.1 PC Ann");
    pass();
    EXPECT_EQ(ann.engine.contacts().rowCount(), 0);
}

TEST_F(Story, TheNetworkFallsSilentWhenNobodyActs)
{
    for (int i = 1; i <= 10; ++i) {
        std::vector<StoredContact> others;
        for (int other = 1; other <= 10; ++other) {
            if (other != i)
                others.push_back({QStringLiteral("10.0.0.%1").arg(other), QStringLiteral("N%1").arg(other)});
        }
        enter(qPrintable(QStringLiteral("10.0.0.%1").arg(i)), qPrintable(QStringLiteral("N%1").arg(i)), others);
    }
    pass();
    pass();
    EXPECT_FALSE(time->nextDue()) << "a timer still runs";
}

/// Frames that change with every question.
class ChangingFrames : public PictureSource
{
public:
    std::optional<QByteArray> frame() override { return QByteArray(7500, static_cast<char>(++m_frames)); }
    std::optional<QString> problem() const override { return std::nullopt; }
    PolledPicture origin() const override { return Camera{}; }

private:
    int m_frames = 0;
};

TEST_F(Story, WhatOneTypesFeelsAndShowsTheOtherSees)
{
    Copy &ann = enter("10.0.0.1", "Ann", {{"10.0.0.2", "Ben"}});
    Copy &ben = enter("10.0.0.2", "Ben", {{"10.0.0.1", "Ann"}});
    pass();
    QByteArray picture;
    for (int i = 0; i < 7500; ++i)
        picture.append(static_cast<char>(i * 31 % 256)); // separators, line breaks and zeros among them
    ben.common.avatarHead = QStringLiteral("21.11.2026 14:05");
    ben.common.avatarBody = picture;
    ann.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
    ben.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.1"));
    pass();
    EXPECT_EQ(ann.window(1).picture, picture);
    EXPECT_EQ(ann.window(1).marker, QStringLiteral("21.11.2026 14:05"));
    EXPECT_FALSE(ben.window(1).picture);

    ben.window(1).liveTypeOn = true;
    ben.window(1).typed = QStringLiteral("I am writing\r\nthis");
    ben.window(1).chat.intext_Change(ben.window(1).typed);
    network.settle();
    EXPECT_EQ(ann.window(1).peerActivity, QStringLiteral("Ben is typing a message..."));
    pass();
    EXPECT_EQ(ann.window(1).liveType, QStringLiteral("I am writing this"));
    EXPECT_TRUE(ben.window(1).chat.send(ben.window(1).typed));
    network.settle();
    EXPECT_EQ(ann.window(1).liveType, QString());

    ben.window(1).chat.mymoodpct_MouseDown(52.5F);
    ben.window(1).chat.BuzzBtn_Click();
    network.settle();
    EXPECT_EQ(ann.window(1).peersMood->name, QStringLiteral("Dark red"));
    EXPECT_EQ(ann.window(1).log.lastLine(), "BUZZ!");
    EXPECT_EQ(ann.sound.alarms, 1);
}

TEST_F(Story, APolledPictureMovesUntilItIsSwitchedOff)
{
    Copy &ann = enter("10.0.0.1", "Ann", {{"10.0.0.2", "Ben"}});
    Copy &ben = enter("10.0.0.2", "Ben", {{"10.0.0.1", "Ann"}});
    pass();
    ben.engine.ownAvatar().setSource(std::make_unique<ChangingFrames>());
    ann.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2"));
    network.settle();
    EXPECT_EQ(ann.window(1).picture, QByteArray(7500, 1));
    for (int second = 0; second < 5; ++second) {
        time->advance(1100ms);
        network.settle();
    }
    EXPECT_EQ(ann.window(1).picture, QByteArray(7500, 6));

    ben.engine.ownAvatar().setSource(nullptr);
    pass();
    EXPECT_FALSE(ann.window(1).picture) << "there is no still avatar behind it";
    ann.sent();
    time->advance(60s);
    network.settle();
    EXPECT_THAT(ann.sent(), testing::IsEmpty()) << "nobody asks for a picture that is gone";
}

} // namespace
} // namespace nimb::test
