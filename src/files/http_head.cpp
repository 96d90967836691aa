#include "files/http_head.h"

#include "files/byte_range.h"

#include <algorithm>
#include <charconv>

namespace nimb
{
namespace
{

constexpr std::size_t sumBytes = 32;

bool isSameName(std::string_view one, std::string_view other)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; };
    return std::ranges::equal(one, other, {}, lower, lower);
}

std::optional<quint64> decimal(std::string_view digits)
{
    quint64 number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isAll = !digits.empty() && error == std::errc() && end == digits.data() + digits.size();
    return isAll ? std::optional(number) : std::nullopt;
}

/// "HTTP/1.1 200 OK"
std::optional<int> statusOf(std::string_view line)
{
    constexpr std::string_view version = "HTTP/1.";
    if (!line.starts_with(version) || line.size() < version.size() + 5 || line[version.size() + 1] != ' ')
        return std::nullopt;
    const std::optional<quint64> status = decimal(line.substr(version.size() + 2, 3));
    const bool endsThere = line.size() == version.size() + 5 || line[version.size() + 5] == ' ';
    return status && *status >= 100 && endsThere ? std::optional(static_cast<int>(*status)) : std::nullopt;
}

/// "bytes 3-5/10", or where a part was asked for that is not there "bytes */10".
bool readContentRange(std::string_view value, HttpHead &head)
{
    constexpr std::string_view unit = "bytes ";
    const std::size_t hyphen = value.find('-'), slash = value.find('/');
    if (!value.starts_with(unit) || slash == std::string_view::npos)
        return false;
    head.total = decimal(value.substr(slash + 1));
    if (value.substr(unit.size(), slash - unit.size()) == "*")
        return head.total.has_value();
    if (hyphen == std::string_view::npos || hyphen > slash)
        return false;
    head.first = decimal(value.substr(unit.size(), hyphen - unit.size()));
    const std::optional<quint64> last = decimal(value.substr(hyphen + 1, slash - hyphen - 1));
    return head.first && last && head.total && *head.first <= *last && *last < *head.total;
}

/// "sha-256=:...:", beside which there may be others.
QByteArray sumIn(std::string_view value)
{
    constexpr std::string_view name = "sha-256=:";
    const std::size_t begin = value.find(name);
    const std::size_t end = begin == std::string_view::npos ? begin : value.find(':', begin + name.size());
    if (end == std::string_view::npos)
        return {};
    const std::string_view text = value.substr(begin + name.size(), end - begin - name.size());
    const auto decoded = QByteArray::fromBase64Encoding(QByteArray(text.data(), static_cast<qsizetype>(text.size())),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    return decoded && decoded.decoded.size() == static_cast<qsizetype>(sumBytes) ? decoded.decoded : QByteArray();
}

/// False where the whole answer is of no use.
bool take(std::string_view name, std::string_view value, HttpHead &head)
{
    if (isSameName(name, "Transfer-Encoding") || isSameName(name, "Content-Encoding"))
        return false;
    if (isSameName(name, "Content-Length")) {
        if (head.length)
            return false; // which of them?
        head.length = decimal(value);
        return head.length.has_value();
    }
    if (isSameName(name, "Content-Range"))
        return !head.total && readContentRange(value, head);
    if (isSameName(name, "ETag"))
        head.tag = QByteArray(value.data(), static_cast<qsizetype>(value.size()));
    else if (isSameName(name, "Repr-Digest"))
        head.sum = sumIn(value);
    else if (isSameName(name, "NIMB-Repr-Digest"))
        head.isSumPending = value == "pending";
    else if (isSameName(name, "Retry-After"))
        head.retryAfter = decimal(value);
    return true;
}

} // namespace

std::optional<HttpHead> readHttpHead(std::string_view text)
{
    const auto nextLine = [&text] {
        const std::size_t end = text.find("\r\n");
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
        return line;
    };
    const std::optional<int> status = statusOf(nextLine());
    if (!status)
        return std::nullopt;
    HttpHead head{.status = *status};
    while (!text.empty()) {
        const std::string_view line = nextLine();
        const std::size_t colon = line.find(':');
        const bool isHeader = colon != std::string_view::npos && colon > 0
            && std::ranges::none_of(line, [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
        if (!isHeader || !take(line.substr(0, colon), withoutBlanks(line.substr(colon + 1)), head))
            return std::nullopt;
    }
    return head;
}

} // namespace nimb
