// Feeds any bytes to what reads a request for a file and the answer to one: path, range, head. The input is parted by
// NUL bytes.
#include "files/byte_range.h"
#include "files/file_link.h"
#include "files/http_head.h"
#include "require.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace
{

using namespace nimb;

void checkPath(std::string_view path)
{
    const std::optional<AskedFile> asked = askedFile(path);
    if (!asked)
        return;
    require(asked->token.size() == 32, "a token has 32 digits");
    require(!asked->name.isEmpty() || path.ends_with('/'), "a name is that of the path");
    require(!asked->name.contains('/') && !asked->name.contains('\0'), "no name is a path");
}

void checkRange(std::string_view range, quint64 size)
{
    const WantedBytes wanted = wantedBytes(range, std::nullopt, "\"t\"", size);
    if (const auto *const part = std::get_if<ByteRange>(&wanted)) {
        require(part->length > 0 && part->first < size, "a part has bytes of the file");
        require(part->length <= size - part->first, "and of nothing behind it");
    }
    require(std::holds_alternative<WholeFile>(wantedBytes(range, "\"other\"", "\"t\"", size)),
            "another file is given whole");
}

void checkHead(std::string_view text)
{
    const std::optional<HttpHead> head = readHttpHead(text);
    if (!head)
        return;
    require(head->status >= 100 && head->status <= 999, "a status has three digits");
    require(!head->first || (head->total && *head->first < *head->total), "a part lies in its file");
    require(head->sum.isEmpty() || head->sum.size() == 32, "a sum has 256 bits");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::string_view rest(reinterpret_cast<const char *>(data), size);
    for (bool isLast = false; !isLast;) {
        const std::size_t end = rest.find('\0');
        isLast = end == std::string_view::npos;
        const std::string_view piece = rest.substr(0, end);
        rest.remove_prefix(isLast ? rest.size() : end + 1);
        checkPath(piece);
        for (const quint64 length : {quint64{0}, quint64{1}, quint64{1000}, ~quint64{0}})
            checkRange(piece, length);
        checkHead(piece);
    }
    return 0;
}
