#include "slow_disk.h"

#include "open_file.h"

#include <dlfcn.h>

#include <atomic>
#include <condition_variable>
#include <mutex>

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
    if (diskState().isSlow && pathOfDescriptor(descriptor).ends_with(".slow"))
        waitForDisk();
    return systemsOwn(descriptor, room, size);
}
