#include "platform/end_requests.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QTimer>

#include <utility>

#include <qt_windows.h>

namespace nimb
{
namespace
{

/// The close box, Alt+F4 and the task bar send a window the command to close itself, which then becomes WM_CLOSE; who
/// wants the program to end, as taskkill does, sends WM_CLOSE alone, and to every window at once.
class CloseMessages : public QObject, public QAbstractNativeEventFilter
{
public:
    explicit CloseMessages(std::function<void()> askedToEnd) : m_askedToEnd(std::move(askedToEnd))
    {
        m_asked.setSingleShot(true);
        m_asked.callOnTimeout(this, [this] { m_askedToEnd(); });
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        constexpr WPARAM commandMask = 0xFFF0; // the lowest four bits are the system's
        const auto *const heard = static_cast<const MSG *>(message);
        if (heard->message == WM_SYSCOMMAND && (heard->wParam & commandMask) == SC_CLOSE)
            m_commanded = heard->hwnd;
        if (heard->message != WM_CLOSE)
            return false;
        if (std::exchange(m_commanded, nullptr) == heard->hwnd)
            return false;
        m_asked.start(0);
        return true;
    }

private:
    std::function<void()> m_askedToEnd;
    QTimer m_asked;
    HWND m_commanded = nullptr; ///< the window that was told to close itself and has not yet
};

} // namespace

std::unique_ptr<QObject> listenForEndRequests(std::function<void()> askedToEnd)
{
    return std::make_unique<CloseMessages>(std::move(askedToEnd));
}

} // namespace nimb
