// Fetches files from peers over HTTP.
#pragma once

#include "base/file_fetcher.h"

#include <atomic>
#include <map>
#include <memory>

class QThread;

namespace nimb
{

class EventLoopCalls;
class WorkThread;

/// Each on a thread of its own: neither the network nor a slow disk is waited for. What has come lies beside its place
/// as "NAME.TOKEN.part" until all is there and checked. Asks the given address alone: no proxy, and no answer leads
/// elsewhere. Needs the application object.
class HttpFileFetcher : public FileFetcher
{
public:
    HttpFileFetcher();
    ~HttpFileFetcher() override;
    HttpFileFetcher(const HttpFileFetcher &) = delete;
    HttpFileFetcher &operator=(const HttpFileFetcher &) = delete;

    void fetch(const WantedFile &file) override;
    void stop(int number) override;
    void lookUp(const WantedFile &file) override;
    void discard(const WantedFile &file) override;

private:
    class Fetch;
    struct Running {
        std::shared_ptr<Fetch> fetch;
        std::unique_ptr<QThread> thread;
    };

    void tell(const FetchedBytes &fetched);
    WorkThread &besides();

    std::unique_ptr<EventLoopCalls> m_calls; ///< outlives the threads
    std::map<int, Running> m_running;
    std::unique_ptr<WorkThread> m_besides; ///< once there was something for it
};

} // namespace nimb
