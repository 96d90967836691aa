#include "log/emoticon_tables.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace nimb
{
namespace
{

constexpr std::uint32_t side = 12; ///< pixels

/// A face, top row first; each letter is a colour of the palette.
using Drawing = std::array<std::string_view, side>;

struct PaletteEntry {
    char letter;
    std::uint32_t rgb; ///< 0xRRGGBB
};

/// The first colour is the ground around a face and nowhere in it, so that a log can leave it out.
constexpr std::array<PaletteEntry, 16> palette = {{
    {'.', 0xFFFFFF},
    {'#', 0x8A5A00}, // outline
    {'y', 0xFFD23F},
    {'h', 0xFFEFA0}, // light on the face
    {'s', 0xE8A91C}, // shade on it
    {'k', 0x2B2013}, // eyes and lips
    {'w', 0xFFFFFF}, // teeth
    {'m', 0x8C1D18}, // inside of a mouth
    {'r', 0xE0344B}, // tongue
    {'b', 0x2F8FE8}, // tears
    {'\0', 0},
    {'\0', 0},
    {'\0', 0},
    {'\0', 0},
    {'\0', 0},
    {'\0', 0},
}};

constexpr std::array<Drawing, 9> faces = {{
    {{
        // laughing
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hkyyyyky#.",
        "#hkykyykyky#",
        "#hyyyyyyyyy#",
        "#yykkkkkkys#",
        "#yykwwwwkys#",
        ".#ykmmmmks#.",
        ".#yykkkkss#.",
        "..##ssss##..",
        "....####....",
    }},
    {{
        // crying
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hkkyykky#.",
        "#hybyyyybyy#",
        "#hybyyyybyy#",
        "#ybbyyyybbs#",
        "#ybykkkkybs#",
        ".#ykmmmmks#.",
        ".#ykyyyyks#.",
        "..##ssss##..",
        "....####....",
    }},
    {{
        // smiling
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hykyykyy#.",
        "#hyykyykyyy#",
        "#hyyyyyyyyy#",
        "#yyyyyyyyys#",
        "#yykyyyykys#",
        ".#yykkkkys#.",
        ".#yyyyyyss#.",
        "..##ssss##..",
        "....####....",
    }},
    {{
        // sad
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hykyykyy#.",
        "#hyykyykyyy#",
        "#hyyyyyyyyy#",
        "#yyyyyyyyys#",
        "#yyykkkkyys#",
        ".#ykyyyyks#.",
        ".#yyyyyyss#.",
        "..##ssss##..",
        "....####....",
    }},
    {{
        // neutral
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hykyykyy#.",
        "#hyykyykyyy#",
        "#hyyyyyyyyy#",
        "#yyyyyyyyys#",
        "#yykkkkkkys#",
        ".#yyyyyyys#.",
        ".#yyyyyyss#.",
        "..##ssss##..",
        "....####....",
    }},
    {{
        // tongue out
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hykyykyy#.",
        "#hyykyykyyy#",
        "#hyyyyyyyyy#",
        "#yykkkkkkys#",
        "#yyyyyrmrys#",
        ".#yyyyrmrs#.",
        ".#yyyyyrss#.",
        "..##ssss##..",
        "....####....",
    }},
    {{
        // winking
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hykyyyyy#.",
        "#hyykyykkky#",
        "#hyyyyyyyyy#",
        "#yyyyyyyyys#",
        "#yykyyyykys#",
        ".#yykkkkys#.",
        ".#yyyyyyss#.",
        "..##ssss##..",
        "....####....",
    }},
    {{
        // winking, tongue out
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hykyyyyy#.",
        "#hyykyykkky#",
        "#hyyyyyyyyy#",
        "#yykkkkkkys#",
        "#yyyyyrmrys#",
        ".#yyyyrmrs#.",
        ".#yyyyyrss#.",
        "..##ssss##..",
        "....####....",
    }},
    {{
        // grinning
        "....####....",
        "..##hhyy##..",
        ".#hhyyyyyy#.",
        ".#hykyykyy#.",
        "#hyykyykyyy#",
        "#hyyyyyyyyy#",
        "#yykkkkkkys#",
        "#yykwwwwkys#",
        ".#ykwwwwks#.",
        ".#yykkkkss#.",
        "..##ssss##..",
        "....####....",
    }},
}};

/// Writes little-endian words as digits.
class HexWriter
{
public:
    constexpr void byte(std::uint32_t value)
    {
        constexpr std::string_view digits = "0123456789abcdef";
        m_hex[m_length++] = digits[value >> 4 & 0xF];
        m_hex[m_length++] = digits[value & 0xF];
    }
    constexpr void word(std::uint32_t value)
    {
        byte(value & 0xFF);
        byte(value >> 8 & 0xFF);
    }
    constexpr void dword(std::uint32_t value)
    {
        word(value & 0xFFFF);
        word(value >> 16);
    }
    /// The whole text; what was not written is zero.
    constexpr MetafileHex filled()
    {
        while (m_length < m_hex.size())
            byte(0);
        return m_hex;
    }

private:
    MetafileHex m_hex = {};
    std::size_t m_length = 0;
};

constexpr std::uint32_t colourIndex(char letter)
{
    for (std::uint32_t i = 0; i < palette.size(); ++i) {
        if (palette[i].letter == letter)
            return i;
    }
    throw "a drawing uses a colour that is not in the palette"; // ends the compilation
}

/// Function numbers and layouts are those of the Windows Metafile format; sizes are in words of two bytes.
constexpr MetafileHex metafile(const Drawing &drawing)
{
    constexpr std::uint32_t totalSize = 212, largestRecord = 114;
    constexpr std::uint32_t setWindowOrg = 0x020B, setWindowExt = 0x020C, setStretchBltMode = 0x0107;
    constexpr std::uint32_t stretchDib = 0x0F43, colourOnColour = 3, copySource = 0x00CC0020;
    HexWriter out;
    out.word(1); // in memory
    out.word(9);
    out.word(0x0300);
    out.dword(totalSize);
    out.word(0); // objects
    out.dword(largestRecord);
    out.word(0);

    for (const auto &[function, extent] : {std::pair(setWindowOrg, 0U), std::pair(setWindowExt, side)}) {
        out.dword(5);
        out.word(function);
        out.word(extent);
        out.word(extent);
    }
    out.dword(4);
    out.word(setStretchBltMode);
    out.word(colourOnColour);

    out.dword(largestRecord);
    out.word(stretchDib);
    out.dword(copySource);
    out.word(0);                                             // the palette holds colours
    for (const std::uint32_t measure : {side, side, 0U, 0U}) // of the bitmap: size, corner
        out.word(measure);
    for (const std::uint32_t measure : {side, side, 0U, 0U}) // of the window
        out.word(measure);

    out.dword(40); // bitmap header
    out.dword(side);
    out.dword(side);
    out.word(1);                            // plane
    out.word(4);                            // bits a pixel
    for (int field = 0; field < 6; ++field) // not compressed; sizes and counts that follow from the rest
        out.dword(0);
    for (const PaletteEntry &entry : palette)
        out.dword(entry.rgb);                  // blue, green, red, 0
    for (std::size_t row = side; row-- > 0;) { // the lowest row first, each filled up to whole double words
        const std::string_view line = drawing[row];
        if (line.size() != side)
            throw "a row of a drawing has another width";
        for (std::size_t column = 0; column < side; column += 2)
            out.byte(colourIndex(line[column]) << 4 | colourIndex(line[column + 1]));
        out.word(0);
    }

    out.dword(3); // end
    out.word(0);
    return out.filled();
}

constexpr EmoticonTables InitEmoticonTables()
{
    const auto text
        = [](std::string_view ascii) { return QLatin1String(ascii.data(), static_cast<int>(ascii.size())); };
    EmoticonTables tables = {};
    tables.texts = {text(":-))"), text(":))"), text(":-(("), text(":(("), text(":-)"), text(":)"),
                    text(":-("),  text(":("),  text(":-|"),  text(":|"),  text(":-p"), text(":p"),
                    text(";-)"),  text(";)"),  text(";-p"),  text(";p"),  text(":-D"), text(":D")};
    for (std::size_t i = 0; i < faces.size(); ++i)
        tables.pictures[i] = metafile(faces[i]);
    tables.participantColours = {0xC00000, 0x008000, 0x0000FF, 0xC08000, 0xAA00FF, 0x0080FF, 0xC000C0, 0x008080};
    return tables;
}

} // namespace

constinit const EmoticonTables emoticonTables = InitEmoticonTables();

} // namespace nimb
