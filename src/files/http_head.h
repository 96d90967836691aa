// The head of an answer of HTTP, as far as fetching a file needs it.
#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

namespace nimb
{

struct HttpHead {
    int status = 0;
    std::optional<quint64> length{}; ///< of what follows
    std::optional<quint64> first{};  ///< place of the first byte that follows, where it is a part
    std::optional<quint64> total{};  ///< size of the whole, where that is said
    QByteArray tag{};
    QByteArray sum{};                    ///< SHA-256 of the whole, 32 bytes; empty where none is given
    bool isSumPending = false;           ///< it can be asked for later
    std::optional<quint64> retryAfter{}; ///< seconds
};

/// Without the blank line at its end. Nothing where it is none, or where the bytes that follow would not be the file's
/// own, for they are encoded.
std::optional<HttpHead> readHttpHead(std::string_view head);

} // namespace nimb
