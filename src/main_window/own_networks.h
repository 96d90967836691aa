// The networks of this machine, and the own address that they give, from the start on and whenever they change.
#pragma once

#include "base/chance.h"
#include "base/main_log.h"
#include "base/main_window_view.h"
#include "base/network_watch.h"
#include "base/own_addresses.h"
#include "contacts/announcement.h"
#include "main_window/port_watch.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace nimb
{

/// A change of what others can see, and a sleep of this machine, makes one announcement, so that everybody learns the
/// new address and who is still reached is known. It leaves after a while that chance decides: a hall of machines that
/// wake together must not shout at once. Cards that join nothing but the containers and virtual machines of this
/// machine come and go unnoticed.
class OwnNetworks
{
    Q_DECLARE_TR_FUNCTIONS(OwnNetworks)

public:
    struct Parts {
        Common &common;
        Winsock &socket;
        OwnAddresses &ownAddresses;
        NetworkWatch &watch;
        PortWatch &port;
        Announcement &announcement;
        MainLog &log;
        NetworkView &view;
        Timers &timers;
        Chance &chance;
        std::function<void()> ownAddressChanged; ///< after the start
        std::function<void()> networksChanged;   ///< whenever the system says so, whether or not the own address has
    };

    explicit OwnNetworks(const Parts &parts);
    ~OwnNetworks();

    /// Takes the own address, from now on whenever it changes. The sentences say what is amiss, for a log that is not
    /// ready yet.
    [[nodiscard]] QStringList begin();
    /// From now on nothing follows from a change.
    void end();

private:
    /// What others notice of this machine.
    struct Networks {
        bool hasCard = true; ///< the chosen one is there
        bool any = true;
        Ipv4Address own;
        std::vector<NetworkCard> cards; ///< in the order of their addresses, with an empty name
        bool operator==(const Networks &) const = default;
    };

    Networks look() const;
    std::vector<NetworkCard> noticedCards() const;
    void take(const Networks &networks);
    void changed(NetworkChange change);
    void tellChange(const Networks &before, NetworkChange change);
    void show(const QString &sentence);
    QString cardIsGone() const;
    static QString nothingThere();

    Parts m_parts;
    QString m_card; ///< of this run, whatever is chosen for the next one
    Networks m_now;
    std::unique_ptr<Timer> m_announcement;
    std::unique_ptr<Timer> m_shown; ///< until the sentence in the status bar goes
};

} // namespace nimb
