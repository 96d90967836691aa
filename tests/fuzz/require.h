// How a fuzz target says that a promise was broken.
#pragma once

#include <cstdio>
#include <cstdlib>

/// Stops the program, which the fuzzer takes for a crash, unless the promise holds.
inline void require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}
