// The edge of a list or a log that has no frame of its own.
#pragma once

#include <QWidget>

class QAbstractScrollArea;

namespace nimb
{

/// Lies above the area, a pixel wide, while the area has the focus by the keyboard, and always where the desktop wants
/// high contrast. Its owner is the area.
class FocusEdge : public QWidget
{
public:
    explicit FocusEdge(QAbstractScrollArea &area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Null once its destruction has begun, in which it still loses the focus.
    QAbstractScrollArea *area() const;
    void refresh();

    bool m_byKeys = false;
};

} // namespace nimb
