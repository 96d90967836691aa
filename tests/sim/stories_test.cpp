// Whole copies on a simulated network, told as stories.
#include "copy.h"

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

    std::shared_ptr<VirtualTime> time = std::make_shared<VirtualTime>();
    SimulatedNetwork network;

private:
    std::vector<std::unique_ptr<Copy>> m_copies;
};

TEST_F(Story, TwoWhoKnowEachOtherMeetChangeStateLeaveAndComeBack)
{
    Copy &ann = enter("10.0.0.1", "Ann", {{"10.0.0.2", "Ben"}});
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::red);

    Copy *ben = &enter("10.0.0.2", "Ben", {{"10.0.0.1", "Ann"}});
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::green);
    EXPECT_EQ(ben->contact("10.0.0.1").picture, Picture::green);
    EXPECT_THAT(ann.notifications.rows, ElementsAre("Ben is online [green]"));

    ben->engine.ownState().addPersonalized(Picture::busy, QStringLiteral("In a meeting"));
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::busy);
    EXPECT_EQ(ann.contact("10.0.0.2").state, QStringLiteral("BUSY - In a meeting"));

    ben->engine.ownState().choose(4);
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::red);
    EXPECT_EQ(ben->contact("10.0.0.1").picture, Picture::green);

    ann.announce();
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::red) << "an invisible copy gave itself away";

    ben->engine.ownState().choose(1);
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::green);

    leave(*ben);
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::red);
    ben = &enter("10.0.0.2", "Benjamin", {{"10.0.0.1", "Ann"}});
    pass();
    EXPECT_EQ(ann.contact("10.0.0.2").nickname, QStringLiteral("Benjamin"));
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::green);
}

TEST_F(Story, StrangersMeetWhenBothHaveAsked)
{
    Copy &ann = enter("10.0.0.1", "Ann", {});
    Copy &ben = enter("10.0.0.2", "Ben", {{"10.0.0.1", "whoever"}});
    pass();
    ASSERT_TRUE(ann.knows("10.0.0.2"));
    EXPECT_EQ(ann.contact("10.0.0.2").picture, Picture::green);
    EXPECT_EQ(ben.contact("10.0.0.1").picture, Picture::red) << "the first question of a stranger was answered";
    EXPECT_EQ(ben.contact("10.0.0.1").nickname, QStringLiteral("whoever"));

    ben.announce();
    pass();
    EXPECT_EQ(ben.contact("10.0.0.1").picture, Picture::green);
    EXPECT_EQ(ben.contact("10.0.0.1").nickname, QStringLiteral("Ann"));
}

TEST_F(Story, ThreeWriteToEachOther)
{
    Copy &ann = enter("10.0.0.1", "Ann", {{"10.0.0.2", "Ben"}, {"10.0.0.3", "Cleo"}});
    Copy &ben = enter("10.0.0.2", "Ben", {{"10.0.0.1", "Ann"}, {"10.0.0.3", "Cleo"}});
    Copy &cleo = enter("10.0.0.3", "Cleo", {{"10.0.0.1", "Ann"}, {"10.0.0.2", "Ben"}});
    pass();
    ann.engine.contactCommands().mnuPrivateChat(QStringLiteral("10.0.0.2"));
    ann.window(1).chat.send(QStringLiteral("Grüße, Ben 😀"));
    pass();
    ASSERT_EQ(ben.privateForms.views.size(), 1u);
    EXPECT_EQ(ben.window(1).log.lastLine(), "Ann> Grüße, Ben 😀");
    EXPECT_TRUE(cleo.privateForms.views.empty());
    ben.window(1).chat.send(QStringLiteral("hi"));
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
    ann.window(1).chat.send(QStringLiteral("there?"));
    pass();
    EXPECT_EQ(ann.window(1).log.lastLine(), "Ben> [AutoReply] I'm busy, please do not disturb");
    EXPECT_EQ(ben.window(1).log.lastLine(), "Ann> there?");
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

} // namespace
} // namespace nimb::test
