#include "copy.h"

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

Contact named(const char *ip, const char *nickname, Presence presence)
{
    Contact contact;
    contact.ip = QString::fromLatin1(ip);
    contact.nickname = QString::fromUtf8(nickname);
    contact.setPresence(presence);
    return contact;
}

std::vector<std::string> order(const ContactList &list)
{
    std::vector<std::string> names;
    for (int row = 0; row < list.rowCount(); ++row)
        names.push_back(list.at(row).nickname.toStdString());
    return names;
}

TEST(ContactList, AnEmptyStoreYieldsAnEmptyList)
{
    ContactList list;
    list.load(MemoryStore());
    EXPECT_EQ(list.rowCount(), 0);
}

TEST(ContactList, LoadedContactsAreNotYetKnown)
{
    Copy copy({.contacts = {{"192.168.0.7", "Ann", "PC-ANN"}}, .loaded = false});
    copy.engine.contacts().load(copy.settings);
    const Contact &ann = copy.contact("192.168.0.7");
    EXPECT_EQ(ann.nickname, QStringLiteral("Ann"));
    EXPECT_EQ(ann.workstation, QStringLiteral("PC-ANN"));
    EXPECT_EQ(ann.presence, Presence::unknown);
    EXPECT_EQ(ann.sortKey, QStringLiteral("B_Ann"));
    EXPECT_EQ(ann.state, QString());
    EXPECT_EQ(ann.privateWindow, 0);
}

TEST(ContactList, AContactIsFoundByItsAddressAndByTheTextOfItsRow)
{
    ContactList list;
    list.add(named("192.168.0.7", "Ann", Presence::online));
    ASSERT_TRUE(list.find(Ipv4Address(192, 168, 0, 7)));
    EXPECT_EQ(list.find(Ipv4Address(192, 168, 0, 7)), list.find(QStringLiteral("192.168.0.7")));
    EXPECT_FALSE(list.isContact(Ipv4Address(192, 168, 0, 8)));
    EXPECT_FALSE(list.find(QStringLiteral("192.168.0.8")));
    EXPECT_TRUE(list.change(Ipv4Address(192, 168, 0, 7), [](Contact &row) { row.nickname = QStringLiteral("Bea"); }));
    EXPECT_FALSE(list.change(Ipv4Address(192, 168, 0, 8), [](Contact &row) { row.nickname = QStringLiteral("Bea"); }));
    EXPECT_THAT(order(list), ElementsAre("Bea"));
    EXPECT_TRUE(list.remove(QStringLiteral("192.168.0.7")));
    EXPECT_FALSE(list.isContact(Ipv4Address(192, 168, 0, 7)));
}

TEST(ContactList, ATextThatIsNoAddressIsARowOfItsOwn)
{
    ContactList list;
    for (const char *const text : {"192.168.0.7", "192.168.000.007", "somewhere", "300.1.2.3"})
        EXPECT_TRUE(list.add(named(text, text, Presence::unknown))) << text;
    EXPECT_FALSE(list.add(named("somewhere", "Ben", Presence::unknown)));
    EXPECT_EQ(list.rowCount(), 4);
    EXPECT_EQ(list.find(Ipv4Address(192, 168, 0, 7))->ip, QStringLiteral("192.168.0.7"));
    EXPECT_EQ(list.find(QStringLiteral("192.168.000.007"))->ip, QStringLiteral("192.168.000.007"));
    EXPECT_FALSE(list.find(QStringLiteral("somewhere"))->ip.ipv4());
    EXPECT_TRUE(list.remove(QStringLiteral("192.168.000.007")));
    EXPECT_TRUE(list.remove(QStringLiteral("somewhere")));
    EXPECT_FALSE(list.find(QStringLiteral("somewhere")));
    EXPECT_THAT(list.addresses(), ElementsAre(QStringLiteral("192.168.0.7"), QStringLiteral("300.1.2.3")));
}

TEST(ContactList, RowsShowTheirFieldsInTheColumns)
{
    ContactList list;
    Contact ann = named("192.168.0.7", "Ann", Presence::busy);
    ann.workstation = QStringLiteral("PC-ANN");
    ann.privateWindow = 3;
    ann.avatarNumber = QStringLiteral("2");
    ann.state = QStringLiteral("BUSY - later");
    list.add(ann);
    const auto cell
        = [&list](int column, int role = Qt::DisplayRole) { return list.index(0, column).data(role).toString(); };
    EXPECT_EQ(cell(0), QStringLiteral("Ann"));
    EXPECT_EQ(cell(1), QStringLiteral("PC-ANN"));
    EXPECT_EQ(cell(2), QStringLiteral("192.168.0.7"));
    EXPECT_EQ(cell(3), QStringLiteral("AbANN"));
    EXPECT_EQ(cell(4), QStringLiteral("3"));
    EXPECT_EQ(cell(5), QStringLiteral("2"));
    EXPECT_EQ(cell(6), QStringLiteral("BUSY - later"));
    EXPECT_EQ(cell(0, Qt::UserRole), QStringLiteral("IP192.168.0.7"));
    EXPECT_EQ(cell(0, Qt::UserRole + 1), QStringLiteral("192.168.0.7"));
    EXPECT_EQ(cell(0, Qt::UserRole + 2), QStringLiteral("busy"));
    EXPECT_EQ(list.headerData(0, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Nickname"));
    EXPECT_EQ(list.headerData(1, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Workstation"));
    EXPECT_EQ(list.headerData(2, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("IP Address"));
    EXPECT_EQ(list.headerData(3, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("State"));
    EXPECT_EQ(list.headerData(4, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("PrivateWin"));
    EXPECT_EQ(list.headerData(5, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("AvatarNum"));
}

TEST(ContactList, AClosedPrivateWindowShowsAsAnEmptyCell)
{
    ContactList list;
    list.add(named("10.0.0.2", "Ann", Presence::online));
    EXPECT_EQ(list.index(0, ContactList::PrivateWin).data().toString(), QString());
}

TEST(ContactList, NoAddressStandsInTheListTwice)
{
    ContactList list;
    EXPECT_TRUE(list.add(named("10.0.0.2", "Ann", Presence::online)));
    EXPECT_FALSE(list.add(named("10.0.0.2", "Ben", Presence::offline)));
    EXPECT_THAT(order(list), ElementsAre("Ann"));
}

TEST(ContactList, OnlineComesFirstThenBusyAwayNotYetKnownAndOffline)
{
    ContactList list;
    list.add(named("10.0.0.1", "Off", Presence::offline));
    list.add(named("10.0.0.2", "Unknown", Presence::unknown));
    list.add(named("10.0.0.3", "Away", Presence::away));
    list.add(named("10.0.0.4", "Zed busy", Presence::busy));
    list.add(named("10.0.0.5", "Zoe", Presence::online));
    list.add(named("10.0.0.6", "ann", Presence::online));
    EXPECT_THAT(order(list), ElementsAre("ann", "Zoe", "Zed busy", "Away", "Unknown", "Off"));
}

TEST(ContactList, KeysCompareByCodePoint)
{
    EXPECT_LT(compareCodePoints(QStringLiteral("A_Z"), QStringLiteral("AbA")), 0);
    EXPECT_LT(compareCodePoints(QStringLiteral("AbZ"), QStringLiteral("AwA")), 0);
    EXPECT_LT(compareCodePoints(QStringLiteral("B_Z"), QStringLiteral("B_a")), 0);
    EXPECT_LT(compareCodePoints(QStringLiteral("A"), QStringLiteral("AA")), 0);
    EXPECT_EQ(compareCodePoints(QStringLiteral("AA"), QStringLiteral("AA")), 0);
    // As UTF-16 units the first would be the smaller one.
    EXPECT_GT(compareCodePoints(QStringLiteral("\U0001F600"), QString(QChar(0xFF21))), 0);
}

TEST(ContactList, AChangeMovesTheRowAlone)
{
    ContactList list;
    for (const char *name : {"a", "b", "c", "d", "e"})
        list.add(named((std::string("10.0.0.") + std::to_string(name[0] - 'a' + 1)).c_str(), name, Presence::unknown));
    int moves = 0;
    int resets = 0;
    QObject::connect(&list, &QAbstractItemModel::rowsMoved, [&moves] { ++moves; });
    QObject::connect(&list, &QAbstractItemModel::layoutChanged, [&resets] { ++resets; });
    QObject::connect(&list, &QAbstractItemModel::modelReset, [&resets] { ++resets; });
    list.change(QStringLiteral("10.0.0.4"), [](Contact &d) { d.setPresence(Presence::online); });
    EXPECT_THAT(order(list), ElementsAre("d", "a", "b", "c", "e"));
    list.change(QStringLiteral("10.0.0.1"), [](Contact &a) { a.setPresence(Presence::offline); });
    EXPECT_THAT(order(list), ElementsAre("d", "b", "c", "e", "a"));
    list.change(QStringLiteral("10.0.0.4"), [](Contact &d) { d.state = QStringLiteral("x"); });
    EXPECT_EQ(moves, 2);
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(list.rowOf(QStringLiteral("10.0.0.5")), 3);
    EXPECT_EQ(list.rowOf(QStringLiteral("10.0.0.9")), -1);
}

TEST(ContactList, ChangingOrRemovingAStrangerDoesNothing)
{
    ContactList list;
    EXPECT_FALSE(list.change(QStringLiteral("10.0.0.9"), [](Contact &) { FAIL(); }));
    EXPECT_FALSE(list.remove(QStringLiteral("10.0.0.9")));
}

TEST(ContactList, ThreeContactsAreSavedWithTheirEndMarker)
{
    Copy copy(
        {.contacts = {{"10.0.0.2", "Ann", "PC-ANN"}, {"10.0.0.3", "Ben", "PC-BEN"}, {"10.0.0.4", "Cleo", "PC-CLEO"}}});
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Users", "IP1"), "10.0.0.2");
    EXPECT_EQ(copy.settings.value("Users", "Nn1"), "Ann");
    EXPECT_EQ(copy.settings.value("Users", "Ws1"), "PC-ANN");
    EXPECT_EQ(copy.settings.value("Users", "IP2"), "10.0.0.3");
    EXPECT_EQ(copy.settings.value("Users", "Nn2"), "Ben");
    EXPECT_EQ(copy.settings.value("Users", "Ws2"), "PC-BEN");
    EXPECT_EQ(copy.settings.value("Users", "IP3"), "10.0.0.4");
    EXPECT_EQ(copy.settings.value("Users", "Nn3"), "Cleo");
    EXPECT_EQ(copy.settings.value("Users", "Ws3"), "PC-CLEO");
    EXPECT_EQ(copy.settings.value("Users", "IP4"), "255.255.255.255");
    EXPECT_EQ(copy.settings.value("Users", "IP5"), "(missing)");
}

TEST(ContactList, ContactsAreSavedInListOrder)
{
    Copy copy({.contacts = {{"10.0.0.2", "Zoe"}, {"10.0.0.3", "Ann"}}});
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Users", "Nn1"), "Ann");
    EXPECT_EQ(copy.settings.value("Users", "Nn2"), "Zoe");
}

TEST(ContactList, AContactSavedWithoutNicknameShowsUnknown)
{
    MemoryStore store;
    store.put("Users", "IP1", QStringLiteral("10.0.0.2"));
    ContactList list;
    list.load(store);
    ASSERT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.at(0).nickname, QStringLiteral("[unknown]"));
    EXPECT_EQ(list.at(0).workstation, QStringLiteral("[unknown]"));
}

TEST(ContactList, NamesThatAreStoredEmptyShowUnknown)
{
    Copy copy({.contacts = {{"10.0.0.2", "", ""}}, .loaded = false});
    copy.engine.contacts().load(copy.settings);
    const Contact &nameless = copy.contact("10.0.0.2");
    EXPECT_EQ(nameless.nickname, QStringLiteral("[unknown]"));
    EXPECT_EQ(nameless.workstation, QStringLiteral("[unknown]"));
    EXPECT_EQ(nameless.sortKey, QStringLiteral("B_[unknown]"));
}

TEST(ContactList, AGapEndsTheStoredList)
{
    MemoryStore store;
    store.put("Users", "IP1", QStringLiteral("10.0.0.2"));
    store.put("Users", "IP3", QStringLiteral("10.0.0.4"));
    ContactList list;
    list.load(store);
    EXPECT_EQ(list.rowCount(), 1);
}

TEST(ContactList, EntriesBeyondTheMarkerAreNeverRead)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}, {"255.255.255.255", "End"}, {"10.0.0.4", "Old"}}});
    EXPECT_THAT(copy.names(), ElementsAre("Ann"));
}

TEST(ContactList, RemovingTheOnlyContactStoresTheMarkerFirst)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.2"));
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Users", "IP1"), "255.255.255.255");
}

TEST(ContactList, WhatALongerListLeftBehindTheMarkerIsEmptiedAndItsKeysStay)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann", "PC-ANN"},
                            {"10.0.0.3", "Ben", "PC-BEN"},
                            {"10.0.0.4", "Cleo", "PC-CLEO"},
                            {"10.0.0.5", "Dora", "PC-DORA"}}});
    for (const char *ip : {"10.0.0.3", "10.0.0.5"})
        copy.engine.contacts().remove(QString::fromLatin1(ip));
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Users", "Nn2"), "Cleo");
    EXPECT_EQ(copy.settings.value("Users", "IP3"), "255.255.255.255");
    for (const char *key : {"Nn3", "Ws3", "IP4", "Nn4", "Ws4"})
        EXPECT_EQ(copy.settings.value("Users", key), "") << key;
    EXPECT_EQ(copy.settings.value("Users", "IP5"), "(missing)");

    // Once it is empty nothing is written to it any more.
    Copy next({.loaded = false});
    next.settings.saved = copy.settings.saved;
    next.engine.mainWindow().Form_Load();
    next.engine.mainWindow().Form_Unload();
    EXPECT_THAT(next.settings.order, testing::Not(testing::Contains("Users/IP4")));
    EXPECT_THAT(next.settings.order, testing::Not(testing::Contains("Users/Nn3")));
}

TEST(ContactList, TheMarkersAddressIsSkippedWhenSaving)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.engine.contacts().add(named("255.255.255.255", "Aaron", Presence::online));
    copy.engine.contacts().add(named("10.0.0.3", "Ben", Presence::offline));
    copy.sent();
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Users", "IP1"), "10.0.0.2");
    EXPECT_EQ(copy.settings.value("Users", "IP2"), "10.0.0.3");
    EXPECT_EQ(copy.settings.value("Users", "IP3"), "255.255.255.255");
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "!OFFLINE 10.0.0.1 HERE Me"}, To{"10.0.0.3", "!OFFLINE 10.0.0.1 HERE Me"}));
}

} // namespace
} // namespace nimb::test
