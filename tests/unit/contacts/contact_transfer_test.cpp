#include "contacts/contact_transfer.h"

#include "recorders.h"
#include "simulated_network.h"
#include "virtual_time.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class ContactTransferTest : public testing::Test
{
protected:
    ContactTransferTest()
    {
        socket.bind();
        add("10.0.0.2", "Ann", Presence::online);
        add("10.0.0.3", "Ben", Presence::online);
        add("10.0.0.4", "Cleo", Presence::away);
        add("10.0.0.5", "Dora", Presence::offline);
        add("10.0.0.6", "Emil", Presence::offline);
    }

    void add(const char *ip, const char *nickname, Presence presence)
    {
        Contact contact;
        contact.ip = QString::fromLatin1(ip);
        contact.nickname = QString::fromUtf8(nickname);
        contact.workstation = QStringLiteral("PC");
        contact.setPresence(presence);
        contacts.add(std::move(contact));
    }
    void rename(const char *ip, const char *nickname)
    {
        contacts.change(QString::fromLatin1(ip), [nickname](Contact &contact) {
            contact.nickname = QString::fromUtf8(nickname);
            contact.setPresence(contact.presence);
        });
    }
    /// The dialog for Ben.
    ContactTransfer &load()
    {
        transfer.emplace(socket, contacts, log, QStringLiteral("10.0.0.3"));
        transfer->Form_Load();
        return *transfer;
    }
    static std::vector<std::string> names(const TransferList &list)
    {
        std::vector<std::string> texts;
        for (const TransferRow &row : list.rows())
            texts.push_back(row.text.toStdString());
        return texts;
    }
    std::vector<std::string> offered() { return names(transfer->offered()); }
    std::vector<std::string> chosen() { return names(transfer->chosen()); }
    std::vector<To> sent() { return std::exchange(socket.sent, {}); }

    ContactList contacts;
    SimulatedWinsock socket{QStringLiteral("10.0.0.1"), QStringLiteral("HERE"), nullptr};
    VirtualTime time;
    RecorderLog written;
    MainLog log{written, time};
    std::optional<ContactTransfer> transfer;
};

TEST_F(ContactTransferTest, TheLogSaysWhatWasSentToWhom)
{
    load().btnsendall_Click();
    transfer->sendbtn_Click();
    EXPECT_THAT(written.lines(), ElementsAre("--- contacts sent to Ben: Ann, Cleo, Dora, Emil ---"));
}

TEST_F(ContactTransferTest, OfManyTwentyAreNamed)
{
    for (int i = 10; i < 40; ++i)
        add(qPrintable(QStringLiteral("10.0.1.%1").arg(i)), qPrintable(QStringLiteral("N%1").arg(i)), Presence::online);
    load().btnsendall_Click();
    transfer->sendbtn_Click();
    EXPECT_EQ(written.text().count(QStringLiteral(", ")), 20);
    EXPECT_THAT(written.text().toStdString(), testing::HasSubstr(", 14 more ---"));
}

TEST_F(ContactTransferTest, WhereNothingIsSentTheLogSaysNothing)
{
    load();
    transfer->sendbtn_Click();
    EXPECT_THAT(written.lines(), IsEmpty());
}

TEST_F(ContactTransferTest, RowsAreKnownByTheirAddressesAndThoseThatAreNone)
{
    add("somewhere", "Fred", Presence::unknown);
    const TransferList &offered = load().offered();
    const auto role = [&offered](int row, int which) { return offered.index(row, 0).data(which).toString(); };
    EXPECT_EQ(role(0, TransferList::KeyRole), QStringLiteral("IP10.0.0.2"));
    EXPECT_EQ(role(0, TransferList::TagRole), QStringLiteral("10.0.0.2"));
    EXPECT_EQ(role(2, TransferList::KeyRole), QStringLiteral("IPsomewhere"));
    EXPECT_EQ(role(2, TransferList::TagRole), QStringLiteral("somewhere"));
}

TEST_F(ContactTransferTest, AContactWithoutAnAddressIsSentAsItIsWritten)
{
    add("somewhere", "Fred", Presence::unknown);
    load().btnsendone_Click({2});
    transfer->sendbtn_Click();
    EXPECT_THAT(sent(), ElementsAre(To{"10.0.0.3", "!USER somewhere PC Fred"}));
}

TEST_F(ContactTransferTest, OffersEveryContactButTheOneWhoGetsThem)
{
    load();
    EXPECT_THAT(offered(), ElementsAre("Ann", "Cleo", "Dora", "Emil"));
    EXPECT_THAT(chosen(), IsEmpty());
}

TEST_F(ContactTransferTest, ARowHasTheKeyAndTheTextOfItsContact)
{
    const QModelIndex cleo = load().offered().index(1, 0);
    EXPECT_EQ(cleo.data().toString(), QStringLiteral("Cleo"));
    EXPECT_EQ(cleo.data(Qt::UserRole).toString(), QStringLiteral("IP10.0.0.4"));
    EXPECT_EQ(cleo.data(Qt::UserRole + 1).toString(), QStringLiteral("10.0.0.4"));
    EXPECT_EQ(cleo.data(Qt::UserRole + 2).toString(), QStringLiteral("away"));
    const QAbstractItemModel &model = transfer->chosen();
    EXPECT_EQ(model.columnCount(), 1);
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Nickname"));
}

TEST_F(ContactTransferTest, ADestinationThatIsNoContactLeavesNobodyOut)
{
    transfer.emplace(socket, contacts, log, QStringLiteral("10.9.9.9"));
    transfer->Form_Load();
    EXPECT_THAT(offered(), ElementsAre("Ann", "Ben", "Cleo", "Dora", "Emil"));
}

// --- the four moves

TEST_F(ContactTransferTest, TheSelectedRowsMoveInTheirOrderBehindTheOthers)
{
    load().btnsendone_Click({2});
    EXPECT_THAT(chosen(), ElementsAre("Dora"));
    transfer->btnsendone_Click({2, 0});
    EXPECT_THAT(offered(), ElementsAre("Cleo"));
    EXPECT_THAT(chosen(), ElementsAre("Dora", "Ann", "Emil"));
    transfer->btnRemoveOne_Click({1, 0});
    EXPECT_THAT(offered(), ElementsAre("Cleo", "Dora", "Ann"));
    EXPECT_THAT(chosen(), ElementsAre("Emil"));
}

TEST_F(ContactTransferTest, TheWholeListMovesInItsOrder)
{
    load().btnsendone_Click({1});
    transfer->btnsendall_Click();
    EXPECT_THAT(offered(), IsEmpty());
    EXPECT_THAT(chosen(), ElementsAre("Cleo", "Ann", "Dora", "Emil"));
    transfer->btnremoveall_Click();
    EXPECT_THAT(offered(), ElementsAre("Cleo", "Ann", "Dora", "Emil"));
    EXPECT_THAT(chosen(), IsEmpty());
}

TEST_F(ContactTransferTest, MovingTheLastRowsLeavesAnEmptyList)
{
    load().btnsendone_Click({0, 1, 2, 3});
    EXPECT_THAT(offered(), IsEmpty());
    transfer->btnsendone_Click({});
    transfer->btnsendall_Click();
    transfer->btnRemoveOne_Click({0, 1, 2, 3});
    EXPECT_THAT(chosen(), IsEmpty());
    transfer->btnremoveall_Click();
    EXPECT_THAT(offered(), ElementsAre("Ann", "Cleo", "Dora", "Emil"));
}

TEST_F(ContactTransferTest, RowsThatAreNotThereAreLeftAlone)
{
    load().btnsendone_Click({-1, 4, 1, 1, 99});
    EXPECT_THAT(offered(), ElementsAre("Ann", "Dora", "Emil"));
    EXPECT_THAT(chosen(), ElementsAre("Cleo"));
    transfer->btnRemoveOne_Click({1});
    EXPECT_THAT(chosen(), ElementsAre("Cleo"));
}

TEST_F(ContactTransferTest, ThousandsMoveWithEverySecondSelected)
{
    ContactList many;
    for (int i = 0; i < 10000; ++i) {
        Contact contact;
        contact.ip = QString::number(i);
        contact.nickname = QStringLiteral("N%1").arg(i, 5, 10, QLatin1Char('0'));
        contact.setPresence(Presence::online);
        many.add(std::move(contact));
    }
    ContactTransfer large(socket, many, log, {});
    large.Form_Load();
    std::vector<int> odd;
    for (int row = 1; row < 10000; row += 2)
        odd.push_back(row);
    large.btnsendone_Click(odd);
    ASSERT_EQ(large.chosen().rowCount(), 5000);
    EXPECT_EQ(large.chosen().rows().front().text, QStringLiteral("N00001"));
    EXPECT_EQ(large.chosen().rows().back().text, QStringLiteral("N09999"));
    EXPECT_EQ(large.offered().rows().back().text, QStringLiteral("N09998"));
}

// --- sending

TEST_F(ContactTransferTest, SendsTheChosenOnesInTheOrderOfTheirList)
{
    load().btnsendone_Click({3});
    transfer->btnsendone_Click({0});
    transfer->sendbtn_Click();
    EXPECT_THAT(sent(), ElementsAre(To("10.0.0.3", "!USER 10.0.0.6 PC Emil"), To("10.0.0.3", "!USER 10.0.0.2 PC Ann")));
}

TEST_F(ContactTransferTest, SendsNothingWhenNobodyIsChosen)
{
    load().sendbtn_Click();
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(ContactTransferTest, AContactMovedThereAndBackIsSentOnce)
{
    load().btnsendone_Click({0});
    transfer->btnRemoveOne_Click({0});
    EXPECT_THAT(offered(), ElementsAre("Cleo", "Dora", "Emil", "Ann"));
    transfer->btnsendone_Click({3});
    transfer->sendbtn_Click();
    EXPECT_THAT(sent(), ElementsAre(To("10.0.0.3", "!USER 10.0.0.2 PC Ann")));
}

TEST_F(ContactTransferTest, SendsWhatTheContactListSaysNow)
{
    load().btnsendone_Click({0});
    rename("10.0.0.2", "Anna of the attic");
    contacts.change(QStringLiteral("10.0.0.2"),
                    [](Contact &contact) { contact.workstation = QStringLiteral("ATTIC"); });
    EXPECT_THAT(chosen(), ElementsAre("Ann")) << "the lists stay as they were loaded";
    transfer->sendbtn_Click();
    EXPECT_THAT(sent(), ElementsAre(To("10.0.0.3", "!USER 10.0.0.2 ATTIC Anna of the attic")));
}

TEST_F(ContactTransferTest, AContactRemovedMeanwhileIsLeftOut)
{
    load().btnsendall_Click();
    contacts.remove(QStringLiteral("10.0.0.4"));
    contacts.remove(QStringLiteral("10.0.0.6"));
    transfer->sendbtn_Click();
    EXPECT_THAT(sent(), ElementsAre(To("10.0.0.3", "!USER 10.0.0.2 PC Ann"), To("10.0.0.3", "!USER 10.0.0.5 PC Dora")));
}

TEST_F(ContactTransferTest, AContactThatCameMeanwhileIsNotOffered)
{
    load();
    add("10.0.0.9", "Zoe", Presence::online);
    transfer->btnsendall_Click();
    EXPECT_THAT(chosen(), ElementsAre("Ann", "Cleo", "Dora", "Emil"));
}

TEST_F(ContactTransferTest, NamesTravelAsAllTextDoes)
{
    rename("10.0.0.2", "\xC3\x84nne \xE2\x82\xAC");
    rename("10.0.0.4", "\xD0\x94\xD0\xB0\xD1\x88\xD0\xB0");
    load().btnsendone_Click({0, 1});
    transfer->sendbtn_Click();
    EXPECT_THAT(sent(),
                ElementsAre(To("10.0.0.3", "!USER 10.0.0.2 PC \xC4nne \x80"),
                            To("10.0.0.3", "!USER 10.0.0.4 PC \xD0\x94\xD0\xB0\xD1\x88\xD0\xB0")));
}

TEST_F(ContactTransferTest, AWorkstationTravelsAsOneWord)
{
    for (const auto &[ip, workstation] : {std::pair("10.0.0.2", "Ann's old PC"), std::pair("10.0.0.4", " two  blanks "),
                                          std::pair("10.0.0.5", " "), std::pair("10.0.0.6", "")}) {
        contacts.change(QString::fromLatin1(ip),
                        [&](Contact &contact) { contact.workstation = QLatin1String(workstation); });
    }
    load().btnsendall_Click();
    transfer->sendbtn_Click();
    EXPECT_THAT(sent(),
                ElementsAre(To("10.0.0.3", "!USER 10.0.0.2 Ann's-old-PC Ann"),
                            To("10.0.0.3", "!USER 10.0.0.4 two-blanks Cleo"), To("10.0.0.3", "!USER 10.0.0.5  Dora"),
                            To("10.0.0.3", "!USER 10.0.0.6  Emil")));
}

TEST_F(ContactTransferTest, TheDestinationMayLeaveTheContactListMeanwhile)
{
    load().btnsendone_Click({0});
    contacts.remove(QStringLiteral("10.0.0.3"));
    transfer->sendbtn_Click();
    EXPECT_THAT(sent(), ElementsAre(To("10.0.0.3", "!USER 10.0.0.2 PC Ann")));
}

} // namespace
} // namespace nimb::test
