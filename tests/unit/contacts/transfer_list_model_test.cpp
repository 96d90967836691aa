#include "contacts/contact_transfer.h"

#include "recorders.h"
#include "simulated_network.h"
#include "virtual_time.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

#include <set>

namespace nimb::test
{
namespace
{

std::multiset<QString> keys(ContactTransfer &transfer)
{
    std::multiset<QString> all;
    for (const TransferList *const list : {&transfer.offered(), &transfer.chosen()}) {
        for (const TransferRow &row : list->rows())
            all.insert(row.address.text());
    }
    return all;
}

TEST(TransferListModel, KeepsItsPromisesThroughAThousandRandomMoves)
{
    ContactList contacts;
    for (int i = 1; i <= 40; ++i) {
        Contact contact;
        contact.ip = QStringLiteral("10.0.0.%1").arg(i);
        contacts.add(std::move(contact));
    }
    SimulatedWinsock socket{QStringLiteral("10.0.0.99"), QStringLiteral("HERE"), nullptr};
    VirtualTime time;
    RecorderLog written;
    MainLog log(written, time);
    ContactTransfer transfer(socket, contacts, log, QStringLiteral("10.0.0.7"));
    const auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
    const QAbstractItemModelTester offeredTester(&transfer.offered(), fatal);
    const QAbstractItemModelTester chosenTester(&transfer.chosen(), fatal);
    transfer.Form_Load();
    const std::multiset<QString> everybody = keys(transfer);
    ASSERT_EQ(everybody.size(), 39u);
    QRandomGenerator random(11);
    for (int step = 0; step < 1000; ++step) {
        std::vector<int> rows(random.bounded(12u));
        for (int &row : rows)
            row = random.bounded(-1, 41);
        switch (random.bounded(10)) {
        case 0:
            transfer.btnsendall_Click();
            break;
        case 1:
            transfer.btnremoveall_Click();
            break;
        case 2:
        case 3:
        case 4:
        case 5:
            transfer.btnRemoveOne_Click(rows);
            break;
        default:
            transfer.btnsendone_Click(rows);
        }
        ASSERT_EQ(keys(transfer), everybody) << "step " << step;
    }
}

} // namespace
} // namespace nimb::test
