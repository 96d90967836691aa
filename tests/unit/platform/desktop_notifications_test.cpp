#include "platform/desktop_notices.h"
#include "platform/desktop_notifications.h"

#include "protocol/address_text.h"
#include "session_bus.h"

#include <gmock/gmock.h>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QTest>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The desktop's service: notes what it is asked to show.
class NotificationService : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown {
        uint replaces;
        std::string summary, body;
        QStringList actions;
        int timeout;
    };

    std::vector<Shown> shown;
    std::vector<uint> closed; ///< by the program
    QStringList capabilities{QStringLiteral("body"), QStringLiteral("actions")};
    uint next = 7;
    int refusals = 0;    ///< so many questions for its capabilities end in an error
    bool breaks = false; ///< it shows nothing any more

public Q_SLOTS:
    // NOLINTBEGIN: the names are the service's
    QStringList GetCapabilities()
    {
        if (refusals > 0 && refusals-- > 0)
            sendErrorReply(QDBusError::Failed, QStringLiteral("not yet"));
        return capabilities;
    }
    uint Notify(const QString &, uint replaces, const QString &, const QString &summary, const QString &body,
                const QStringList &actions, const QVariantMap &, int timeout)
    {
        shown.push_back({replaces, summary.toStdString(), body.toStdString(), actions, timeout});
        if (breaks)
            sendErrorReply(QDBusError::Failed, QStringLiteral("broken"));
        return replaces != 0 ? replaces : next++;
    }
    void CloseNotification(uint id) { closed.push_back(id); }
    // NOLINTEND

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action);
    void NotificationClosed(uint id, uint reason);
    void NotificationReplied(uint id, const QString &text);
};

/// A session bus of its own, with the service on it.
class DesktopNotificationsTest : public testing::Test
{
protected:
    DesktopNotificationsTest() { here.emplace(QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("here"))); }
    ~DesktopNotificationsTest() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("here"));
        QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
    }

    void startService()
    {
        QDBusConnection desktop = QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("desktop"));
        ASSERT_TRUE(desktop.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &service,
                                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        ASSERT_TRUE(desktop.registerService(QStringLiteral("org.freedesktop.Notifications")));
    }
    /// Another program takes the service's place, under the same name. The service notes for both.
    void restartService()
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
        startService();
        settle();
    }
    void make()
    {
        notifications.emplace(common, *here);
        QObject::connect(&*notifications, &DesktopNotifications::contactWanted, &*notifications,
                         [this](Ipv4Address ip) { wanted.push_back(ip.toText()); });
    }
    void happen(const char *text, const char *ip = "10.0.0.2")
    {
        notifications->add({QString::fromUtf8(text), Presence::online, readAddress(QString::fromLatin1(ip)).value()});
        notifications->startTimer();
    }
    bool waitForShown(std::size_t number)
    {
        return QTest::qWaitFor([&] { return service.shown.size() >= number; }, 30000);
    }
    /// Until everything that was sent over the bus before has arrived.
    void settle()
    {
        bool answered = false;
        QDBusMessage ping = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
            QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
        QDBusPendingCallWatcher watcher(here->asyncCall(ping));
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &watcher, [&answered] { answered = true; });
        EXPECT_TRUE(QTest::qWaitFor([&answered] { return answered; }, 30000));
        QCoreApplication::processEvents();
    }

    SessionBus m_bus;
    std::optional<QDBusConnection> here;
    NotificationService service;
    Common common;
    std::optional<DesktopNotifications> notifications;
    std::vector<std::string> wanted;
};

TEST_F(DesktopNotificationsTest, ShowsWhatHappenedForFiveSeconds)
{
    startService();
    make();
    happen("Ann is online");
    ASSERT_TRUE(waitForShown(1));
    const NotificationService::Shown &shown = service.shown.front();
    EXPECT_EQ(shown.replaces, 0u);
    EXPECT_EQ(shown.summary, "NIMBChat Notify!");
    EXPECT_EQ(shown.body, "Ann is online");
    EXPECT_EQ(shown.timeout, 5000);
    EXPECT_EQ(shown.actions.value(0), QStringLiteral("default"));
}

TEST_F(DesktopNotificationsTest, ASecondEventReplacesTheNotificationRatherThanStack)
{
    startService();
    make();
    happen("Ann is online");
    ASSERT_TRUE(waitForShown(1));
    settle();
    happen("Ben is offline");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].replaces, 7u);
    EXPECT_EQ(service.shown[1].body, "Ann is online\nBen is offline");
}

TEST_F(DesktopNotificationsTest, EventsWhileItIsAskedGoTogether)
{
    startService();
    make();
    for (const char *const text : {"1", "2", "3", "4", "5", "6", "7"})
        happen(text);
    ASSERT_TRUE(waitForShown(2));
    settle();
    EXPECT_THAT(service.shown, SizeIs(2));
    EXPECT_EQ(service.shown[1].replaces, 7u);
    EXPECT_EQ(service.shown[1].body, "(2 more)\n3\n4\n5\n6\n7");
}

TEST_F(DesktopNotificationsTest, AfterItIsGoneTheNextOneBeginsAnew)
{
    startService();
    make();
    happen("Ann is online");
    ASSERT_TRUE(waitForShown(1));
    settle();
    Q_EMIT service.NotificationClosed(7, 1);
    settle();
    happen("Ben is offline");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].replaces, 0u);
    EXPECT_EQ(service.shown[1].body, "Ben is offline");
}

TEST_F(DesktopNotificationsTest, AClickShowsTheContactOfTheNewestRow)
{
    startService();
    make();
    happen("Ann is online", "10.0.0.2");
    ASSERT_TRUE(waitForShown(1));
    settle();
    happen("Ben is offline", "10.0.0.3");
    ASSERT_TRUE(waitForShown(2));
    settle();
    Q_EMIT service.ActionInvoked(99, QStringLiteral("default"));
    Q_EMIT service.ActionInvoked(7, QStringLiteral("something else"));
    settle();
    EXPECT_THAT(wanted, IsEmpty()) << "that was another program's, or another button";
    Q_EMIT service.ActionInvoked(7, QStringLiteral("default"));
    settle();
    EXPECT_THAT(wanted, ElementsAre("10.0.0.3"));
}

TEST_F(DesktopNotificationsTest, MarkupIsShownWhetherTheDesktopKnowsMarkupOrNot)
{
    startService();
    make();
    happen("<b>Ann</b> & Co is online");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service.shown[0].body, "<b>Ann</b> & Co is online");
    service.capabilities.append(QStringLiteral("body-markup"));
    make();
    happen("<b>Ann</b> & Co is online");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].body, "&lt;b&gt;Ann&lt;/b&gt; &amp; Co is online");
}

TEST_F(DesktopNotificationsTest, AnotherServiceIsAskedWhatItCanAndItsNumbersAreItsOwn)
{
    startService();
    make();
    happen("<b>Ann</b> is online");
    ASSERT_TRUE(waitForShown(1));
    settle();
    service.capabilities.append(QStringLiteral("body-markup"));
    restartService();
    happen("Ben is offline");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].replaces, 0u);
    EXPECT_EQ(service.shown[1].body, "&lt;b&gt;Ann&lt;/b&gt; is online\nBen is offline");
}

TEST_F(DesktopNotificationsTest, WhileThePopUpIsSwitchedOffNothingIsShownOrKept)
{
    startService();
    make();
    common.options.notifyWindow = false;
    happen("Ann is online");
    settle();
    EXPECT_THAT(service.shown, IsEmpty());
    common.options.notifyWindow = true;
    happen("Ben is offline");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service.shown[0].body, "Ben is offline");
}

TEST_F(DesktopNotificationsTest, WithoutTheServiceNothingHappensUntilItIsThere)
{
    make();
    happen("Ann is online");
    bool gone = false;
    QDBusPendingCallWatcher watcher(here->asyncCall(
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"))));
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &watcher, [&gone] { gone = true; });
    EXPECT_TRUE(QTest::qWaitFor([&gone] { return gone; }, 30000));
    startService();
    happen("Ben is offline");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service.shown[0].body, "Ben is offline");
}

TEST_F(DesktopNotificationsTest, WhatComesWhileTheServiceRefusesIsAskedForAnew)
{
    startService();
    service.refusals = 1;
    make();
    happen("Ann is online");
    happen("Ben is offline");
    ASSERT_TRUE(waitForShown(1));
    settle();
    ASSERT_THAT(service.shown, SizeIs(1));
    EXPECT_EQ(service.shown[0].body, "Ben is offline");
}

TEST_F(DesktopNotificationsTest, AServiceThatRefusesIsNotAskedTwiceForTheSame)
{
    startService();
    service.refusals = 1;
    make();
    happen("Ann is online");
    ASSERT_TRUE(QTest::qWaitFor([this] { return service.refusals == 0; }, 30000));
    settle();
    EXPECT_THAT(service.shown, IsEmpty());
    happen("Ben is offline");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service.shown[0].body, "Ben is offline");
}

TEST_F(DesktopNotificationsTest, WithoutABusNothingHappens)
{
    notifications.emplace(common, QDBusConnection(QStringLiteral("nowhere")));
    happen("Ann is online");
    QCoreApplication::processEvents();
    EXPECT_THAT(service.shown, IsEmpty());
}

// --- what somebody has sent

const NoticePlace fromAnn{NoticeWindow::privateChat, Ipv4Address(10, 0, 0, 2)};
const NoticePlace fromBen{NoticeWindow::privateChat, Ipv4Address(10, 0, 0, 3)};

class DesktopNoticesTest : public DesktopNotificationsTest
{
protected:
    void make()
    {
        notices.emplace(*here);
        QObject::connect(&*notices, &DesktopNotices::opened, &*notices,
                         [this](const NoticePlace &place) { opened.push_back(place); });
        QObject::connect(&*notices, &DesktopNotices::answered, &*notices,
                         [this](const NoticePlace &place, const QString &text) {
                             answered.emplace_back(place, text.toStdString());
                         });
        QObject::connect(&*notices, &DesktopNotices::refused, &*notices,
                         [this](const Notice &notice) { refused.push_back(notice.text.toStdString()); });
    }
    void makeWithService()
    {
        startService();
        make();
    }
    void show(const NoticePlace &place, const char *text, bool mayBeAnswered = true)
    {
        notices->show({.place = place,
                       .title = QStringLiteral("Somebody"),
                       .text = QString::fromUtf8(text),
                       .mayBeAnswered = mayBeAnswered});
    }

    std::optional<DesktopNotices> notices;
    std::vector<NoticePlace> opened;
    std::vector<std::pair<NoticePlace, std::string>> answered;
    std::vector<std::string> refused;
};

TEST_F(DesktopNoticesTest, EachSenderHasANotificationOfItsOwn)
{
    makeWithService();
    show(fromAnn, "hello");
    show(fromBen, "hi");
    ASSERT_TRUE(waitForShown(2));
    settle();
    show(fromAnn, "are you there?");
    ASSERT_TRUE(waitForShown(3));
    EXPECT_EQ(service.shown[0].summary, "Somebody");
    EXPECT_EQ(service.shown[0].body, "hello");
    EXPECT_EQ(service.shown[0].replaces, 0u);
    EXPECT_EQ(service.shown[1].replaces, 0u);
    EXPECT_EQ(service.shown[2].body, "are you there?");
    EXPECT_EQ(service.shown[2].replaces, 7u) << "it stands beside the first one";
    EXPECT_THAT(refused, IsEmpty());
}

TEST_F(DesktopNoticesTest, WhatComesBeforeTheServiceHasAnsweredReplacesToo)
{
    makeWithService();
    show(fromAnn, "one");
    ASSERT_TRUE(waitForShown(1));
    show(fromAnn, "two");
    show(fromAnn, "three");
    EXPECT_TRUE(QTest::qWaitFor([this] { return service.shown.back().body == "three"; }, 30000));
    for (std::size_t later = 1; later < service.shown.size(); ++later)
        EXPECT_EQ(service.shown[later].replaces, 7u);
}

TEST_F(DesktopNoticesTest, OffersReplyWhereTheServiceCanAndOpenWhereNot)
{
    makeWithService();
    show(fromAnn, "hello");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service.shown[0].actions, QStringList({"default", "Open", "open", "Open"}));
    service.capabilities.append(QStringLiteral("inline-reply"));
    make();
    show(fromAnn, "hello");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].actions, QStringList({"default", "Open", "inline-reply", "Reply"}));
    show(fromBen, "Ben invites you to a conference", false);
    ASSERT_TRUE(waitForShown(3));
    EXPECT_EQ(service.shown[2].actions, QStringList({"default", "Open", "open", "Open"}));
}

TEST_F(DesktopNoticesTest, AnotherServiceIsAskedWhatItCanAndItsNumbersAreItsOwn)
{
    makeWithService();
    show(fromAnn, "<b>one</b>");
    ASSERT_TRUE(waitForShown(1));
    settle();
    service.capabilities.append(QStringLiteral("body-markup"));
    restartService();
    show(fromAnn, "<b>two</b>");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[0].body, "<b>one</b>");
    EXPECT_EQ(service.shown[1].body, "&lt;b&gt;two&lt;/b&gt;");
    EXPECT_EQ(service.shown[1].replaces, 0u);
}

TEST_F(DesktopNoticesTest, AClickOpensWhatItIsAbout)
{
    makeWithService();
    show(fromAnn, "hello");
    show(fromBen, "hi");
    ASSERT_TRUE(waitForShown(2));
    settle();
    Q_EMIT service.ActionInvoked(99, QStringLiteral("default"));
    Q_EMIT service.ActionInvoked(7, QStringLiteral("something else"));
    Q_EMIT service.ActionInvoked(8, QStringLiteral("default"));
    Q_EMIT service.ActionInvoked(7, QStringLiteral("open"));
    settle();
    EXPECT_THAT(opened, ElementsAre(fromBen, fromAnn));
}

TEST_F(DesktopNoticesTest, AReplyIsHandedOver)
{
    makeWithService();
    show(fromAnn, "hello");
    ASSERT_TRUE(waitForShown(1));
    settle();
    Q_EMIT service.NotificationReplied(99, QStringLiteral("not ours"));
    Q_EMIT service.NotificationReplied(7, QStringLiteral("hello yourself"));
    settle();
    EXPECT_THAT(answered, ElementsAre(testing::Pair(fromAnn, "hello yourself")));
}

TEST_F(DesktopNoticesTest, WhatHasBeenSeenGoes)
{
    makeWithService();
    show(fromAnn, "hello");
    ASSERT_TRUE(waitForShown(1));
    settle();
    notices->withdraw(fromBen);
    notices->withdraw(fromAnn);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !service.closed.empty(); }, 30000));
    EXPECT_THAT(service.closed, ElementsAre(7u));
}

TEST_F(DesktopNoticesTest, WhatHasBeenSeenBeforeItStandsGoesAsSoonAsItDoes)
{
    makeWithService();
    show(fromAnn, "hello");
    ASSERT_TRUE(waitForShown(1));
    notices->withdraw(fromAnn);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !service.closed.empty(); }, 30000));
    EXPECT_THAT(service.closed, ElementsAre(7u));
    show(fromAnn, "again");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].replaces, 0u);
}

TEST_F(DesktopNoticesTest, WhatHasBeenSeenBeforeTheServiceIsKnownIsNeverShown)
{
    makeWithService();
    show(fromAnn, "hello");
    show(fromBen, "hi");
    notices->withdraw(fromAnn);
    ASSERT_TRUE(waitForShown(1));
    settle();
    ASSERT_THAT(service.shown, SizeIs(1));
    EXPECT_EQ(service.shown[0].body, "hi");
}

TEST_F(DesktopNoticesTest, AfterItIsGoneTheNextOneBeginsAnew)
{
    makeWithService();
    show(fromAnn, "hello");
    ASSERT_TRUE(waitForShown(1));
    settle();
    Q_EMIT service.NotificationClosed(7, 1);
    settle();
    show(fromAnn, "again");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].replaces, 0u);
}

TEST_F(DesktopNoticesTest, MarkupIsShownWhetherTheDesktopKnowsMarkupOrNot)
{
    makeWithService();
    show(fromAnn, "<b>1</b> & 2");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service.shown[0].body, "<b>1</b> & 2");
    service.capabilities.append(QStringLiteral("body-markup"));
    make();
    show(fromAnn, "<b>1</b> & 2");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].body, "&lt;b&gt;1&lt;/b&gt; &amp; 2");
}

TEST_F(DesktopNoticesTest, WithoutTheServiceEverythingIsGivenBackUntilItIsThere)
{
    make();
    show(fromAnn, "hello");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !refused.empty(); }, 30000));
    EXPECT_THAT(refused, ElementsAre("hello"));
    startService();
    show(fromAnn, "again");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service.shown[0].body, "again");
    EXPECT_THAT(refused, SizeIs(1));
}

TEST_F(DesktopNoticesTest, WhatABrokenServiceDoesNotShowIsGivenBack)
{
    makeWithService();
    service.breaks = true;
    show(fromAnn, "one");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !refused.empty(); }, 30000));
    EXPECT_THAT(refused, ElementsAre("one"));
    service.breaks = false;
    show(fromAnn, "two");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service.shown[1].body, "two");
    EXPECT_EQ(service.shown[1].replaces, 0u);
}

TEST_F(DesktopNoticesTest, WithoutABusEverythingIsGivenBack)
{
    here.emplace(QDBusConnection(QStringLiteral("nowhere")));
    make();
    show(fromAnn, "hello");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !refused.empty(); }, 30000));
    EXPECT_THAT(refused, ElementsAre("hello"));
}

} // namespace
} // namespace nimb::test

#include "desktop_notifications_test.moc"
