#include "contacts/contact_list.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

#include <array>

namespace nimb
{
namespace
{

constexpr std::array presences
    = {Presence::online, Presence::busy, Presence::away, Presence::unknown, Presence::offline};

TEST(ContactListModel, KeepsItsPromisesThroughTenThousandRandomChanges)
{
    ContactList list;
    QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QRandomGenerator random(7);
    for (int step = 0; step < 10000; ++step) {
        const QString ip = QStringLiteral("10.0.0.%1").arg(random.bounded(40));
        const Presence presence = presences[random.bounded(quint32(presences.size()))];
        switch (random.bounded(4)) {
        case 0: {
            Contact contact;
            contact.ip = ip;
            contact.nickname = QString(QChar(u'a' + random.bounded(26)));
            contact.setPresence(presence);
            list.add(contact);
            break;
        }
        case 1:
            list.remove(ip);
            break;
        default:
            list.change(ip, [presence](Contact &contact) { contact.setPresence(presence); });
        }
        for (int row = 1; row < list.rowCount(); ++row)
            ASSERT_LE(compareCodePoints(list.at(row - 1).sortKey, list.at(row).sortKey), 0) << "step " << step;
        for (int row = 0; row < list.rowCount(); ++row)
            ASSERT_EQ(list.rowOf(list.at(row).ip), row) << "step " << step;
    }
    EXPECT_GT(list.rowCount(), 0);
}

} // namespace
} // namespace nimb
