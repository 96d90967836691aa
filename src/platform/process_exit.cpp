#include "platform/process_exit.h"

#include <cstdlib>
#include <utility>

namespace nimb
{
namespace
{

// What exit() calls is given nothing and reaches nothing but what is global.
ProcessExit *waiting = nullptr;

} // namespace

ProcessExit::ProcessExit(std::function<void()> ending) : m_ending(std::move(ending))
{
    waiting = this;
    // It cannot be taken back, so it is asked for once.
    static const int registered = std::atexit(&ProcessExit::ending);
    static_cast<void>(registered);
}

ProcessExit::~ProcessExit()
{
    waiting = nullptr;
}

void ProcessExit::ending()
{
    if (ProcessExit *const object = std::exchange(waiting, nullptr))
        object->m_ending();
}

} // namespace nimb
