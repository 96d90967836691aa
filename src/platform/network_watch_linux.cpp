#include "platform/network_watch_linux.h"

#include "platform/network_watch.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <limits>
#include <utility>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <sys/timerfd.h>
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

int openClock()
{
    const int descriptor = ::timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
    itimerspec never = {};
    never.it_value.tv_sec = std::numeric_limits<std::int32_t>::max(); // in 2038, and then again
    never.it_interval.tv_sec = never.it_value.tv_sec;
    constexpr int flags = TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET;
    if (descriptor == noDescriptor || ::timerfd_settime(descriptor, flags, &never, nullptr) == 0)
        return descriptor;
    ::close(descriptor);
    return noDescriptor;
}

std::chrono::nanoseconds timeOf(clockid_t clock)
{
    timespec now = {};
    ::clock_gettime(clock, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

} // namespace

SystemNetworkWatch::SystemNetworkWatch(Timers &timers, Slept slept)
    : m_descriptor(openNetlink()), m_clock(openClock()), m_slept(std::move(slept)), m_sleptBefore(m_slept()),
      m_notifier(notifier(m_descriptor, &SystemNetworkWatch::read)),
      m_clockNotifier(notifier(m_clock, &SystemNetworkWatch::readClock)), m_settled(timers)
{
}

SystemNetworkWatch::~SystemNetworkWatch()
{
    m_notifier.reset();
    m_clockNotifier.reset();
    for (const int descriptor : {m_descriptor, m_clock}) {
        if (descriptor != noDescriptor)
            ::close(descriptor);
    }
}

std::unique_ptr<QSocketNotifier> SystemNetworkWatch::notifier(int descriptor, void (SystemNetworkWatch::*procedure)())
{
    if (descriptor == noDescriptor)
        return nullptr;
    auto made = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(made.get(), &QSocketNotifier::activated, this, procedure);
    return made;
}

/// One of the two clocks that count since the start stands still meanwhile.
std::chrono::nanoseconds SystemNetworkWatch::sleptOfMachine()
{
    return timeOf(CLOCK_BOOTTIME) - timeOf(CLOCK_MONOTONIC);
}

/// The clock makes a leap also when somebody sets it, which is no change of the networks.
void SystemNetworkWatch::readClock()
{
    constexpr std::chrono::seconds shortest{1};
    std::uint64_t ends = 0;
    if (::read(m_clock, &ends, sizeof ends) < 0 && errno != ECANCELED && errno != EAGAIN && errno != EINTR)
        m_clockNotifier->setEnabled(false); // it would keep the event loop busy
    const std::chrono::nanoseconds slept = m_slept();
    if (slept - std::exchange(m_sleptBefore, slept) >= shortest)
        m_settled.note(NetworkChange::wokeUp);
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
    if (heard)
        m_settled.note(NetworkChange::networks);
}

std::unique_ptr<NetworkWatch> watchNetworks(Timers &timers)
{
    return std::make_unique<SystemNetworkWatch>(timers);
}

} // namespace nimb
