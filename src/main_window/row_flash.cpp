#include "main_window/row_flash.h"

#include <QPainter>
#include <QPersistentModelIndex>
#include <QTimer>
#include <QTreeView>

namespace nimb
{
namespace
{

constexpr int frameTime = 40, framesOfFlash = 12, flashes = 3; // milliseconds, and numbers of them
constexpr double strongest = 0.4;

/// Lies over the row, lets the mouse through, and ends itself.
class RowFlash : public QWidget
{
public:
    RowFlash(QTreeView &list, const QModelIndex &row) : QWidget(list.viewport()), m_list(list), m_row(row)
    {
        setObjectName(QStringLiteral("rowFlash"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        m_frames.callOnTimeout(this, [this] { nextFrame(); });
        m_frames.start(frameTime);
        place();
    }

    bool isOf(const QModelIndex &row) const { return m_frames.isActive() && m_row == row; }
    void restart() { m_frame = 0; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const double left = 1 - double(m_frame % framesOfFlash) / framesOfFlash;
        QColor colour = palette().color(QPalette::Highlight);
        colour.setAlphaF(static_cast<float>(strongest * left));
        QPainter(this).fillRect(rect(), colour);
    }

private:
    void nextFrame()
    {
        if (++m_frame >= flashes * framesOfFlash || !m_row.isValid()) {
            m_frames.stop();
            hide();
            return deleteLater();
        }
        place();
        update();
    }

    void place()
    {
        QRect row = m_list.visualRect(m_row);
        row.setLeft(0);
        row.setRight(m_list.viewport()->width() - 1);
        setGeometry(row);
        setVisible(row.height() > 0);
    }

    QTreeView &m_list;
    QPersistentModelIndex m_row;
    QTimer m_frames;
    int m_frame = 0;
};

} // namespace

void flashRow(QTreeView &list, const QModelIndex &row)
{
    for (QObject *const child : list.viewport()->children()) {
        auto *const flash = dynamic_cast<RowFlash *>(child);
        if (flash && flash->isOf(row))
            return flash->restart();
    }
    new RowFlash(list, row);
}

} // namespace nimb
