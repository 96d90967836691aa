// Texts in the older encodings of the world, as dictionaries are written in them.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace nimb
{

/// Between UTF-8 and one other encoding, both ways. One thread at a time.
class TextEncoding
{
public:
    /// name: as IANA or hunspell writes it ("ISO8859-1", "KOI8-R", "microsoft-cp1251"). One that the system does not
    /// know is not valid.
    explicit TextEncoding(const std::string &name);
    ~TextEncoding();
    TextEncoding(const TextEncoding &) = delete;
    TextEncoding &operator=(const TextEncoding &) = delete;

    bool isValid() const;
    /// Nothing where a character has no place in the other encoding.
    std::optional<std::string> fromUtf8(const std::string &text) const;
    std::optional<std::string> toUtf8(const std::string &text) const;

private:
    struct Conversions;
    std::unique_ptr<Conversions> m_conversions;
};

} // namespace nimb
