// What the main window does with the selected contact, and the captions that name it.
#pragma once

#include "base/Common.h"
#include "base/main_log.h"
#include "base/prompts.h"
#include "base/sound.h"
#include "base/window_openers.h"
#include "contacts/contact_list.h"
#include "protocol/winsock.h"

#include <QCoreApplication>

namespace nimb
{

/// Captions of the context menu; "&" marks access keys and is doubled in names.
struct ContactMenuCaptions {
    QString mnuPrivateChat, mnuBuzzUser, mnuRemoveUser, mnusendcontacts, mnuinviteuser;
    bool isMuted = false;
    bool isLeftOut = false; ///< of the history
};

/// Every command does nothing when there is no contact with the address, an empty one included.
class ContactCommands
{
    Q_DECLARE_TR_FUNCTIONS(ContactCommands)

public:
    struct Services {
        const Common &common;
        Winsock &socket;
        Sound &sound;
        Prompts &prompts;
        MainLog &log;
    };

    ContactCommands(const Services &services, ContactList &contacts, PrivateChats &chats)
        : m_services(services), m_contacts(contacts), m_chats(chats)
    {
    }

    /// selected: how many contacts are selected, of whom this is one.
    ContactMenuCaptions captions(const QString &ip, qsizetype selected = 1) const;
    /// Nickname and state text of the contact, as one line; empty when there is no such contact.
    QString toolTip(const QString &ip) const;
    /// The same with workstation and address; of several contacts how many they are.
    QString details(const QString &ip, qsizetype selected = 1) const;

    /// The row was clicked: what waits there to be read is opened.
    void openWaiting(const QString &ip);
    /// Where that leads nowhere, or to somebody who hears nothing, the log says why.
    void mnuPrivateChat(const QString &ip);
    void mnuBuzzUser(const QString &ip);
    /// Whether the user is told of what the contact sends.
    void mnuMuteContact(const QString &ip, bool muted);
    void mnuRemoveUser(const QString &ip) { removeUsers({ip}); }
    /// Removes these contacts after one question.
    void removeUsers(const QStringList &ips);

private:
    QString whyUnknown(const QString &name) const;
    QString removalQuestion(const std::vector<const Contact *> &contacts) const;

    Services m_services;
    ContactList &m_contacts;
    PrivateChats &m_chats;
};

} // namespace nimb
