#include "base/unknown_datagrams.h"

#include "base/limits.h"

#include <utility>

namespace nimb
{

UnknownDatagrams::UnknownDatagrams(MainLog &log, Timers &timers)
    : m_log(log), m_second(timers.oneShot(std::chrono::seconds(1), [this] { endSecond(); }))
{
}

void UnknownDatagrams::unsupportedCommand(Ipv4Address ip, const QString &data)
{
    if (mayWrite(ip))
        m_log.unsupportedCommand(data);
}

void UnknownDatagrams::garbage(Ipv4Address ip, const QString &data)
{
    if (mayWrite(ip))
        m_log.garbage(data);
}

bool UnknownDatagrams::mayWrite(Ipv4Address ip)
{
    if (m_ofThisSecond.empty())
        m_second->start();
    return ++m_ofThisSecond[ip] <= limits::unknownLinesPerSecond;
}

void UnknownDatagrams::endSecond()
{
    for (const auto &[ip, count] : std::exchange(m_ofThisSecond, {})) {
        if (count > limits::unknownLinesPerSecond)
            m_log.moreUnknown(QLatin1String(ip.toText()), count - limits::unknownLinesPerSecond);
    }
}

} // namespace nimb
