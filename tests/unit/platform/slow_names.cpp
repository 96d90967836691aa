#include "slow_names.h"

#include <condition_variable>
#include <cstring>
#include <mutex>

#include <dlfcn.h>
#include <netdb.h>

namespace nimb::test
{
namespace
{

struct State {
    std::mutex mutex;
    std::condition_variable changed;
    int asked = 0;
    int released = 0;
    int answered = 0;
};

/// Never destroyed: there are questions that wait beyond the end of main().
State &state()
{
    static auto *const everlasting = new State;
    return *everlasting;
}

void waitToBeLetGo()
{
    std::unique_lock lock(state().mutex);
    const int ticket = ++state().asked;
    state().changed.wait(lock, [ticket] { return ticket <= state().released; });
}

void countAnswer()
{
    const std::lock_guard lock(state().mutex);
    ++state().answered;
}

} // namespace

int slowQuestions()
{
    const std::lock_guard lock(state().mutex);
    return state().asked;
}

int slowAnswers()
{
    const std::lock_guard lock(state().mutex);
    return state().answered;
}

void letSlowNamesGo()
{
    const std::lock_guard lock(state().mutex);
    state().released = state().asked;
    state().changed.notify_all();
}

} // namespace nimb::test

/// The linker takes this one before the system's.
extern "C" int getaddrinfo(const char *name, const char *service, const addrinfo *hints, addrinfo **found)
{
    const auto systemsOwn = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    if (name && std::strstr(name, "slow")) {
        nimb::test::waitToBeLetGo();
        const int failed = systemsOwn("127.0.0.9", service, hints, found);
        nimb::test::countAnswer();
        return failed;
    }
    return systemsOwn(name, service, hints, found);
}
