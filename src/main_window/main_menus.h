// The menu bar and the context menu of the main window, built from their tables.
#pragma once

#include "main_window/contact_commands.h"

class QAction;
class QMainWindow;
class QMenu;
class QPoint;

namespace nimb
{

struct MenuEntry;

class MainMenus
{
public:
    /// The window owns menus and entries.
    explicit MainMenus(QMainWindow &window);

    /// The entry with this object name; it must exist.
    QAction *entry(const char *name) const;
    static constexpr int conferenceSlots = 5;
    /// The entry that invites to the conference in this slot, 1 to conferenceSlots.
    QAction *invitation(int slot) const;
    /// Shows the captions for the selected contact; without one the context menu has nothing to act on.
    void setContact(const ContactMenuCaptions &captions, bool selected);
    void popUp(const QPoint &position);

private:
    void buildMenuBar();
    void buildContactMenu();
    void add(QMenu &menu, const MenuEntry &item);

    QMainWindow &m_window;
    QMenu *mnuPopUp;
};

} // namespace nimb
