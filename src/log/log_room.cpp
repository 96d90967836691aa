#include "log/log_room.h"

#include "base/limits.h"
#include "log/rich_text_log.h"

#include <algorithm>
#include <numeric>

namespace nimb
{

void LogRoom::join(RichTextLogEdit &log)
{
    m_logs.push_back(&log);
    QObject::connect(&log, &RichTextLogEdit::written, &log, [this] { makeRoom(); });
    QObject::connect(&log, &QObject::destroyed, [this, &log] { std::erase(m_logs, &log); });
}

void LogRoom::makeRoom()
{
    const auto add = [](double sum, const RichTextLogEdit *log) { return sum + log->fullness(); };
    while (std::accumulate(m_logs.begin(), m_logs.end(), 0.0, add) > limits::fullLogs) {
        if (!(*std::ranges::max_element(m_logs, {}, &RichTextLogEdit::fullness))->dropOldestTenth())
            return;
    }
}

} // namespace nimb
