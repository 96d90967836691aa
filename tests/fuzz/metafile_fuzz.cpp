// Feeds any bytes to the decoder of pictures, as a metafile and as a fragment of rich text.
#include "log/metafile.h"
#include "require.h"

#include <QByteArray>
#include <QString>

#include <algorithm>

namespace
{

using namespace nimb;

void check(const std::optional<IndexedBitmap> &bitmap)
{
    if (!bitmap)
        return;
    require(bitmap->width > 0 && bitmap->width <= 64, "a picture is 1 to 64 pixels wide");
    require(bitmap->height > 0 && bitmap->height <= 64, "a picture is 1 to 64 pixels high");
    require(bitmap->pixels.size() == std::size_t(bitmap->width) * std::size_t(bitmap->height),
            "every pixel of a picture is there");
    require(std::all_of(bitmap->pixels.begin(), bitmap->pixels.end(), [](std::uint8_t index) { return index < 16; }),
            "a pixel has a colour of the palette");
    require(std::all_of(bitmap->palette.begin(), bitmap->palette.end(),
                        [](std::uint32_t colour) { return colour <= 0xFFFFFF; }),
            "a colour has 24 bits");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<IndexedBitmap> bitmap = decodeMetafile(bytes);
    check(bitmap);
    const QString fragment = QLatin1String("{\\pict\\picw318\\pich318\\wmetafile8 ")
        + QString::fromLatin1(bytes.toHex()) + QLatin1Char('}');
    const std::optional<IndexedBitmap> same = decodePictureFragment(fragment);
    require(bitmap.has_value() == same.has_value(), "a fragment holds what its metafile holds");
    require(!bitmap || bitmap->pixels == same->pixels, "a fragment holds the same picture");
    check(decodePictureFragment(QString::fromUtf8(bytes)));
    return 0;
}
