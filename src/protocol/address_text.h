// Addresses in the texts of the program: what a row, a box, the store or the environment holds.
#pragma once

#include "protocol/ipv4_address.h"

#include <QHash>
#include <QString>

#include <array>

namespace nimb
{

/// As Ipv4Address::parse().
[[nodiscard]] inline std::optional<Ipv4Address>
readAddress(QStringView text, Ipv4Address::LeadingZeros zeros = Ipv4Address::LeadingZeros::refused)
{
    std::array<char, 15> ascii = {}; // as many as the longest address has
    if (text.size() > static_cast<qsizetype>(ascii.size()))
        return std::nullopt;
    for (std::size_t i = 0; const QChar c : text)
        ascii[i++] = c.unicode() < 128 ? static_cast<char>(c.unicode()) : '?';
    return Ipv4Address::parse({ascii.data(), static_cast<std::size_t>(text.size())}, zeros);
}

inline QString addressText(Ipv4Address address)
{
    return QString::fromStdString(address.toText());
}

/// The seed keeps peers from choosing addresses that all fall into one place of a table.
inline std::size_t qHash(Ipv4Address address, std::size_t seed = 0) noexcept
{
    return ::qHash(address.number(), seed);
}

} // namespace nimb
