#include "platform/text_encoding.h"

#include <string_view>

#include <iconv.h>

namespace nimb
{
namespace
{

const iconv_t noConversion = reinterpret_cast<iconv_t>(-1); // as iconv_open() says it

/// The C library knows the encodings of dictionaries but for the way in which some are written.
std::string encodingName(const std::string &name)
{
    if (name.starts_with("microsoft-"))
        return name.substr(std::string_view("microsoft-").size());
    return name.starts_with("TIS620") ? "TIS-620" : name;
}

std::optional<std::string> converted(iconv_t conversion, std::string text)
{
    iconv(conversion, nullptr, nullptr, nullptr, nullptr);
    std::string result(text.size() * 4 + 4, '\0');
    char *from = text.data();
    char *to = result.data();
    std::size_t left = text.size();
    std::size_t room = result.size();
    if (iconv(conversion, &from, &left, &to, &room) != 0) // also where something had to be replaced
        return std::nullopt;
    result.resize(result.size() - room);
    return result;
}

} // namespace

struct TextEncoding::Conversions {
    iconv_t fromUtf8;
    iconv_t toUtf8;
};

TextEncoding::TextEncoding(const std::string &name)
    : m_conversions(std::make_unique<Conversions>(
        Conversions{iconv_open(encodingName(name).c_str(), "UTF-8"), iconv_open("UTF-8", encodingName(name).c_str())}))
{
}

TextEncoding::~TextEncoding()
{
    for (const iconv_t conversion : {m_conversions->fromUtf8, m_conversions->toUtf8}) {
        if (conversion != noConversion)
            iconv_close(conversion);
    }
}

bool TextEncoding::isValid() const
{
    return m_conversions->fromUtf8 != noConversion && m_conversions->toUtf8 != noConversion;
}

std::optional<std::string> TextEncoding::fromUtf8(const std::string &text) const
{
    return converted(m_conversions->fromUtf8, text);
}

std::optional<std::string> TextEncoding::toUtf8(const std::string &text) const
{
    return converted(m_conversions->toUtf8, text);
}

} // namespace nimb
