#include "platform/network_watch.h"

#ifdef Q_OS_LINUX

#include <array>
#include <cerrno>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nimb
{
namespace
{

constexpr int noDescriptor = -1;

int openNetlink()
{
    const int descriptor = ::socket(AF_NETLINK, SOCK_RAW | SOCK_NONBLOCK | SOCK_CLOEXEC, NETLINK_ROUTE);
    sockaddr_nl address = {};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV4_ROUTE;
    if (descriptor == noDescriptor
        || ::bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0)
        return descriptor;
    ::close(descriptor);
    return noDescriptor;
}

} // namespace

SystemNetworkWatch::SystemNetworkWatch(Timers &timers)
    : m_descriptor(openNetlink()), m_settled(timers.oneShot(settlingTime, [this] {
          if (m_changed)
              m_changed();
      }))
{
    if (m_descriptor == noDescriptor)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SystemNetworkWatch::read);
}

SystemNetworkWatch::~SystemNetworkWatch()
{
    m_notifier.reset();
    if (m_descriptor != noDescriptor)
        ::close(m_descriptor);
}

/// What the messages say is of no interest: whoever is told looks at all there is.
void SystemNetworkWatch::read()
{
    std::array<char, 8192> message;
    bool heard = false;
    for (;;) {
        const auto size = ::recv(m_descriptor, message.data(), message.size(), 0);
        if (size < 0 && errno == EINTR)
            continue;
        // Too many came at once, and some are lost: they were changes all the same.
        const bool lost = size < 0 && errno == ENOBUFS;
        if (size <= 0 && !lost)
            break;
        heard = true;
    }
    // A socket that has nothing to say but is readable would keep the event loop busy.
    if (!heard && errno != EAGAIN)
        m_notifier->setEnabled(false);
    if (heard && !m_settled->isActive())
        m_settled->start();
}

} // namespace nimb

#endif
