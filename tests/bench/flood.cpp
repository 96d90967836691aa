// Floods one real copy with a named load and prints as one JSON object what became of it:
//
//   tools/virtual_display build/release/flood [--small-buffer] LOAD [RUNS]
//
// paced          20,000 messages of one contact at 100,000 a second, its chat visible
// burst20000     20,000 messages of one contact as fast as the system takes them, its chat visible
// burst100000    100,000 messages of four contacts, the same
// answers1000    1,000 contacts answer the announcement, each burst of questions with one burst of answers
// answers5000    5,000 contacts, the same
// junk           one contact sends 100,000 datagrams a second that nobody understands for 30 seconds; another sends 50
//                messages meanwhile
// strangers      2,000 strangers make themselves known and send one message each
// pictures       20,000 messages with more pictures than are drawn, at 2,000 a second: far more than a log holds
//
// Each run has a copy of its own with a profile that is thrown away; of several runs the medians are told. "shown" is
// counted in the logs, which the program copies into the clipboard; "lost_by_system" is the system's own count for the
// program's socket. The time until all was handled ends with the answer to a question that the last one of those who
// sent asked behind it. The heartbeat is the time from a question of somebody else to its answer, every 20 ms
// meanwhile. With --small-buffer the program gets a receive buffer of 212,992 bytes, as on a machine that nobody has
// tuned.
#include "../e2e/chat_windows.h"
#include "flood_network.h"
#include "raw_peer.h"
#include "real_copies.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <map>
#include <memory>
#include <set>
#include <thread>

#include <poll.h>

namespace nimb::bench
{
namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using test::MainWindow;
using test::PrivateWindow;
using test::RawPeer;
using test::RunningCopy;
using test::StoredContact;

constexpr std::uint16_t port = 45491;
constexpr char ownAddress[] = "127.0.46.1";
constexpr char guardAddress[] = "127.0.46.250";
constexpr char bareAddress[] = "127.0.46.251";
constexpr int smallBuffer = 212992;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::string addressOf(int number)
{
    return "127.47." + std::to_string(number / 250) + '.' + std::to_string(number % 250 + 1);
}

std::string nameOf(int number)
{
    return "Contact " + std::to_string(number);
}

/// Somebody with a socket at the address from which the datagrams come, so that answers are heard.
class Talker
{
public:
    explicit Talker(std::string address) : m_address(std::move(address)), m_peer(m_address, port)
    {
        EXPECT_TRUE(m_peer.isBound()) << m_address;
    }

    const std::string &address() const { return m_address; }
    void say(const std::string &bytes) const { m_peer.send(ownAddress, port, bytes); }
    bool hears(const std::string &beginning, std::chrono::milliseconds limit) const
    {
        const Clock::time_point end = Clock::now() + limit;
        while (const auto heard = m_peer.receive(
                   std::max(0ms, std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now())))) {
            if (heard->bytes.starts_with(beginning))
                return true;
        }
        return false;
    }
    /// Asks until there is an answer, for questions may be lost as well. A stranger's question has to say who asks, for
    /// what made it known may be lost.
    bool isAnswered(std::chrono::seconds limit, const std::string &question = "?ONLINE") const
    {
        while (hears({}, 0ms)) { }
        const Clock::time_point end = Clock::now() + limit;
        while (Clock::now() < end) {
            say(question);
            if (hears("!ONLINE ", 50ms))
                return true;
        }
        return false;
    }

private:
    std::string m_address;
    RawPeer m_peer;
};

/// Asks every 20 ms from its making to its end, on a thread of its own.
class Heartbeat
{
public:
    Heartbeat() : m_guard(guardAddress), m_thread([this] { run(); }) { }
    ~Heartbeat() { stop(); }
    Heartbeat(const Heartbeat &) = delete;
    Heartbeat &operator=(const Heartbeat &) = delete;

    void stop()
    {
        m_over = true;
        if (m_thread.joinable())
            m_thread.join();
    }
    QJsonObject result()
    {
        stop();
        std::sort(m_times.begin(), m_times.end());
        const auto percentile = [this](double share) {
            return m_times.empty() ? -1.0 : m_times[static_cast<std::size_t>(share * double(m_times.size() - 1))];
        };
        return {{"heartbeats", int(m_times.size())},
                {"heartbeat_p50_ms", percentile(0.5)},
                {"heartbeat_p99_ms", percentile(0.99)},
                {"heartbeat_max_ms", percentile(1)},
                {"heartbeats_without_answer", m_missing}};
    }

private:
    void run()
    {
        while (!m_over) {
            const Clock::time_point asked = Clock::now();
            m_guard.say("?ONLINE");
            bool answered = false;
            while (!answered && !m_over && Clock::now() < asked + 5s)
                answered = m_guard.hears("!ONLINE ", 50ms);
            if (answered)
                m_times.push_back(secondsSince(asked) * 1000);
            else
                ++m_missing;
            std::this_thread::sleep_until(asked + 20ms);
        }
    }

    Talker m_guard;
    std::atomic<bool> m_over = false;
    std::vector<double> m_times;
    int m_missing = 0;
    std::thread m_thread;
};

std::vector<StoredContact> contacts(int count)
{
    std::vector<StoredContact> all = {{guardAddress, "Guard", "GUARD-PC"}};
    for (int i = 0; i < count; ++i)
        all.push_back({addressOf(i), nameOf(i), "PC"});
    return all;
}

/// The copy, its main window shown, and what is measured of it.
class Victim
{
public:
    Victim(int contactCount, bool hasSmallBuffer)
        : m_copy({ownAddress, "BOB-PC"}, test::profile(port, contacts(contactCount))), m_hasSmallBuffer(hasSmallBuffer)
    {
        if (hasSmallBuffer)
            m_copy.setVariable(QStringLiteral("LD_PRELOAD"), QStringLiteral(SMALL_BUFFER));
    }

    void start()
    {
        m_copy.start({QStringLiteral("Bob")});
        EXPECT_TRUE(m_guard->hears("!STATUS Online", 20s));
        m_guard.reset(); // its address is the heartbeat's now
        MainWindow::of("Bob").activate();
    }
    /// Windows of these contacts, who have said a word.
    void openWindows(const std::vector<std::unique_ptr<Talker>> &talkers)
    {
        for (std::size_t i = 0; i < talkers.size(); ++i) {
            talkers[i]->say("-hello");
            m_windows.push_back(PrivateWindow::with(nameOf(static_cast<int>(i))));
            m_windows.back().activate();
        }
    }
    /// What was put off until there is time is done, and shown.
    void waitUntilIdle() const { bench::waitUntilIdle(m_copy.processId()); }
    /// Everything is counted from here.
    void beginMeasuring()
    {
        waitUntilIdle();
        forgetPeak(m_copy.processId());
        m_before = kibibytes(m_copy.processId(), "VmRSS");
        m_lostBefore = lostBySystem({ownAddress, port});
        m_begin = Clock::now();
        m_heartbeat = std::make_unique<Heartbeat>();
    }
    /// ... to here.
    QJsonObject endMeasuring()
    {
        const double seconds = secondsSince(m_begin);
        QJsonObject result = m_heartbeat->result();
        result["seconds_until_handled"] = seconds;
        waitUntilIdle();
        addFigures(result);
        result["memory_before_mib"] = m_before / 1024;
        result["memory_more_mib"] = result["memory_peak_mib"].toDouble() - m_before / 1024;
        return result;
    }
    /// What can be told at any time.
    void addFigures(QJsonObject &result) const
    {
        int granted = 0;
        close(openReceiver({bareAddress, port}, m_hasSmallBuffer ? smallBuffer : 0, granted));
        result["receive_buffer"] = granted;
        result["memory_peak_mib"] = kibibytes(m_copy.processId(), "VmHWM") / 1024;
        result["lost_by_system"] = double(lostBySystem({ownAddress, port}) - m_lostBefore);
        result["windows"] = static_cast<int>(test::Window::numberOfManaged());
    }
    /// Numbers that stand behind this word in the logs of all open windows.
    int shown(const QString &word) const
    {
        int all = 0;
        for (const PrivateWindow &window : m_windows) {
            window.copyLog();
            all += countIn(clipboard(), word + QStringLiteral(" (\\d+)"));
        }
        return all;
    }
    int wentOnline() const
    {
        MainWindow::of("Bob").copyLog();
        return countIn(clipboard(), QStringLiteral("Contact (\\d+) went online"));
    }
    /// As the store has them after the end.
    int contactsAfterEnd()
    {
        EXPECT_EQ(m_copy.end(), 0);
        return static_cast<int>(m_copy.storedContacts().size());
    }

private:
    /// What was copied just now. The program may still have much to do before it copies.
    static QString clipboard()
    {
        QString text;
        EXPECT_TRUE(test::waitUntil([&] { return !(text = QGuiApplication::clipboard()->text()).isEmpty(); }));
        QGuiApplication::clipboard()->setText(QString());
        return text;
    }
    static int countIn(const QString &text, const QString &pattern)
    {
        std::set<QString> found;
        const QRegularExpression expression(pattern);
        for (auto match = expression.globalMatch(text); match.hasNext();)
            found.insert(match.next().captured(1));
        return static_cast<int>(found.size());
    }

    RunningCopy m_copy;
    bool m_hasSmallBuffer;
    std::unique_ptr<Talker> m_guard = std::make_unique<Talker>(guardAddress);
    std::vector<PrivateWindow> m_windows;
    double m_before = 0;
    std::uint64_t m_lostBefore = 0;
    Clock::time_point m_begin;
    std::unique_ptr<Heartbeat> m_heartbeat;
};

std::vector<std::unique_ptr<Talker>> talkers(int count)
{
    std::vector<std::unique_ptr<Talker>> all;
    for (int i = 0; i < count; ++i)
        all.push_back(std::make_unique<Talker>(addressOf(i)));
    return all;
}

/// Numbered, so that each of them can be told from the others; their senders take turns.
std::vector<Parcel> messages(int count, int senders, const std::string &text)
{
    std::vector<Parcel> all;
    for (int i = 0; i < count; ++i)
        all.push_back({addressOf(i % senders), "-flood " + std::to_string(100000 + i) + text});
    return all;
}

QJsonObject floodOfMessages(bool hasSmallBuffer, const std::vector<Parcel> &parcels, int senders, double perSecond)
{
    const auto all = talkers(senders);
    Victim victim(senders, hasSmallBuffer);
    victim.start();
    victim.openWindows(all);
    const Sender sender({ownAddress, port});
    victim.beginMeasuring();
    const double seconds = sender.send(parcels, perSecond);
    for (const auto &talker : all)
        EXPECT_TRUE(talker->isAnswered(120s));
    QJsonObject result = victim.endMeasuring();
    result["sent"] = double(parcels.size());
    result["sent_per_second"] = std::round(double(parcels.size()) / seconds);
    result["shown"] = victim.shown(QStringLiteral("flood"));
    return result;
}

constexpr char sentence[] = " The part about the basement is what matters.";

QJsonObject paced(bool hasSmallBuffer)
{
    return floodOfMessages(hasSmallBuffer, messages(20000, 1, sentence), 1, 100000);
}

/// What reached nobody may be the fault of the machine: a loop that only reads is measured in the same run.
QJsonObject burst(bool hasSmallBuffer, int count, int senders)
{
    const std::vector<Parcel> parcels = messages(count, senders, sentence);
    QJsonObject result = floodOfMessages(hasSmallBuffer, parcels, senders, 0);
    result["lost_by_bare_loop"]
        = double(lostByBareLoop({bareAddress, port}, parcels, hasSmallBuffer ? smallBuffer : 0));
    return result;
}

QJsonObject pictures(bool hasSmallBuffer)
{
    std::string smileys;
    for (int i = 0; i < 20; ++i)
        smileys += " :)";
    QJsonObject result = floodOfMessages(hasSmallBuffer, messages(20000, 1, smileys), 1, 2000);
    result.remove("shown"); // the oldest lines have gone, as they must
    return result;
}

/// Each of them answers its first question; what came in together is answered together.
int answerAll(const std::vector<std::unique_ptr<RawPeer>> &peers, Clock::time_point end)
{
    std::vector<pollfd> watched;
    for (const auto &peer : peers)
        watched.push_back({.fd = peer->descriptor(), .events = POLLIN, .revents = 0});
    const Sender sender({ownAddress, port});
    int answered = 0;
    while (answered < static_cast<int>(peers.size()) && Clock::now() < end) {
        std::vector<Parcel> answers;
        poll(watched.data(), watched.size(), 100);
        for (std::size_t i = 0; i < peers.size(); ++i) {
            const int number = static_cast<int>(i);
            const auto heard = (watched[i].revents & POLLIN) != 0 ? peers[i]->receive(0ms) : std::nullopt;
            if (!heard || !heard->bytes.starts_with("?ONLINE"))
                continue;
            answers.push_back({addressOf(number), "!ONLINE " + addressOf(number) + " PC " + nameOf(number)});
            watched[i].fd = -1; // not looked at any more
        }
        sender.send(answers);
        answered += static_cast<int>(answers.size());
    }
    return answered;
}

QJsonObject answers(bool hasSmallBuffer, int count)
{
    std::vector<std::unique_ptr<RawPeer>> peers;
    for (int i = 0; i < count; ++i) {
        peers.push_back(std::make_unique<RawPeer>(addressOf(i), port));
        EXPECT_TRUE(peers.back()->isBound());
    }
    Victim victim(count, hasSmallBuffer);
    int answered = 0;
    std::thread responder([&] { answered = answerAll(peers, Clock::now() + 60s); });
    const Clock::time_point begin = Clock::now();
    victim.start();
    responder.join();
    EXPECT_TRUE(Talker(guardAddress).isAnswered(60s)); // behind all that has come so far
    QJsonObject result{{"seconds_until_handled", secondsSince(begin)}};
    victim.waitUntilIdle();
    victim.addFigures(result);
    result["sent"] = answered;
    result["shown"] = victim.wentOnline();
    return result;
}

QJsonObject junk(bool hasSmallBuffer)
{
    constexpr int perSecond = 100000, seconds = 30, messageCount = 50;
    auto all = talkers(2);
    Victim victim(2, hasSmallBuffer);
    victim.start();
    victim.openWindows(all);
    const std::vector<Parcel> aSecond(perSecond, {addressOf(0), "nothing that any peer would send"});
    const Sender sender({ownAddress, port});
    victim.beginMeasuring();
    const Clock::time_point begin = Clock::now();
    std::atomic<double> taken = 0;
    std::thread loud([&] {
        for (int i = 0; i < seconds; ++i) {
            sender.send(aSecond, perSecond);
            std::this_thread::sleep_until(begin + std::chrono::seconds(i + 1));
        }
        taken = secondsSince(begin);
    });
    for (int i = 0; i < messageCount; ++i) {
        all[1]->say("-flood " + std::to_string(i));
        std::this_thread::sleep_until(begin + 600ms * (i + 1));
    }
    loud.join();
    for (const auto &talker : all)
        EXPECT_TRUE(talker->isAnswered(60s));
    QJsonObject result = victim.endMeasuring();
    result["sent"] = perSecond * seconds;
    result["sent_per_second"] = std::round(perSecond * seconds / taken);
    result["messages_sent"] = messageCount;
    result["shown"] = victim.shown(QStringLiteral("flood"));
    return result;
}

QJsonObject strangers(bool hasSmallBuffer)
{
    constexpr int count = 2000;
    Victim victim(0, hasSmallBuffer);
    victim.start();
    std::vector<Parcel> parcels;
    for (int i = 0; i < count; ++i) {
        parcels.push_back({addressOf(i), "!ONLINE " + addressOf(i) + " PC " + nameOf(i)});
        parcels.push_back({addressOf(i), "-hello"});
    }
    const Talker last(addressOf(count - 1));
    const Sender sender({ownAddress, port});
    victim.beginMeasuring();
    const double seconds = sender.send(parcels);
    EXPECT_TRUE(last.isAnswered(120s, "?ONLINE " + addressOf(count - 1) + " PC " + nameOf(count - 1)));
    victim.waitUntilIdle(); // windows that are still to open and the pop-up belong to the load
    QJsonObject result = victim.endMeasuring();
    result["sent"] = double(parcels.size());
    result["sent_per_second"] = std::round(double(parcels.size()) / seconds);
    result["private_windows"] = result["windows"].toInt() - 1;
    result["strangers_kept"] = victim.contactsAfterEnd() - 1; // the guard was no stranger
    return result;
}

using Load = std::function<QJsonObject(bool hasSmallBuffer)>;

const std::map<QString, Load> &loads()
{
    static const std::map<QString, Load> all = {
        {"paced", paced},
        {"burst20000", [](bool isSmall) { return burst(isSmall, 20000, 1); }},
        {"burst100000", [](bool isSmall) { return burst(isSmall, 100000, 4); }},
        {"answers1000", [](bool isSmall) { return answers(isSmall, 1000); }},
        {"answers5000", [](bool isSmall) { return answers(isSmall, 5000); }},
        {"junk", junk},
        {"strangers", strangers},
        {"pictures", pictures},
    };
    return all;
}

QJsonObject medians(const std::vector<QJsonObject> &runs)
{
    QJsonObject result;
    for (const QString &key : runs.front().keys()) {
        std::vector<double> values;
        for (const QJsonObject &run : runs)
            values.push_back(run[key].toDouble());
        std::sort(values.begin(), values.end());
        result[key] = values[values.size() / 2];
    }
    return result;
}

QJsonObject measure()
{
    QStringList words = QGuiApplication::arguments().mid(1);
    const bool hasSmallBuffer = words.removeAll(QStringLiteral("--small-buffer")) > 0;
    const auto load = loads().find(words.value(0));
    if (load == loads().end()) {
        ADD_FAILURE() << "flood [--small-buffer] LOAD [RUNS]; the loads stand at the top of its source";
        return {};
    }
    std::vector<QJsonObject> runs;
    for (int i = 0; i < std::max(1, words.value(1).toInt()); ++i)
        runs.push_back(load->second(hasSmallBuffer));
    QJsonObject result = medians(runs);
    result["load"] = load->first;
    result["runs"] = int(runs.size());
    return result;
}

} // namespace
} // namespace nimb::bench

int main(int argumentCount, char **arguments)
{
    return nimb::bench::runOnScreen(argumentCount, arguments, nimb::bench::measure);
}
