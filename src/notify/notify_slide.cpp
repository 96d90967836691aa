#include "notify/notify_slide.h"

#include "base/limits.h"
#include "protocol/address_text.h"
#include "widgets/twips.h"

#include <algorithm>

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
    append({notification.text, pictureKey(pictureOf(notification.presence)), {.ip = notification.ip}});
}

void NotifyRows::show(const Notice &notice)
{
    withdraw(notice.place);
    append({notice.line, notice.picture, notice.place});
}

void NotifyRows::withdraw(const NoticePlace &place)
{
    const auto found = std::ranges::find_if(m_rows, [&place](const Row &row) { return row.place == place; });
    if (place.window != NoticeWindow::main && found != m_rows.end())
        remove(static_cast<int>(found - m_rows.begin()));
}

void NotifyRows::append(const Row &row)
{
    if (rowCount() >= limits::notifications)
        remove(0);
    beginInsertRows({}, rowCount(), rowCount());
    m_rows.push_back(row);
    endInsertRows();
}

void NotifyRows::remove(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
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
    const Row &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case TagRole:
        return addressText(row.place.ip);
    case PictureRole:
        return row.picture;
    case IsNoticeRole:
        return row.place.window != NoticeWindow::main;
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

void NotifySlide::show(const Notice &notice)
{
    m_list.show(notice);
    startTimer();
}

void NotifySlide::withdraw(const NoticePlace &place)
{
    const bool wasEmpty = m_list.rowCount() == 0;
    m_list.withdraw(place);
    if (m_view && !wasEmpty && m_list.rowCount() == 0)
        dismiss();
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
