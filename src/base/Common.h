// The state that the whole program shares. Data only: made once, handed by reference to whoever needs it.
#pragma once

#include "base/options.h"
#include "base/own_presence.h"
#include "protocol/ipv4_address.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace nimb
{

/// Font of the logs and input boxes of private and conference windows.
struct LogFont {
    QString face = QStringLiteral("MS Sans Serif");
    std::int16_t size = 8; ///< points
    QString style;         ///< holds "b" for bold and "i" for italic, in any order

    bool bold() const { return style.contains(u'b'); }
    bool italic() const { return style.contains(u'i'); }
    bool operator==(const LogFont &) const = default;
};

/// Where the main window stands: its frame's corner and its height without the frame, in twips.
struct WindowPlace {
    double left = 1000;
    double top = 1000;
    double height = 6200;
};

struct AutoReply {
    bool onBusy = false;
    bool onAway = false;
    QString busyText = QStringLiteral("I'm busy, please do not disturb");
    QString awayText = QStringLiteral("At the moment I'm not at my PC");
};

/// How the input boxes check what is written.
struct SpellingChoice {
    QString language;  ///< empty: that of the desktop; "off": none
    QStringList words; ///< that the user has added to every dictionary, the newest last
};

/// Whether conversations are kept, and how long.
enum class KeepHistory { notAsked, no, year, ever };

/// What of conversations is kept.
struct HistoryRules {
    KeepHistory keep = KeepHistory::notAsked;
    QStringList leftOut; ///< addresses of contacts with whom nothing is kept

    bool isKept(const QString &address) const
    {
        return (keep == KeepHistory::year || keep == KeepHistory::ever) && !leftOut.contains(address);
    }
};

struct Common {
    Common() = default;
    Common(const Common &) = delete;
    Common &operator=(const Common &) = delete;

    Ipv4Address ownIP; ///< found at the start, and anew whenever the networks of this machine change
    QString ownHostName;
    QString ownNickname;

    OwnPresence ownPresence;
    bool announcing = false; ///< an announcement waits for answers

    Options options;
    AutoReply autoReply;
    LogFont logFont;
    QString avatarHead;    ///< empty: no avatar
    QByteArray avatarBody; ///< 7500 bytes, or empty
    std::uint16_t udpPort = 5549;
    QString ownCard;  ///< the network card whose address is the own one; empty: as the system chooses
    QString language; ///< of programLanguages; empty: the desktop's
    WindowPlace mainPlace;
    QStringList recentEmoji; ///< used lately, the latest first
    SpellingChoice spelling;
    HistoryRules history;
    bool filesExplained = false; ///< the user has been told once that files are not encrypted

    bool windowFlashingAvailable = false;
    bool buzzmute = false;

    bool isInvisible() const { return ownPresence.base == BaseState::invisible; }
    bool hearsOwnBuzz() const { return options.playOwnBuzz && !buzzmute; }
    bool hearsReceivedBuzz() const { return options.playReceivedBuzz && !buzzmute; }
};

} // namespace nimb
