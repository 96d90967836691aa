// The notification pop-up's rules: what it lists, and how it slides in, stays and goes.
#pragma once

#include "base/Common.h"
#include "base/notifications.h"
#include "base/timers.h"

#include <QAbstractListModel>

#include <cstdint>
#include <vector>

namespace nimb
{

/// What happened, the oldest first. The newest limits::notifications rows are kept, and of the notices of one place the
/// newest.
class NotifyRows : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The contact's address, and the name of the picture. IsNoticeRole: somebody has sent something.
    enum Role { TagRole = Qt::UserRole + 1, PictureRole, IsNoticeRole };

    using QAbstractListModel::QAbstractListModel;

    void add(const Notification &notification);
    void show(const Notice &notice);
    void withdraw(const NoticePlace &place);
    void clear();
    /// Where a click on the row leads.
    const NoticePlace &placeOf(int row) const { return m_rows.at(static_cast<std::size_t>(row)).place; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Row {
        QString text;
        QString picture;
        NoticePlace place;
    };

    void append(const Row &row);
    void remove(int row);

    std::vector<Row> m_rows;
};

class NotifyView
{
public:
    /// In twips.
    struct Measures {
        std::int32_t screenWidth, screenHeight, windowWidth, windowHeight;
    };

    virtual ~NotifyView() = default;
    virtual Measures measures() const = 0;
    /// Puts the upper left corner at this place of the screen, in whole pixels, in front of every other window. The
    /// keyboard stays where it is.
    virtual void SetWindowPos(int left, int top) = 0;
};

/// The engine half of frmNotify. Parked below the screen, rising, shown, parked again.
class NotifySlide : public Notifications
{
public:
    NotifySlide(const Common &common, Timers &timers);

    /// Parks the window, which must stay until Form_Unload().
    void Form_Load(NotifyView &view);
    void Form_Unload();
    NotifyRows &list() { return m_list; }

    void add(const Notification &notification) override;
    /// Starts TimerShow. A window that is shown already stays for another five seconds.
    void startTimer() override;
    void show(const Notice &notice) override;
    /// A window with nothing left in it goes.
    void withdraw(const NoticePlace &place) override;
    void closebtn_Click();
    /// The screen has got another size: a parked window must not come into view, a shown one not leave it.
    void screenChanged();

private:
    void TimerShow_Timer();
    void TimerNotify_Timer();
    void dismiss();
    void park();
    void move();

    const Common &m_common;
    NotifyView *m_view = nullptr;
    NotifyRows m_list;
    std::unique_ptr<Timer> m_timerShow, m_timerNotify;
    std::int32_t m_left = 0, m_top = 0; ///< twips
};

} // namespace nimb
