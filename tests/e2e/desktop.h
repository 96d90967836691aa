// A screen that nobody sees, and the hands and eyes of a user who sits before it.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace nimb::test
{

/// Longer than anything takes on a busy machine; only a failure waits for so long. After the first failure of a test
/// little, so that the others end it soon.
std::chrono::milliseconds patience();

/// Looks again and again while events are handled; false when the condition did not come true in time.
bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds limit = patience());

/// Virtual screen and window manager of one test executable. While it is set up, DISPLAY names the screen, and every
/// process that is started finds it. On a machine where they do not start every test fails.
class Desktop : public testing::Environment
{
public:
    void SetUp() override;
    void TearDown() override;

private:
    void start();
    void startScreen();
    void loadKeyboard();
    void startWindowManager();

    QTemporaryDir m_folder;
    QProcess m_screen;
    QProcess m_windowManager;
};

/// A top-level window, seen from outside.
class Window
{
public:
    enum class State { shown, minimised, hidden };

    /// In pixels; the place is the frame's, the size what is inside it.
    struct Place {
        int left, top, width, height;
    };

    /// All windows that the window manager knows by exactly this caption, in no order.
    static std::vector<Window> all(const std::string &caption);
    /// Waits for the one window of this caption; a test failure and a null window when there is none in time.
    static Window waitFor(const std::string &caption);
    /// The same for a window that is no business of the window manager.
    static Window waitForUnmanaged(const std::string &caption);
    static bool exists(const std::string &caption) { return !all(caption).empty(); }
    /// How many the window manager knows, minimised ones included.
    static std::size_t numberOfManaged();
    /// How many of the program there are, menus included.
    static std::size_t numberOfVisible();
    /// The one that has the focus; null when there is none.
    static Window active();

    Window() = default;
    /// As the X server numbers it, decimal; empty for the null window.
    explicit Window(const QByteArray &id) : m_id(id) { }
    const QByteArray &id() const { return m_id; }
    bool isNull() const { return m_id.isEmpty(); }

    std::string caption() const;
    State state() const;
    bool becomes(State state) const;
    bool isActive() const;
    bool wantsAttention() const;
    Place place() const;
    /// Whether a pixel of exactly this colour, 0xRRGGBB, is inside it, as far as nothing lies over it.
    bool shows(std::uint32_t colour) const;
    /// Part of what is inside it, as far as nothing lies over it: a row of colours, 0xRRGGBB, for each line.
    std::vector<std::vector<std::uint32_t>> picture(int left, int top, int width, int height) const;

    /// As a click on its taskbar button does: the window is restored, raised and has the focus afterwards.
    void activate() const;
    void minimise() const;
    void move(int left, int top) const;
    /// Asks for this size inside the frame, as dragging the frame does.
    void resize(int width, int height) const;
    /// Clicks on the close box.
    void close() const;
    /// Presses a mouse button this often, at a place counted from the window's upper left corner without its frame.
    void click(int x, int y, int times = 1, int button = 1) const;

    bool operator==(const Window &) const = default;

private:
    QByteArray property(const char *name) const;

    QByteArray m_id;
};

std::ostream &operator<<(std::ostream &out, Window::State state);

/// Types into whatever has the focus. The keyboard has every ASCII character, äöüß€ and 😀.
void type(const std::string &utf8);
/// Presses a key or a combination, as in "Return" or "ctrl+a".
void press(const std::string &key);
/// Returns when the window manager has dealt with everything that happened before.
void letWindowsSettle();

} // namespace nimb::test
