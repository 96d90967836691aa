// Five real copies that talk, confer, change their states and restart for a while:
//
//   tools/virtual_display build/release/soak [MINUTES]
//
// Prints one JSON object: how much was done, and of each copy the slope of its memory after the first fifth of the time
// (by least squares; of the copies that live all the time), its descriptors after the first round and at the end, what
// it wrote to its standard streams, and its exit statuses.
#include "../e2e/chat_windows.h"
#include "real_copies.h"

#include <QGuiApplication>
#include <QJsonArray>

#include <array>
#include <chrono>
#include <memory>
#include <random>

namespace nimb::bench
{
namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using test::MainWindow;
using test::RunningCopy;
using test::StoredContact;
using test::Window;

constexpr std::uint16_t port = 45492;
constexpr std::array names = {"Ann", "Ben", "Cid", "Dan", "Eve"};
constexpr std::size_t lasting = 3; ///< the first ones are never restarted

double hoursSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::ratio<3600>>(Clock::now() - start).count();
}

std::string addressOf(std::size_t number)
{
    return "127.0.48." + std::to_string(number + 1);
}

struct Sample {
    double hours, kibibytes;
};

double slopeOf(const std::vector<Sample> &samples)
{
    double n = 0, x = 0, y = 0, xx = 0, xy = 0;
    for (const auto &[hours, kib] : samples) {
        n += 1;
        x += hours;
        y += kib;
        xx += hours * hours;
        xy += hours * kib;
    }
    const double spread = n * xx - x * x;
    return spread > 0 ? (n * xy - x * y) / spread : 0;
}

class Copy
{
public:
    explicit Copy(std::size_t number) : m_name(names[number])
    {
        std::vector<StoredContact> others;
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (i != number)
                others.push_back({addressOf(i), names[i], "PC"});
        }
        m_copy = std::make_unique<RunningCopy>(RunningCopy::Place{addressOf(number), "PC"},
                                               test::profile(port, others, {{{"Options", "NotifyWin"}, "0"}}));
        start();
    }

    void start()
    {
        m_copy->start({QString::fromLatin1(m_name)});
        main().activate();
    }
    void restart()
    {
        end();
        start();
    }
    void end()
    {
        const std::optional<int> status = m_copy->end();
        EXPECT_EQ(status, 0) << m_name;
        m_statuses.append(status.value_or(-1));
    }

    MainWindow main() const { return MainWindow::of(m_name); }
    /// Other copies have windows of the same captions.
    Window shownWindow(const QString &pattern) const
    {
        QProcess search;
        Window found;
        EXPECT_TRUE(test::waitUntil([&] {
            search.start(
                QStringLiteral("xdotool"),
                {"search", "--all", "--onlyvisible", "--pid", QString::number(m_copy->processId()), "--name", pattern});
            search.waitForFinished();
            found = Window(search.readAll().split('\n').front().trimmed());
            return !found.isNull();
        })) << m_name
            << " shows no " << pattern.toStdString();
        return found;
    }

    void waitUntilIdle() const { bench::waitUntilIdle(m_copy->processId()); }
    void rememberDescriptors() { m_descriptors = openDescriptors(m_copy->processId()); }
    void sample(Clock::time_point start)
    {
        m_samples.push_back({hoursSince(start), kibibytes(m_copy->processId(), "VmRSS")});
    }
    /// Before its end.
    QJsonObject figures() const
    {
        return {{"name", m_name},
                {"descriptors_after_first_round", m_descriptors},
                {"descriptors_at_end", openDescriptors(m_copy->processId())},
                {"memory_at_end_mib", kibibytes(m_copy->processId(), "VmRSS") / 1024}};
    }
    double slope() const { return slopeOf(m_samples); }
    int linesPrinted() const
    {
        const std::string text = m_copy->printed();
        return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    }
    QJsonArray exitStatuses() const { return m_statuses; }

private:
    const char *m_name;
    std::unique_ptr<RunningCopy> m_copy;
    int m_descriptors = 0;
    std::vector<Sample> m_samples;
    QJsonArray m_statuses;
};

class Soak
{
public:
    Soak()
    {
        for (std::size_t i = 0; i < names.size(); ++i)
            m_copies.push_back(std::make_unique<Copy>(i));
        waitUntilIdle(); // all announcements are over
    }

    QJsonObject run(double minutes)
    {
        const Clock::time_point start = Clock::now();
        const double end = minutes / 60;
        while ((hoursSince(start) < end || m_rounds == 0) && !testing::Test::HasFailure()) {
            if (hoursSince(start) > end / 5)
                m_measuredFrom = start;
            round();
            if (++m_rounds == 1) {
                for (const auto &copy : m_copies)
                    copy->rememberDescriptors();
            }
        }
        QJsonObject result{{"minutes", hoursSince(start) * 60},
                           {"rounds", m_rounds},
                           {"private_messages", m_private},
                           {"conferences", m_conferences},
                           {"conference_messages", m_conference},
                           {"changes_of_state", m_states},
                           {"restarts", m_restarts}};
        QJsonArray copies;
        for (std::size_t i = 0; i < m_copies.size(); ++i)
            copies.append(finish(i));
        result["copies"] = copies;
        return result;
    }

private:
    void waitUntilIdle() const
    {
        for (const auto &copy : m_copies)
            copy->waitUntilIdle();
    }
    void round()
    {
        for (const auto &copy : m_copies) {
            talk(*copy);
            changeState(*copy, +1);
        }
        confer();
        for (const auto &copy : m_copies) {
            changeState(*copy, -1);
            talk(*copy);
        }
        restart(lasting + static_cast<std::size_t>(m_rounds) % (names.size() - lasting));
    }

    void say(const Window &window, const std::string &text, int &count)
    {
        window.activate();
        test::type(text);
        test::press("Return");
        ++count;
        waitUntilIdle(); // a window that it opens elsewhere takes the focus before the next one is wanted
    }
    /// To whoever stands in a row of the list.
    void talk(const Copy &copy)
    {
        copy.main().openContact(std::uniform_int_distribution<int>(0, names.size() - 2)(m_random));
        Window window;
        EXPECT_TRUE(test::waitUntil([&] {
            window = Window::active();
            return window.caption().ends_with("Private Chat Window");
        }));
        say(window, "Did you see the plan :) of http://fileserver/" + std::to_string(m_private), m_private);
        for (std::size_t i = 0; m_measuredFrom && i < lasting; ++i)
            m_copies[i]->sample(*m_measuredFrom);
    }
    void changeState(const Copy &copy, int entries)
    {
        const MainWindow main = copy.main();
        test::letWindowsSettle(); // a window that goes passes the focus on
        main.chooseState(entries);
        ++m_states;
    }
    /// The first copy hosts, the others join, each says something, the host ends it.
    void confer()
    {
        const Copy &host = *m_copies.front();
        host.main().activate();
        test::press("alt+c");
        test::press("n");
        const Window hosted = host.shownWindow(QStringLiteral("^Conference #[0-9]+ .Hosted here"));
        for (int row = 0; row < static_cast<int>(names.size()) - 1; ++row) {
            host.main().openContextMenu(row);
            test::press("1");
        }
        for (std::size_t i = 1; i < m_copies.size(); ++i) {
            const Window invitations = m_copies[i]->shownWindow(QStringLiteral("^Conference Invitations"));
            invitations.activate();
            invitations.click(100, 37);
            test::press("alt+a");
        }
        std::vector<Window> joined;
        for (std::size_t i = 1; i < m_copies.size(); ++i)
            joined.push_back(m_copies[i]->shownWindow(QStringLiteral("^Conference #[0-9]+ .Hosted by")));
        say(hosted, "Welcome, all of you", m_conference);
        for (const Window &window : joined)
            say(window, "Here I am ;-p and more than that", m_conference);
        hosted.close();
        const Window question = host.shownWindow(QStringLiteral("^NIMB-Chat$"));
        question.activate();
        test::press("alt+y");
        EXPECT_TRUE(hosted.becomes(Window::State::hidden));
        waitUntilIdle(); // the others know that it is over, and close theirs without a question
        for (const Window &window : joined) {
            window.close();
            EXPECT_TRUE(window.becomes(Window::State::hidden));
        }
        ++m_conferences;
    }
    void restart(std::size_t number)
    {
        m_copies[number]->restart();
        ++m_restarts;
        waitUntilIdle(); // its announcement is over
    }

    QJsonObject finish(std::size_t number)
    {
        Copy &copy = *m_copies[number];
        QJsonObject figures = copy.figures();
        if (number < lasting)
            figures["memory_kib_per_hour"] = copy.slope();
        copy.end();
        figures["lines_printed"] = copy.linesPrinted();
        figures["exit_statuses"] = copy.exitStatuses();
        return figures;
    }

    std::vector<std::unique_ptr<Copy>> m_copies;
    std::mt19937 m_random{1};
    std::optional<Clock::time_point> m_measuredFrom;
    int m_rounds = 0, m_private = 0, m_conferences = 0, m_conference = 0, m_states = 0, m_restarts = 0;
};

} // namespace
} // namespace nimb::bench

int main(int argumentCount, char **arguments)
{
    return nimb::bench::runOnScreen(argumentCount, arguments, [] {
        const QString minutes = QGuiApplication::arguments().value(1, QStringLiteral("15"));
        return nimb::bench::Soak().run(minutes.toDouble());
    });
}
