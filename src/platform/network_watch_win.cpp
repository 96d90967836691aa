#include "platform/network_watch.h"

#include "platform/settled_change.h"
#include "platform/socket_start.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWinEventNotifier>

#include <winsock2.h>

// They build on what stands above.
#include <iphlpapi.h>

namespace nimb
{
namespace
{

/// Asks once for a change of the system's table of addresses or ways; whoever heard of one asks anew.
class TableWatch
{
public:
    using Ask = DWORD (*)(PHANDLE, LPOVERLAPPED);

    TableWatch(Ask ask, std::function<void()> changed)
        : m_ask(ask), m_event(WSACreateEvent()), m_notifier(m_event), m_changed(std::move(changed))
    {
        QObject::connect(&m_notifier, &QWinEventNotifier::activated, &m_notifier, [this] {
            WSAResetEvent(m_event);
            listen();
            m_changed();
        });
        m_notifier.setEnabled(true);
        listen();
    }
    ~TableWatch()
    {
        m_notifier.setEnabled(false);
        CancelIPChangeNotify(&m_question);
        WSACloseEvent(m_event);
    }
    TableWatch(const TableWatch &) = delete;
    TableWatch &operator=(const TableWatch &) = delete;

private:
    void listen()
    {
        m_question = {};
        m_question.hEvent = m_event;
        HANDLE unused = nullptr;
        m_ask(&unused, &m_question);
    }

    Ask m_ask;
    WSAEVENT m_event;
    OVERLAPPED m_question = {};
    QWinEventNotifier m_notifier;
    std::function<void()> m_changed;
};

class WindowsNetworkWatch : public NetworkWatch, public QAbstractNativeEventFilter
{
public:
    explicit WindowsNetworkWatch(Timers &timers)
        : m_settled(timers), m_addresses(&NotifyAddrChange, [this] { m_settled.note(NetworkChange::networks); }),
          m_ways(&NotifyRouteChange, [this] { m_settled.note(NetworkChange::networks); })
    {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    void listen(std::function<void(NetworkChange)> changed) override { m_settled.listen(std::move(changed)); }

    /// Each window is told that the machine has slept; the first one is enough.
    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        const auto *const heard = static_cast<const MSG *>(message);
        if (heard->message == WM_POWERBROADCAST && heard->wParam == PBT_APMRESUMEAUTOMATIC)
            m_settled.note(NetworkChange::wokeUp);
        return false;
    }

private:
    SettledChange m_settled;
    TableWatch m_addresses, m_ways;
};

} // namespace

std::unique_ptr<NetworkWatch> watchNetworks(Timers &timers)
{
    startSockets();
    return std::make_unique<WindowsNetworkWatch>(timers);
}

} // namespace nimb
