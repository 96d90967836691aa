// When the peer is told that the user is typing.
#pragma once

#include <QtGlobal>

namespace nimb
{

/// A notice goes out for roughly every 13 new characters, not for every key.
class TypingNotice
{
public:
    /// The input box holds this many characters now (UTF-16 units, a line break counts two). True: send a notice.
    [[nodiscard]] bool textChanged(qsizetype length)
    {
        if (length == 0)
            m_lastNoted = 0;
        if (length <= m_lastNoted + charactersBetweenNotices)
            return false;
        m_lastNoted = length;
        return true;
    }

private:
    static constexpr qsizetype charactersBetweenNotices = 12;

    qsizetype m_lastNoted = 0;
};

} // namespace nimb
