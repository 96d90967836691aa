#include "full_disk.h"

#include "open_file.h"

#include <dlfcn.h>

#include <algorithm>
#include <atomic>
#include <cerrno>

namespace nimb::test
{
namespace
{

std::atomic<bool> isLimited = false;
std::atomic<std::int64_t> roomLeft = 0;
std::atomic<int> fullDiskError = 0;

} // namespace

FullDisk::FullDisk(std::int64_t room, int error)
{
    roomLeft = room;
    fullDiskError = error;
    isLimited = true;
}

FullDisk::~FullDisk()
{
    isLimited = false;
}

} // namespace nimb::test

/// The linker takes this one before the system's.
extern "C" ssize_t write(int descriptor, const void *bytes, std::size_t size)
{
    using namespace nimb::test;
    const auto systemsOwn = reinterpret_cast<decltype(&write)>(dlsym(RTLD_NEXT, "write"));
    if (!isLimited || !pathOfDescriptor(descriptor).ends_with(".part"))
        return systemsOwn(descriptor, bytes, size);
    const std::int64_t fits = std::min(roomLeft.load(), static_cast<std::int64_t>(size));
    if (fits == 0) {
        errno = fullDiskError;
        return -1;
    }
    roomLeft -= fits;
    return systemsOwn(descriptor, bytes, static_cast<std::size_t>(fits));
}
