// Datagrams through a whole engine, with few and with many contacts: the time must not depend on their number.
#include "silent_log.h"
#include "simulated_network.h"
#include "whole_engine.h"

#include <benchmark/benchmark.h>

namespace nimb::test
{
namespace
{

constexpr Ipv4Address ownAddress{11, 0, 0, 1};

Ipv4Address addressOf(int contact)
{
    return Ipv4Address::of(Ipv4Address(10, 0, 0, 0).number() + static_cast<std::uint32_t>(contact));
}

struct Engine : WholeEngine<SimulatedWinsock, SilentViews> {
    explicit Engine(int contacts)
        : WholeEngine(std::make_shared<VirtualTime>(),
                      [](DropCounts &) { return SimulatedWinsock(ownAddress, QStringLiteral("HERE"), nullptr); })
    {
        common.ownIP = ownAddress;
        for (int i = 0; i < contacts; ++i)
            addPresent(addressOf(i), QStringLiteral("Contact %1").arg(i));
        socket.bind();
    }
};

void dispatch(benchmark::State &state, const char *bytes)
{
    const int contacts = static_cast<int>(state.range(0));
    Engine engine(contacts);
    const Ipv4Address ip = addressOf(contacts / 2);
    for (auto _ : state) {
        engine.receive(ip, bytes);
        engine.socket.sent.clear();
    }
    state.SetItemsProcessed(state.iterations());
}

void message(benchmark::State &state)
{
    dispatch(state, "-Hello, how are you today?");
}
void onlineQuestion(benchmark::State &state)
{
    dispatch(state, "?ONLINE 10.0.0.1 PC Contact");
}
void stranger(benchmark::State &state)
{
    Engine engine(static_cast<int>(state.range(0)));
    for (auto _ : state)
        engine.receive(Ipv4Address(99, 9, 9, 9), "-Hello, how are you today?");
    state.SetItemsProcessed(state.iterations());
}
/// Two states in turn, so that the row moves through the list each time.
void stateChange(benchmark::State &state)
{
    const int contacts = static_cast<int>(state.range(0));
    Engine engine(contacts);
    const Ipv4Address ip = addressOf(contacts / 2);
    bool busy = false;
    for (auto _ : state) {
        busy = !busy;
        engine.receive(ip, busy ? "!STATUS BUSY" : "!STATUS ONLINE");
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(message)->RangeMultiplier(10)->Range(1, 10000);
BENCHMARK(onlineQuestion)->RangeMultiplier(10)->Range(1, 10000);
BENCHMARK(stateChange)->RangeMultiplier(10)->Range(1, 10000);
BENCHMARK(stranger)->RangeMultiplier(10)->Range(1, 10000);

} // namespace
} // namespace nimb::test

BENCHMARK_MAIN();
