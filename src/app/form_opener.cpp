#include "app/form_opener.h"

#include "conference/frmConfInvitations.h"
#include "log/rich_text_log.h"
#include "main_window/frmMain.h"
#include "notify/frmNotify.h"
#include "protocol/address_text.h"
#include "welcome/frmLogin.h"
#include "widgets/focus_edge.h"
#include "widgets/pictures.h"

#include <QLocale>

namespace nimb
{

FormOpener::FormOpener(const FormServices &services)
    : m_services(services), m_spelling(services.spellChecker, services.common, QLocale().name()),
      m_conversations(
          services.links, services.common, [this] { emojiUsed(); }, m_spelling,
          [this](const QString &address, const QString &words) {
              if (m_dialogs)
                  m_dialogs->openHistory(address, words);
          },
          [this] {
              if (m_dialogs)
                  m_dialogs->mnuTransfers();
          },
          services.folders),
      m_slide(services.common, services.timers)
{
}

FormOpener::~FormOpener() = default;

void FormOpener::loadNotify(bool placed)
{
    m_notify = std::make_unique<frmNotify>(m_slide);
    QObject::connect(m_notify.get(), &frmNotify::opened, m_notify.get(),
                     [this](const NoticePlace &place) { openNotice(place); });
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

void FormOpener::closeLogin()
{
    if (m_login)
        m_login->reject();
}

frmMain &FormOpener::makeMain()
{
    // The window takes the log over as a child.
    auto *const log = new RichTextLogEdit(nullptr);
    log->setFrameShape(QFrame::NoFrame);
    new FocusEdge(*log);
    log->setInsets(frmMain::logInsetAbove, frmMain::logInsetBelow);
    m_main = std::make_unique<frmMain>(*log);
    QObject::connect(log, &RichTextLogEdit::commandPressed, m_main.get(),
                     [this](const QString &command) { runCommand(command); });
    return *m_main;
}

void FormOpener::connectMain(Messenger &engine, std::function<QString()> statusNotes, std::function<void()> ended)
{
    m_engine = &engine;
    m_spelling.setContacts(engine.contacts());
    QObject::connect(&m_spelling, &Spelling::chosen, m_main.get(), [&engine] { engine.recovery().settingsChanged(); });
    m_dialogs.emplace(m_services, engine, *m_main);
    m_invitations = std::make_unique<frmConfInvitations>(engine.invitations());
    QObject::connect(m_invitations.get(), &frmConfInvitations::conferenceWanted, m_main.get(),
                     [this] { m_dialogs->mnuCreateNewConf(); });
    m_main->connectControls({engine.mainWindow(), engine.contacts(), engine.avatars(), engine.contactCommands(),
                             engine.ownState(), engine.announcement(), engine.log(), m_services.common,
                             m_services.clock, *m_dialogs, std::move(statusNotes)},
                            std::move(ended));
}

void FormOpener::emojiUsed()
{
    if (m_engine)
        m_engine->recovery().settingsChanged();
}

void FormOpener::runCommand(const QString &name)
{
    if (m_dialogs && name == networkDoctorCommand)
        m_dialogs->mnuNetworkDoctor();
    if (m_dialogs && name == transfersCommand)
        m_dialogs->mnuTransfers();
}

void FormOpener::destroyMain()
{
    m_main.reset();
}

void FormOpener::openNotice(const NoticePlace &place)
{
    if (!m_main || !m_engine)
        return;
    if (place.window == NoticeWindow::main)
        m_main->showContact(addressText(place.ip));
    else
        m_engine->openNotice(place);
}

QIcon FormOpener::trayIcon() const
{
    return m_notify->windowIcon();
}

void FormOpener::unloadInvitations()
{
    m_invitations.reset();
}

void FormOpener::unloadTipOfTheDay()
{
    if (m_dialogs)
        m_dialogs->unloadTipOfTheDay();
}

void FormOpener::unloadNotify()
{
    m_notify.reset();
}

} // namespace nimb
