// The options dialog's rules: what its controls say about the options, and the other way round.
#pragma once

#include "base/Common.h"
#include "base/own_addresses.h"
#include "base/picture_source.h"
#include "base/timers.h"
#include "contacts/own_avatar.h"

#include <QCoreApplication>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace nimb
{

enum class AvatarChoice { none, still, polled };

/// What the dialog's controls stand for.
struct OptionControls {
    Options options;
    QString UDPPorttxt;
    QString ownCard; ///< empty: automatic
    LogFont font;
    AvatarChoice avatar = AvatarChoice::none;
    QByteArray loaded; ///< a picture that was loaded in this dialog, avatarBytes bytes, or none
    PolledPicture polled;
};

/// The engine half of frmOptions.
class OptionValues
{
    Q_DECLARE_TR_FUNCTIONS(OptionValues)

public:
    /// taken: called when the options have been taken.
    OptionValues(Common &common, OwnAvatar &ownAvatar, PictureSources &sources, const WallClock &clock,
                 const OwnAddresses &ownAddresses, std::function<void()> taken)
        : m_common(common), m_ownAvatar(ownAvatar), m_sources(sources), m_clock(clock), m_ownAddresses(ownAddresses),
          m_taken(std::move(taken))
    {
    }

    OptionControls Form_Load() const;
    struct Card {
        QString name;
        QString caption;
    };
    /// What may be chosen as the own card: first the automatic choice, without a name, and the chosen one even where it
    /// does not run.
    std::vector<Card> cards() const;
    /// Not where the own address is fixed.
    bool mayChooseCard() const { return !m_ownAddresses.isFixed(); }
    /// The still avatar, for the dialog to show; avatarBytes bytes, or none.
    const QByteArray &avatar() const { return m_common.avatarBody; }
    /// Takes everything, or nothing: then the sentence says what the user is to correct. The port and the card are
    /// those of the next start.
    [[nodiscard]] std::optional<QString> CmdOK_Click(const OptionControls &controls);

private:
    void takeAvatar(const OptionControls &controls);

    Common &m_common;
    OwnAvatar &m_ownAvatar;
    PictureSources &m_sources;
    const WallClock &m_clock;
    const OwnAddresses &m_ownAddresses;
    std::function<void()> m_taken;
};

} // namespace nimb
