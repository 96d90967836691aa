// Answers requests of HTTP/1.1 at one address of this machine. What is answered, somebody else decides.
#pragma once

#include "protocol/ipv4_address.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nimb
{

struct HttpRequest {
    Ipv4Address from{};
    bool isHead = false;   ///< the bytes themselves are not wanted
    std::string_view path; ///< as it came, encoded, without what stands behind "?"
    std::optional<std::string_view> range{}, ifRange{};
};

/// The bytes of an answer, asked for on one thread.
class HttpBody
{
public:
    virtual ~HttpBody() = default;
    /// How many bytes were put into the room; none: the connection is broken off.
    virtual std::size_t read(std::uint64_t offset, std::span<char> room) = 0;
    /// Called once, as the last thing. isComplete: all of them have been handed to the system.
    virtual void ended(bool isComplete) = 0;
};

struct HttpAnswer {
    unsigned status = 404;
    std::vector<std::pair<std::string, std::string>> headers{};
    std::uint64_t length = 0;
    std::shared_ptr<HttpBody> body{}; ///< null: a request for the head, or an answer without bytes
};

/// Bounded in connections, memory and time (base/limits.h, "file..."). Each connection has a thread of its own, for
/// reading a file may take long. Only GET and HEAD reach the handler; everything else, and what cannot be read, is
/// refused here.
class HttpListener
{
public:
    /// Both are called on the threads of connections, several at a time.
    struct Handler {
        std::function<HttpAnswer(const HttpRequest &)> answer;
        /// Whether anything may be answered to this address at all; of the others few are connected at a time.
        std::function<bool(Ipv4Address)> isExpected;
    };

    /// Null where the address or the port cannot be had, and where the program was built without a server.
    /// stalls: a connection on which nothing moves for so long is ended.
    [[nodiscard]] static std::unique_ptr<HttpListener> open(Ipv4Address address, std::uint16_t port, Handler handler,
                                                            std::chrono::seconds stalls);
    /// False where the program was built without one.
    static bool isBuilt();

    /// Breaks off what is under way, and waits for its threads.
    virtual ~HttpListener() = default;
};

} // namespace nimb
