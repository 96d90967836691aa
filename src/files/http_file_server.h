// Serves files over HTTP to those peers whom they are meant for.
#pragma once

#include "base/file_server.h"
#include "base/limits.h"
#include "files/file_source.h"
#include "platform/http_listener.h"

#include <map>
#include <memory>

namespace nimb
{

class EventLoopCalls;
class WorkThread;

/// Listens at an address while something is served there, on the first free port from the given one on. Whoever is not
/// meant, or asks for what is not there, gets the same answer: 404. Needs the application object.
class HttpFileServer : public FileServer
{
public:
    /// stalls: a transfer that does not get on for so long is ended.
    explicit HttpFileServer(std::uint16_t firstPort = 5549, std::chrono::seconds stalls = limits::fileTransferStalls);
    ~HttpFileServer() override;
    HttpFileServer(const HttpFileServer &) = delete;
    HttpFileServer &operator=(const HttpFileServer &) = delete;

    bool isAvailable() const override { return HttpListener::isBuilt(); }
    void serve(const ServedFile &file, std::function<void(const Readied &)> ready) override;
    void withdraw(const QString &token) override;

private:
    class Desk;
    class Transfer;
    struct Served;
    struct Listening {
        std::unique_ptr<HttpListener> listener;
        std::uint16_t port = 0;
    };

    void lookedAt(const std::shared_ptr<Served> &served, const FoundSource &source,
                  const std::function<void(const Readied &)> &ready);
    void beginSum(const std::shared_ptr<Served> &served);
    /// From any thread. at: the own address that was asked.
    HttpAnswer answer(const HttpRequest &request, Ipv4Address at);
    static std::vector<std::pair<std::string, std::string>> headersOf(const Served &served);
    /// The port; 0 where none can be had.
    std::uint16_t listenAt(Ipv4Address address);

    std::uint16_t m_firstPort;
    std::chrono::seconds m_stalls;
    std::unique_ptr<EventLoopCalls> m_calls; ///< outlives the threads
    std::shared_ptr<Desk> m_desk;
    std::unique_ptr<WorkThread> m_looking, m_summingSmall, m_summingLarge, m_closing;
    std::map<Ipv4Address, Listening> m_listening;
};

} // namespace nimb
