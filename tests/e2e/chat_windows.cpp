#include "chat_windows.h"

#include <algorithm>
#include <cstdlib>

namespace nimb::test
{
namespace
{

/// A point in pixels from the upper left corner of a window.
struct Point {
    int x, y;
};

// Main window, by its fixed layout: the chooser, the rows and the log below the menu bar, which is 20 to 30 high.
constexpr Point stateChooser = {150, 47};
constexpr Point firstRow = {150, 108};
constexpr int rowHeight = 32;
constexpr Point findEverybody = {150, 220};
constexpr Point fourthMenuEntry = {40, 77}; // from where the menu was opened
constexpr Point muteAboveBottom = {130, 79};
constexpr Point autoReplyButtonAboveBottom = {240, 40};
constexpr Point autoReplyText = {150, 235};
constexpr Point mainLog = {450, 200};

// Private window: below its head the log takes the upper part, the input box stands at the bottom above the status bar.
constexpr Point privateLog = {200, 140};
constexpr Point logInside = {11, 58}; // its upper left corner
constexpr int beginningOfLine = 50;
constexpr Point inputAboveBottom = {100, 70};
constexpr Point previewAboveBottom = {40, 215};
constexpr int toolsAboveBottom = 120;
// At the right, with both panels open, the avatar stands above the moods.
constexpr int ownGaugeFromRight = 98;
constexpr int upperPartOfGauge = 272;

void copyAllAt(const Window &window, Point log)
{
    window.activate();
    window.click(log.x, log.y);
    press("ctrl+a");
    press("ctrl+c");
}

std::string sayClipboardTo(WirePeer &peer, const PrivateWindow &with)
{
    with.sayClipboard();
    return peer.hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); }).bytes;
}

} // namespace

MainWindow MainWindow::of(const std::string &nickname)
{
    return MainWindow(waitFor("NIMB-Chat 1.2 - " + nickname));
}

MainWindow MainWindow::startBob(RunningCopy &copy, WirePeer &contact)
{
    copy.start({"Bob"});
    contact.hearUntil("!STATUS Online");
    const MainWindow main = of("Bob");
    main.activate();
    return main;
}

void MainWindow::openContact(int row) const
{
    activate();
    click(firstRow.x, firstRow.y + row * rowHeight, 2);
}

PrivateWindow MainWindow::openWhenOnline(int row, const std::string &nickname) const
{
    const std::string caption = PrivateWindow::captionFor(nickname);
    waitUntil([&] {
        openContact(row);
        return waitUntil([&] { return Window::exists(caption); }, std::chrono::milliseconds(500));
    });
    return PrivateWindow::with(nickname);
}

void MainWindow::clickFindEverybody() const
{
    activate();
    click(findEverybody.x, findEverybody.y);
}

std::vector<std::vector<std::uint32_t>> MainWindow::pictureOfRow(int row) const
{
    constexpr int width = 270;
    return picture(firstRow.x - width / 2, firstRow.y - rowHeight / 2 + row * rowHeight, width, rowHeight);
}

void MainWindow::openContextMenu(int row) const
{
    activate();
    const std::size_t without = numberOfVisible();
    click(firstRow.x, firstRow.y + row * rowHeight, 1, 3);
    EXPECT_TRUE(waitUntil([&] { return numberOfVisible() > without; })) << "no context menu";
}

void MainWindow::chooseRemove(int row) const
{
    openContextMenu(row);
    click(firstRow.x + fourthMenuEntry.x, firstRow.y + row * rowHeight + fourthMenuEntry.y);
}

void MainWindow::chooseBuzz(int row) const
{
    openContextMenu(row);
    press("Down");
    press("Down");
    press("Return");
}

void MainWindow::clickMute() const
{
    activate();
    click(muteAboveBottom.x, place().height - muteAboveBottom.y);
}

void MainWindow::openStateChooser() const
{
    activate();
    const std::size_t without = numberOfVisible();
    click(stateChooser.x, stateChooser.y);
    EXPECT_TRUE(waitUntil([&] { return numberOfVisible() > without; })) << "no list of states";
}

void MainWindow::chooseState(int entriesBelow) const
{
    openStateChooser();
    for (int i = 0; i < std::abs(entriesBelow); ++i)
        press(entriesBelow > 0 ? "Down" : "Up");
    press("Return");
}

void MainWindow::rescan() const
{
    activate();
    press("alt+r");
}

void MainWindow::rescanUntilHeard(WirePeer &contact) const
{
    EXPECT_TRUE(waitUntil([&] {
        rescan();
        return contact.hear(std::chrono::milliseconds(300)).has_value();
    }));
    EXPECT_EQ(contact.hearUntil("!STATUS Online").back(), "!STATUS Online");
}

void MainWindow::editAutoReply() const
{
    activate();
    click(autoReplyButtonAboveBottom.x, place().height - autoReplyButtonAboveBottom.y);
    click(autoReplyText.x, autoReplyText.y);
}

void MainWindow::copyLog() const
{
    copyAllAt(*this, mainLog);
}

PrivateWindow PrivateWindow::with(const std::string &nickname)
{
    return PrivateWindow(waitFor(captionFor(nickname)));
}

std::string PrivateWindow::captionFor(const std::string &nickname)
{
    return nickname + " - NIMB-Chat - Private Chat Window";
}

void PrivateWindow::say(const std::string &utf8) const
{
    activate();
    type(utf8);
    press("Return");
}

void PrivateWindow::clickIntoLog(int linesBelow, int clicks) const
{
    activate();
    const auto line = static_cast<std::size_t>(linesBelow) + 1; // the first may be cut off
    std::vector<SeenLine> lines;
    ASSERT_TRUE(waitUntil([&] {
        lines = linesSeen();
        return line < lines.size();
    })) << "no such line is to be seen";
    click(beginningOfLine, lines[line].middle, clicks);
}

void PrivateWindow::copyLog() const
{
    copyAllAt(*this, privateLog);
}

void PrivateWindow::focusInput() const
{
    activate();
    click(inputAboveBottom.x, place().height - inputAboveBottom.y);
}

void PrivateWindow::clickSendLater() const
{
    constexpr int fromRight = 80, fromTop = 70; // pixels
    activate();
    click(place().width - fromRight, fromTop);
}

void PrivateWindow::sayClipboard() const
{
    focusInput();
    press("ctrl+v");
    press("Return");
}

void PrivateWindow::clickTool(Tool tool) const
{
    const auto x = [tool] {
        switch (tool) {
        case Tool::liveType:
            return 335;
        case Tool::mood:
            return 400;
        case Tool::avatar:
            return 475;
        }
        return 0;
    };
    activate();
    click(x(), place().height - toolsAboveBottom);
}

void PrivateWindow::markPreview() const
{
    click(previewAboveBottom.x, place().height - previewAboveBottom.y, 3);
}

void PrivateWindow::clickOwnGauge(int below, int button) const
{
    click(place().width - ownGaugeFromRight, upperPartOfGauge + below, 1, button);
}

std::vector<PrivateWindow::SeenLine> PrivateWindow::linesSeen() const
{
    constexpr int width = 560, height = 220;
    std::vector<SeenLine> lines;
    bool inLine = false;
    int y = logInside.y;
    int top = y;
    for (const auto &row : picture(logInside.x, logInside.y, width, height)) {
        const auto ink = std::ranges::find_if(row, [&](std::uint32_t colour) { return colour != row.back(); });
        const int beginning = static_cast<int>(ink - row.begin());
        const bool isBlank = ink == row.end();
        if (!isBlank && !inLine) {
            lines.push_back({beginning, y});
            top = y;
        } else if (!isBlank) {
            lines.back() = {std::min(lines.back().beginning, beginning), (top + y) / 2};
        }
        inLine = !isBlank;
        ++y;
    }
    return lines;
}

std::string logHeardBy(WirePeer &peer, const MainWindow &log, const PrivateWindow &with)
{
    log.copyLog();
    return sayClipboardTo(peer, with);
}

std::string logHeardBy(WirePeer &peer, const PrivateWindow &log, const PrivateWindow &with)
{
    log.copyLog();
    return sayClipboardTo(peer, with);
}

} // namespace nimb::test
