// How a window that is not in front shows that something happened in it.
#pragma once

namespace nimb
{

/// How often the task-bar button flashes.
constexpr int flashCount = 3;

class AttentionView
{
public:
    virtual ~AttentionView() = default;
    virtual bool isMinimisedOrInactive() const = 0;
    /// Flashes the window's task-bar button, the button only, flashCount times at the system's rate.
    virtual void flash() = 0;
};

} // namespace nimb
