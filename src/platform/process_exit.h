// An end of the process that nobody in the program has asked for.
#pragma once

#include <functional>

namespace nimb
{

/// While it lives, exit() first calls the function. A library that has lost its screen ends the process that way, from
/// the middle of the event loop: nothing is unwound, and no window may be touched. One object at a time.
class ProcessExit
{
public:
    explicit ProcessExit(std::function<void()> ending);
    ~ProcessExit();
    ProcessExit(const ProcessExit &) = delete;
    ProcessExit &operator=(const ProcessExit &) = delete;

private:
    static void ending();

    std::function<void()> m_ending;
};

} // namespace nimb
