// A disk that does not answer for a while, for files whose names end with ".slow".
#pragma once

namespace nimb::test
{

/// As long as it lives, whoever reads such a file waits.
class SlowDisk
{
public:
    SlowDisk();
    ~SlowDisk();
    SlowDisk(const SlowDisk &) = delete;
    SlowDisk &operator=(const SlowDisk &) = delete;

    /// How many wait.
    static int waiting();
};

} // namespace nimb::test
