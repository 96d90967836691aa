#include "people/add_user.h"

#include "copy.h"
#include "dialog_recorders.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class AddUserTest : public testing::Test, protected SearchSurroundings
{
protected:
    AddUserTest()
    {
        common.ownIP = Ipv4Address(192, 168, 0, 5);
        common.ownHostName = QStringLiteral("HERE");
        Contact ann;
        ann.nickname = QStringLiteral("Ann");
        ann.ip = QStringLiteral("192.168.0.7");
        contacts.add(ann);
    }
    bool add(const char *nickname, const char *hostname, const char *ipaddress)
    {
        return rules.CmdOK_Click(QString::fromUtf8(nickname), QString::fromUtf8(hostname),
                                 QString::fromUtf8(ipaddress));
    }
    QString cell(const char *ip, int column)
    {
        return contacts.index(contacts.rowOf(QString::fromLatin1(ip)), column).data().toString();
    }
    QString role(const char *ip, int role)
    {
        return contacts.index(contacts.rowOf(QString::fromLatin1(ip)), 0).data(role).toString();
    }

    RecorderPrompts prompts;
    DropCounts drops;
    Admission admission{common, contacts, ownAddresses, drops};
    AddUser rules{common, admission, contacts, search, prompts};
};

TEST_F(AddUserTest, NoOtherAddressOfThisMachineAndNoneThatEverybodyHearsIsTaken)
{
    ownAddresses.own = {Ipv4Address(172, 16, 0, 5)};
    ownAddresses.broadcast = {Ipv4Address(192, 168, 0, 255)};
    EXPECT_FALSE(add("Me", "OTHER-NAME", "172.16.0.5"));
    EXPECT_FALSE(add("All", "EVERYBODY", "192.168.0.255"));
    EXPECT_THAT(
        prompts.told,
        ElementsAre("NIMB-Chat: You can't add yourself...",
                    "NIMB-Chat: This is not the address of one computer: everybody on the network hears what is "
                    "sent there."));
    EXPECT_EQ(contacts.rowCount(), 1);
}

TEST_F(AddUserTest, WhoIsAddedIsAsked)
{
    EXPECT_TRUE(add("Ben", "PC-BEN", "192.168.0.8"));
    EXPECT_THAT(shown.lines(), ElementsAre("--- asking Ben who is there ---"));
    time.advance(1s);
    const std::string question = "?ONLINE " + common.ownIP.toText() + " HERE Me";
    EXPECT_THAT(socket.sent, ElementsAre(To{"192.168.0.8", question}, To{"192.168.0.8", question}));
}

TEST_F(AddUserTest, ANameInsteadOfAnAddressIsAskedNothing)
{
    EXPECT_TRUE(add("Ben", "PC-BEN", "ben.example"));
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(shown.lines(), IsEmpty());
}

TEST_F(AddUserTest, AnAddressThatIsNotOfOneHostIsAskedNothing)
{
    EXPECT_TRUE(add("Many", "MANY", "224.0.0.1"));
    EXPECT_TRUE(add("None", "NONE", "0.0.0.0"));
    EXPECT_THAT(socket.sent, IsEmpty());
}

TEST_F(AddUserTest, WhoIsInvisibleAsksNobody)
{
    common.ownPresence.base = BaseState::invisible;
    EXPECT_TRUE(add("Ben", "PC-BEN", "192.168.0.8"));
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(shown.lines(), IsEmpty());
}

TEST_F(AddUserTest, AWrongAddressIsRemarkedWhileItIsTyped)
{
    ownAddresses.broadcast = {Ipv4Address(192, 168, 0, 255)};
    const auto remark = [this](const char *typed) { return rules.remark(QString::fromLatin1(typed)).toStdString(); };
    EXPECT_EQ(remark(""), "");
    EXPECT_EQ(remark("192.168.0.8"), "");
    EXPECT_EQ(remark("192.168.0.7"), "IP Address already used by another user");
    EXPECT_EQ(remark("192.168.0.5"), "You can't add yourself...");
    EXPECT_EQ(remark("192.168.0.255"),
              "This is not the address of one computer: everybody on the network hears what is sent there.");
    for (const char *const none : {"192.168.0", "192.168.0.", "192.168.000.005", "pc-ann", "300.1.2.3", "224.0.0.1"})
        EXPECT_EQ(remark(none), "This is no address such as 192.168.1.20: nothing can be sent there.") << none;
    EXPECT_THAT(prompts.told, IsEmpty());
}

TEST_F(AddUserTest, AddsARowThatIsNotYetKnown)
{
    EXPECT_TRUE(add("Ben the Builder", "PC-BEN", "192.168.0.8"));
    EXPECT_THAT(prompts.told, IsEmpty());
    EXPECT_EQ(contacts.rowCount(), 2);
    EXPECT_EQ(role("192.168.0.8", ContactList::KeyRole), QStringLiteral("IP192.168.0.8"));
    EXPECT_EQ(role("192.168.0.8", ContactList::TagRole), QStringLiteral("192.168.0.8"));
    EXPECT_EQ(role("192.168.0.8", ContactList::PictureRole), QStringLiteral("yellow"));
    EXPECT_EQ(cell("192.168.0.8", 0), QStringLiteral("Ben the Builder"));
    EXPECT_EQ(cell("192.168.0.8", 1), QStringLiteral("PC-BEN"));
    EXPECT_EQ(cell("192.168.0.8", 2), QStringLiteral("192.168.0.8"));
    EXPECT_EQ(cell("192.168.0.8", 4), QString());
    EXPECT_EQ(cell("192.168.0.8", 5), QString());
    EXPECT_EQ(cell("192.168.0.8", 6), QString());
}

TEST_F(AddUserTest, TheSortKeyKeepsTheTypedCaseUntilTheFirstAnnouncement)
{
    EXPECT_TRUE(add("ben", "PC-BEN", "192.168.0.8"));
    EXPECT_EQ(cell("192.168.0.8", 3), QStringLiteral("B_ben"));
    contacts.change(QStringLiteral("192.168.0.8"), [](Contact &contact) { contact.setPresence(Presence::unknown); });
    EXPECT_EQ(cell("192.168.0.8", 3), QStringLiteral("B_BEN"));
}

TEST_F(AddUserTest, AnAddressInTheListIsRefused)
{
    EXPECT_FALSE(add("Ben", "PC-BEN", "192.168.0.7"));
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: IP Address already used by another user"));
    EXPECT_EQ(contacts.rowCount(), 1);
    EXPECT_EQ(cell("192.168.0.7", 0), QStringLiteral("Ann"));
}

TEST_F(AddUserTest, AUsedAddressIsReportedBeforeAnEmptyField)
{
    EXPECT_FALSE(add("", "", "192.168.0.7"));
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: IP Address already used by another user"));
}

TEST_F(AddUserTest, AUsedAddressIsReportedBeforeTheOwnHostName)
{
    EXPECT_FALSE(add("Ben", "HERE", "192.168.0.7"));
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: IP Address already used by another user"));
}

TEST_F(AddUserTest, EveryEmptyFieldIsRefused)
{
    EXPECT_FALSE(add("", "PC-BEN", "192.168.0.8"));
    EXPECT_FALSE(add("Ben", "", "192.168.0.8"));
    EXPECT_FALSE(add("Ben", "PC-BEN", ""));
    EXPECT_FALSE(add("", "", ""));
    EXPECT_EQ(prompts.told, std::vector<std::string>(4, "NIMB-Chat: Please fill all the fields"));
    EXPECT_EQ(contacts.rowCount(), 1);
}

TEST_F(AddUserTest, AnEmptyFieldIsReportedBeforeTheOwnIdentity)
{
    EXPECT_FALSE(add("", "HERE", "192.168.0.5"));
    EXPECT_THAT(prompts.told, ElementsAre("NIMB-Chat: Please fill all the fields"));
}

TEST_F(AddUserTest, TheOwnHostNameOrAddressIsRefused)
{
    EXPECT_FALSE(add("Me", "HERE", "192.168.0.8"));
    EXPECT_FALSE(add("Me", "PC-ME", "192.168.0.5"));
    EXPECT_EQ(prompts.told, std::vector<std::string>(2, "NIMB-Chat: You can't add yourself..."));
    EXPECT_EQ(contacts.rowCount(), 1);
}

TEST_F(AddUserTest, TheOwnHostNameInAnotherCaseIsAnotherHost)
{
    EXPECT_TRUE(add("Me", "here", "192.168.0.8"));
}

TEST_F(AddUserTest, TheOwnAddressWithLeadingZerosIsNotRecognised)
{
    EXPECT_TRUE(add("Me", "PC-ME", "192.168.000.005"));
    EXPECT_TRUE(contacts.find(QStringLiteral("192.168.000.005")));
}

TEST_F(AddUserTest, WhatIsNoDottedAddressIsAccepted)
{
    EXPECT_TRUE(add("Ben", "PC-BEN", "somewhere"));
    EXPECT_TRUE(add("Cleo", "PC-CLEO", "300.1.2.3"));
    EXPECT_THAT(prompts.told, IsEmpty());
    EXPECT_THAT(contacts.addresses(),
                ElementsAre(QStringLiteral("192.168.0.7"), QStringLiteral("somewhere"), QStringLiteral("300.1.2.3")));
}

TEST_F(AddUserTest, TheAddressThatEndsTheStoredListIsRefusedForItWouldBeLost)
{
    EXPECT_FALSE(add("Everybody", "ALL", "255.255.255.255"));
    EXPECT_THAT(prompts.told,
                ElementsAre("NIMB-Chat: This address cannot be kept: it marks the end of the stored list."));
    EXPECT_EQ(contacts.rowCount(), 1);
}

} // namespace
} // namespace nimb::test
