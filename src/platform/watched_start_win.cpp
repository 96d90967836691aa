#include "platform/watched_start.h"

#include <QProcess>

namespace nimb
{

/// Addresses go to Windows itself, which says at once whether something opens them; what is started here besides is not
/// heard of again.
bool startWatched(const QString &program, const QString &argument, std::function<void()>)
{
    return QProcess::startDetached(program, {argument});
}

} // namespace nimb
