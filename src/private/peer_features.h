// What peers do besides writing: they buzz and type.
#pragma once

#include "core/Common.h"
#include "core/activity.h"
#include "core/contact_list.h"
#include "core/sound.h"
#include "private/private_windows.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"

#include <QCoreApplication>

namespace nimb
{

class PeerFeatures : public PeerSignalHandler
{
    Q_DECLARE_TR_FUNCTIONS(PeerFeatures)

public:
    PeerFeatures(const Common &common, const ContactList &contacts, PrivateWindows &windows, Activity &activity,
                 Sound &sound, DropCounts &drops);

    /// Heard unless switched off or muted, and always seen.
    void buzz(const QString &ip) override;
    /// Seen in the peer's private window, or in the main window when there is none.
    void typing(const QString &ip) override;
    void liveType(const QString &ip, const QString &text) override;
    void mood(const QString &ip, const QString &value) override;

private:
    /// The peer's private window, or null.
    PrivateChat *windowOf(const Contact &contact);

    const Common &m_common;
    const ContactList &m_contacts;
    PrivateWindows &m_windows;
    Activity &m_activity;
    Sound &m_sound;
    DropCounts &m_drops;
};

} // namespace nimb
