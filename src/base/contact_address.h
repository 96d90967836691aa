// What a contact is found by.
#pragma once

#include "protocol/address_text.h"

namespace nimb
{

/// The address of a contact, or a text that stands in its place and is none: the user may type a name, and the store
/// may hold anything. Such a contact is listed and stored as it is, and nothing is ever sent to it. No text is taken
/// for another one, nor for an address that it merely resembles (192.168.000.005).
class ContactAddress
{
public:
    ContactAddress() = default;
    // Both are implicit: a contact is looked up by whatever its asker has, the source of a datagram or the tag of a
    // row.
    ContactAddress(Ipv4Address ipv4) : m_ipv4(ipv4) { }
    ContactAddress(const QString &text) : m_ipv4(readAddress(text)), m_otherText(m_ipv4 ? QString() : text) { }

    const std::optional<Ipv4Address> &ipv4() const { return m_ipv4; }
    QString text() const { return m_ipv4 ? addressText(*m_ipv4) : m_otherText; }
    bool isEmpty() const { return !m_ipv4 && m_otherText.isEmpty(); }

    bool operator==(const ContactAddress &) const = default;

private:
    std::optional<Ipv4Address> m_ipv4;
    QString m_otherText; ///< empty where there is an address
};

inline std::size_t qHash(const ContactAddress &address, std::size_t seed = 0) noexcept
{
    return address.ipv4() ? qHash(*address.ipv4(), seed) : ::qHash(address.text(), seed);
}

} // namespace nimb
