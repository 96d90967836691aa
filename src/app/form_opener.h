// Makes the windows and hands them their engine.
#pragma once

#include "app/messenger.h"
#include "core/message_boxes.h"
#include "core/notifications.h"
#include "core/windows.h"
#include "dialogs/login.h"
#include "private/RTFSubClass.h"

#include <functional>
#include <memory>

namespace nimb
{

class frmConfInvitations;
class frmLogin;
class frmMain;
class frmNotify;
class RichTextLogEdit;

class FormOpener : public PrivateForms,
                   public ConferenceForms,
                   public SecondaryWindows,
                   public MenuWindows,
                   public Notifications
{
public:
    /// links: opens addresses; outlives the windows.
    explicit FormOpener(LinkOpener &links);
    ~FormOpener() override;

    void loadNotify();
    /// Shows the login dialog until it ends; false when it was closed without a nickname.
    bool showLogin(Login &login, Prompts &prompts);
    /// Ends the login dialog as its close box does; false when it is not open.
    bool closeLogin();

    /// The main window, made once, without its engine.
    frmMain &makeMain();
    frmMain *main() { return m_main.get(); }
    /// Ties window and engine together. statusNotes: what the status bar's tool tip says; ended: called when the
    /// window has been unloaded.
    void connectMain(Messenger &engine, Common &common, std::function<QString()> statusNotes,
                     std::function<void()> ended);
    void destroyMain();
    QIcon trayIcon() const;

    ViewPtr<PrivateChatView> makePrivateForm(PrivateChat &chat) override;

    ViewPtr<ConferenceView> makeConferenceForm(Conference &conference) override;

    void mnuCreateNewConf() override;
    void mnushowinvitations() override;
    void mnuInvite2Conf(int slot, const QString &ip) override;

    void unloadConferences() override;
    void unloadPrivateWindows() override;
    void unloadNotify() override;
    void unloadInvitations() override;
    void unloadTipOfTheDay() override { }

    void add(const QString &text, Picture picture) override;
    void startTimer() override;

private:
    RTFSubClass m_links;
    std::unique_ptr<frmNotify> m_notify;
    std::unique_ptr<frmMain> m_main;
    std::unique_ptr<frmConfInvitations> m_invitations;
    frmLogin *m_login = nullptr; ///< while it is shown
    Messenger *m_engine = nullptr;
};

} // namespace nimb
