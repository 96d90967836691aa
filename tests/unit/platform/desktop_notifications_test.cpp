#include "platform/desktop_notifications.h"

#include "child_process.h"
#include "protocol/address_text.h"

#include <gmock/gmock.h>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
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
    QStringList capabilities{QStringLiteral("body"), QStringLiteral("actions")};
    uint next = 7;
    int refusals = 0; ///< so many questions for its capabilities end in an error

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
        return replaces != 0 ? replaces : next++;
    }
    // NOLINTEND

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action);
    void NotificationClosed(uint id, uint reason);
};

/// A session bus of its own, with the service on it.
class DesktopNotificationsTest : public testing::Test
{
protected:
    DesktopNotificationsTest()
    {
        endWithParent(m_bus);
        // Without the services that are installed here, which a bus of the usual kind would start.
        QFile rules(m_folder.filePath(QStringLiteral("bus.conf")));
        EXPECT_TRUE(rules.open(QFile::WriteOnly));
        rules.write(R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
  </policy>
</busconfig>)");
        rules.close();
        m_bus.start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                     QStringLiteral("--config-file=") + rules.fileName()});
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_bus.canReadLine(); }, 30000)) << "no session bus";
        address = QString::fromLocal8Bit(m_bus.readLine().trimmed());
        here.emplace(QDBusConnection::connectToBus(address, QStringLiteral("here")));
    }
    ~DesktopNotificationsTest() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("here"));
        QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
        endProcess(m_bus);
    }

    void startService()
    {
        QDBusConnection desktop = QDBusConnection::connectToBus(address, QStringLiteral("desktop"));
        ASSERT_TRUE(desktop.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &service,
                                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        ASSERT_TRUE(desktop.registerService(QStringLiteral("org.freedesktop.Notifications")));
    }
    void make()
    {
        notifications.emplace(common, *here);
        QObject::connect(&*notifications, &DesktopNotifications::contactWanted, &*notifications,
                         [this](const QString &ip) { wanted.push_back(ip.toStdString()); });
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

    QTemporaryDir m_folder;
    QProcess m_bus;
    QString address;
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

} // namespace
} // namespace nimb::test

#include "desktop_notifications_test.moc"
