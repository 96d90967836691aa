// One conference that this copy takes part in: as its host, who relays every message, or as a guest.
#pragma once

#include "base/prompts.h"
#include "conference/conference_view.h"
#include "conference/participants.h"
#include "contacts/avatar_store.h"
#include "contacts/contact_list.h"
#include "contacts/own_avatar.h"
#include "conversation/conversation.h"
#include "notify/notices.h"
#include "protocol/datagram.h"

namespace nimb
{

/// The engine half of frmConference. Its form lives as long as it does.
class Conference : public Conversation
{
    Q_DECLARE_TR_FUNCTIONS(Conference)

public:
    /// What every conference shares.
    struct Services {
        Conversation::Services conversation;
        const ContactList &contacts;
        const AvatarStore &avatars;
        OwnAvatar &ownAvatar;
        Prompts &prompts;
        Notices &notices;
        ConferenceForms &forms;
    };
    /// Which conference it is.
    struct Identity {
        bool ImHostingThatConf = false;
        Ipv4Address ConfServerIP; ///< the host's address, the own one for a hosted conference
        std::int16_t ConfNum = 0; ///< the host's number; carried in every datagram
        int fConfN = 0;           ///< slot in the window table; shown to the user
    };

    /// unloaded: called last of all when the user closes the window; it may destroy this conference.
    Conference(const Services &services, Identity identity, std::function<void()> unloaded);

    const Identity &identity() const { return m_identity; }
    bool isHostedHere() const { return m_identity.ImHostingThatConf; }
    Participants &partecipanti() { return m_participants; }
    const Participants &partecipanti() const { return m_participants; }
    ConferenceView &view() { return *m_view; }

    /// Removes a participant; nobody and the own row are left alone. The others learn it with the next list.
    void kickuserbtn_Click(const ContactAddress &ip);
    void refreshlistbtn_Click();

    /// A contact is invited; one who is present stays so.
    void invite(const ContactAddress &ip);
    /// Who is there and not in the list of participants, in the order of the contacts.
    std::vector<ContactAddress> invitable() const;
    /// Of a contact.
    QString nameOf(const ContactAddress &ip) const;

    /// The host sends the list of those present to dest or, without it, to everybody in the list.
    void Broadcastlist(std::optional<Ipv4Address> dest);
    void BroadcastClose();
    /// A message of the participant with this address: shown and, at the host, relayed.
    void ReceiveMessage(Ipv4Address IP, const QString &msg);
    void ReceiveCommand(const QString &msg, Colour color) { appendLine(msg, color); }
    /// This copy is known by another address now.
    void ownAddressChanged();
    /// The host has closed it, or has removed this copy from it.
    void terminate();

    KeptConversation keptAs() const override;
    CloseDecision Form_QueryUnload(UnloadMode mode) override;
    /// Tells the others. sayGoodbye: whether a guest still has to leave.
    void Form_Unload(bool sayGoodbye);
    /// Sends a text that was written elsewhere than in the window, which shows it.
    void answer(const QString &text);

private:
    ConversationView &conversationView() const override { return m_view->conversation(); }
    QString openingLine(const QString &date, const QString &time) const override;
    QString textToSend(const QString &typed) const override;
    void deliver(const QString &text) override;
    FileOffers::Recipients fileRecipients() const override;
    void wasRead(int unread) override;

    QString caption() const;
    Writer writerOf(Ipv4Address ip) const;
    void relay(const QString &text, Ipv4Address origin);
    Ipv4Address ownAddress(std::optional<Ipv4Address> peer) const;
    /// The participants, this copy first under that address.
    wire::ConferenceList listUnder(Ipv4Address own) const;
    void sendToAll(const std::string &bytes);
    void showOwnAvatar();
    void showAvatarOf(Ipv4Address ip);
    void showAvatar(const QString &name, const std::optional<QByteArray> &picture);

    Services m_services;
    Identity m_identity;
    QDateTime m_begun;
    Participants m_participants;
    QString m_avatarLabel; ///< whose avatar is shown
    ViewPtr<ConferenceView> m_view;
};

} // namespace nimb
