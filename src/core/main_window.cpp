#include "core/main_window.h"

#include "core/settings.h"

namespace nimb
{

QString mainCaption(const QString &nickname)
{
    return QLatin1String("NIMB-Chat 1.2 - ") + nickname;
}

void MainWindow::Form_Load()
{
    QStringList notices;
    loadSettings(notices);
    m.log.banner();
    if (const std::optional<QString> problem = m.store.problem())
        m.log.fault(*problem);
    for (const QString &notice : std::as_const(notices))
        m.log.fault(notice);
    m.port.report();
    m.contacts.load(m.store);
    m.announcement.run();
    m.tray.AddIcon(QStringLiteral("NIMB-Chat"));
}

void MainWindow::loadSettings(QStringList &notices)
{
    const LoadedSettings loaded = nimb::loadSettings(m.store, m.common);
    notices = loaded.notices;
    m.view.setPlace(m.common.mainPlace);
    m.view.setCaption(mainCaption(m.common.ownNickname));
    for (const QString &value : m.ownState.load(loaded.personalizedStates))
        notices.append(
            tr("The stored personalized state \"%1\" begins with no picture digit and is left out.").arg(value));
    m.port.open();
}

CloseDecision MainWindow::Form_QueryUnload(UnloadMode mode) const
{
    if (mode != UnloadMode::closeBox || m.common.options.CloseButtonDoesMinimize != 1)
        return CloseDecision::unload;
    return m.tray.isShown() ? CloseDecision::hide : CloseDecision::minimise;
}

void MainWindow::Form_Unload()
{
    m.windows.unloadConferences();
    m.windows.unloadPrivateWindows();
    m.windows.unloadNotify();
    m.windows.unloadInvitations();
    m.windows.unloadTipOfTheDay();
    sayFarewellAndSaveContacts();
    save();
    m.tray.removeIcon();
}

void MainWindow::sayFarewellAndSaveContacts()
{
    int saved = 0;
    for (int row = 0; row < m.contacts.rowCount(); ++row) {
        const Contact &contact = m.contacts.at(row);
        // This address would end the stored list, and whatever stands behind it would be lost.
        if (contact.ip == endOfStoredContacts)
            continue;
        m.sender.farewell(contact.ip);
        ContactList::saveContact(m.store, ++saved, contact);
    }
    ContactList::saveEnd(m.store, saved);
}

void MainWindow::save()
{
    m.common.mainPlace = m.view.place();
    saveSettings(m.store, m.common, m.ownState.storedValues());
    if (const std::optional<QString> problem = m.store.save())
        m.prompts.tell(*problem, QStringLiteral("NIMB-Chat"));
}

} // namespace nimb
