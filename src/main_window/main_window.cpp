#include "main_window/main_window.h"

#include "base/isolated.h"
#include "base/limits.h"
#include "base/remote_text.h"
#include "base/settings.h"
#include "main_window/offer_good_copy.h"
#include "protocol/datagram.h"

#include <variant>

namespace nimb
{

QString mainCaption(const QString &nickname)
{
    return QLatin1String("NIMB-Chat 1.2 - ") + nickname;
}

MainWindow::MainWindow(Parts parts) : m_parts(std::move(parts))
{
    const ContactList &contacts = m_parts.contacts;
    QObject::connect(&contacts, &ContactList::unreadChanged, &contacts, [this] { showInTray(); });
}

void MainWindow::showInTray()
{
    if (!m_isInTray)
        return;
    const int unread = m_parts.contacts.unread();
    QString tip = tr("NIMB-Chat: %1, %2")
                      .arg(isolated(paintedName(m_parts.common.ownNickname, limits::trayNameLength)),
                           baseName(m_parts.common.ownPresence.base));
    if (unread > 0)
        tip = tr("%1, %2 unread").arg(tip, QString::number(unread));
    m_parts.tray.setUnread(unread, tip);
}

void MainWindow::changeNickname(const QString &nickname)
{
    Common &common = m_parts.common;
    const QString name = nickname.isEmpty() ? common.ownHostName : nickname;
    if (name == common.ownNickname)
        return;
    common.ownNickname = name;
    m_parts.view.setCaption(mainCaption(name));
    showInTray();
    m_parts.announcement.runUnlessInvisible();
    writeSetting(m_parts.store, QLatin1String("MyNickName"), name);
    if (const std::optional<QString> problem = m_parts.store.save())
        m_parts.log.fault(*problem);
}

void MainWindow::Form_Load()
{
    const LoadedSettings settings = loadSettings();
    m_parts.log.banner();
    if (const std::optional<QString> problem = m_parts.store.problem())
        m_parts.log.fault(*problem);
    for (const std::optional<QString> &sentence : {m_parts.goodCopy.damage(), waitingCopy(m_parts.goodCopy)}) {
        if (sentence)
            m_parts.log.fault(*sentence);
    }
    for (const QString &sentence : m_parts.nextStart.take())
        m_parts.log.fault(tr("When NIMB-Chat last ended: %1").arg(sentence));
    for (const QString &notice : settings.notices)
        m_parts.log.fault(notice);
    m_parts.port.report();
    m_parts.contacts.load(m_parts.store);
    m_parts.recovery.takeOver();
    m_parts.contactsLoaded();
    m_parts.announcement.run();
    m_parts.tray.AddIcon(QStringLiteral("NIMB-Chat"));
    m_isInTray = true;
    showInTray();
    m_parts.recovery.begin(settings.personalizedStates);
}

LoadedSettings MainWindow::loadSettings()
{
    LoadedSettings loaded = nimb::loadSettings(m_parts.store, m_parts.common);
    m_parts.view.setPlace(m_parts.common.mainPlace);
    m_parts.view.setCaption(mainCaption(m_parts.common.ownNickname));
    for (const QString &value : m_parts.ownState.load(loaded.personalizedStates))
        loaded.notices.append(
            tr("The stored personalized state \"%1\" begins with no picture digit and is left out, and gone "
               "for good once NIMB-Chat ends.")
                .arg(remoteLine(value)));
    loaded.notices.append(m_parts.networks.begin());
    m_parts.port.open();
    return loaded;
}

CloseDecision MainWindow::Form_QueryUnload(UnloadMode mode)
{
    if (mode != UnloadMode::closeBox || !m_parts.common.options.closeBoxHides)
        return mayEndTransfers(mode) ? CloseDecision::unload : CloseDecision::stay;
    if (m_parts.tray.isShown())
        return CloseDecision::hide;
    if (!std::exchange(m_saidWhyMinimised, true))
        m_parts.log.remark(tr("--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---"));
    return CloseDecision::minimise;
}

/// Whoever does not answer, as at the end of a session, does not hold the end up.
bool MainWindow::mayEndTransfers(UnloadMode mode)
{
    const int underWay = mode == UnloadMode::sessionEnd ? 0 : m_parts.transfersUnderWay();
    if (underWay == 0)
        return true;
    return m_parts.prompts
        .decideCarefully(
            tr("Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?").arg(underWay),
            programTitle)
        .value_or(true);
}

void MainWindow::Form_Unload()
{
    answerNobody();
    m_parts.unloadOtherWindows();
    sayFarewellAndSaveContacts();
    save();
    tellOfUnshown();
    m_parts.tray.removeIcon();
}

void MainWindow::endWithoutWindows()
{
    if (m_ended)
        return;
    answerNobody();
    sayFarewellAndSaveContacts();
    save();
    tellOfUnshown();
}

/// Who is leaving answers nobody, however long the end takes.
void MainWindow::answerNobody()
{
    m_ended = true;
    m_isInTray = false;
    m_parts.socket.DataArrival = [this](std::size_t byteCount) { countUnshown(byteCount); };
    m_parts.socket.announceWaiting(); // as long as there are conferences
    m_parts.recovery.end();
    m_parts.networks.end();
}

/// Whatever else arrives is of no use to a program that ends.
void MainWindow::countUnshown(std::size_t byteCount)
{
    const wire::Datagram datagram = wire::parse(m_parts.socket.GetData(byteCount));
    const Ipv4Address sender = m_parts.socket.RemoteHostIP();
    const auto *const said = std::get_if<wire::ConferenceMessage>(&datagram);
    const bool isMessage
        = said ? m_parts.takesPartIn(sender, said->id) : std::holds_alternative<wire::PrivateMessage>(datagram);
    if (isMessage && m_parts.contacts.isContact(sender))
        ++m_unshown;
}

void MainWindow::tellOfUnshown()
{
    m_parts.socket.announceWaiting();
    m_parts.socket.DataArrival = nullptr;
    if (m_unshown > 0)
        m_parts.nextStart.tell(tr("Messages that arrived while the program ended are lost: %1.").arg(m_unshown));
}

void MainWindow::sayFarewellAndSaveContacts()
{
    m_parts.store.dropKept(); // what is emptied behind the last contact is what is stored there
    int saved = 0;
    for (int row = 0; row < m_parts.contacts.rowCount(); ++row) {
        const Contact &contact = m_parts.contacts.at(row);
        // This address would end the stored list, and whatever stands behind it would be lost.
        if (contact.ip == endOfStoredContacts)
            continue;
        m_parts.sender.farewell(contact.ip);
        ContactList::saveContact(m_parts.store, ++saved, contact);
    }
    ContactList::saveEnd(m_parts.store, saved);
}

/// As long as the copy is offered it is all that is left of something, so it stays.
void MainWindow::renewGoodCopy()
{
    if (m_parts.goodCopy.offeredCopy())
        return;
    if (const std::optional<QString> problem = m_parts.goodCopy.renewCopy())
        m_parts.nextStart.tell(*problem);
}

void MainWindow::save()
{
    m_parts.common.mainPlace = m_parts.view.place();
    saveSettings(m_parts.store, m_parts.common, m_parts.ownState.storedValues());
    const std::optional<QString> problem = m_parts.store.save();
    if (problem && !m_parts.prompts.tell(*problem, programTitle))
        m_parts.nextStart.tell(*problem);
    if (!problem)
        renewGoodCopy();
}

} // namespace nimb
