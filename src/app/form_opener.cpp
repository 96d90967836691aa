#include "app/form_opener.h"

#include "conference/frmConfInvitations.h"
#include "conference/frmConference.h"
#include "log/rich_text_log.h"
#include "main_window/frmMain.h"
#include "notify/frmNotify.h"
#include "options/frmOptions.h"
#include "people/frmAddUser.h"
#include "people/frmInvite.h"
#include "people/frmNetworkscan.h"
#include "people/frmSendContact.h"
#include "private_chat/frmPrivate.h"
#include "welcome/frmAbout.h"
#include "welcome/frmLogin.h"
#include "welcome/frmTipOfTheDay.h"
#include "widgets/bring_back.h"
#include "widgets/pictures.h"

namespace nimb
{
namespace
{

/// Over the main window, which waits for it; the rest of the program goes on.
void open(QDialog *dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace

FormOpener::FormOpener(const FormServices &services)
    : m_services(services), m_links(services.links), m_slide(services.common, services.timers)
{
}

FormOpener::~FormOpener()
{
    delete m_tip; // nobody else's child
}

void FormOpener::loadNotify(bool placed)
{
    m_notify = std::make_unique<frmNotify>(m_slide);
    QObject::connect(m_notify.get(), &frmNotify::contactWanted, m_notify.get(),
                     [this](const QString &ip) { showContact(ip); });
    if (placed)
        m_slide.Form_Load(*m_notify);
}

bool FormOpener::showLogin(Login &login)
{
    frmLogin dialog(login, m_services.prompts);
    m_login = &dialog;
    const bool chosen = dialog.exec() == QDialog::Accepted;
    m_login = nullptr;
    return chosen;
}

bool FormOpener::closeLogin()
{
    if (!m_login)
        return false;
    m_login->reject();
    return true;
}

frmMain &FormOpener::makeMain()
{
    // The window takes the log over as a child.
    auto *const log = new RichTextLogEdit(nullptr);
    log->setFrameShape(QFrame::NoFrame);
    log->setInsets(frmMain::logInsetAbove, frmMain::logInsetBelow);
    m_main = std::make_unique<frmMain>(frmMain::Log{*log, *log});
    return *m_main;
}

void FormOpener::connectMain(Messenger &engine, std::function<QString()> statusNotes, std::function<void()> ended)
{
    m_engine = &engine;
    m_invitations = std::make_unique<frmConfInvitations>(engine.invitations());
    m_main->connectControls({engine.mainWindow(), engine.contacts(), engine.contactCommands(), engine.ownState(),
                             engine.announcement(), engine.log(), m_services.common, *this, std::move(statusNotes)},
                            std::move(ended));
}

void FormOpener::destroyMain()
{
    m_main.reset();
}

void FormOpener::showContact(const QString &ip)
{
    if (m_main)
        m_main->showContact(ip);
}

QIcon FormOpener::trayIcon() const
{
    return m_notify->windowIcon();
}

ViewPtr<PrivateChatView> FormOpener::makePrivateForm(PrivateChat &chat)
{
    // Owned by the chat, which lets it go.
    return ViewPtr<PrivateChatView>(new frmPrivate(chat, m_links));
}

ViewPtr<ConferenceView> FormOpener::makeConferenceForm(Conference &conference)
{
    // Owned by the conference, which lets it go.
    return ViewPtr<ConferenceView>(new frmConference(conference, m_links));
}

void FormOpener::mnuNetworkscan()
{
    const NetworkScan scan(m_services.common, m_engine->sender(), m_services.names, m_engine->log());
    open(new frmNetworkscan(scan, m_main.get()));
}

void FormOpener::mnuAddUser()
{
    const AddUser rules(m_services.common, m_engine->contacts(), m_services.prompts);
    open(new frmAddUser(rules, m_main.get()));
}

void FormOpener::mnuHelpAbout()
{
    open(new frmAbout(m_services.systemInformation, m_services.prompts, QCoreApplication::applicationVersion(),
                      m_main.get()));
}

void FormOpener::mnuinviteuser(const QString &ip)
{
    const Invite invite(m_services.common, m_engine->contacts(), m_services.netSend, m_services.prompts);
    open(new frmInvite(invite, ip, m_main.get()));
}

/// Without a parent: it is seen although the main window starts minimised.
void FormOpener::mnuTOTD()
{
    // One that is closed is there until the event loop comes round to deleting it.
    if (!m_tip || !m_tip->isVisible())
        m_tip = new frmTipOfTheDay(TipOfTheDay(m_services.store, m_services.openTips), m_services.prompts, nullptr);
    bringBack(*m_tip);
    m_tip->activateWindow();
}

void FormOpener::mnusendcontacts(const QString &ip)
{
    const Contact *const contact = m_engine->contacts().find(ip);
    if (!contact)
        return;
    delete m_sendContact;
    m_sendContact = new frmSendContact(std::make_unique<ContactTransfer>(m_services.socket, m_engine->contacts(), ip),
                                       contact->nickname, m_main.get());
    m_sendContact->show();
}

void FormOpener::mnuToolsOptions()
{
    const OptionValues values(m_services.common, m_engine->ownAvatar(), m_services.pictures, m_services.clock);
    open(new frmOptions(values, m_services.prompts, m_main.get()));
}

void FormOpener::mnuCreateNewConf()
{
    m_engine->conferences().mnuCreateNewConf();
}

void FormOpener::mnushowinvitations()
{
    m_engine->invitations().mnushowinvitations();
}

void FormOpener::mnuInvite2Conf(int slot, const QString &ip)
{
    m_engine->conferences().mnuInvite2Conf(slot, ip);
}

void FormOpener::unloadConferences()
{
    m_engine->conferences().unloadAll();
}

void FormOpener::unloadInvitations()
{
    m_engine->invitations().Form_Unload();
    m_invitations.reset();
}

void FormOpener::unloadTipOfTheDay()
{
    if (m_tip)
        m_tip->unload();
}

void FormOpener::unloadPrivateWindows()
{
    m_engine->privateWindows().unloadAll();
}

void FormOpener::unloadNotify()
{
    m_notify.reset();
}

void FormOpener::add(const Notification &notification)
{
    m_slide.add(notification);
}

void FormOpener::startTimer()
{
    m_slide.startTimer();
}

} // namespace nimb
