// Which bytes of a file a request asks for.
#pragma once

#include <QtGlobal>

#include <optional>
#include <string_view>
#include <variant>

namespace nimb
{

/// As HTTP has them around the value of a header: blanks and tabs at both ends.
std::string_view withoutBlanks(std::string_view text);

struct ByteRange {
    quint64 first = 0;
    quint64 length = 0;
    bool operator==(const ByteRange &) const = default;
};

struct WholeFile {
    bool operator==(const WholeFile &) const = default;
};
/// The request asks for bytes that the file does not have.
struct BeyondFile {
    bool operator==(const BeyondFile &) const = default;
};

using WantedBytes = std::variant<WholeFile, ByteRange, BeyondFile>;

/// range: the header of that name, empty where there is none. ifRange, where there is one: the tag that the range is
/// for. Several ranges, other units and what cannot be read count as a wish for the whole, as HTTP has it.
WantedBytes wantedBytes(std::string_view range, std::optional<std::string_view> ifRange, std::string_view tag,
                        quint64 size);

} // namespace nimb
