// Reads the pictures of the logs: small Windows Metafiles, and the rich-text fragments that carry them.
//
// Of the format only what such a picture holds is understood: a header, records of which those that set the window and
// the stretching mode need no reaction, one bitmap of 16 colours stretched over the window, and an end record. Nothing
// behind the end record is looked at. Every length is checked against the bytes that are there.
#pragma once

#include <QByteArray>
#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace nimb
{

/// Pixels row by row from the top, each an index into the palette.
struct IndexedBitmap {
    int width = 0;
    int height = 0;
    std::array<std::uint32_t, 16> palette = {}; ///< 0xRRGGBB
    std::vector<std::uint8_t> pixels;
};

/// Nothing when the bytes are no such metafile.
[[nodiscard]] std::optional<IndexedBitmap> decodeMetafile(const QByteArray &bytes);

/// The bitmap in a fragment of the form {\pict\picwW\pichH\wmetafile8 HEX}; nothing when it has another form.
[[nodiscard]] std::optional<IndexedBitmap> decodePictureFragment(QStringView fragment);

/// The fragment of the emoticon picture with this number, 1 to 9: 318 hundredths of a millimetre wide and high, which
/// is 12 logical pixels.
QString emoticonFragment(std::size_t picture);

} // namespace nimb
