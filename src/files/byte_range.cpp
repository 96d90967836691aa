#include "files/byte_range.h"

#include <algorithm>
#include <charconv>

namespace nimb
{

std::string_view withoutBlanks(std::string_view text)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

namespace
{

/// Decimal digits alone; nothing where there are none, too many, or others.
std::optional<quint64> readNumber(std::string_view digits)
{
    quint64 number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return number;
}

bool beginsWithBytes(std::string_view range)
{
    constexpr std::string_view unit = "bytes=";
    return range.size() > unit.size() && std::equal(unit.begin(), unit.end(), range.begin(), [](char a, char b) {
               return a == b || (a >= 'a' && a <= 'z' && b == a - 'a' + 'A');
           });
}

} // namespace

WantedBytes wantedBytes(std::string_view range, std::optional<std::string_view> ifRange, std::string_view tag,
                        quint64 size)
{
    range = withoutBlanks(range);
    if (!beginsWithBytes(range) || (ifRange && withoutBlanks(*ifRange) != tag))
        return WholeFile{};
    const std::string_view wish = withoutBlanks(range.substr(6));
    const std::size_t hyphen = wish.find('-');
    if (hyphen == std::string_view::npos || wish.find(',') != std::string_view::npos)
        return WholeFile{};
    const std::string_view front = withoutBlanks(wish.substr(0, hyphen)), back = withoutBlanks(wish.substr(hyphen + 1));
    const std::optional<quint64> first = readNumber(front), last = readNumber(back);
    if (front.empty()) { // so many from the end
        if (!last)
            return WholeFile{};
        const quint64 length = std::min(*last, size);
        return length == 0 ? WantedBytes(BeyondFile{}) : ByteRange{size - length, length};
    }
    if (!first || (!back.empty() && !last) || (last && *last < *first))
        return WholeFile{};
    if (*first >= size)
        return BeyondFile{};
    const quint64 end = last ? std::min(*last, size - 1) : size - 1;
    return ByteRange{*first, end - *first + 1};
}

} // namespace nimb
