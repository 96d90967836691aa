// What peers do besides writing: they buzz and type, show their mood and their avatar.
#pragma once

#include "base/Common.h"
#include "base/activity.h"
#include "base/main_log.h"
#include "base/sound.h"
#include "contacts/avatar_store.h"
#include "contacts/contact_list.h"
#include "contacts/own_avatar.h"
#include "private_chat/private_windows.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"

#include <QCoreApplication>

namespace nimb
{

class PeerFeatures : public PeerSignalHandler, public AvatarHandler
{
    Q_DECLARE_TR_FUNCTIONS(PeerFeatures)

public:
    struct Parts {
        const Common &common;
        const ContactList &contacts;
        Winsock &socket;
        PrivateWindows &windows;
        AvatarStore &avatars;
        OwnAvatar &ownAvatar;
        Activity &activity;
        MainLog &log;
        Notices &notices;
        Sound &sound;
        DropCounts &drops;
    };

    explicit PeerFeatures(const Parts &parts) : m_parts(parts) { }

    /// Heard unless switched off or muted, and always seen: in the peer's private window or, while that is not there or
    /// hidden, in the main log and at the row of the contact.
    void buzz(Ipv4Address ip) override;
    /// Seen in the peer's private window, or in the main window when there is none.
    void typing(Ipv4Address ip) override;
    void liveType(Ipv4Address ip, const QString &text) override;
    void mood(Ipv4Address ip, const QString &value) override;

    void avatarHeadQuestion(Ipv4Address ip) override;
    void avatarBodyQuestion(Ipv4Address ip) override;
    /// Kept, and answered by the question for the body. Whoever is invisible asks for it only when the user wanted the
    /// avatar: a head can come from anybody at any time.
    void avatarHead(Ipv4Address ip, const std::string &head) override;
    void avatarBody(Ipv4Address ip, const std::string &body) override;
    void avatarOff(Ipv4Address ip) override;

private:
    /// The peer's private window, or null.
    PrivateChat *windowOf(Ipv4Address ip);
    void avatarChanged(Ipv4Address ip);
    void tellBuzz(Ipv4Address ip, PrivateChat *window) const;

    Parts m_parts;
};

} // namespace nimb
