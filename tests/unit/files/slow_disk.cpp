#include "slow_disk.h"

#include <dlfcn.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <string>
#include <string_view>

namespace nimb::test
{
namespace
{

struct DiskState {
    std::mutex mutex;
    std::condition_variable changed;
    std::atomic<bool> isSlow = false;
    std::atomic<int> waiting = 0;
};

DiskState &diskState()
{
    static DiskState state;
    return state;
}

bool isSlowFile(int descriptor)
{
    std::array<char, 4096> path{};
    const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path.data(), path.size());
    return length > 0 && std::string_view(path.data(), static_cast<std::size_t>(length)).ends_with(".slow");
}

void waitForDisk()
{
    DiskState &state = diskState();
    std::unique_lock lock(state.mutex);
    ++state.waiting;
    state.changed.wait(lock, [&state] { return !state.isSlow; });
    --state.waiting;
}

} // namespace

SlowDisk::SlowDisk()
{
    diskState().isSlow = true;
}

SlowDisk::~SlowDisk()
{
    const std::lock_guard lock(diskState().mutex);
    diskState().isSlow = false;
    diskState().changed.notify_all();
}

int SlowDisk::waiting()
{
    return diskState().waiting;
}

} // namespace nimb::test

/// The linker takes this one before the system's.
extern "C" ssize_t read(int descriptor, void *room, std::size_t size)
{
    using namespace nimb::test;
    const auto systemsOwn = reinterpret_cast<decltype(&read)>(dlsym(RTLD_NEXT, "read"));
    if (diskState().isSlow && isSlowFile(descriptor))
        waitForDisk();
    return systemsOwn(descriptor, room, size);
}
