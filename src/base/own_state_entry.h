// One entry of the own-state chooser.
#pragma once

#include "base/presence_picture.h"

#include <QString>

#include <optional>

namespace nimb
{

struct OwnStateEntry {
    QString text;
    std::optional<Picture> picture; ///< empty for the entry that adds a personalised state
    QString key;                    ///< "_personalized", "Personalized" + number, or empty
    QString personalizedText;       ///< empty for a plain state

    bool operator==(const OwnStateEntry &) const = default;
};

} // namespace nimb
