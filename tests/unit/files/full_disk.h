// A disk that is full after so many bytes, for files whose names end with ".part".
#pragma once

#include <cstdint>

namespace nimb::test
{

/// As long as it lives, so many bytes can be written, and then the system says this.
class FullDisk
{
public:
    FullDisk(std::int64_t room, int error);
    ~FullDisk();
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
};

} // namespace nimb::test
