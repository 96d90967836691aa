#include "protocol/ipv4_address.h"

#include <algorithm>

namespace nimb
{
namespace
{

/// A number of 0 to 255.
std::optional<std::uint32_t> octet(std::string_view digits, Ipv4Address::LeadingZeros zeros)
{
    if (digits.empty() || digits.size() > 3)
        return std::nullopt;
    if (zeros == Ipv4Address::LeadingZeros::refused && digits.size() > 1 && digits.front() == '0')
        return std::nullopt;
    std::uint32_t number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return std::nullopt;
        number = number * 10 + static_cast<std::uint32_t>(digit - '0');
    }
    return number <= 255 ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<Ipv4Address> Ipv4Address::parse(std::string_view text, LeadingZeros zeros)
{
    std::uint32_t number = 0;
    for (int part = 1; part <= 4; ++part) {
        const std::size_t end = part < 4 ? text.find('.') : text.size();
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::optional<std::uint32_t> value = octet(text.substr(0, end), zeros);
        if (!value)
            return std::nullopt;
        number = number << 8 | *value;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return of(number);
}

std::string Ipv4Address::toText() const
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8) {
        text += std::to_string(m_number >> shift & 0xFFU);
        if (shift > 0)
            text += '.';
    }
    return text;
}

} // namespace nimb
