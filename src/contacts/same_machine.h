// A machine that answers from two addresses is shown once.
#pragma once

#include "base/main_log.h"
#include "contacts/presence_receiver.h"

#include <QCoreApplication>

#include <map>
#include <vector>

namespace nimb
{

/// Two contacts are taken for one machine when they bear the same nickname and the same workstation name and both are
/// heard within limits::sameMachineTime. Names can be forged, so nobody is hidden to whom the user has spoken or who
/// has something to say, and whoever does speak is shown again. A stranger stays hidden while it is silent, for a
/// machine often answers from one of its addresses alone. Copies with loopback addresses are on one machine, and yet
/// not one. The list itself keeps both, and so does the store.
class SameMachine : public PresenceWitness
{
    Q_DECLARE_TR_FUNCTIONS(SameMachine)

public:
    SameMachine(ContactList &contacts, MainLog &log);
    SameMachine(const SameMachine &) = delete;
    SameMachine &operator=(const SameMachine &) = delete;
    ~SameMachine() override;

    void seenOnline(Ipv4Address ip, bool isNew) override;

private:
    /// One of them goes on standing for both, if one may be hidden.
    void showOnce(const Contact &later, const Contact &earlier);
    void hide(Ipv4Address hidden, Ipv4Address shown);
    /// Shows again what is no longer to be hidden.
    void check();
    /// The same where this contact is one of the two.
    void checkThoseOf(const ContactAddress &changed);
    bool staysHidden(Ipv4Address hidden, Ipv4Address shown) const;

    ContactList &m_contacts;
    MainLog &m_log;
    std::map<Ipv4Address, Ipv4Address> m_hidden; ///< the hidden one, and the one that is shown
    std::vector<QMetaObject::Connection> m_connections;
};

} // namespace nimb
