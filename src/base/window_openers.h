// How windows are opened and closed by those who do not know them: at the start and the end of the program, from
// the menus, for a contact.
#pragma once

#include "base/contact_address.h"

#include <QString>

namespace nimb
{

/// What the start of the program does outside the engine; SubMain calls it, and fixes the order.
class StartUpSteps
{
public:
    virtual ~StartUpSteps() = default;
    /// True when another copy with the same profile runs.
    [[nodiscard]] virtual bool anotherCopyRuns() = 0;
    /// Asks that copy to restore its main window if the window bears this caption.
    virtual void restoreOtherCopy(const QString &caption) = 0;
    virtual void loadNotify() = 0;
    /// Offers the copy of settings that are damaged or empty; false when the program was asked to end meanwhile.
    [[nodiscard]] virtual bool offerGoodCopy() = 0;
    /// Shows the login dialog until the user ends it; the own nickname is set then, unless it was closed.
    virtual void showLogin() = 0;
    /// Does what loading the login dialog does, without showing it.
    virtual void loadAndUnloadLogin() = 0;
    virtual void loadMain() = 0;
    virtual void showMain() = 0;
    virtual void minimiseMain() = 0;
    virtual void showTipOfTheDay() = 0;
};

/// What the menus of the main window open, and whom they look for.
class MenuWindows
{
public:
    virtual ~MenuWindows() = default;
    virtual void mnuNetworkscan() = 0;
    virtual void mnuAddUser() = 0;
    /// Opens nothing: the log says who is there.
    virtual void mnuFindEverybody() = 0;
    virtual void stopSearching() = 0;
    virtual void mnuImportContacts() = 0;
    virtual void mnuExportContacts() = 0;
    virtual void mnuToolsOptions() = 0;
    virtual void mnuHelpAbout() = 0;
    virtual void mnuTOTD() = 0;
    virtual void mnuNetworkDoctor() = 0;
    virtual void mnuShortcuts() = 0;
    /// What is offered, and what others offer.
    virtual void mnuTransfers() = 0;
    /// False where the program was built without the part that sends files.
    virtual bool canSendFiles() const = 0;
    /// Asks for files and sends them to the contact; an address that is no contact's is ignored.
    virtual void mnuSendFile(const QString &ip) = 0;
    /// What was kept of the conversation with a contact; of none: of all.
    virtual void mnuHistory(const QString &ip) = 0;
    /// Nothing of the contact is kept from now on, or again.
    virtual void mnuLeaveOut(const QString &ip, bool leftOut) = 0;
    /// False where the program was built without a manual.
    virtual bool hasManual() const = 0;
    virtual void mnuManual() = 0;
    /// An address that is no contact's is ignored.
    virtual void mnusendcontacts(const QString &ip) = 0;
    /// Empty: no contact is selected.
    virtual void mnuinviteuser(const QString &ip) = 0;
    virtual void mnuCreateNewConf() = 0;
    virtual void mnushowinvitations() = 0;
    /// slot: 1 to 5; an address that is no contact's is ignored.
    virtual void mnuInvite2Conf(int slot, const QString &ip) = 0;
};

/// Opens private windows at the user's wish.
class PrivateChats
{
public:
    virtual ~PrivateChats() = default;
    /// Shows the contact's private window, normal and active; makes it when there is none.
    virtual void openPrivate(const ContactAddress &ip) = 0;
    /// The contact has been removed from the list.
    virtual void contactRemoved(const ContactAddress &ip) = 0;
};

/// The windows that end with the main window and are not the engine's, in the order of the calls.
class SecondaryWindows
{
public:
    virtual ~SecondaryWindows() = default;
    virtual void unloadNotify() = 0;
    virtual void unloadInvitations() = 0;
    virtual void unloadTipOfTheDay() = 0;
};

/// The icon in the notification area.
class TrayIcon
{
public:
    virtual ~TrayIcon() = default;
    virtual void AddIcon(const QString &ToolTip) = 0;
    /// With another tip, and a badge while anything is unread.
    virtual void setUnread(int unread, const QString &ToolTip) = 0;
    virtual void removeIcon() = 0;
    /// True while the desktop shows the icon, so that a hidden window can be brought back by it.
    virtual bool isShown() const = 0;
};

} // namespace nimb
