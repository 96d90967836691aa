// Makes the windows and hands them their engine.
#pragma once

#include "app/conversation_forms.h"
#include "app/dialog_opener.h"
#include "notify/notify_slide.h"
#include "welcome/login.h"

#include <QIcon>

#include <functional>
#include <memory>
#include <optional>

namespace nimb
{

class frmConfInvitations;
class frmLogin;
class frmMain;
class frmNotify;

class FormOpener : public SecondaryWindows
{
public:
    explicit FormOpener(const FormServices &services);
    ~FormOpener() override;

    /// placed: windows stand where they are put, so that the pop-up can slide in.
    void loadNotify(bool placed = true);
    /// Shows the login dialog until it ends; false when it was closed without a nickname.
    [[nodiscard]] bool showLogin(Login &login);
    /// Ends the login dialog, if it is open, as its close box does.
    void closeLogin();

    /// The main window, made once, without its engine.
    frmMain &makeMain();
    frmMain *main() { return m_main.get(); }
    /// Ties window and engine together. statusNotes: what the status bar's tool tip says; ended: called when the
    /// window has been unloaded.
    void connectMain(Messenger &engine, std::function<QString()> statusNotes, std::function<void()> ended);
    void destroyMain();
    /// Opens what a notice, or a row of the pop-up, was about: the main window with that contact selected, or the
    /// window in which something has arrived.
    void openNotice(const NoticePlace &place);
    QIcon trayIcon() const;

    void showTipOfTheDay() { m_dialogs->mnuTOTD(); }

    ConversationForms &conversations() { return m_conversations; }
    /// What the pop-up shows.
    Notifications &notifications() { return m_slide; }

    void unloadNotify() override;
    void unloadInvitations() override;
    void unloadTipOfTheDay() override;

private:
    /// Of the main window's log; one that is not known is ignored.
    void runCommand(const QString &name);
    void emojiUsed();

    FormServices m_services;
    Spelling m_spelling;
    ConversationForms m_conversations;
    NotifySlide m_slide;
    std::unique_ptr<frmNotify> m_notify;
    std::unique_ptr<frmMain> m_main;
    std::unique_ptr<frmConfInvitations> m_invitations;
    frmLogin *m_login = nullptr;           ///< while it is shown
    std::optional<DialogOpener> m_dialogs; ///< from connectMain() on
    Messenger *m_engine = nullptr;         ///< likewise
};

} // namespace nimb
