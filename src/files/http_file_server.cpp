#include "files/http_file_server.h"

#include "base/event_loop_calls.h"
#include "base/work_thread.h"
#include "files/byte_range.h"
#include "files/file_link.h"
#include "files/file_name.h"
#include "files/file_source.h"

#include <QCoreApplication>
#include <QCryptographicHash>

#include <algorithm>
#include <chrono>
#include <mutex>
#include <optional>

namespace nimb
{

/// What is served, as the threads of connections see it.
struct HttpFileServer::Served {
    ServedFile file;
    std::string token;
    QByteArray name;
    std::string tag;
    std::shared_ptr<const FileSource> source; ///< null while it is looked at
    std::atomic<bool> isStopped = false;

    /// The sum of all bytes; nothing while it is being worked out.
    std::optional<QByteArray> sum() const
    {
        const std::lock_guard lock(m_mutex);
        return m_sum;
    }
    void setSum(const QByteArray &sum)
    {
        const std::lock_guard lock(m_mutex);
        m_sum = sum;
    }
    /// Adds what this peer has got, and says how much that is in all.
    std::uint64_t gotMore(Ipv4Address peer, std::uint64_t bytes)
    {
        const std::lock_guard lock(m_mutex);
        return m_got[peer] += bytes;
    }

private:
    mutable std::mutex m_mutex;
    std::optional<QByteArray> m_sum;
    std::map<Ipv4Address, std::uint64_t> m_got;
};

namespace
{

/// Takes as long wherever the texts differ.
bool isSameToken(std::string_view one, std::string_view other)
{
    if (one.size() != other.size())
        return false;
    unsigned difference = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        difference |= static_cast<unsigned>(one[i] ^ other[i]);
    return difference == 0;
}

std::string tagOf(const QString &token)
{
    const QByteArray sum = QCryptographicHash::hash(token.toLatin1(), QCryptographicHash::Sha256).toHex();
    return '"' + sum.left(16).toStdString() + '"';
}

} // namespace

/// What all threads share.
class HttpFileServer::Desk
{
public:
    using Tell = std::function<void(std::function<void()>)>;

    /// tellOwner: hands a call to the thread of the event loop.
    explicit Desk(Tell tellOwner) : tell(std::move(tellOwner)) { }

    void put(const std::shared_ptr<Served> &served)
    {
        const std::lock_guard lock(m_mutex);
        m_served.push_back(served);
    }

    /// From now on it is found.
    void setSource(Served &served, const NamedSource &found)
    {
        const std::lock_guard lock(m_mutex);
        served.source = found.source;
        if (served.file.name.isEmpty())
            served.file.name = found.name;
        served.name = served.file.name.toUtf8();
    }

    /// Its address, where nothing else is served there.
    std::optional<Ipv4Address> take(const QString &token)
    {
        const std::lock_guard lock(m_mutex);
        const auto which = std::ranges::find(m_served, token, [](const auto &served) { return served->file.token; });
        if (which == m_served.end())
            return std::nullopt;
        (*which)->isStopped = true;
        const Ipv4Address at = (*which)->file.at;
        m_served.erase(which);
        const bool isLast = std::ranges::none_of(m_served, [&](const auto &served) { return served->file.at == at; });
        return isLast ? std::optional(at) : std::nullopt;
    }

    void stopAll()
    {
        const std::lock_guard lock(m_mutex);
        for (const auto &served : m_served)
            served->isStopped = true;
    }

    bool isExpected(Ipv4Address peer)
    {
        const std::lock_guard lock(m_mutex);
        return std::ranges::any_of(m_served, [&](const auto &served) { return isMeant(*served, peer); });
    }

    /// Looks at each, so that a wrong token takes as long as a wrong address.
    std::shared_ptr<Served> find(const AskedFile &asked, Ipv4Address peer, Ipv4Address at)
    {
        const std::lock_guard lock(m_mutex);
        std::shared_ptr<Served> found;
        for (const auto &served : m_served) {
            const bool isToken = isSameToken(served->token, asked.token);
            const bool isName = served->name == asked.name;
            const bool isPlace = served->source && served->file.at == at && isMeant(*served, peer);
            if (isToken && isName && isPlace)
                found = served;
        }
        return found;
    }

    /// The number of a new transfer; nothing while there are too many.
    std::optional<quint64> beginTransfer(Ipv4Address peer)
    {
        const std::lock_guard lock(m_mutex);
        const auto ofPeer = std::ranges::count(m_peers, peer);
        if (std::ssize(m_peers) >= limits::filesSentAtOnce || ofPeer >= limits::filesSentToPeer)
            return std::nullopt;
        m_peers.push_back(peer);
        return ++m_transfers;
    }
    void endTransfer(Ipv4Address peer)
    {
        const std::lock_guard lock(m_mutex);
        m_peers.erase(std::ranges::find(m_peers, peer));
    }

    const Tell tell;

private:
    static bool isMeant(const Served &served, Ipv4Address peer)
    {
        return std::ranges::find(served.file.to, peer) != served.file.to.end();
    }

    std::mutex m_mutex;
    std::vector<std::shared_ptr<Served>> m_served;
    std::vector<Ipv4Address> m_peers; ///< of each transfer that is under way
    quint64 m_transfers = 0;
};

/// One answer that is under way.
class HttpFileServer::Transfer : public HttpBody
{
public:
    Transfer(HttpFileServer &server, std::shared_ptr<Desk> desk, std::shared_ptr<Served> served, Ipv4Address peer,
             ByteRange range, quint64 number)
        : m_server(server), m_desk(std::move(desk)), m_served(std::move(served)), m_peer(peer), m_range(range),
          m_number(number), m_reader(m_served->source->open(m_served->isStopped))
    {
    }

    std::size_t read(std::uint64_t offset, std::span<char> room) override
    {
        const std::uint64_t left = m_range.length - std::min<std::uint64_t>(offset, m_range.length);
        if (m_served->isStopped || left == 0)
            return 0;
        const std::size_t read
            = m_reader->read(m_range.first + offset, room.first(std::min<std::uint64_t>(room.size(), left)));
        if (read == 0 && !m_served->isStopped)
            tellFailure();
        m_sent = offset + read;
        tellProgress();
        return read;
    }

    void ended(bool isComplete) override
    {
        m_desk->endTransfer(m_peer);
        const std::uint64_t size = m_served->source->size();
        // Whoever asks for the last byte alone has not got all of it.
        const bool hasAll = m_served->gotMore(m_peer, m_sent) >= size;
        tell(true, isComplete && hasAll && m_range.first + m_range.length == size);
    }

private:
    using Clock = std::chrono::steady_clock;

    void tellProgress()
    {
        const Clock::time_point now = Clock::now();
        if (now - m_told < limits::fileProgressTold)
            return;
        m_told = now;
        tell(false, false);
    }

    void tell(bool isOver, bool isWhole)
    {
        const SentBytes sent{.token = m_served->file.token,
                             .transfer = m_number,
                             .to = m_peer,
                             .place = m_range.first + m_sent,
                             .size = m_served->source->size(),
                             .isOver = isOver,
                             .isWhole = isWhole};
        m_desk->tell([&server = m_server, sent] {
            if (server.sent)
                server.sent(sent);
        });
    }

    void tellFailure()
    {
        m_desk->tell([&server = m_server, token = m_served->file.token, sentence = m_reader->trouble()] {
            if (server.failed)
                server.failed(token, sentence);
        });
    }

    HttpFileServer &m_server;
    std::shared_ptr<Desk> m_desk;
    std::shared_ptr<Served> m_served;
    Ipv4Address m_peer;
    ByteRange m_range;
    quint64 m_number;
    std::unique_ptr<SourceReader> m_reader;
    quint64 m_sent = 0;
    Clock::time_point m_told{};
};

namespace
{

std::string rangeText(const ByteRange &range, std::uint64_t size)
{
    return "bytes " + std::to_string(range.first) + '-' + std::to_string(range.first + range.length - 1) + '/'
        + std::to_string(size);
}

} // namespace

HttpFileServer::HttpFileServer(std::uint16_t firstPort, std::chrono::seconds stalls)
    : m_firstPort(firstPort), m_stalls(stalls), m_calls(std::make_unique<EventLoopCalls>())
{
    m_desk
        = std::make_shared<Desk>([calls = m_calls.get()](std::function<void()> call) { calls->put(std::move(call)); });
}

/// Threads end before what they call.
HttpFileServer::~HttpFileServer()
{
    m_desk->stopAll();
    m_listening.clear();
    m_closing.reset();
    m_looking.reset();
    m_summingSmall.reset();
    m_summingLarge.reset();
}

void HttpFileServer::serve(const ServedFile &file, std::function<void(const Readied &)> ready)
{
    const auto served = std::make_shared<Served>();
    served->file = file;
    served->token = file.token.toStdString();
    served->tag = tagOf(file.token);
    m_desk->put(served); // so that it can be withdrawn while it is looked at
    if (!m_looking)
        m_looking = std::make_unique<WorkThread>();
    m_looking->put([this, served, ready = std::move(ready)] {
        auto source = findSource(served->file.path, served->isStopped);
        m_desk->tell([this, served, ready, source = std::move(source)] { lookedAt(served, source, ready); });
    });
}

void HttpFileServer::lookedAt(const std::shared_ptr<Served> &served, const FoundSource &source,
                              const std::function<void(const Readied &)> &ready)
{
    if (served->isStopped)
        return;
    const auto refuse = [&](const QString &sentence) {
        withdraw(served->file.token);
        ready({.trouble = sentence});
    };
    if (const auto *const sentence = std::get_if<QString>(&source))
        return refuse(*sentence);
    const auto &found = std::get<NamedSource>(source);
    const std::uint16_t port = listenAt(served->file.at);
    if (port == 0)
        return refuse(
            QCoreApplication::translate("HttpFileServer", "%1 cannot be sent: no port of this computer is free for it.")
                .arg(found.name));
    m_desk->setSource(*served, found);
    beginSum(served);
    ready({.size = found.source->size(), .port = port, .name = served->file.name, .leftOut = found.leftOut});
}

std::uint16_t HttpFileServer::listenAt(Ipv4Address address)
{
    if (const auto there = m_listening.find(address); there != m_listening.end())
        return there->second.port;
    for (int i = 0; i < limits::filePortsTried; ++i) {
        const int port = m_firstPort + i;
        if (port > 65535)
            break;
        auto listener = HttpListener::open(
            address, static_cast<std::uint16_t>(port),
            {.answer = [this, address](const HttpRequest &request) { return answer(request, address); },
             .isExpected = [desk = m_desk](Ipv4Address peer) { return desk->isExpected(peer); }},
            m_stalls);
        if (!listener)
            continue;
        m_listening[address] = {std::move(listener), static_cast<std::uint16_t>(port)};
        return static_cast<std::uint16_t>(port);
    }
    return 0;
}

/// Beside the transfers: what is offered need not wait for it. The small ones are apart, for a large one takes minutes.
void HttpFileServer::beginSum(const std::shared_ptr<Served> &served)
{
    std::unique_ptr<WorkThread> &summing
        = served->source->size() <= limits::fileSummedSoon ? m_summingSmall : m_summingLarge;
    if (!summing)
        summing = std::make_unique<WorkThread>();
    summing->put([this, served] {
        const std::unique_ptr<SourceReader> reader = served->source->open(served->isStopped);
        QCryptographicHash hash(QCryptographicHash::Sha256);
        std::vector<char> room(limits::filePiece);
        for (std::uint64_t place = 0; place < served->source->size();) {
            const std::size_t read = served->isStopped ? 0 : reader->read(place, room);
            if (read == 0) {
                if (!served->isStopped)
                    m_desk->tell([this, token = served->file.token, sentence = reader->trouble()] {
                        if (failed)
                            failed(token, sentence);
                    });
                return;
            }
            hash.addData(QByteArrayView(room.data(), static_cast<qsizetype>(read)));
            place += read;
        }
        served->setSum(hash.result());
    });
}

void HttpFileServer::withdraw(const QString &token)
{
    const std::optional<Ipv4Address> empty = m_desk->take(token);
    const auto listening = empty ? m_listening.find(*empty) : m_listening.end();
    if (listening == m_listening.end())
        return;
    // The threads of its connections are waited for, and those perhaps for a slow disk.
    if (!m_closing)
        m_closing = std::make_unique<WorkThread>();
    m_closing->put([closed = std::shared_ptr(std::move(listening->second.listener))]() mutable { closed.reset(); });
    m_listening.erase(listening);
}

HttpAnswer HttpFileServer::answer(const HttpRequest &request, Ipv4Address at)
{
    const std::optional<AskedFile> asked = askedFile(request.path);
    const std::shared_ptr<Served> served = asked ? m_desk->find(*asked, request.from, at) : nullptr;
    if (!served)
        return {};
    const std::uint64_t size = served->source->size();
    HttpAnswer answer{.status = 200, .headers = headersOf(*served)};
    const WantedBytes wanted = wantedBytes(request.range.value_or(""), request.ifRange, served->tag, size);
    ByteRange range{0, size};
    if (std::holds_alternative<BeyondFile>(wanted))
        return {.status = 416, .headers = {{"Content-Range", "bytes */" + std::to_string(size)}}};
    if (const auto *const part = std::get_if<ByteRange>(&wanted)) {
        range = *part;
        answer.status = 206;
        answer.headers.emplace_back("Content-Range", rangeText(range, size));
    }
    answer.length = range.length;
    if (request.isHead)
        return answer;
    const std::optional<quint64> transfer = m_desk->beginTransfer(request.from);
    if (!transfer)
        return {.status = 503, .headers = {{"Retry-After", "2"}}};
    answer.body = std::make_shared<Transfer>(*this, m_desk, served, request.from, range, *transfer);
    return answer;
}

std::vector<std::pair<std::string, std::string>> HttpFileServer::headersOf(const Served &served)
{
    const std::optional<QByteArray> sum = served.sum();
    return {{"Content-Type", "application/octet-stream"},
            {"Content-Disposition", "attachment; filename*=UTF-8''" + encodedFileName(served.file.name).toStdString()},
            {"X-Content-Type-Options", "nosniff"},
            {"Cache-Control", "no-store"},
            {"Accept-Ranges", "bytes"},
            {"ETag", served.tag},
            sum ? std::pair<std::string, std::string>("Repr-Digest", "sha-256=:" + sum->toBase64().toStdString() + ':')
                : std::pair<std::string, std::string>("NIMB-Repr-Digest", "pending")};
}

} // namespace nimb
