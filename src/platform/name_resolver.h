// Asks the system for the addresses of hosts.
#pragma once

#include "base/name_resolver.h"

#include <QHash>
#include <QObject>

#include <cstdint>
#include <memory>

namespace nimb
{

/// Every question has a thread of its own, which nobody waits for: a system whose name server is silent answers after
/// many seconds, and neither the windows nor the end of the program may wait that long. Answers nothing for what is a
/// number and no name ("192.168.1", "::1"). Needs the application object.
class HostNameResolver : public NameResolver
{
public:
    HostNameResolver();
    ~HostNameResolver() override;
    HostNameResolver(const HostNameResolver &) = delete;
    HostNameResolver &operator=(const HostNameResolver &) = delete;

    void resolve(const QString &name, Found found) override;

private:
    class Letterbox;
    void answer(quint64 question, std::optional<Ipv4Address> address);

    QObject m_context; ///< answers that arrive at the event loop after it are dropped
    quint64 m_questions = 0;
    QHash<quint64, Found> m_waiting;
    std::shared_ptr<Letterbox> m_letterbox;
};

} // namespace nimb
