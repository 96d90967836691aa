// Datagrams that nobody understands, as the main log tells of them.
#pragma once

#include "base/main_log.h"
#include "base/timers.h"
#include "protocol/handlers.h"

#include <map>
#include <memory>

namespace nimb
{

/// Writes a line for each, but of one sender no more than limits::unknownLinesPerSecond in a second: what comes beyond
/// that is counted, and the end of the second tells the count in one line.
class UnknownDatagrams : public UnknownDatagramHandler
{
public:
    UnknownDatagrams(MainLog &log, Timers &timers);

    void unsupportedCommand(Ipv4Address ip, const QString &data) override;
    void garbage(Ipv4Address ip, const QString &data) override;

private:
    bool mayWrite(Ipv4Address ip);
    void endSecond();

    MainLog &m_log;
    std::map<Ipv4Address, int> m_ofThisSecond; ///< of contacts alone, so the list bounds them
    std::unique_ptr<Timer> m_second;
};

} // namespace nimb
