#include "platform/text_encoding.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>

#include <qt_windows.h>

namespace nimb
{
namespace
{

constexpr UINT unknown = 0;

/// As a number follows the last hyphen or "cp" of the name; 0 where none does.
UINT trailingNumber(std::string_view name)
{
    const auto lastOther = std::find_if(name.rbegin(), name.rend(), [](unsigned char c) { return !std::isdigit(c); });
    return static_cast<UINT>(std::atoi(std::string(lastOther.base(), name.end()).c_str()));
}

/// The numbers that Windows has for the encodings in which dictionaries are written.
UINT codePageOf(std::string name)
{
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    if (name == "UTF-8")
        return CP_UTF8;
    if (name == "KOI8-R")
        return 20866;
    if (name == "KOI8-U")
        return 21866;
    if (name.starts_with("TIS620") || name.starts_with("TIS-620"))
        return 874;
    const UINT number = trailingNumber(name);
    if (name.starts_with("ISO8859") || name.starts_with("ISO-8859"))
        return number >= 1 && number <= 15 ? 28590 + number : unknown;
    return name.find("CP") != std::string::npos || name.starts_with("WINDOWS-") ? number : unknown;
}

std::optional<std::string> converted(UINT from, UINT to, const std::string &text)
{
    if (text.empty())
        return text;
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // never more units than bytes
    const int units = MultiByteToWideChar(from, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(),
                                          static_cast<int>(wide.size()));
    if (units <= 0)
        return std::nullopt;
    std::string result(static_cast<std::size_t>(units) * 4, '\0');
    BOOL replaced = FALSE;
    const bool isUtf8 = to == CP_UTF8; // which has a place for everything, and takes no question
    const int bytes = WideCharToMultiByte(to, isUtf8 ? 0 : WC_NO_BEST_FIT_CHARS, wide.data(), units, result.data(),
                                          static_cast<int>(result.size()), nullptr, isUtf8 ? nullptr : &replaced);
    if (bytes <= 0 || replaced)
        return std::nullopt;
    result.resize(static_cast<std::size_t>(bytes));
    return result;
}

} // namespace

struct TextEncoding::Conversions {
    UINT codePage;
};

TextEncoding::TextEncoding(const std::string &name)
    : m_conversions(std::make_unique<Conversions>(Conversions{codePageOf(name)}))
{
}

TextEncoding::~TextEncoding() = default;

bool TextEncoding::isValid() const
{
    return m_conversions->codePage != unknown && IsValidCodePage(m_conversions->codePage);
}

std::optional<std::string> TextEncoding::fromUtf8(const std::string &text) const
{
    return converted(CP_UTF8, m_conversions->codePage, text);
}

std::optional<std::string> TextEncoding::toUtf8(const std::string &text) const
{
    return converted(m_conversions->codePage, CP_UTF8, text);
}

} // namespace nimb
