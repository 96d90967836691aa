#include "contacts/same_machine.h"

#include "copy.h"

#include "base/limits.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SameMachineTest : public testing::Test
{
protected:
    explicit SameMachineTest(const CopySetup &setup = {.contacts = {{"10.0.0.2", "Ann"}}}) : copy(setup)
    {
        copy.settleStart();
    }

    void answer(const char *ip, const char *names = "PC-ANN Ann")
    {
        copy.arrive(ip, std::string("!ONLINE ") + ip + ' ' + names);
    }
    std::vector<std::string> hidden()
    {
        std::vector<std::string> addresses;
        const ContactList &contacts = copy.engine.contacts();
        for (int row = 0; row < contacts.rowCount(); ++row) {
            if (contacts.index(row, 0).data(ContactList::HiddenRole).toBool())
                addresses.push_back(contacts.at(row).ip.text().toStdString());
        }
        return addresses;
    }

    Copy copy;
};

TEST_F(SameMachineTest, TwoAddressesOfTheSameNamesThatAnswerAtOnceAreShownOnce)
{
    answer("10.0.0.2");
    copy.advance(1000ms);
    answer("10.7.0.2");
    EXPECT_THAT(hidden(), ElementsAre("10.7.0.2"));
    EXPECT_TRUE(copy.knows("10.7.0.2")) << "the list keeps it";
    EXPECT_THAT(copy.view.log.lines(),
                Contains("--- Ann answers from 10.0.0.2 and from 10.7.0.2 and is shown once ---"));
}

TEST_F(SameMachineTest, WhoeverTheUserKnowsStandsForTheOther)
{
    answer("10.7.0.2");
    answer("10.0.0.2");
    EXPECT_THAT(hidden(), ElementsAre("10.7.0.2"));
}

TEST_F(SameMachineTest, AnswersThatLieApartAreNobodysTwo)
{
    answer("10.0.0.2");
    copy.advance(1001ms);
    answer("10.7.0.2");
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(SameMachineTest, BothNamesHaveToAgree)
{
    answer("10.0.0.2");
    answer("10.7.0.2", "PC-ANNA Ann");
    answer("10.7.0.3", "PC-ANN ann");
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(SameMachineTest, NamesThatAreNotKnownAgreeWithNothing)
{
    answer("10.7.0.2", "PC \xE2\x80\x8B");
    answer("10.7.0.3", "PC \xE2\x80\x8B");
    EXPECT_THAT(copy.names(), UnorderedElementsAre("Ann", "[unknown]", "[unknown]"));
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(SameMachineTest, CopiesOnLoopbackAddressesAreNotOne)
{
    answer("127.0.1.2");
    answer("127.0.1.3");
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(SameMachineTest, WhoSpeaksIsShownAgain)
{
    answer("10.0.0.2");
    answer("10.7.0.2");
    copy.arrive("10.7.0.2", "-hello");
    EXPECT_THAT(hidden(), IsEmpty());
    answer("10.0.0.2");
    answer("10.7.0.2");
    EXPECT_THAT(hidden(), ElementsAre("10.0.0.2")) << "to whom nobody has spoken";
    copy.arrive("10.0.0.2", "-hello");
    answer("10.0.0.2");
    answer("10.7.0.2");
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(SameMachineTest, WhoIsCalledOtherwiseIsShownAgain)
{
    answer("10.0.0.2");
    answer("10.7.0.2");
    answer("10.7.0.2", "PC-ANN Bob");
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(SameMachineTest, WhoIsOfflineStandsForNobodyAndIsHiddenByNobody)
{
    answer("10.0.0.2");
    answer("10.7.0.2");
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN Ann");
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(SameMachineTest, AStrangerWhoIsSilentStaysHiddenAndAnAcquaintanceDoesNot)
{
    answer("10.0.0.2");
    answer("10.7.0.2");
    copy.arrive("10.7.0.2", "!OFFLINE 10.7.0.2 PC-ANN Ann");
    EXPECT_THAT(hidden(), ElementsAre("10.7.0.2"));
    Contact cable;
    cable.ip = QStringLiteral("10.8.0.2");
    cable.nickname = QStringLiteral("Ann");
    cable.workstation = QStringLiteral("PC-ANN");
    copy.engine.contacts().add(cable); // by the user
    answer("10.8.0.2");
    EXPECT_THAT(hidden(), UnorderedElementsAre("10.7.0.2", "10.8.0.2"));
    copy.arrive("10.8.0.2", "!OFFLINE 10.8.0.2 PC-ANN Ann");
    EXPECT_THAT(hidden(), ElementsAre("10.7.0.2"));
}

TEST_F(SameMachineTest, AnAnnouncementThatBothAnswerShowsNobodyInBetween)
{
    answer("10.0.0.2");
    answer("10.7.0.2");
    copy.engine.announcement().run();
    EXPECT_THAT(hidden(), ElementsAre("10.7.0.2"));
    answer("10.7.0.2");
    answer("10.0.0.2");
    EXPECT_THAT(hidden(), ElementsAre("10.7.0.2"));
    copy.advance(1000ms);
    copy.engine.announcement().run();
    answer("10.7.0.2");
    copy.advance(1000ms);
    EXPECT_THAT(hidden(), IsEmpty()) << "the other one is gone";
}

TEST_F(SameMachineTest, WhoStoodForOthersAndIsRemovedShowsThem)
{
    answer("10.0.0.2");
    answer("10.7.0.2");
    answer("10.8.0.2");
    EXPECT_THAT(hidden(), UnorderedElementsAre("10.7.0.2", "10.8.0.2"));
    copy.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(SameMachineTest, ACrowdOfOneNameIsNoMachine)
{
    for (int i = 2; i < 30; ++i)
        answer(("10.7.0." + std::to_string(i)).c_str());
    EXPECT_LE(hidden().size(), std::size_t(limits::lookAlikesCompared));
}

} // namespace
} // namespace nimb::test
