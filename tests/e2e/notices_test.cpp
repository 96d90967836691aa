// What arrives for a window at which nobody looks, on a desktop with a notification service, dunst, and without one.
#include "chat_windows.h"
#include "child_process.h"
#include "running_copy.h"
#include "session_bus.h"
#include "tray_program.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

class NoticesTest : public testing::Test
{
protected:
    /// The copy is there and heard, its window the active one.
    MainWindow start() { return MainWindow::startBob(bob, ann); }
    /// Whose window a double click opens, for it is known that she is there.
    void writeAsOnline(const char *message)
    {
        ann.send(bob.address(), "!ONLINE 127.0.51.2 ANN-PC Ann");
        ann.send(bob.address(), message);
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.51.2", port};
    RunningCopy bob{{"127.0.51.1", "BOB-PC"}, profile(port, {{"127.0.51.2", "Ann", "ANN-PC"}})};
};

class DesktopNoticesOfDunst : public NoticesTest
{
protected:
    DesktopNoticesOfDunst()
    {
        bob.setVariable(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
        service.setProcessEnvironment(environment);
        endWithParent(service);
        service.start(QStringLiteral("dunst"), {QStringLiteral("-config"), QStringLiteral("/dev/null")});
        EXPECT_TRUE(waitUntil([this] { return displayed() == 0; })) << "dunst does not start";
    }
    ~DesktopNoticesOfDunst() override { endProcess(service); }

    QByteArray control(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(service.processEnvironment());
        process.start(QStringLiteral("dunstctl"), arguments);
        EXPECT_TRUE(process.waitForFinished(static_cast<int>(patience().count())));
        return process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
    }
    /// How many notifications stand; -1 while the service is not there.
    int displayed() const
    {
        bool isNumber = false;
        const int number = control({"count", "displayed"}).trimmed().toInt(&isNumber);
        return isNumber ? number : -1;
    }
    /// What those say that are gone.
    std::string history() const { return control({"history"}).toStdString(); }

    SessionBus bus;
    QProcess service;
};

TEST_F(DesktopNoticesOfDunst, AMessageIsToldWithoutTakingTheFocusAndAClickOpensTheConversation)
{
    const MainWindow main = start();
    ann.send(bob.address(), "-hello");
    EXPECT_TRUE(waitUntil([this] { return displayed() == 1; }));
    EXPECT_TRUE(main.isActive());
    control({"action", "0"});
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_TRUE(waitUntil([&window] { return window.isActive(); }));
    EXPECT_TRUE(waitUntil([this] { return displayed() == 0; })) << "what is looked at is still told of";
}

TEST_F(DesktopNoticesOfDunst, ASenderHasOneNotificationThatCounts)
{
    start();
    ann.send(bob.address(), "-one");
    EXPECT_TRUE(waitUntil([this] { return displayed() == 1; }));
    ann.send(bob.address(), "-two");
    ann.send(bob.address(), "-three");
    // The last of them is told a second later, in the place of the first.
    EXPECT_TRUE(waitUntil([this] {
        control({"close-all"});
        return history().find("Ann (3)") != std::string::npos;
    }));
    EXPECT_NE(history().find("three"), std::string::npos);
}

TEST_F(DesktopNoticesOfDunst, WhatIsReadInTheConversationIsNoLongerToldOf)
{
    const MainWindow main = start();
    writeAsOnline("-hello");
    EXPECT_TRUE(waitUntil([this] { return displayed() == 1; }));
    main.openContact(0);
    EXPECT_TRUE(waitUntil([this] { return displayed() == 0; }));
}

TEST_F(DesktopNoticesOfDunst, WhenTheServiceGoesThePopUpTellsWhatComes)
{
    start();
    ann.send(bob.address(), "-hello");
    EXPECT_TRUE(waitUntil([this] { return displayed() == 1; }));
    endProcess(service);
    const Window popUp = Window::waitForUnmanaged("NIMBChat Notify!");
    const int parked = popUp.place().top;
    ann.send(bob.address(), "-are you there?");
    EXPECT_TRUE(waitUntil([&] { return popUp.place().top < parked; }));
}

TEST_F(NoticesTest, WithoutAServiceThePopUpTellsAndAClickOpensTheConversation)
{
    const MainWindow main = start();
    const Window popUp = Window::waitForUnmanaged("NIMBChat Notify!");
    const int parked = popUp.place().top;
    ann.send(bob.address(), "-hello");
    EXPECT_TRUE(waitUntil([&] { return popUp.place().top <= parked - popUp.place().height - 24; }));
    EXPECT_TRUE(main.isActive());
    popUp.click(60, 45);
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_TRUE(waitUntil([&window] { return window.isActive(); }));
    EXPECT_TRUE(waitUntil([&] { return popUp.place().top == parked; })) << "what is looked at is still told of";
}

TEST_F(NoticesTest, TheTrayIconBearsABadgeUntilTheMessageIsRead)
{
    constexpr std::uint32_t badge = 0xC62828;
    const TrayProgram tray;
    const MainWindow main = start();
    const Window icon = tray.icon();
    EXPECT_FALSE(icon.shows(badge));
    writeAsOnline("-hello");
    EXPECT_TRUE(waitUntil([&] { return icon.shows(badge); }));
    main.openContact(0);
    EXPECT_TRUE(waitUntil([&] { return !icon.shows(badge); }));
}

} // namespace
} // namespace nimb::test
