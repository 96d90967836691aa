// The system's own tool that tells about the machine.
#pragma once

namespace nimb
{

class SystemInformation
{
public:
    virtual ~SystemInformation() = default;
    /// Starts the tool and does not wait for it; false when there is none.
    [[nodiscard]] virtual bool StartSysInfo() = 0;
};

} // namespace nimb
