// The options dialog's rules: what its controls say about the options, and the other way round.
#pragma once

#include "base/Common.h"
#include "base/autostart.h"
#include "base/own_addresses.h"
#include "base/picture_source.h"
#include "base/timers.h"
#include "contacts/own_avatar.h"
#include "contacts/own_state.h"

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
    QString nickname;
    std::vector<int> removedStates; ///< places among the personalised states, the first is 0, in rising order
    Options options;
    KeepHistory keepHistory = KeepHistory::notAsked;
    QString UDPPorttxt;
    QString ownCard;  ///< empty: automatic
    QString language; ///< of programLanguages; empty: the desktop's
    bool startsWithDesktop = false;
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
    struct Parts {
        Common &common;
        OwnAvatar &ownAvatar;
        OwnState &ownState;
        PictureSources &sources;
        const WallClock &clock;
        const OwnAddresses &ownAddresses;
        Autostart &autostart;
        std::function<void(const QString &)> changeNickname;
        std::function<void(KeepHistory)> keepHistory;
        std::function<void()> taken; ///< called when the options have been taken
    };

    explicit OptionValues(Parts parts) : m_parts(std::move(parts)) { }

    OptionControls Form_Load() const;
    struct Card {
        QString name;
        QString caption;
    };
    /// The personalised states as they are chosen.
    QStringList states() const;
    /// What may be chosen as the own card: first the automatic choice, without a name, and the chosen one even where it
    /// does not run.
    std::vector<Card> cards() const;
    /// Not where the own address is fixed.
    bool mayChooseCard() const { return !m_parts.ownAddresses.isFixed(); }
    /// The still avatar, for the dialog to show; avatarBytes bytes, or none.
    const QByteArray &avatar() const { return m_parts.common.avatarBody; }
    /// Takes everything, or nothing: then the sentence says what the user is to correct. The port and the card are
    /// those of the next start.
    [[nodiscard]] std::optional<QString> CmdOK_Click(const OptionControls &controls);

private:
    std::optional<QString> takeAutostart(const OptionControls &controls);
    void takeAvatar(const OptionControls &controls);

    Parts m_parts;
};

} // namespace nimb
