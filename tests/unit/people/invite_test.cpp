#include "people/invite.h"

#include "dialog_recorders.h"
#include "print_qt.h"
#include "recorders.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class InviteTest : public testing::Test
{
protected:
    InviteTest()
    {
        common.ownNickname = QStringLiteral("Bob");
        Contact ann;
        ann.nickname = QStringLiteral("Ann");
        ann.workstation = QStringLiteral("PC-ANN");
        ann.ip = QStringLiteral("192.168.0.7");
        contacts.add(ann);
    }

    Common common;
    ContactList contacts;
    RecorderNetSend netSend;
    RecorderPrompts prompts;
    Invite invite{common, contacts, netSend, prompts};
};

TEST_F(InviteTest, TheStandardTextNamesTheUser)
{
    EXPECT_EQ(invite.Form_Load(QStringLiteral("192.168.0.7")),
              QStringLiteral("Bob wants you to join him in NIMB-Chat"));
}

TEST_F(InviteTest, ANicknameIsNoPatternForTheStandardText)
{
    common.ownNickname = QStringLiteral("100 %1 %2");
    EXPECT_EQ(invite.Form_Load(QStringLiteral("192.168.0.7")),
              QStringLiteral("100 %1 %2 wants you to join him in NIMB-Chat"));
}

TEST_F(InviteTest, TheTargetIsTheSelectedContact)
{
    invite.Form_Load(QStringLiteral("192.168.0.7"));
    EXPECT_EQ(invite.target().computer, QStringLiteral("PC-ANN"));
    EXPECT_EQ(invite.target().nickname, QStringLiteral("Ann"));
    EXPECT_THAT(prompts.told, IsEmpty());
}

TEST_F(InviteTest, WithoutASelectedContactTheTargetIsThisMachineAndTheUserIsTold)
{
    EXPECT_EQ(invite.Form_Load({}), QStringLiteral("Bob wants you to join him in NIMB-Chat"));
    EXPECT_EQ(invite.target().computer, QStringLiteral("localhost"));
    EXPECT_EQ(invite.target().nickname, QStringLiteral("unknown"));
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: No user selected!"));
}

TEST_F(InviteTest, AContactThatIsGoneIsNotSelected)
{
    contacts.remove(QStringLiteral("192.168.0.7"));
    invite.Form_Load(QStringLiteral("192.168.0.7"));
    EXPECT_EQ(invite.target().computer, QStringLiteral("localhost"));
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: No user selected!"));
}

TEST_F(InviteTest, AContactThatIsRemovedMeanwhileStaysTheTarget)
{
    invite.Form_Load(QStringLiteral("192.168.0.7"));
    contacts.remove(QStringLiteral("192.168.0.7"));
    EXPECT_TRUE(invite.sendbtn_Click(QStringLiteral("Come in")));
    EXPECT_THAT(netSend.sent, ElementsAre("PC-ANN <- Come in"));
}

TEST_F(InviteTest, SendsTheTextToTheTargetAndIsDone)
{
    invite.Form_Load(QStringLiteral("192.168.0.7"));
    EXPECT_TRUE(invite.sendbtn_Click(QStringLiteral("Say \"yes\", Ann")));
    EXPECT_THAT(netSend.sent, ElementsAre("PC-ANN <- Say \"yes\", Ann"));
    EXPECT_THAT(prompts.told, IsEmpty());
}

TEST_F(InviteTest, WithoutASelectedContactTheTextGoesToThisMachine)
{
    invite.Form_Load({});
    EXPECT_TRUE(invite.sendbtn_Click(QStringLiteral("Hello")));
    EXPECT_THAT(netSend.sent, ElementsAre("localhost <- Hello"));
}

TEST_F(InviteTest, AnEmptyTextIsSentAsItIs)
{
    invite.Form_Load(QStringLiteral("192.168.0.7"));
    EXPECT_TRUE(invite.sendbtn_Click({}));
    EXPECT_THAT(netSend.sent, ElementsAre("PC-ANN <- "));
}

TEST_F(InviteTest, WhereThereIsNoSuchServiceTheUserIsToldAndTheDialogStays)
{
    invite.Form_Load(QStringLiteral("192.168.0.7"));
    netSend.missing = QStringLiteral("Install the package smbclient.");
    EXPECT_FALSE(invite.sendbtn_Click(QStringLiteral("Hello")));
    EXPECT_THAT(netSend.sent, IsEmpty());
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: Install the package smbclient."));
}

} // namespace
} // namespace nimb::test
