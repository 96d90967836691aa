// The emoticons: their texts, their pictures, and the colours of a conference's participants.
#pragma once

#include "base/colour.h"

#include <QLatin1String>

#include <array>
#include <cstddef>

namespace nimb
{

/// A memory metafile of 424 bytes as lower-case hexadecimal digits, two per byte; see metafile.h for what is in it.
using MetafileHex = std::array<char, 848>;

/// Entry i of texts, counted from 1, is drawn as picture (i + 1) / 2, rounded down: each picture serves a text with a
/// nose and one without.
struct EmoticonTables {
    std::array<QLatin1String, 18> texts; ///< in the order in which they are tried
    std::array<MetafileHex, 9> pictures;
    std::array<Colour, 8> participantColours;

    /// picture: 1 to 9.
    QLatin1String pictureHex(std::size_t picture) const
    {
        const MetafileHex &hex = pictures.at(picture - 1);
        return QLatin1String(hex.data(), static_cast<int>(hex.size()));
    }
};

/// Filled by InitEmoticonTables() when the program is compiled, so that nothing can come before them.
extern const EmoticonTables emoticonTables;

} // namespace nimb
