// A whole engine: what the program is without its windows and without the system. Everything around it is a recorder.
#pragma once

#include "app/messenger.h"
#include "recorders.h"
#include "virtual_time.h"

#include <memory>
#include <string_view>
#include <utility>

namespace nimb::test
{

/// Views that write down what they are shown.
struct RecordedViews {
    RecorderMainView view;
    RecorderNotifications notifications;
    RecorderPrivateForms privateForms;
    RecorderConferenceForms conferenceForms;
    RecorderInvitationsView invitationsView;
};

template <class Socket, class Views = RecordedViews> class WholeEngine : public Recorders, public Views
{
public:
    /// makeSocket: called with the counts of what is dropped.
    template <class MakeSocket>
    WholeEngine(std::shared_ptr<VirtualTime> sharedTime, const MakeSocket &makeSocket)
        : time(std::move(sharedTime)), socket(makeSocket(drops))
    {
    }

    /// A contact that is known to be there, without a datagram of its own.
    void addPresent(const ContactAddress &ip, const QString &nickname)
    {
        Contact contact;
        contact.ip = ip;
        contact.nickname = nickname;
        contact.setPresence(Presence::online);
        engine.contacts().add(contact);
    }
    /// The datagram as if it had come from there, without the network.
    void receive(Ipv4Address from, std::string_view bytes) { engine.dispatcher().receive(from, bytes); }

    std::shared_ptr<VirtualTime> time;
    Common common;
    RecorderWindows windows{steps};
    Socket socket;
    Messenger engine{common,
                     {socket,
                      settings,
                      goodCopy,
                      nextStart,
                      *time,
                      *time,
                      ownAddresses,
                      networkWatch,
                      chance,
                      prompts,
                      Views::notifications,
                      sound,
                      tray,
                      windows,
                      Views::privateForms,
                      Views::conferenceForms,
                      history,
                      Views::view,
                      drops,
                      fileServer,
                      fileFetcher}};
};

} // namespace nimb::test
