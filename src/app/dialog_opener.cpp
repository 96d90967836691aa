#include "app/dialog_opener.h"

#include "app/manual_opener.h"
#include "base/isolated.h"
#include "base/limits.h"
#include "doctor/frmDoctor.h"
#include "files/frmTransfers.h"
#include "history/frmHistory.h"
#include "main_window/frmMain.h"
#include "options/frmOptions.h"
#include "people/contact_import.h"
#include "people/frmAddUser.h"
#include "people/frmInvite.h"
#include "people/frmNetworkscan.h"
#include "people/frmSendContact.h"
#include "welcome/frmAbout.h"
#include "welcome/frmShortcuts.h"
#include "welcome/frmTipOfTheDay.h"
#include "widgets/bring_back.h"
#include "widgets/file_dialogs.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

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

QString contactFiles()
{
    return QCoreApplication::translate("DialogOpener", "Contacts (*.csv)") + QLatin1String(" (*.csv);;")
        + QCoreApplication::translate("DialogOpener", "All Files (*.*)") + QLatin1String(" (*)");
}

} // namespace

DialogOpener::DialogOpener(const FormServices &services, Messenger &engine, frmMain &over)
    : m_services(services), m_engine(engine), m_main(over)
{
}

DialogOpener::~DialogOpener()
{
    delete m_tip; // nobody else's child
}

void DialogOpener::mnuNetworkscan()
{
    const NetworkScan scan(m_services.common, m_engine.search(), m_services.names, m_engine.log());
    auto *const dialog = new frmNetworkscan(scan, &m_main);
    QObject::connect(dialog, &frmNetworkscan::doctorWanted, &m_main, [this] { mnuNetworkDoctor(); });
    open(dialog);
}

void DialogOpener::mnuAddUser()
{
    const AddUser rules(m_services.common, m_engine.admission(), m_engine.contacts(), m_engine.search(),
                        m_services.prompts);
    open(new frmAddUser(rules, &m_main));
}

void DialogOpener::mnuFindEverybody()
{
    m_engine.search().findEverybody();
}

void DialogOpener::stopSearching()
{
    m_engine.search().stop();
}

void DialogOpener::mnuImportContacts()
{
    askForFile(m_main, contactFiles(), [this](const QString &path) { importContacts(path); });
}

void DialogOpener::importContacts(const QString &path)
{
    QFile file(path);
    const QString name = QFileInfo(path).fileName();
    // Not all that can be opened has a size.
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.read(limits::contactFileBytes + 1) : QByteArray();
    if (file.error() != QFileDevice::NoError || bytes.size() > limits::contactFileBytes) {
        const bool isRead = file.error() == QFileDevice::NoError;
        const QString reason = isRead ? tr("it is too large for a list of contacts") : file.errorString();
        m_services.prompts.tell(tr("%1 cannot be read: %2.").arg(isolated(name), reason), programTitle);
        return;
    }
    ContactImport(m_engine.admission(), m_engine.contacts(), m_engine.search(), m_engine.log(), m_services.prompts)
        .take(bytes, name);
}

void DialogOpener::mnuExportContacts()
{
    askForNewFile(m_main, QStringLiteral("contacts.csv"), contactFiles(),
                  [this](const QString &path) { exportContacts(path); });
}

/// The file that was there stays as it is unless all of the new one could be written.
void DialogOpener::exportContacts(const QString &path)
{
    QSaveFile file(path);
    const QString name = QFileInfo(path).fileName();
    const std::vector<ContactFile::Entry> entries = ContactFile::entriesOf(m_engine.contacts());
    const QByteArray bytes = ContactFile::write(entries);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        m_services.prompts.tell(tr("%1 cannot be written: %2.").arg(isolated(name), file.errorString()), programTitle);
        return;
    }
    const auto others = m_engine.contacts().rowCount() - static_cast<qsizetype>(entries.size());
    m_engine.log().note(others == 0 ? tr("contacts in %1: %2").arg(name, QString::number(entries.size()))
                                    : tr("contacts in %1: %2; left out, for nobody else could reach them: %3")
                                          .arg(name, QString::number(entries.size()), QString::number(others)));
}

void DialogOpener::mnuHelpAbout()
{
    open(new frmAbout(m_services.systemInformation, m_services.prompts, QCoreApplication::applicationVersion(),
                      &m_main));
}

void DialogOpener::mnuShortcuts()
{
    open(new frmShortcuts(&m_main));
}

void DialogOpener::mnuTransfers()
{
    if (!m_transfers || !m_transfers->isVisible())
        m_transfers = new frmTransfers(m_engine.transfers(), m_services.folders, m_services.prompts, &m_main);
    bringBack(*m_transfers);
    m_transfers->activateWindow();
}

bool DialogOpener::canSendFiles() const
{
    return m_engine.transfers().offers.isAvailable();
}

void DialogOpener::mnuSendFile(const QString &ip)
{
    const Contact *const contact = m_engine.contacts().find(ip);
    if (!contact)
        return;
    if (contact->presence == Presence::unknown)
        return m_engine.contactCommands().mnuPrivateChat(ip); // which says why nothing opens
    if (!isPresent(contact->presence))
        return m_engine.privateWindows().sendFiles(ip, {}); // which says why none goes
    askForFiles(m_main, [this, ip](const QStringList &paths) { m_engine.privateWindows().sendFiles(ip, paths); });
}

void DialogOpener::mnuHistory(const QString &ip)
{
    openHistory(ip, {});
}

void DialogOpener::openHistory(const QString &ip, const QString &words)
{
    if (!m_history || !m_history->isVisible())
        m_history = new frmHistory(m_engine.history().history(), m_engine.outbox(), m_services.prompts, &m_main);
    if (!ip.isEmpty() || !words.isEmpty())
        m_history->choose(ip, words);
    bringBack(*m_history);
    m_history->activateWindow();
}

void DialogOpener::mnuLeaveOut(const QString &ip, bool leftOut)
{
    if (m_engine.contacts().find(ip))
        m_engine.history().leaveOut(ip, leftOut);
}

bool DialogOpener::hasManual() const
{
    return m_services.manual.hasManual();
}

void DialogOpener::mnuManual()
{
    m_services.manual.openFor(m_main);
}

void DialogOpener::mnuinviteuser(const QString &ip)
{
    const Invite invite(m_services.common, m_engine.contacts(), m_services.netSend, m_services.prompts);
    open(new frmInvite(invite, ip, &m_main));
}

/// Without a parent: it is seen although the main window starts minimised.
void DialogOpener::mnuTOTD()
{
    // One that is closed is there until the event loop comes round to deleting it.
    if (!m_tip || !m_tip->isVisible())
        m_tip = new frmTipOfTheDay(TipOfTheDay(m_services.store, m_services.openTips), m_services.prompts, nullptr);
    bringBack(*m_tip);
    m_tip->activateWindow();
}

void DialogOpener::mnuNetworkDoctor()
{
    if (!m_doctor || !m_doctor->isVisible()) {
        delete m_doctor; // one that is closed may still wait for an answer
        m_doctor = new frmDoctor({.common = m_services.common,
                                  .socket = m_services.socket,
                                  .trace = m_services.trace,
                                  .drops = m_services.drops,
                                  .ownAddresses = m_engine.ownAddresses(),
                                  .diagnosis = m_services.diagnosis,
                                  .sender = m_engine.sender(),
                                  .contacts = m_engine.contacts(),
                                  .timers = m_services.timers,
                                  .clock = m_services.clock},
                                 &m_main);
    }
    bringBack(*m_doctor);
    m_doctor->activateWindow();
}

void DialogOpener::mnusendcontacts(const QString &ip)
{
    const Contact *const contact = m_engine.contacts().find(ip);
    if (!contact)
        return;
    delete m_sendContact;
    m_sendContact = new frmSendContact(
        std::make_unique<ContactTransfer>(m_services.socket, m_engine.contacts(), m_engine.log(), ip),
        contact->nickname, &m_main);
    m_sendContact->show();
}

void DialogOpener::mnuToolsOptions()
{
    const OptionValues values(
        {.common = m_services.common,
         .ownAvatar = m_engine.ownAvatar(),
         .ownState = m_engine.ownState(),
         .sources = m_services.pictures,
         .clock = m_services.clock,
         .ownAddresses = m_engine.ownAddresses(),
         .autostart = m_services.autostart,
         .changeNickname = [this](const QString &name) { m_engine.mainWindow().changeNickname(name); },
         .keepHistory = [this](KeepHistory keep) { m_engine.history().choose(keep); },
         .taken = [this] { m_engine.recovery().settingsChanged(); }});
    open(new frmOptions(values, m_services.prompts, &m_main));
}

void DialogOpener::mnuCreateNewConf()
{
    m_engine.conferences().mnuCreateNewConf();
}

void DialogOpener::mnushowinvitations()
{
    m_engine.invitations().mnushowinvitations();
}

void DialogOpener::mnuInvite2Conf(int slot, const QString &ip)
{
    m_engine.conferences().mnuInvite2Conf(slot, ip);
}

void DialogOpener::unloadTipOfTheDay()
{
    if (m_tip)
        m_tip->unload();
}

} // namespace nimb
