#include "main_window/sub_main.h"
#include "recorders.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;

class RecorderSteps : public StartUpSteps
{
public:
    explicit RecorderSteps(Common &shared) : common(shared) { }

    bool anotherCopyRuns() override
    {
        steps.push_back("another copy?");
        return another;
    }
    void restoreOtherCopy(const QString &caption) override { steps.push_back("restore " + caption.toStdString()); }
    void loadNotify() override { steps.push_back("notify"); }
    bool offerGoodCopy() override
    {
        if (copyNeeded)
            steps.push_back("good copy?");
        return !asksToEnd;
    }
    void showLogin() override
    {
        steps.push_back("login");
        common.ownNickname = typed;
    }
    void loadAndUnloadLogin() override { steps.push_back("login unseen"); }
    void loadMain() override { steps.push_back("load main as " + common.ownNickname.toStdString()); }
    void showMain() override { steps.push_back("show main"); }
    void minimiseMain() override { steps.push_back("minimise main"); }
    void showTipOfTheDay() override { steps.push_back("tip"); }

    Common &common;
    bool another = false;
    bool copyNeeded = false;
    bool asksToEnd = false;
    QString typed = QStringLiteral("Ann");
    Steps steps;
};

class SubMainTest : public testing::Test
{
protected:
    Started start(const char *commandLine) { return SubMain(QString::fromUtf8(commandLine), common, store, steps); }

    Common common;
    MemoryStore store;
    RecorderSteps steps{common};
};

TEST_F(SubMainTest, WithoutCommandLineTheLoginDialogAsks)
{
    EXPECT_EQ(start(""), Started::running);
    EXPECT_THAT(steps.steps, ElementsAre("another copy?", "notify", "login", "load main as Ann", "show main", "tip"));
}

TEST_F(SubMainTest, TheWholeCommandLineIsTheNicknameAndStartsMinimised)
{
    EXPECT_EQ(start("Bob the Builder"), Started::running);
    EXPECT_THAT(steps.steps,
                ElementsAre("another copy?", "notify", "login unseen", "load main as Bob the Builder", "show main",
                            "minimise main", "tip"));
}

TEST_F(SubMainTest, ClosingTheLoginDialogEndsTheProgramWithoutWindowOrTip)
{
    steps.typed.clear();
    EXPECT_EQ(start(""), Started::withoutNickname);
    EXPECT_THAT(steps.steps, ElementsAre("another copy?", "notify", "login"));
}

TEST_F(SubMainTest, ASecondStartRestoresTheWindowOfTheStoredNicknameAndEnds)
{
    steps.another = true;
    store.put("Settings", "MyNickName", QStringLiteral("Ann"));
    EXPECT_EQ(start("Bob"), Started::handedOver);
    EXPECT_THAT(steps.steps, ElementsAre("another copy?", "restore NIMB-Chat 1.2 - Ann"));
}

TEST_F(SubMainTest, ASecondStartWithoutStoredNicknameLooksForTheBareCaption)
{
    steps.another = true;
    start("");
    EXPECT_THAT(steps.steps, ElementsAre("another copy?", "restore NIMB-Chat 1.2 - "));
}

TEST_F(SubMainTest, ACopyOfLostSettingsIsOfferedBeforeTheLoginNeedsThem)
{
    steps.copyNeeded = true;
    EXPECT_EQ(start(""), Started::running);
    EXPECT_THAT(steps.steps,
                ElementsAre("another copy?", "notify", "good copy?", "login", "load main as Ann", "show main", "tip"));
}

TEST_F(SubMainTest, WhoIsAskedToEndMeanwhileDoesNotStart)
{
    steps.copyNeeded = true;
    steps.asksToEnd = true;
    EXPECT_EQ(start(""), Started::withoutNickname);
    EXPECT_THAT(steps.steps, ElementsAre("another copy?", "notify", "good copy?"));
}

TEST_F(SubMainTest, AStartWithANicknameAsksNothing)
{
    steps.copyNeeded = true;
    start("Bob");
    EXPECT_THAT(steps.steps, testing::Not(testing::Contains("good copy?")));
}

TEST_F(SubMainTest, TheTipIsShownForExactlyTheValue1)
{
    for (const char *value : {"0", "", "01", "-1", " 1"}) {
        store.put("Options", "TipOTDay", QLatin1String(value));
        steps.steps.clear();
        start("Bob");
        EXPECT_NE(steps.steps.back(), "tip") << value;
    }
    store.put("Options", "TipOTDay", QStringLiteral("1"));
    start("Bob");
    EXPECT_EQ(steps.steps.back(), "tip");
}

TEST_F(SubMainTest, TheOwnAvatarIsEmptiedAtStart)
{
    common.avatarHead = QStringLiteral("x");
    common.avatarBody = "y";
    start("Bob");
    EXPECT_EQ(common.avatarHead, QString());
    EXPECT_TRUE(common.avatarBody.isEmpty());
}

} // namespace
} // namespace nimb::test
