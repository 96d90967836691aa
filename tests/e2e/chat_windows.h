// What a user does in the program's windows.
#pragma once

#include "desktop.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <string>

namespace nimb::test
{

class PrivateWindow;

class MainWindow : public Window
{
public:
    /// Waits for it.
    static MainWindow of(const std::string &nickname);
    /// Starts the copy as Bob, lets this contact hear its first words, and shows its window, which starts minimised.
    static MainWindow startBob(RunningCopy &copy, WirePeer &contact);

    /// Double click on a row of the contact list, counted from 0.
    void openContact(int row) const;
    /// Tries until it opens a window of this name, for a contact that is not known to be there yet does not open.
    PrivateWindow openWhenOnline(int row, const std::string &nickname) const;
    /// While the list is empty: clicks on the button in it.
    void clickFindEverybody() const;
    /// How a row looks.
    std::vector<std::vector<std::uint32_t>> pictureOfRow(int row) const;
    /// Returns when the menu is there.
    void openContextMenu(int row) const;
    /// Chooses "Remove" from the context menu of a row.
    void chooseRemove(int row) const;
    /// Chooses the entry of the context menu of a row that buzzes the contact.
    void chooseBuzz(int row) const;
    /// Ticks "Mute Buzz", or unticks it.
    void clickMute() const;
    /// Drops the own-state chooser's list down.
    void openStateChooser() const;
    /// Chooses the entry of the own-state chooser that is so many below the chosen one; negative goes up.
    void chooseState(int entriesBelow) const;
    void rescan() const;
    /// Rescans until this contact has been asked: everything that the user did before has been dealt with then. While
    /// an announcement waits for its answers the button does nothing.
    void rescanUntilHeard(WirePeer &contact) const;
    /// While Busy or Away: opens the panel with the text of the automatic reply and puts the caret into the text.
    void editAutoReply() const;
    /// Into the clipboard.
    void copyLog() const;

private:
    explicit MainWindow(const Window &window) : Window(window) { }
};

class PrivateWindow : public Window
{
public:
    /// Waits for it.
    static PrivateWindow with(const std::string &nickname);
    static std::string captionFor(const std::string &nickname);

    /// Types the text and sends it.
    void say(const std::string &utf8) const;
    /// Clicks near the beginning of a line in the upper half of the log, so many lines further down. On one line two
    /// quick clicks were a double click.
    void clickIntoLog(int linesBelow = 0, int clicks = 1) const;
    /// Into the clipboard.
    void copyLog() const;
    struct SeenLine {
        int beginning; ///< pixels from the left edge of the log
        int middle;    ///< pixels from the upper edge of the window
    };
    /// Whatever is painted in the upper part of the log, line by line.
    std::vector<SeenLine> linesSeen() const;
    /// Puts the caret into the input box.
    void focusInput() const;
    /// Presses the button in the band of a peer who is away.
    void clickSendLater() const;
    /// Sends what is in the clipboard as a message.
    void sayClipboard() const;
    enum class Tool { liveType, mood, avatar };
    /// Presses a button of the row above the input box, which has the caret afterwards.
    void clickTool(Tool tool) const;
    /// Marks the line in which the peer's text is seen before it is sent; where there is none, the end of the log.
    void markPreview() const;
    /// Presses the own gauge, so many pixels below its upper part. It is there while both panels are open.
    void clickOwnGauge(int below, int button = 1) const;

private:
    explicit PrivateWindow(const Window &window) : Window(window) { }
};

/// What stands in a log, for whoever is at the other end of the private window: the user copies it and says it.
std::string logHeardBy(WirePeer &peer, const MainWindow &log, const PrivateWindow &with);
std::string logHeardBy(WirePeer &peer, const PrivateWindow &log, const PrivateWindow &with);

} // namespace nimb::test
