// Datagrams through a whole engine, with few and with many contacts: the time must not depend on their number.
#include "app/messenger.h"
#include "silent_log.h"
#include "simulated_network.h"
#include "virtual_time.h"

#include <benchmark/benchmark.h>

namespace nimb::test
{
namespace
{

class SilentNotifications : public Notifications
{
public:
    void add(const Notification &row) override { benchmark::DoNotOptimize(row.text.size()); }
    void startTimer() override { }
};

QString addressOf(int contact)
{
    return QStringLiteral("10.%1.%2.%3").arg(contact / 65536).arg(contact / 256 % 256).arg(contact % 256);
}

struct Engine : Recorders {
    explicit Engine(int contacts)
    {
        common.ownIP = QStringLiteral("11.0.0.1");
        for (int i = 0; i < contacts; ++i) {
            Contact contact;
            contact.ip = addressOf(i);
            contact.nickname = QStringLiteral("Contact %1").arg(i);
            contact.setPresence(Picture::green);
            messenger.contacts().add(contact);
        }
        socket.bind();
    }

    VirtualTime time;
    Common common;
    SimulatedWinsock socket{QStringLiteral("11.0.0.1"), QStringLiteral("HERE"), nullptr};
    Silent<RecorderMainView> view;
    SilentPrivateForms forms;
    SilentNotifications silent; // or they would grow with every round
    RecorderConferenceForms conferenceForms;
    Messenger messenger{
        common,
        {socket, settings, time, time, prompts, silent, sound, tray, windows, forms, conferenceForms, view, drops}};
};

void dispatch(benchmark::State &state, const char *bytes)
{
    const int contacts = static_cast<int>(state.range(0));
    Engine engine(contacts);
    const QString ip = addressOf(contacts / 2);
    for (auto _ : state) {
        engine.messenger.dispatcher().receive(ip, bytes);
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
        engine.messenger.dispatcher().receive(QStringLiteral("99.9.9.9"), "-Hello, how are you today?");
    state.SetItemsProcessed(state.iterations());
}
/// Two states in turn, so that the row moves through the list each time.
void stateChange(benchmark::State &state)
{
    const int contacts = static_cast<int>(state.range(0));
    Engine engine(contacts);
    const QString ip = addressOf(contacts / 2);
    bool busy = false;
    for (auto _ : state) {
        busy = !busy;
        engine.messenger.dispatcher().receive(ip, busy ? "!STATUS BUSY" : "!STATUS ONLINE");
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(message)->Arg(1)->Arg(100)->Arg(10000);
BENCHMARK(onlineQuestion)->Arg(1)->Arg(100)->Arg(10000);
BENCHMARK(stateChange)->Arg(1)->Arg(100)->Arg(10000);
BENCHMARK(stranger)->Arg(1)->Arg(100)->Arg(10000);

} // namespace
} // namespace nimb::test

BENCHMARK_MAIN();
