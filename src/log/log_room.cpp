#include "log/log_room.h"

#include "base/limits.h"
#include "log/rich_text_log.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>

namespace nimb
{

void LogRoom::join(RichTextLogEdit &log, std::function<bool()> isSpared)
{
    m_logs.push_back({&log, std::move(isSpared)});
    QObject::connect(&log, &RichTextLogEdit::written, &log, [this] { makeRoom(); });
    QObject::connect(&log, &QObject::destroyed, [this, &log] {
        std::erase_if(m_logs, [&log](const Member &member) { return member.log == &log; });
    });
}

void LogRoom::makeRoom()
{
    const auto add = [](double sum, const Member &member) { return sum + member.log->fullness(); };
    const auto rank = [](const Member &member) { return std::pair(!member.isSpared(), member.log->fullness()); };
    while (std::accumulate(m_logs.begin(), m_logs.end(), 0.0, add) > limits::fullLogs) {
        std::vector<Member> order = m_logs;
        std::ranges::sort(order, std::ranges::greater{}, rank);
        if (std::ranges::none_of(order, [](const Member &member) { return member.log->dropOldestTenth(); }))
            return;
    }
}

} // namespace nimb
