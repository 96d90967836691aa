#include "main_window/main_menus.h"

#include "main_window/main_menu.h"
#include "widgets/form_layout.h"
#include "widgets/pictures.h"

#include <QMainWindow>
#include <QMenuBar>

namespace nimb
{

MainMenus::MainMenus(QMainWindow &window) : m_window(window), mnuPopUp(named(new QMenu(&window), "mnuPopUp"))
{
    buildMenuBar();
    buildContactMenu();
}

void MainMenus::add(QMenu &menu, const MenuEntry &item)
{
    if (!item.name) {
        menu.addSeparator();
        return;
    }
    QAction *const action = named(menu.addAction(QCoreApplication::translate("MainMenu", item.caption)), item.name);
    if (item.picture)
        action->setIcon(namedPicture(QLatin1String(item.picture)));
}

void MainMenus::buildMenuBar()
{
    for (const Menu &table : mainMenus) {
        QMenu *const menu
            = named(m_window.menuBar()->addMenu(QCoreApplication::translate("MainMenu", table.caption)), table.name);
        for (const MenuEntry &item : table.entries)
            add(*menu, item);
    }
    for (const char *const recent : {"mnuFileMRU1", "mnuFileMRU2", "mnuFileMRU3"})
        entry(recent)->setVisible(false); // as long as there is no recent file
    for (const char *const idle : entriesWithoutAction)
        entry(idle)->setEnabled(false);
    entry("mnuFileExit")->setShortcut(QKeySequence::Quit);
    entry("mnuHistory")->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_H));
    entry("mnuFileExit")->setMenuRole(QAction::QuitRole);
    entry("mnuManual")->setShortcut(Qt::Key_F1);
    entry("mnuManual")->setAutoRepeat(false); // a key that is held down opens the page once
    entry("mnuHelpAbout")->setMenuRole(QAction::AboutRole);
    entry("mnuToolsOptions")->setMenuRole(QAction::PreferencesRole);
    QAction *const log = entry("mnuLogWindow");
    log->setCheckable(true);
    log->setChecked(true);
}

void MainMenus::buildContactMenu()
{
    for (const MenuEntry &item : contactMenu)
        add(*mnuPopUp, item);
    mnuPopUp->setDefaultAction(mnuPopUp->actions().first());
    entry("mnuMuteContact")->setCheckable(true);
    entry("mnuLeaveOut")->setCheckable(true);
    // Visible while their slot holds a conference.
    for (int slot = 1; slot <= conferenceSlots; ++slot)
        invitation(slot)->setVisible(false);
}

QAction *MainMenus::entry(const char *name) const
{
    auto *const action = m_window.findChild<QAction *>(QLatin1String(name));
    Q_ASSERT(action);
    return action;
}

QAction *MainMenus::invitation(int slot) const
{
    return entry(qPrintable(QStringLiteral("mnuInvite2Conf%1").arg(slot)));
}

void MainMenus::setContact(const ContactMenuCaptions &captions, bool selected)
{
    for (QAction *const action : mnuPopUp->actions())
        action->setEnabled(selected);
    entry("mnuPrivateChat")->setText(captions.mnuPrivateChat);
    entry("mnuBuzzUser")->setText(captions.mnuBuzzUser);
    entry("mnuRemoveUser")->setText(captions.mnuRemoveUser);
    entry("mnusendcontacts")->setText(captions.mnusendcontacts);
    entry("mnuinviteuser")->setText(captions.mnuinviteuser);
    entry("mnuMuteContact")->setChecked(captions.isMuted);
    entry("mnuLeaveOut")->setChecked(captions.isLeftOut);
}

void MainMenus::popUp(const QPoint &position)
{
    mnuPopUp->popup(position);
}

} // namespace nimb
