// The memory that the logs of all conversations may take together.
#pragma once

#include <functional>
#include <vector>

namespace nimb
{

class RichTextLogEdit;

/// Each log has a bound of its own, but fifty windows that strangers open would fill the memory with fifty full ones.
/// When all of them together hold more than limits::fullLogs times what one may, the fullest loses its oldest tenth,
/// and those that are to be spared only after all others.
class LogRoom
{
public:
    LogRoom() = default;
    LogRoom(const LogRoom &) = delete;
    LogRoom &operator=(const LogRoom &) = delete;

    /// The log counts from now on until its end, which the room outlives. isSpared: asked whenever room is made.
    void join(RichTextLogEdit &log, std::function<bool()> isSpared);

private:
    void makeRoom();

    struct Member {
        RichTextLogEdit *log;
        std::function<bool()> isSpared;
    };

    std::vector<Member> m_logs;
};

} // namespace nimb
