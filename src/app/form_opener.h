// Makes the windows and hands them their engine.
#pragma once

#include "app/messenger.h"
#include "base/name_resolver.h"
#include "base/net_send.h"
#include "base/notifications.h"
#include "base/picture_source.h"
#include "base/system_information.h"
#include "base/window_openers.h"
#include "log/RTFSubClass.h"
#include "notify/notify_slide.h"
#include "welcome/login.h"
#include "welcome/tip_of_the_day.h"
#include "widgets/message_boxes.h"

#include <QPointer>

#include <functional>
#include <memory>

namespace nimb
{

class frmConfInvitations;
class frmLogin;
class frmMain;
class frmNotify;
class frmSendContact;
class frmTipOfTheDay;
class RichTextLogEdit;

/// What the windows need beside the engine; all of it outlives them.
struct FormServices {
    Common &common;
    Timers &timers;
    const WallClock &clock;
    Winsock &socket;
    SettingsStore &store;
    Prompts &prompts;
    LinkOpener &links;
    PictureSources &pictures;
    NameResolver &names;
    NetSend &netSend;
    SystemInformation &systemInformation;
    TipOfTheDay::OpenFile openTips;
};

class FormOpener : public PrivateForms,
                   public ConferenceForms,
                   public SecondaryWindows,
                   public MenuWindows,
                   public Notifications
{
public:
    explicit FormOpener(const FormServices &services);
    ~FormOpener() override;

    /// placed: windows stand where they are put, so that the pop-up can slide in.
    void loadNotify(bool placed = true);
    /// Shows the login dialog until it ends; false when it was closed without a nickname.
    bool showLogin(Login &login);
    /// Ends the login dialog as its close box does; false when it is not open.
    bool closeLogin();

    /// The main window, made once, without its engine.
    frmMain &makeMain();
    frmMain *main() { return m_main.get(); }
    /// Ties window and engine together. statusNotes: what the status bar's tool tip says; ended: called when the
    /// window has been unloaded.
    void connectMain(Messenger &engine, std::function<QString()> statusNotes, std::function<void()> ended);
    void destroyMain();
    /// Brings the main window back with this contact selected.
    void showContact(const QString &ip);
    QIcon trayIcon() const;

    ViewPtr<PrivateChatView> makePrivateForm(PrivateChat &chat) override;

    ViewPtr<ConferenceView> makeConferenceForm(Conference &conference) override;

    void mnuNetworkscan() override;
    void mnuAddUser() override;
    void mnuToolsOptions() override;
    void mnuHelpAbout() override;
    void mnuTOTD() override;
    void mnusendcontacts(const QString &ip) override;
    void mnuinviteuser(const QString &ip) override;
    void mnuCreateNewConf() override;
    void mnushowinvitations() override;
    void mnuInvite2Conf(int slot, const QString &ip) override;

    void unloadConferences() override;
    void unloadPrivateWindows() override;
    void unloadNotify() override;
    void unloadInvitations() override;
    void unloadTipOfTheDay() override;

    void add(const Notification &notification) override;
    void startTimer() override;

private:
    FormServices m_services;
    RTFSubClass m_links;
    NotifySlide m_slide;
    std::unique_ptr<frmNotify> m_notify;
    std::unique_ptr<frmMain> m_main;
    std::unique_ptr<frmConfInvitations> m_invitations;
    frmLogin *m_login = nullptr; ///< while it is shown
    // They delete themselves when they are closed.
    QPointer<frmTipOfTheDay> m_tip;
    QPointer<frmSendContact> m_sendContact;
    Messenger *m_engine = nullptr;
};

} // namespace nimb
