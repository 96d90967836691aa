// The icon in the notification area, on screens that have one, have none, get one and lose it.
#include "chat_windows.h"
#include "running_copy.h"
#include "tray_program.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <optional>

namespace nimb::test
{
namespace
{

using State = Window::State;

class TrayTest : public testing::Test
{
protected:
    /// A copy whose close box does not end it, started and heard by Ann, its window shown.
    MainWindow start() { return MainWindow::startBob(bob, ann); }

    /// Returns when everything that the user did has been dealt with: what he does now comes after it.
    void settle(const MainWindow &main) { main.rescanUntilHeard(ann); }

    static void clickOn(const Window &icon, int times = 1, int button = 1) { icon.click(8, 8, times, button); }

    /// Whether it hears and answers.
    bool answers()
    {
        ann.send(bob.address(), "?ONLINE");
        return ann.hearUntil("!STATUS Online").size() == 2;
    }

    std::string log(const MainWindow &main)
    {
        ann.send(bob.address(), "-show me");
        return logHeardBy(ann, main, PrivateWindow::with("Ann"));
    }

    static int count(const std::string &text, const std::string &part)
    {
        int found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++found;
        return found;
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.35.2", port};
    RunningCopy bob{{"127.0.35.1", "BOB-PC"},
                    profile(port, {{"127.0.35.2", "Ann", "ANN-PC"}}, {{{"Options", "CloseButtonDoesMinimize"}, "1"}})};
};

constexpr char whyMinimised[] = "--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---";

TEST_F(TrayTest, TheCloseBoxHidesTheWindowAndAClickBringsItBack)
{
    const TrayProgram tray;
    const MainWindow main = start();
    const Window icon = tray.icon();
    for (const int button : {1, 3}) {
        SCOPED_TRACE(button);
        main.close();
        EXPECT_TRUE(main.becomes(State::hidden)) << main.state();
        EXPECT_TRUE(answers());
        EXPECT_EQ(main.state(), State::hidden);
        clickOn(icon, 1, button);
        EXPECT_TRUE(main.becomes(State::shown)) << main.state();
        EXPECT_TRUE(waitUntil([&] { return main.isActive(); }));
    }
    EXPECT_EQ(count(log(main), whyMinimised), 0);
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(TrayTest, AClickRestoresAMinimisedWindow)
{
    const TrayProgram tray;
    const MainWindow main = start();
    const Window icon = tray.icon();
    for (const int button : {1, 3}) {
        main.minimise();
        clickOn(icon, 1, button);
        EXPECT_TRUE(main.becomes(State::shown)) << main.state();
        EXPECT_TRUE(waitUntil([&] { return main.isActive(); }));
    }
}

TEST_F(TrayTest, ADoubleClickDoesNothingMore)
{
    const TrayProgram tray;
    const MainWindow main = start();
    const Window icon = tray.icon();
    main.close();
    EXPECT_TRUE(main.becomes(State::hidden));
    const std::size_t hidden = Window::numberOfVisible();
    clickOn(icon, 2);
    EXPECT_TRUE(main.becomes(State::shown)) << main.state();
    settle(main);
    EXPECT_EQ(main.state(), State::shown);
    EXPECT_EQ(Window::numberOfVisible(), hidden + 1) << "something else opened";
    // Nor on a window that is shown already; other buttons do nothing at all.
    clickOn(icon, 2);
    settle(main);
    EXPECT_EQ(main.state(), State::shown);
    EXPECT_EQ(Window::numberOfVisible(), hidden + 1) << "something else opened";
    main.minimise();
    clickOn(icon, 1, 2);
    EXPECT_TRUE(answers());
    letWindowsSettle();
    EXPECT_EQ(main.state(), State::minimised);
}

TEST_F(TrayTest, TheIconGoesWithTheProgram)
{
    const TrayProgram tray;
    start();
    tray.icon();
    EXPECT_EQ(bob.end(), 0);
    EXPECT_TRUE(waitUntil([&] { return tray.iconNow().isNull(); }));
}

TEST_F(TrayTest, WithoutATrayTheCloseBoxMinimisesAndTheLogSaysOnceWhy)
{
    const MainWindow main = start();
    for (int round = 0; round < 2; ++round) {
        main.close();
        EXPECT_TRUE(main.becomes(State::minimised)) << main.state();
        EXPECT_TRUE(answers());
        EXPECT_EQ(main.state(), State::minimised);
        main.activate();
    }
    EXPECT_EQ(count(log(main), whyMinimised), 1);
}

TEST_F(TrayTest, ATrayThatStartsLaterIsUsedFromThenOn)
{
    const MainWindow main = start();
    main.close();
    EXPECT_TRUE(main.becomes(State::minimised)) << main.state();

    const TrayProgram tray;
    const Window icon = tray.icon();
    clickOn(icon);
    EXPECT_TRUE(main.becomes(State::shown)) << main.state();
    main.close();
    EXPECT_TRUE(main.becomes(State::hidden)) << main.state();
    clickOn(icon, 1, 3); // another button, for two quick clicks of one were a double click
    EXPECT_TRUE(main.becomes(State::shown)) << main.state();
}

TEST_F(TrayTest, ATrayThatDiesHidesNothingAnyMore)
{
    std::optional<TrayProgram> tray(std::in_place);
    const MainWindow main = start();
    clickOn(tray->icon());
    tray->kill();
    main.close();
    EXPECT_TRUE(main.becomes(State::minimised)) << main.state();
    main.activate();
    EXPECT_EQ(count(log(main), whyMinimised), 1);

    // Its successor is as good.
    tray.emplace();
    const Window icon = tray->icon();
    main.close();
    EXPECT_TRUE(main.becomes(State::hidden)) << main.state();
    clickOn(icon, 1, 3); // another button, for two quick clicks of one were a double click
    EXPECT_TRUE(main.becomes(State::shown)) << main.state();
    EXPECT_EQ(bob.end(), 0);
}

} // namespace
} // namespace nimb::test
