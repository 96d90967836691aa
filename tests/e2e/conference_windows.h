// What a user does in the windows of a conference and of its invitations.
#pragma once

#include "chat_windows.h"

#include <string>

namespace nimb::test
{

inline constexpr char hostedFirst[] = "Conference #1 (Hosted here) - NIMB-Chat";
inline constexpr char byAnnFirst[] = "Conference #1 (Hosted by 'Ann') - NIMB-Chat";
inline constexpr char invitationsCaption[] = "Conference Invitations - NIMB-Chat";
/// Of every question and every complaint.
inline constexpr char boxCaption[] = "NIMB-Chat";

/// The one window of this caption that is seen, apart from a known one of another copy.
Window shown(const std::string &caption, const Window &apartFrom = {});
/// The same for a window that the user opens, which has the focus then. Sooner, it could still take it from another.
Window opened(const std::string &caption, const Window &apartFrom = {});
/// Whether it comes to that: closed for good, or hidden.
bool disappears(const Window &window);

class ConferenceWindow : public Window
{
public:
    explicit ConferenceWindow(const Window &window) : Window(window) { }

    void say(const std::string &utf8) const;
    void focusInput() const;
    /// Into the clipboard.
    void copyLog() const;
    /// At the host; row 0 is its own.
    void kick(int row) const;
};

void hostConference(const MainWindow &main);
/// Invites the contact in a row; the access key is that of the conference in the row's menu.
void invite(const MainWindow &main, int row, const std::string &accessKey = "1");

/// Accepts the invitation in the first row.
void accept(const Window &invitations);
void deny(const Window &invitations);
/// As accept(), but done when the click is dealt with; an access key presses its button for a moment first.
void acceptAtOnce(const Window &invitations);
/// Answers the question that is asked, by the access key of the answer, and returns when it is gone.
void answerQuestion(const std::string &key);

} // namespace nimb::test
