// An IPv4 address as a value: read once where it comes in, compared and passed on as itself, written where it is shown,
// stored or sent.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nimb
{

class Ipv4Address
{
public:
    /// What to make of 192.168.000.005. People mean decimal numbers, systems read octal ones, and as a text it differs
    /// from the address that it may mean: only what is typed where nothing but the address counts may have such zeros.
    enum class LeadingZeros { refused, skipped };

    /// 0.0.0.0: every address of this machine, where a socket is bound to it.
    constexpr Ipv4Address() = default;
    constexpr Ipv4Address(std::uint8_t first, std::uint8_t second, std::uint8_t third, std::uint8_t fourth)
        : m_number(std::uint32_t{first} << 24 | std::uint32_t{second} << 16 | std::uint32_t{third} << 8 | fourth)
    {
    }
    /// number: in host byte order.
    [[nodiscard]] static constexpr Ipv4Address of(std::uint32_t number)
    {
        Ipv4Address address;
        address.m_number = number;
        return address;
    }
    /// Four decimal numbers of 0 to 255, each of three digits at most, joined by dots; empty for everything else.
    [[nodiscard]] static std::optional<Ipv4Address> parse(std::string_view text,
                                                          LeadingZeros zeros = LeadingZeros::refused);

    /// In host byte order.
    constexpr std::uint32_t number() const { return m_number; }
    /// The one text that parse() takes for this address.
    std::string toText() const;

    /// 0.0.0.0, which is nobody's.
    constexpr bool isUnspecified() const { return m_number == 0; }
    /// 127.0.0.0/8: everything there is this very machine.
    constexpr bool isLoopback() const { return first() == 127; }
    /// The address of one host: not of this network (0.x.x.x), not multicast, not reserved, not broadcast.
    constexpr bool isUnicast() const { return first() >= 1 && first() <= 223; }

    constexpr bool operator==(const Ipv4Address &) const = default;
    // Not <=>: Qt's moc cannot read the header that it needs.
    constexpr bool operator<(const Ipv4Address &other) const { return m_number < other.m_number; }

private:
    constexpr std::uint32_t first() const { return m_number >> 24; }

    std::uint32_t m_number = 0;
};

} // namespace nimb
