#include "conference_windows.h"

#include <vector>

namespace nimb::test
{
namespace
{

using State = Window::State;

void selectFirst(const Window &invitations)
{
    invitations.activate();
    invitations.click(100, 37);
}

} // namespace

Window shown(const std::string &caption, const Window &apartFrom)
{
    std::vector<Window> found;
    waitUntil([&] {
        found = Window::all(caption);
        std::erase_if(found, [&](const Window &one) { return one == apartFrom || one.state() != State::shown; });
        return found.size() == 1;
    });
    EXPECT_EQ(found.size(), 1U) << "shown windows with the caption \"" << caption << '"';
    return found.empty() ? Window() : found.front();
}

Window opened(const std::string &caption, const Window &apartFrom)
{
    const Window window = shown(caption, apartFrom);
    EXPECT_TRUE(waitUntil([&] { return window.isActive(); })) << caption << " does not get the focus";
    return window;
}

bool disappears(const Window &window)
{
    return waitUntil([&] { return window.state() == State::hidden; });
}

void ConferenceWindow::say(const std::string &utf8) const
{
    focusInput();
    type(utf8);
    press("Return");
}

void ConferenceWindow::focusInput() const
{
    activate();
    click(200, place().height - 55);
}

void ConferenceWindow::copyLog() const
{
    activate();
    click(250, 120);
    press("ctrl+a");
    press("ctrl+c");
}

void ConferenceWindow::kick(int row) const
{
    const Place inside = place();
    activate();
    click(inside.width - 80, 36 + row * 18);
    click(inside.width - 80, inside.height - 42);
}

void hostConference(const MainWindow &main)
{
    main.activate();
    press("alt+c");
    press("n");
}

void invite(const MainWindow &main, int row, const std::string &accessKey)
{
    main.openContextMenu(row);
    press(accessKey);
}

void accept(const Window &invitations)
{
    selectFirst(invitations);
    press("alt+a");
}

void deny(const Window &invitations)
{
    selectFirst(invitations);
    press("alt+d");
}

void acceptAtOnce(const Window &invitations)
{
    selectFirst(invitations);
    invitations.click(50, invitations.place().height - 54);
}

void answerQuestion(const std::string &key)
{
    const Window box = opened(boxCaption);
    press(key);
    EXPECT_TRUE(disappears(box)) << "the question stays";
}

} // namespace nimb::test
