// The notification pop-up: a list of what contacts did and sent.
#pragma once

#include "notify/notify_slide.h"

#include <QFrame>

class QPushButton;
class QScreen;
class QTreeView;

namespace nimb
{

/// Never has the focus, and is no business of the window manager, which would keep it on the screen.
class frmNotify : public QFrame, public NotifyView
{
    Q_OBJECT

public:
    /// The engine half outlives the window and places it; until then it is hidden.
    explicit frmNotify(NotifySlide &slide);
    ~frmNotify() override;

    Measures measures() const override;
    void SetWindowPos(int left, int top) override;

Q_SIGNALS:
    /// A row was clicked, which leads there.
    void opened(const nimb::NoticePlace &place);

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildControls();
    void connectControls();
    void follow(const QScreen *screen);

    NotifySlide &m_slide;
    QTreeView *ListViewNotify = nullptr;
    QPushButton *closebtn = nullptr;
};

} // namespace nimb
