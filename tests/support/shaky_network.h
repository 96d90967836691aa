// A simulated network that takes time, and loses, doubles and mixes up datagrams; the same seed gives the same run.
#pragma once

#include "simulated_network.h"
#include "virtual_time.h"

#include <functional>
#include <random>

namespace nimb::test
{

/// Numbers that are the same with every compiler and library.
class Dice
{
public:
    explicit Dice(std::uint64_t seed) : m_engine(seed) { }
    /// 0 to count - 1; 0 when there is nothing to choose from.
    int below(int count) { return count < 1 ? 0 : static_cast<int>(m_engine() % static_cast<std::uint64_t>(count)); }
    bool percent(int chance) { return below(100) < chance; }

private:
    std::mt19937_64 m_engine;
};

struct Weather {
    std::chrono::milliseconds shortest{1}, longest{1}; ///< time under way
    int lost = 0, doubled = 0;                         ///< percent
    bool keepsOrder = true;                            ///< between the same two addresses
};

/// Events are ordered by virtual time and, at the same time, by the order in which they were sent; timers of the copies
/// come before arrivals.
class ShakyNetwork : public SimulatedNetwork
{
public:
    ShakyNetwork(std::shared_ptr<VirtualTime> time, std::uint64_t seed) : m_time(std::move(time)), m_dice(seed) { }

    /// For what is sent from now on.
    void setWeather(const Weather &weather) { m_weather = weather; }

    void send(const QString &from, const QString &to, const std::string &bytes) override
    {
        ++m_sent;
        if (m_dice.percent(m_weather.lost))
            return;
        launch({from, to, bytes});
        if (m_dice.percent(m_weather.doubled))
            launch({from, to, bytes});
    }

    /// Lets this much time pass.
    void pass(std::chrono::milliseconds span)
    {
        const std::chrono::milliseconds end = m_time->elapsed() + span;
        while (const auto next = nextEvent()) {
            if (*next > end)
                break;
            step(*next);
        }
        m_time->advance(end - m_time->elapsed());
    }

    /// Lets time pass until nothing is under way; false when that is not so after this long.
    bool calmDown(std::chrono::milliseconds patience)
    {
        const std::chrono::milliseconds end = m_time->elapsed() + patience;
        while (!m_sky.empty()) {
            const std::chrono::milliseconds next = *nextEvent();
            if (next > end)
                return false;
            step(next);
        }
        return true;
    }

    std::size_t underWay() const { return m_sky.size(); }
    std::uint64_t sent() const { return m_sent; }

    /// Called in place of each arrival; it must call `arrive` to let it happen.
    std::function<void(const QString &from, const QString &to, const std::string &bytes,
                       const std::function<void()> &arrive)>
        watcher;

private:
    using Slot = std::pair<std::chrono::milliseconds, std::uint64_t>; ///< when, and the how-manieth

    void launch(Flight flight)
    {
        const int spread = static_cast<int>((m_weather.longest - m_weather.shortest).count()) + 1;
        std::chrono::milliseconds due
            = m_time->elapsed() + m_weather.shortest + std::chrono::milliseconds(m_dice.below(spread));
        if (m_weather.keepsOrder) {
            std::chrono::milliseconds &last = m_lastDue[{flight.from, flight.to}];
            due = last = std::max(last, due);
        }
        m_sky.emplace(Slot(due, ++m_launched), std::move(flight));
    }

    std::optional<std::chrono::milliseconds> nextEvent() const
    {
        const std::optional<std::chrono::milliseconds> timer = m_time->nextDue();
        if (m_sky.empty())
            return timer;
        const std::chrono::milliseconds arrival = m_sky.begin()->first.first;
        return timer ? std::min(*timer, arrival) : arrival;
    }

    void step(std::chrono::milliseconds moment)
    {
        m_time->advance(moment - m_time->elapsed());
        if (m_sky.empty() || m_sky.begin()->first.first > moment)
            return;
        const Flight flight = m_sky.extract(m_sky.begin()).mapped();
        SimulatedWinsock *const socket = listener(flight.to);
        if (!socket)
            return;
        const auto arrive = [&] { socket->arrive(flight.from, flight.bytes); };
        if (watcher)
            watcher(flight.from, flight.to, flight.bytes, arrive);
        else
            arrive();
    }

    std::shared_ptr<VirtualTime> m_time;
    Dice m_dice;
    Weather m_weather;
    std::map<Slot, Flight> m_sky;
    std::map<std::pair<QString, QString>, std::chrono::milliseconds> m_lastDue;
    std::uint64_t m_launched = 0;
    std::uint64_t m_sent = 0;
};

} // namespace nimb::test
