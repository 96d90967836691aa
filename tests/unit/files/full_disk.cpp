#include "full_disk.h"

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <string>
#include <string_view>

namespace nimb::test
{
namespace
{

std::atomic<bool> isLimited = false;
std::atomic<std::int64_t> roomLeft = 0;
std::atomic<int> fullDiskError = 0;

bool isUnfinishedFile(int descriptor)
{
    std::array<char, 4096> path{};
    const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path.data(), path.size());
    return length > 0 && std::string_view(path.data(), static_cast<std::size_t>(length)).ends_with(".part");
}

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
    if (!isLimited || !isUnfinishedFile(descriptor))
        return systemsOwn(descriptor, bytes, size);
    const std::int64_t fits = std::min(roomLeft.load(), static_cast<std::int64_t>(size));
    if (fits == 0) {
        errno = fullDiskError;
        return -1;
    }
    roomLeft -= fits;
    return systemsOwn(descriptor, bytes, static_cast<std::size_t>(fits));
}
