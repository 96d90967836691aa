// Which file it is that the program reads or writes.
#pragma once

#include <array>
#include <string>

#include <unistd.h>

namespace nimb::test
{

/// Empty where it is none.
inline std::string pathOfDescriptor(int descriptor)
{
    std::array<char, 4096> path{};
    const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path.data(), path.size());
    return length > 0 ? std::string(path.data(), static_cast<std::size_t>(length)) : std::string();
}

} // namespace nimb::test
