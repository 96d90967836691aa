#include "contacts/contact_list.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

#include <array>
#include <map>

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
        case 2:
            list.change(ip, [presence, letter = random.bounded(4)](Contact &contact) {
                contact.nickname = QString(QChar(u'a' + letter));
                contact.setPresence(presence);
            });
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

class NamesInTheList : public testing::Test
{
protected:
    NamesInTheList()
    {
        QObject::connect(&list, &ContactList::dataChanged, &list,
                         [this](const QModelIndex &first) { ++changes[list.at(first.row()).ip.text()]; });
    }
    void add(const char *ip, const char16_t *nickname)
    {
        Contact contact;
        contact.ip = QString::fromLatin1(ip);
        contact.nickname = QString::fromUtf16(nickname);
        contact.setPresence(Presence::online);
        list.add(contact);
    }
    void rename(const char *ip, const char16_t *nickname)
    {
        list.change(QString::fromLatin1(ip), [nickname](Contact &contact) {
            contact.nickname = QString::fromUtf16(nickname);
            contact.setPresence(contact.presence);
        });
    }
    QVariant of(const char *ip, int role) { return list.index(list.rowOf(QString::fromLatin1(ip)), 0).data(role); }
    bool shares(const char *ip) { return of(ip, ContactList::SharesNameRole).toBool(); }

    ContactList list;
    std::map<QString, int> changes; ///< by address
};

TEST_F(NamesInTheList, ThatLookAlikeAreMarkedWithWhomeverTheyLookLike)
{
    add("10.0.0.2", u"Ann");
    EXPECT_FALSE(shares("10.0.0.2"));
    add("10.0.0.3", u"\u0410nn"); // with a Cyrillic A
    add("10.0.0.4", u"Ben");
    EXPECT_TRUE(shares("10.0.0.2"));
    EXPECT_TRUE(shares("10.0.0.3"));
    EXPECT_FALSE(shares("10.0.0.4"));
    EXPECT_EQ(changes[QStringLiteral("10.0.0.2")], 1) << "it is painted anew";
    EXPECT_EQ(of("10.0.0.2", Qt::DisplayRole).toString(), QStringLiteral("Ann"));
    EXPECT_EQ(of("10.0.0.2", Qt::AccessibleTextRole).toString(), QStringLiteral("Ann (10.0.0.2), online"));
    EXPECT_EQ(of("10.0.0.4", Qt::AccessibleTextRole).toString(), QStringLiteral("Ben, online"));
}

/// What a screen reader reads of a row, and what stands beside its name.
class RowInTheList : public testing::Test
{
protected:
    RowInTheList()
    {
        Contact contact;
        contact.ip = ip;
        contact.nickname = QStringLiteral("Ann");
        list.add(contact);
    }
    void set(Presence presence, const char *state, int unread = 0)
    {
        list.change(ip, [&](Contact &contact) {
            contact.setPresence(presence);
            contact.state = QLatin1String(state);
            contact.unreadInWindow = unread;
        });
    }
    QString text(int role) { return list.index(0, ContactList::Nickname).data(role).toString(); }
    QString readOut() { return text(Qt::AccessibleTextRole); }
    QString words() { return text(ContactList::WordsRole); }

    const ContactAddress ip = QStringLiteral("10.0.0.2");
    ContactList list;
};

TEST_F(RowInTheList, IsReadAsNamePresenceStateAndWhatIsUnread)
{
    EXPECT_EQ(readOut(), QStringLiteral("Ann, not yet known"));
    set(Presence::away, "AWAY - Back at five", 2);
    EXPECT_EQ(readOut(), QStringLiteral("Ann, away, Back at five, 2 unread"));
    set(Presence::busy, "BUSY");
    EXPECT_EQ(readOut(), QStringLiteral("Ann, busy"));
    set(Presence::online, "Phoning", 1);
    EXPECT_EQ(readOut(), QStringLiteral("Ann, online, Phoning, 1 unread"));
    set(Presence::offline, "");
    EXPECT_EQ(readOut(), QStringLiteral("Ann, offline"));
    list.change(ip, [](Contact &contact) { contact.muted = true; });
    EXPECT_EQ(readOut(), QStringLiteral("Ann, offline, muted"));
}

TEST_F(RowInTheList, SaysBesideTheNameWhatThePictureDoesNot)
{
    set(Presence::away, "AWAY - Back at five");
    EXPECT_EQ(words(), QStringLiteral("Back at five"));
    EXPECT_EQ(list.index(0, ContactList::StateText).data().toString(), QStringLiteral("AWAY - Back at five"));
    set(Presence::online, "ONLINE");
    EXPECT_EQ(words(), QString());
    set(Presence::away, "AWAY");
    EXPECT_EQ(words(), QStringLiteral("away"));
    EXPECT_EQ(readOut(), QStringLiteral("Ann, away"));
    set(Presence::busy, "");
    EXPECT_EQ(words(), QStringLiteral("busy"));
    set(Presence::offline, "BUSY - In a meeting");
    EXPECT_EQ(words(), QStringLiteral("offline"));
    EXPECT_EQ(list.index(0, ContactList::StateText).data().toString(), QStringLiteral("BUSY - In a meeting"));
}

TEST_F(NamesInTheList, AreNotMarkedAnyMoreWhenTheOtherHasGoneOrIsCalledOtherwise)
{
    add("10.0.0.2", u"Ann");
    add("10.0.0.3", u"ann");
    rename("10.0.0.3", u"Cleo");
    EXPECT_FALSE(shares("10.0.0.2"));
    EXPECT_FALSE(shares("10.0.0.3"));
    rename("10.0.0.3", u"ANN");
    EXPECT_TRUE(shares("10.0.0.2"));
    changes.clear();
    list.remove(QStringLiteral("10.0.0.3"));
    EXPECT_FALSE(shares("10.0.0.2"));
    EXPECT_EQ(changes[QStringLiteral("10.0.0.2")], 1) << "it is painted anew";
}

} // namespace
} // namespace nimb
