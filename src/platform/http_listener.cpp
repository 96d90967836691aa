#include "platform/http_listener.h"

#ifdef NIMB_MICROHTTPD

#include "base/limits.h"

#include <array>
#include <atomic>

#include <microhttpd.h>
#if __has_include(<netinet/tcp.h>)
#include <netinet/in.h>
#include <netinet/tcp.h>
#endif

namespace nimb
{
namespace
{

Ipv4Address ipv4Of(const sockaddr *address)
{
    if (!address || address->sa_family != AF_INET)
        return {};
    return Ipv4Address::of(ntohl(reinterpret_cast<const sockaddr_in *>(address)->sin_addr.s_addr));
}

Ipv4Address peerOf(MHD_Connection *connection)
{
    const MHD_ConnectionInfo *const info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
    return info ? ipv4Of(info->client_addr) : Ipv4Address();
}

/// The system takes megabytes ahead of a slow reader, and calls a connection writable again only when a good part of
/// them has gone: nothing seems to move for minutes then. With less ahead whoever reads steadily is seen to do so.
void keepLittleAhead([[maybe_unused]] MHD_Connection *connection)
{
#ifdef TCP_NOTSENT_LOWAT
    constexpr int bytesAhead = 256 * 1024;
    if (const MHD_ConnectionInfo *const info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD))
        setsockopt(info->connect_fd, IPPROTO_TCP, TCP_NOTSENT_LOWAT, &bytesAhead, sizeof(bytesAhead));
#endif
}

std::optional<std::string_view> headerOf(MHD_Connection *connection, const char *name)
{
    const char *const value = MHD_lookup_connection_value(connection, MHD_HEADER_KIND, name);
    return value ? std::optional<std::string_view>(value) : std::nullopt;
}

/// What a request carries from its first line to its end.
struct Exchange {
    std::shared_ptr<HttpBody> body;
};

ssize_t readBody(void *body, std::uint64_t offset, char *room, std::size_t size)
{
    const std::size_t read = (*static_cast<std::shared_ptr<HttpBody> *>(body))->read(offset, {room, size});
    return read > 0 ? static_cast<ssize_t>(read) : MHD_CONTENT_READER_END_WITH_ERROR;
}

void freeBody(void *body)
{
    delete static_cast<std::shared_ptr<HttpBody> *>(body);
}

/// Never called: the length alone is told.
ssize_t readNothing(void *, std::uint64_t, char *, std::size_t)
{
    return MHD_CONTENT_READER_END_WITH_ERROR;
}

MHD_Response *responseTo(const HttpAnswer &answer)
{
    if (answer.body)
        return MHD_create_response_from_callback(answer.length, limits::filePiece, readBody,
                                                 new std::shared_ptr<HttpBody>(answer.body), freeBody);
    if (answer.length > 0)
        return MHD_create_response_from_callback(answer.length, 1, readNothing, nullptr, nullptr);
    return MHD_create_response_from_buffer(0, nullptr, MHD_RESPMEM_PERSISTENT);
}

MHD_Result queue(MHD_Connection *connection, const HttpAnswer &answer)
{
    MHD_Response *const response = responseTo(answer);
    if (!response)
        return MHD_NO;
    for (const auto &[name, value] : answer.headers)
        MHD_add_response_header(response, name.c_str(), value.c_str());
    const MHD_Result queued = MHD_queue_response(connection, answer.status, response);
    MHD_destroy_response(response); // the connection holds it now
    return queued;
}

class MicroHttpListener : public HttpListener
{
public:
    explicit MicroHttpListener(Handler handler) : m_handler(std::move(handler)) { }
    ~MicroHttpListener() override
    {
        if (m_daemon)
            MHD_stop_daemon(m_daemon);
    }
    MicroHttpListener(const MicroHttpListener &) = delete;
    MicroHttpListener &operator=(const MicroHttpListener &) = delete;

    bool start(Ipv4Address address, std::uint16_t port, std::chrono::seconds stalls)
    {
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_addr.s_addr = htonl(address.number());
        place.sin_port = htons(port);
        constexpr unsigned flags = MHD_USE_THREAD_PER_CONNECTION | MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_POLL;
        constexpr std::size_t stack = std::size_t{512} * 1024;
        const std::array options{
            option(MHD_OPTION_SOCK_ADDR, 0, &place),
            option(MHD_OPTION_CONNECTION_LIMIT, limits::fileConnections),
            option(MHD_OPTION_PER_IP_CONNECTION_LIMIT, limits::fileConnectionsOfPeer),
            option(MHD_OPTION_CONNECTION_TIMEOUT, stalls.count()),
            option(MHD_OPTION_CONNECTION_MEMORY_LIMIT, limits::fileRequestBytes),
            option(MHD_OPTION_THREAD_STACK_SIZE, stack),
            option(MHD_OPTION_UNESCAPE_CALLBACK, functionNumber(&leaveEscaped), this),
            option(MHD_OPTION_NOTIFY_COMPLETED, functionNumber(&requestEnded), this),
            option(MHD_OPTION_NOTIFY_CONNECTION, functionNumber(&connectionChanged), this),
            option(MHD_OPTION_END, 0),
        };
        m_daemon = MHD_start_daemon(flags, port, &mayConnect, this, &request, this, MHD_OPTION_ARRAY, options.data(),
                                    MHD_OPTION_END);
        return m_daemon != nullptr;
    }

private:
    template <class Number> static MHD_OptionItem option(MHD_OPTION name, Number number, void *pointer = nullptr)
    {
        return {name, static_cast<std::intptr_t>(number), pointer};
    }
    template <class Function> static std::intptr_t functionNumber(Function *function)
    {
        return reinterpret_cast<std::intptr_t>(function);
    }

    /// An address that is decoded too early may mean another one.
    static std::size_t leaveEscaped(void *, MHD_Connection *, char *text) { return std::string_view(text).size(); }

    static MHD_Result mayConnect(void *listener, const sockaddr *address, socklen_t)
    {
        const auto &self = *static_cast<MicroHttpListener *>(listener);
        const bool mayCome
            = self.m_strangers < limits::fileConnectionsOfStrangers || self.m_handler.isExpected(ipv4Of(address));
        return mayCome ? MHD_YES : MHD_NO;
    }

    /// mark: kept with the connection; not null for a stranger's.
    static void connectionChanged(void *listener, MHD_Connection *connection, void **mark,
                                  MHD_ConnectionNotificationCode what)
    {
        auto &self = *static_cast<MicroHttpListener *>(listener);
        if (what == MHD_CONNECTION_NOTIFY_CLOSED) {
            self.m_strangers -= *mark ? 1 : 0;
            return;
        }
        keepLittleAhead(connection);
        if (!self.m_handler.isExpected(peerOf(connection))) {
            *mark = listener;
            ++self.m_strangers;
        }
    }

    /// Called when the head has been read, and again when all has.
    static MHD_Result request(void *listener, MHD_Connection *connection, const char *url, const char *method,
                              const char *, const char *, std::size_t *, void **exchange)
    {
        const bool isHead = std::string_view(method) == MHD_HTTP_METHOD_HEAD;
        const bool isUnderstood = isHead || std::string_view(method) == MHD_HTTP_METHOD_GET;
        const bool hasBody = headerOf(connection, MHD_HTTP_HEADER_CONTENT_LENGTH)
            || headerOf(connection, MHD_HTTP_HEADER_TRANSFER_ENCODING);
        if (!isUnderstood || hasBody)
            return queue(connection, {});
        if (!*exchange) {
            *exchange = new Exchange;
            return MHD_YES;
        }
        const HttpAnswer answer = static_cast<MicroHttpListener *>(listener)->m_handler.answer(
            {.from = peerOf(connection),
             .isHead = isHead,
             .path = url,
             .range = headerOf(connection, MHD_HTTP_HEADER_RANGE),
             .ifRange = headerOf(connection, MHD_HTTP_HEADER_IF_RANGE)});
        static_cast<Exchange *>(*exchange)->body = answer.body;
        return queue(connection, answer);
    }

    static void requestEnded(void *, MHD_Connection *, void **exchange, MHD_RequestTerminationCode how)
    {
        const std::unique_ptr<Exchange> ended(static_cast<Exchange *>(*exchange));
        *exchange = nullptr;
        if (ended && ended->body)
            ended->body->ended(how == MHD_REQUEST_TERMINATED_COMPLETED_OK);
    }

    Handler m_handler;
    std::atomic<int> m_strangers = 0;
    MHD_Daemon *m_daemon = nullptr;
};

} // namespace

bool HttpListener::isBuilt()
{
    return true;
}

std::unique_ptr<HttpListener> HttpListener::open(Ipv4Address address, std::uint16_t port, Handler handler,
                                                 std::chrono::seconds stalls)
{
    auto listener = std::make_unique<MicroHttpListener>(std::move(handler));
    return listener->start(address, port, stalls) ? std::move(listener) : nullptr;
}

} // namespace nimb

#else

namespace nimb
{

bool HttpListener::isBuilt()
{
    return false;
}

std::unique_ptr<HttpListener> HttpListener::open(Ipv4Address, std::uint16_t, Handler, std::chrono::seconds)
{
    return nullptr;
}

} // namespace nimb

#endif
