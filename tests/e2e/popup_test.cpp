// The notification pop-up on a real screen: it comes and goes, and whoever types goes on typing.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;

constexpr int distanceFromRight = 8;   // pixels
constexpr int distanceFromBottom = 16; // pixels; the last step may lead one or two beyond it
constexpr int parkedBelowScreen = 8;   // pixels

class PopUpTest : public testing::Test
{
protected:
    void start()
    {
        bob.start({"Bob"});
        ann.hearUntil("!STATUS Online");
        popUp = Window::waitForUnmanaged("NIMBChat Notify!");
        const Window::Place place = popUp.place();
        screenWidth = place.left + place.width + distanceFromRight;
        screenHeight = place.top - parkedBelowScreen;
        // From now on the announcement of the start is over, and whoever comes is told of.
        EXPECT_TRUE(waitUntil([this] {
            ann.send(bob.address(), "!OFFLINE");
            ann.send(bob.address(), "!ONLINE 127.0.48.2 ANN-PC Ann");
            return waitUntil([this] { return isAbove(screenHeight); }, std::chrono::milliseconds(300));
        }));
        dismiss();
    }
    bool isAbove(int height) const { return popUp.place().top < height; }
    bool rises() const
    {
        const int risen = screenHeight - popUp.place().height - distanceFromBottom;
        return waitUntil([&] { return popUp.place().top <= risen; });
    }
    bool parks() const
    {
        return waitUntil([this] { return popUp.place().top == screenHeight + parkedBelowScreen; });
    }
    /// By its button "hide".
    void dismiss() const
    {
        EXPECT_TRUE(rises());
        popUp.click(popUp.place().width - 40, 18);
        EXPECT_TRUE(parks());
    }

    std::uint16_t port = freePort();
    WirePeer ann{"127.0.48.2", port};
    RunningCopy bob{{"127.0.48.1", "BOB-PC"}, profile(port, {{"127.0.48.2", "Ann", "ANN-PC"}})};
    Window popUp;
    int screenWidth = 0, screenHeight = 0;
};

TEST_F(PopUpTest, RisesAndVanishesByItself)
{
    start();
    ann.send(bob.address(), "!OFFLINE");
    EXPECT_TRUE(rises());
    const Window::Place place = popUp.place();
    EXPECT_GE(place.top, screenHeight - place.height - distanceFromBottom - 2);
    EXPECT_EQ(place.left, screenWidth - place.width - distanceFromRight);
    EXPECT_TRUE(parks());
}

TEST_F(PopUpTest, WhoTypesGoesOnTypingWhileItRisesAndStands)
{
    start();
    ann.send(bob.address(), "-hello");
    const PrivateWindow window = PrivateWindow::with("Ann");
    window.focusInput();
    type("one ");
    ann.send(bob.address(), "!OFFLINE");
    EXPECT_TRUE(waitUntil([this] { return isAbove(screenHeight); }));
    type("two ");
    EXPECT_TRUE(window.isActive());
    EXPECT_TRUE(rises());
    type("three");
    EXPECT_TRUE(window.isActive());
    dismiss();
    EXPECT_TRUE(window.isActive()) << "its button took the focus";
    press("Return");
    EXPECT_EQ(ann.hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); }).bytes, "-one two three");
}

TEST_F(PopUpTest, StaysAboveTheWindowThatTheUserBringsToTheFront)
{
    start();
    const MainWindow main = MainWindow::of("Bob");
    main.activate();
    main.move(screenWidth - 700, screenHeight - 600);
    ann.send(bob.address(), "!OFFLINE");
    EXPECT_TRUE(rises());
    main.activate();
    // The click must hit the pop-up and not what lies behind it.
    dismiss();
}

TEST_F(PopUpTest, AClickOnARowBringsTheMainWindowBack)
{
    start();
    const MainWindow main = MainWindow::of("Bob");
    EXPECT_TRUE(main.becomes(Window::State::minimised));
    ann.send(bob.address(), "!OFFLINE");
    EXPECT_TRUE(rises());
    popUp.click(60, 45);
    EXPECT_TRUE(waitUntil([&] { return main.isActive() && main.state() == Window::State::shown; }));
}

TEST_F(PopUpTest, WithoutItNothingIsEverSeen)
{
    bob.writeStore({{{"Options", "NotifyWin"}, "0"}});
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    const Window hidden = Window::waitForUnmanaged("NIMBChat Notify!");
    const int parked = hidden.place().top;
    for (int i = 0; i < 20; ++i) {
        ann.send(bob.address(), "!OFFLINE");
        ann.send(bob.address(), "?ONLINE");
        ann.hearUntil("!STATUS Online");
    }
    EXPECT_EQ(hidden.place().top, parked);
}

} // namespace
} // namespace nimb::test
