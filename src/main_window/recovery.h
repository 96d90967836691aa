// Keeps what changes while the program runs, so that a run that is killed loses a moment and not the day.
#pragma once

#include "base/main_log.h"
#include "base/main_window_view.h"
#include "base/settings_store.h"
#include "contacts/contact_list.h"
#include "contacts/own_state.h"

#include <QCoreApplication>
#include <QObject>
#include <QSet>

#include <map>
#include <utility>

namespace nimb
{

/// All that is saved when the main window ends, kept beside the stored values soon after it has changed. Settings are
/// kept as they are stored. A contact is kept by its address, for its number changes with every row that moves: under
/// "Nn:" and "Ws:" followed by the address, and "Mt:" where it is or was muted, without a value once a stored one is
/// removed. Nothing is kept of others who are gone: strangers come and go without end.
class Recovery
{
    Q_DECLARE_TR_FUNCTIONS(Recovery)

public:
    struct Parts {
        Common &common;
        SettingsStore &store;
        ContactList &contacts;
        const OwnState &ownState;
        Timers &timers;
        MainLog &log;
        const MainWindowView &view;
    };

    explicit Recovery(const Parts &parts);

    /// Brings the stored contacts up to what the last run kept, and says so when it kept anything.
    void takeOver();
    /// What changes from now on is kept; what is there now is taken for stored or kept. storedStates: the personalised
    /// states as they were read. Those that could not be used have left their numbers to others.
    void begin(const QStringList &storedStates);
    /// Something that is saved with the settings may have changed.
    void settingsChanged();
    /// From now on nothing is kept any more.
    void end();

private:
    using Values = std::map<std::pair<QString, QString>, QString>; ///< by section and key
    struct Kept {
        QString nickname;
        QString workstation;
        bool muted = false;
        bool operator==(const Kept &) const = default;
    };

    void takeOver(const KeptChange &change);
    void watchContacts();
    void contactChanged(const Contact &contact);
    void contactGoes(const ContactAddress &ip);
    void wait();
    void keep();
    void keepLater();
    void retry();
    Values settings(const QStringList &states) const;
    std::optional<Kept> toKeepOf(const ContactAddress &ip) const;
    struct Changes {
        std::vector<KeptChange> kept;
        std::vector<SettingName> undone;
    };
    Changes changesOf(const Values &now) const;
    void addContact(const ContactAddress &ip, Changes &changes) const;
    void keptAre(Values now);

    Parts m_parts;
    QObject m_connections; ///< to the contacts, as long as it lives
    std::unique_ptr<Timer> m_delay;
    std::unique_ptr<Timer> m_retry;
    int m_pause = 0;     ///< before the next attempt, in limits::keepRetry
    int m_pauseLeft = 0; ///< of it
    bool m_begun = false;
    bool m_failing = false; ///< and that has been said
    Values m_keptSettings;
    QHash<ContactAddress, Kept> m_keptContacts;
    QSet<ContactAddress> m_storedContacts;
    QSet<ContactAddress> m_changedContacts;
};

} // namespace nimb
