#include "recorders.h"
#include "simulated_network.h"
#include "welcome/login.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

class LoginTest : public testing::Test
{
protected:
    Common common;
    MemoryStore store;
    SimulatedWinsock socket{QStringLiteral("10.0.0.1"), QStringLiteral("HERE"), nullptr};
    Login login{common, store, socket};
};

TEST_F(LoginTest, LearnsTheOwnIdentityFromTheSocket)
{
    login.Form_Load();
    EXPECT_EQ(common.ownHostName, QStringLiteral("HERE"));
    EXPECT_EQ(common.ownIP, Ipv4Address(10, 0, 0, 1));
}

TEST_F(LoginTest, TheFirstRunOffersTheHostName)
{
    EXPECT_EQ(login.Form_Load(), QStringLiteral("HERE"));
}

TEST_F(LoginTest, LaterRunsOfferTheLastNickname)
{
    store.put("Settings", "MyNickName", QStringLiteral("Ann"));
    EXPECT_EQ(login.Form_Load(), QStringLiteral("Ann"));
}

TEST_F(LoginTest, OkOnAnEmptyBoxTakesTheHostName)
{
    login.Form_Load();
    EXPECT_FALSE(login.CmdOK_Click({}));
    EXPECT_EQ(common.ownNickname, QStringLiteral("HERE"));
    EXPECT_EQ(store.value("Settings", "MyNickName"), "HERE");
}

TEST_F(LoginTest, ANicknameWithSpacesIsKeptWhole)
{
    login.Form_Load();
    EXPECT_EQ(login.CmdOK_Click(QStringLiteral("Bob the Builder")), std::nullopt);
    EXPECT_EQ(common.ownNickname, QStringLiteral("Bob the Builder"));
    EXPECT_EQ(store.value("Settings", "MyNickName"), "Bob the Builder");
}

TEST_F(LoginTest, ANicknameThatCannotBeSavedHoldsForTheSession)
{
    login.Form_Load();
    store.failure = QStringLiteral("The disk is full.");
    EXPECT_EQ(login.CmdOK_Click(QStringLiteral("Bob")), QStringLiteral("The disk is full."));
    EXPECT_EQ(common.ownNickname, QStringLiteral("Bob"));
}

} // namespace
} // namespace nimb::test
