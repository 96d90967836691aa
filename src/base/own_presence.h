// The own state as the user chose it, and the words that stand for it.
#pragma once

#include "base/presence.h"

#include <QString>

#include <optional>

namespace nimb
{

/// What an own state is at bottom, whatever words of the user's own go with it.
enum class BaseState {
    unchosen, ///< online since the start, without a choice yet: peers are told so in another word
    online,
    busy,
    away,
    invisible,
};

struct OwnPresence {
    BaseState base = BaseState::unchosen;
    QString words; ///< the user's own, empty for a plain state
    bool operator==(const OwnPresence &) const = default;
};

/// What travels and stands in the status bar: "Online" until the first choice, then "ONLINE", "BUSY", "AWAY" or
/// "Invisible". Fixed: peers read it.
QLatin1String stateWord(BaseState state);

/// Before the words of a personalised state: "Online", "Busy", "Away" or "Invisible". Never translated, since copies
/// of any language show it.
QLatin1String baseName(BaseState state);

Picture pictureOf(BaseState state);
/// None for the pictures that stand for contacts alone.
std::optional<BaseState> baseStateOf(Picture picture);

/// What a peer's state word says about it. Its first characters count, without regard to case; a word that is not known
/// means that the peer is there.
Presence presenceOfStateWord(const QString &word);

/// "BUSY - In a meeting".
QString withOwnWords(const QString &state, const QString &words);
/// What such a state says beyond the presence: "In a meeting", nothing for "BUSY" alone, and all of a state that begins
/// with no known word.
QString ownWordsOf(const QString &state);

} // namespace nimb
