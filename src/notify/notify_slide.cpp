#include "notify/notify_slide.h"

#include "base/limits.h"
#include "protocol/address_text.h"
#include "widgets/twips.h"

namespace nimb
{
namespace
{

using namespace std::chrono_literals;

// All in twips.
constexpr std::int32_t distanceFromRight = 120, distanceFromBottom = 240;
constexpr std::int32_t parkedBelowScreen = 120;
constexpr std::int32_t step = 20;

} // namespace

void NotifyRows::add(const Notification &notification)
{
    if (rowCount() >= limits::notifications) {
        beginRemoveRows({}, 0, 0);
        m_rows.erase(m_rows.begin());
        endRemoveRows();
    }
    beginInsertRows({}, rowCount(), rowCount());
    m_rows.push_back(notification);
    endInsertRows();
}

void NotifyRows::clear()
{
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

int NotifyRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant NotifyRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Notification &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case TagRole:
        return addressText(row.ip);
    case PictureRole:
        return pictureKey(pictureOf(row.presence));
    default:
        return {};
    }
}

NotifySlide::NotifySlide(const Common &common, Timers &timers)
    : m_common(common), m_timerShow(timers.repeating(10ms, [this] { TimerShow_Timer(); })),
      m_timerNotify(timers.oneShot(5000ms, [this] { TimerNotify_Timer(); }))
{
}

void NotifySlide::Form_Load(NotifyView &view)
{
    m_view = &view;
    park();
}

void NotifySlide::Form_Unload()
{
    m_timerShow->stop();
    m_timerNotify->stop();
    m_view = nullptr;
}

void NotifySlide::add(const Notification &notification)
{
    m_list.add(notification);
}

void NotifySlide::startTimer()
{
    // A timer that is started anew with every event would never fire in a flood of them.
    if (m_view && !m_timerShow->isActive())
        m_timerShow->start();
}

void NotifySlide::TimerShow_Timer()
{
    const NotifyView::Measures now = m_view->measures();
    if (!m_common.options.notifyWindow) {
        m_timerShow->stop();
        m_list.clear();
        // Switched off while it rises or is shown, it must not stay there.
        if (m_top < now.screenHeight)
            dismiss();
        return;
    }
    m_left = now.screenWidth - now.windowWidth - distanceFromRight;
    if (m_top > now.screenHeight - now.windowHeight - distanceFromBottom) {
        m_top -= step;
    } else {
        m_timerShow->stop();
        m_timerNotify->start();
    }
    move();
}

void NotifySlide::TimerNotify_Timer()
{
    // What has come in the last moment is about to start the five seconds anew.
    if (m_timerShow->isActive() && m_common.options.notifyWindow)
        return;
    dismiss();
}

void NotifySlide::closebtn_Click()
{
    dismiss();
}

void NotifySlide::screenChanged()
{
    if (!m_view || m_timerShow->isActive())
        return;
    if (!m_timerNotify->isActive())
        return park();
    const NotifyView::Measures now = m_view->measures();
    m_left = now.screenWidth - now.windowWidth - distanceFromRight;
    m_top = now.screenHeight - now.windowHeight - distanceFromBottom;
    move();
}

void NotifySlide::dismiss()
{
    m_timerShow->stop();
    m_timerNotify->stop();
    m_list.clear();
    park();
}

void NotifySlide::park()
{
    const NotifyView::Measures now = m_view->measures();
    m_left = now.screenWidth - now.windowWidth - distanceFromRight;
    m_top = now.screenHeight + parkedBelowScreen;
    move();
}

void NotifySlide::move()
{
    m_view->SetWindowPos(wholePixels(m_left), wholePixels(m_top));
}

} // namespace nimb
