// What the user can switch on and off: one row for each option. Load, save, the options dialog and the tests walk the
// rows, so a new option is a member, a row, and the place that asks for it.
#pragma once

#include <QtGlobal>

#include <array>
#include <concepts>
#include <cstdint>

namespace nimb
{

/// Yes or no, stored as a 16-bit integer of which only 1 means yes. Any other stored number behaves like 0, and is
/// written back as it was read until the user chooses.
class Switch
{
public:
    /// From a bool alone: a number would turn into one unnoticed.
    constexpr Switch(std::same_as<bool> auto on) : m_number(on ? 1 : 0) { }
    static constexpr Switch ofNumber(std::int16_t number)
    {
        Switch made = false;
        made.m_number = number;
        return made;
    }
    constexpr operator bool() const { return m_number == 1; }
    constexpr std::int16_t number() const { return m_number; }

private:
    std::int16_t m_number;
};

struct Options {
    Switch presenceLines = true;
    Switch playOwnBuzz = false;
    Switch playReceivedBuzz = true;
    Switch privateWindowsOnTop = false;
    Switch closedWindowsGo = false;
    Switch notifyWindow = true;
    Switch liveType = true;
    Switch closeBoxHides = false;
    Switch notifyMessages = true;
    Switch showMessageText = true;
    Switch soundForMessage = false;
    Switch soundForOnline = false;
    Switch soundForInvitation = false;
};

/// The groups of the options dialog.
enum class OptionGroup { sounds, privateWindows, mainWindow, notices };

/// A check box or option button of the options dialog: its fixed object name, and its caption, which the dialog
/// translates.
struct OptionBox {
    const char *name = nullptr;
    const char *caption = nullptr;
};

struct OptionRow {
    const char *key; ///< in the section "Options" of the store
    Switch Options::*member;
    const char *meaning; ///< of yes
    OptionGroup group;
    OptionBox box;
    bool inverted = false;   ///< the ticked box means no
    OptionBox opposite = {}; ///< the option button beside it; without one the box is a check box
    const char *toolTip = nullptr;

    constexpr Switch defaultValue() const { return Options().*member; }
    constexpr bool isTicked(const Options &options) const { return options.*member != inverted; }
    constexpr void setTicked(Options &options, bool ticked) const { options.*member = ticked != inverted; }
};

/// In the order of loading and saving.
inline constexpr std::array optionRows = {
    OptionRow{.key = "ShowStatusOnPrivate",
              .member = &Options::presenceLines,
              .meaning = "private windows tell who comes and goes",
              .group = OptionGroup::privateWindows,
              .box = {.name = "statusonprivate",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions",
                                                   "&Suppress messages of status change in private message window")},
              .inverted = true},
    OptionRow{.key = "BuzzLocal",
              .member = &Options::playOwnBuzz,
              .meaning = "own buzzes sound here too",
              .group = OptionGroup::sounds,
              .box
              = {.name = "localbuzz", .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Disable sound on &local BUZZ")},
              .inverted = true},
    OptionRow{.key = "BuzzRemote",
              .member = &Options::playReceivedBuzz,
              .meaning = "received buzzes sound",
              .group = OptionGroup::sounds,
              .box = {.name = "remotebuzz",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Disable sound on &remote BUZZ")},
              .inverted = true},
    OptionRow{.key = "PrivateBehaviour",
              .member = &Options::privateWindowsOnTop,
              .meaning = "a private window that a peer opens comes on top; otherwise minimised",
              .group = OptionGroup::privateWindows,
              .box = {.name = "showontop",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Show private chat window on &top")},
              .opposite
              = {.name = "showminimized",
                 .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Open private chat window &minimized (default)")}},
    // The key says the opposite of what the stored 1 does.
    OptionRow{.key = "DontDestroyWindow",
              .member = &Options::closedWindowsGo,
              .meaning = "a closed private window is gone with its messages; otherwise hidden",
              .group = OptionGroup::privateWindows,
              .box = {.name = "PrivateDestroyonClose",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions",
                                                   "Closing a private window only hides it and &keeps its messages")},
              .inverted = true},
    OptionRow{.key = "NotifyWin",
              .member = &Options::notifyWindow,
              .meaning = "the pop-up slides in and tells what happens",
              .group = OptionGroup::sounds,
              .box
              = {.name = "DisableNotify", .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Disable &notify window")},
              .inverted = true,
              .toolTip = QT_TRANSLATE_NOOP("nimb::frmOptions",
                                           "Ticked: nothing slides in, neither who comes and goes nor what arrives")},
    OptionRow{.key = "LiveType",
              .member = &Options::liveType,
              .meaning = "live typing is on in new private windows",
              .group = OptionGroup::privateWindows,
              .box = {.name = "disablelivetype",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "LiveType &disabled by default")},
              .inverted = true},
    OptionRow{.key = "CloseButtonDoesMinimize",
              .member = &Options::closeBoxHides,
              .meaning = "the main window's close box hides it",
              .group = OptionGroup::mainWindow,
              .box = {.name = "XtoMinimizeCheck",
                      .caption = QT_TRANSLATE_NOOP(
                          "nimb::frmOptions", "The &close box hides the main window (the tray icon brings it back)")}},
    OptionRow{.key = "NotifyMessages",
              .member = &Options::notifyMessages,
              .meaning = "what arrives while its window is not active is told",
              .group = OptionGroup::notices,
              .box = {.name = "notifyMessagesBox",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Tell of messages and in&vitations")},
              .toolTip = QT_TRANSLATE_NOOP("nimb::frmOptions",
                                           "While their window is not active, and you are not busy; a contact that is "
                                           "muted is never told of")},
    OptionRow{.key = "NotifyMessageText",
              .member = &Options::showMessageText,
              .meaning = "with what it says",
              .group = OptionGroup::notices,
              .box = {.name = "showMessageTextBox",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "S&how what a message says")}},
    OptionRow{.key = "SoundMessage",
              .member = &Options::soundForMessage,
              .meaning = "a message that is told of sounds",
              .group = OptionGroup::notices,
              .box
              = {.name = "soundMessageBox", .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Sound &with a message")}},
    OptionRow{.key = "SoundOnline",
              .member = &Options::soundForOnline,
              .meaning = "a contact that comes online sounds",
              .group = OptionGroup::notices,
              .box = {.name = "soundOnlineBox",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Sound when some&body comes online")}},
    OptionRow{.key = "SoundInvitation",
              .member = &Options::soundForInvitation,
              .meaning = "an invitation that is told of sounds",
              .group = OptionGroup::notices,
              .box = {.name = "soundInvitationBox",
                      .caption = QT_TRANSLATE_NOOP("nimb::frmOptions", "Sound with ever&y invitation")}},
};

} // namespace nimb
