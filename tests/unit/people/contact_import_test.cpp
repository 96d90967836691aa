#include "people/contact_import.h"

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

class ContactImportTest : public testing::Test, protected SearchSurroundings
{
protected:
    void take(const QByteArray &lines)
    {
        imported.take("address,nickname,workstation\r\n" + lines, QStringLiteral("office.csv"));
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> list;
        for (int row = 0; row < contacts.rowCount(); ++row)
            list.push_back(contacts.at(row).nickname.toStdString());
        return list;
    }

    RecorderPrompts prompts;
    DropCounts drops;
    Admission admission{common, contacts, ownAddresses, drops};
    ContactImport imported{admission, contacts, search, log, prompts};
};

TEST_F(ContactImportTest, TakesEverybodyAndAsksThem)
{
    take("10.0.0.2,Ann,PC-ANN\r\n10.0.0.3,Ben,PC-BEN\r\n");
    EXPECT_THAT(names(), ElementsAre("Ann", "Ben"));
    EXPECT_EQ(contacts.find(QStringLiteral("10.0.0.3"))->workstation, QStringLiteral("PC-BEN"));
    EXPECT_EQ(contacts.find(QStringLiteral("10.0.0.3"))->presence, Presence::unknown);
    EXPECT_THAT(prompts.told, IsEmpty());
    EXPECT_THAT(shown.lines(),
                ElementsAre("--- contacts taken from office.csv: 2; there already: 0 ---",
                            "--- asking the new contacts who is there ---"));
    EXPECT_THAT(
        socket.sent,
        ElementsAre(To{"10.0.0.2", "?ONLINE 192.168.1.5 HERE Me"}, To{"10.0.0.3", "?ONLINE 192.168.1.5 HERE Me"}));
}

TEST_F(ContactImportTest, WhoIsThereAlreadyStaysAndOneselfIsLeftOut)
{
    take("10.0.0.2,Ann,PC-ANN\r\n");
    shown.clear();
    take("10.0.0.2,Other,PC\r\n192.168.1.5,Me,HERE\r\n10.0.0.3,Ben,PC-BEN\r\n");
    EXPECT_THAT(names(), ElementsAre("Ann", "Ben"));
    EXPECT_EQ(shown.lines().front(),
              "--- contacts taken from office.csv: 1; there already: 1; left out: your own address ---");
}

TEST_F(ContactImportTest, WhoIsInvisibleTakesThemAndAsksNobody)
{
    common.ownPresence.base = BaseState::invisible;
    take("10.0.0.2,Ann,PC-ANN\r\n");
    EXPECT_THAT(names(), ElementsAre("Ann"));
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(shown.lines(), ElementsAre("--- contacts taken from office.csv: 1; there already: 0 ---"));
}

TEST_F(ContactImportTest, AnAddressThatMeansWhoeverSaysItIsAFault)
{
    take("127.0.0.1,Me,HERE\r\n");
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(prompts.told,
                ElementsAre("NIMB-Chat: Line 2 of office.csv: 127.0.0.1 means whoever says it. No contact was taken "
                            "from this file."));
}

TEST_F(ContactImportTest, AFaultAnywhereTakesNothing)
{
    take("10.0.0.2,Ann,PC-ANN\r\n10.0.0.3,Ben\r\n");
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(
        prompts.told,
        ElementsAre("NIMB-Chat: Line 3 of office.csv: it has not three fields. No contact was taken from this file."));
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(shown.lines(), IsEmpty());
}

TEST_F(ContactImportTest, EveryFaultIsToldWithItsLineAndOfManyTheFirstTen)
{
    take("10.0.0.2,Ann\r\n10.0.0.3,Ben,B\r\n10.0.0.4,,C\r\n");
    EXPECT_THAT(prompts.told,
                ElementsAre("NIMB-Chat: Line 2 of office.csv: it has not three fields; line 4: a name is "
                            "empty. No contact was taken from this file."));
    EXPECT_THAT(names(), IsEmpty());
    QByteArray many;
    for (int i = 0; i < 12; ++i)
        many += "x\r\n";
    take(many);
    EXPECT_THAT(prompts.told.back(),
                testing::EndsWith("line 11: it has not three fields; 2 more. No contact was taken from this file."));
}

TEST_F(ContactImportTest, AnAddressOfEverybodyIsAFault)
{
    ownAddresses.broadcast = {Ipv4Address(10, 0, 0, 255)};
    take("10.0.0.2,Ann,PC-ANN\r\n10.0.0.255,All,ALL\r\n");
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(
        prompts.told,
        ElementsAre("NIMB-Chat: Line 3 of office.csv: everybody on the network hears what is sent to 10.0.0.255. No "
                    "contact was taken from this file."));
}

TEST_F(ContactImportTest, AFileThatIsNoneIsRefusedByName)
{
    imported.take("\xFF\xFE", QStringLiteral("photo.png"));
    EXPECT_THAT(prompts.told,
                ElementsAre("NIMB-Chat: photo.png: it is not written in UTF-8. No contact was taken from this file."));
}

} // namespace
} // namespace nimb::test
