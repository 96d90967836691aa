// The notification window: a list of what contacts did, parked below the screen.
#pragma once

#include "core/notifications.h"

#include <QWidget>

class QPushButton;
class QStandardItemModel;
class QTreeView;

namespace nimb
{

class frmNotify : public QWidget, public Notifications
{
    Q_OBJECT

public:
    frmNotify();

    void add(const QString &text, Picture picture) override;
    /// The window stays parked.
    void startTimer() override { }

private:
    void buildControls();
    void park();

    QTreeView *ListViewNotify = nullptr;
    QStandardItemModel *m_rows = nullptr;
};

} // namespace nimb
