// How many datagrams of each size a second can be read and written.
#include "protocol/datagram.h"

#include <benchmark/benchmark.h>

#include <string>

namespace
{

using namespace nimb::wire;

const std::string presence = "!ONLINE 192.168.10.27 WORKSTATION-27 Ann of Green Gables";
const std::string status = "!STATUS AWAY Back at five";
const std::string message = "-" + std::string(200, 'm');
const std::string conferenceMessage = "+192.168.10.27 #3 " + std::string(200, 'm');
const std::string list = "!CONF USERS #3 192.168.10.1 192.168.10.2 192.168.10.3 192.168.10.4 192.168.10.5";
const std::string avatarBody = "!AVATARBODY " + std::string(7500, '\x20');
const std::string garbage = "nothing that any peer would send";

void countDatagrams(benchmark::State &state, const std::string &bytes)
{
    state.SetItemsProcessed(state.iterations());
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void parsing(benchmark::State &state, const std::string &bytes)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(parse(bytes));
    countDatagrams(state, bytes);
}

void serialising(benchmark::State &state, const std::string &bytes)
{
    const Datagram datagram = parse(bytes);
    for (auto _ : state)
        benchmark::DoNotOptimize(serialise(datagram));
    countDatagrams(state, bytes);
}

BENCHMARK_CAPTURE(parsing, presence, presence);
BENCHMARK_CAPTURE(parsing, status, status);
BENCHMARK_CAPTURE(parsing, message, message);
BENCHMARK_CAPTURE(parsing, conferenceMessage, conferenceMessage);
BENCHMARK_CAPTURE(parsing, list, list);
BENCHMARK_CAPTURE(parsing, avatarBody, avatarBody);
BENCHMARK_CAPTURE(parsing, garbage, garbage);
BENCHMARK_CAPTURE(serialising, presence, presence);
BENCHMARK_CAPTURE(serialising, status, status);
BENCHMARK_CAPTURE(serialising, message, message);
BENCHMARK_CAPTURE(serialising, conferenceMessage, conferenceMessage);
BENCHMARK_CAPTURE(serialising, list, list);
BENCHMARK_CAPTURE(serialising, avatarBody, avatarBody);

} // namespace
