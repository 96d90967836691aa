// The memory that the logs of all conversations may take together.
#pragma once

#include <vector>

namespace nimb
{

class RichTextLogEdit;

/// Each log has a bound of its own, but fifty windows that strangers open would fill the memory with fifty full ones.
/// When all of them together hold more than limits::fullLogs times what one may, the fullest loses its oldest tenth.
class LogRoom
{
public:
    LogRoom() = default;
    LogRoom(const LogRoom &) = delete;
    LogRoom &operator=(const LogRoom &) = delete;

    /// The log counts from now on until its end, which the room outlives.
    void join(RichTextLogEdit &log);

private:
    void makeRoom();

    std::vector<RichTextLogEdit *> m_logs;
};

} // namespace nimb
