// One entry of the own-state chooser, and the form in which a personalised state is stored.
#pragma once

#include "base/own_presence.h"

#include <QString>

#include <optional>

namespace nimb
{

struct OwnStateEntry {
    QString text;
    std::optional<Picture> picture; ///< empty for the entry that adds a personalised state
    QString key;                    ///< "_personalized", "Personalized" + number, or empty
    QString personalizedText;       ///< empty for a plain state
    std::optional<BaseState> base;  ///< of the own state that is chosen with it; empty: it asks for a personalised one

    bool operator==(const OwnStateEntry &) const = default;
};

/// The key is left empty.
OwnStateEntry personalizedEntry(BaseState base, const QString &text);

/// A stored personalised state is the position of its picture, one digit, directly followed by its text. Every picture
/// is taken, also one that no own state has. Empty where the value does not begin with a picture's digit; the key is
/// left empty.
std::optional<OwnStateEntry> entryOfStored(const QString &value);
/// The inverse, for a personalised state.
QString storedForm(const OwnStateEntry &entry);

} // namespace nimb
