// How a window that is not in front shows that something happened in it.
#pragma once

namespace nimb
{

class AttentionView
{
public:
    virtual ~AttentionView() = default;
    virtual bool isMinimisedOrInactive() const = 0;
    /// Flashes the window's task-bar button, the button only, as often and as fast as the system does.
    virtual void flash() = 0;
};

} // namespace nimb
