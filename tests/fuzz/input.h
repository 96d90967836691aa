// What a fuzzer hands to a target, read from its beginning to its end as a sequence of choices.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

/// Refers to bytes that the fuzzer owns. Copies go on from where they were made.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t *data, std::size_t size) : m_data(data), m_end(data + size) { }

    bool atEnd() const { return m_data == m_end; }
    /// 0 behind the end.
    std::uint8_t next() { return atEnd() ? std::uint8_t{0} : *m_data++; }
    /// Fewer where fewer are left.
    std::string nextBytes(std::size_t count)
    {
        const std::size_t size = std::min(count, static_cast<std::size_t>(m_end - m_data));
        const std::string bytes(reinterpret_cast<const char *>(m_data), size);
        m_data += size;
        return bytes;
    }

private:
    const std::uint8_t *m_data;
    const std::uint8_t *m_end;
};
