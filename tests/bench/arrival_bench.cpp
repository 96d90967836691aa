// From a datagram on its way to its line on the screen: arrival_bench [messages]
// A real socket, the rules and the real windows in one process; another socket of it sends messages to a private window
// that is visible and holds a conversation already. The time runs from before the sending to when the paint event that
// has drawn the line returns, what the screen does then not included. Twice: messages that come one by one, and one
// every four milliseconds. Prints one JSON object, in milliseconds. Needs a screen or QT_QPA_PLATFORM=offscreen.
#include "platform/udp_winsock.h"
#include "raw_peer.h"
#include "real_windows.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <deque>
#include <vector>

namespace
{

using namespace nimb;
using namespace nimb::test;
using Clock = std::chrono::steady_clock;

constexpr char ownAddress[] = "127.0.47.1", peerAddress[] = "127.0.47.2";
constexpr std::uint16_t port = 45491;
constexpr int earlierMessages = 300;
constexpr int patience = 60000; ///< milliseconds

/// Tells when a line that came in has been painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(RichTextLogEdit &log) : m_log(log) { m_log.viewport()->installEventFilter(this); }

    void sent() { m_sent.push_back(Clock::now()); }
    std::size_t outstanding() const { return m_sent.size(); }
    std::vector<double> takeTimes() { return std::exchange(m_times, {}); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        m_log.viewport()->removeEventFilter(this);
        QCoreApplication::sendEvent(watched, event);
        m_log.viewport()->installEventFilter(this);
        noteLines();
        return true;
    }

private:
    /// Each message is a line of its own.
    void noteLines()
    {
        const auto now = Clock::now();
        const int lines = m_log.document()->blockCount();
        for (int i = std::exchange(m_lines, lines); i < lines && !m_sent.empty(); ++i) {
            m_times.push_back(std::chrono::duration<double, std::milli>(now - m_sent.front()).count());
            m_sent.pop_front();
        }
    }

    RichTextLogEdit &m_log;
    int m_lines = 0;
    std::deque<Clock::time_point> m_sent;
    std::vector<double> m_times;
};

void waitFor(double milliseconds)
{
    QElapsedTimer time;
    time.start();
    while (double(time.nsecsElapsed()) < milliseconds * 1e6)
        QCoreApplication::processEvents();
}

bool waitForAll(const PaintWatch &watch)
{
    QElapsedTimer time;
    time.start();
    while (watch.outstanding() > 0 && time.elapsed() < patience)
        QCoreApplication::processEvents();
    return watch.outstanding() == 0;
}

QJsonObject summary(std::vector<double> times)
{
    std::ranges::sort(times);
    const auto at
        = [&](double share) { return std::round(times[std::size_t(share * double(times.size() - 1))] * 100) / 100; };
    return {{"messages", int(times.size())}, {"p50", at(0.5)}, {"p99", at(0.99)}, {"max", at(1)}};
}

/// pause: gives the milliseconds after each message.
template <class Pause>
QJsonObject measure(const RawPeer &peer, PaintWatch &watch, int messages, bool oneByOne, Pause pause)
{
    for (int i = 0; i < messages; ++i) {
        watch.sent();
        if (!peer.send(ownAddress, port, "-Did you see the new plan :) number " + std::to_string(i)))
            qFatal("arrival_bench: cannot send");
        if (oneByOne && !waitForAll(watch))
            qFatal("arrival_bench: a message was not painted");
        waitFor(pause());
    }
    if (!waitForAll(watch))
        qFatal("arrival_bench: %zu messages were not painted", watch.outstanding());
    return summary(watch.takeTimes());
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const int messages = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1000;
    RealWindows windows(std::vector<std::pair<const char *, const char *>>{{peerAddress, "Ann"}});
    DropCounts drops;
    UdpWinsock socket(drops, Ipv4Address(127, 0, 47, 1));
    socket.setLocalPort(port);
    const RawPeer peer(peerAddress, port);
    if (!peer.isBound() || !socket.bind())
        qFatal("arrival_bench: the port is taken");
    socket.DataArrival = [&](std::size_t size) {
        const std::string bytes = socket.GetData(size);
        windows.socket.arrive(QLatin1String(peerAddress), bytes);
    };
    windows.arrive(peerAddress, "!ONLINE");
    for (int i = 0; i < earlierMessages; ++i)
        windows.arrive(peerAddress, "-The part about the basement is the one that matters for us.");
    QWidget &window = windows.privateWindow();
    window.showNormal();
    window.activateWindow();
    waitFor(1000);
    PaintWatch watch(RealWindows::logOf(window));
    waitFor(200);

    QJsonObject result;
    result["one_by_one"]
        = measure(peer, watch, messages, true, [] { return 5 + QRandomGenerator::global()->bounded(25.0); });
    result["one_every_4_ms"] = measure(peer, watch, messages, false, [] { return 4.0; });
    std::fputs(QJsonDocument(result).toJson().constData(), stdout);
    return 0;
}
