// A window that had to grow for a panel or a strip goes back to its size when that has gone.
#pragma once

#include <QObject>
#include <QPoint>
#include <QSize>

#include <optional>

class QWidget;

namespace nimb
{

/// A layout makes its window larger when what it holds needs more, and leaves it so. Unless the user has given it
/// another size meanwhile, it gets back the one it had. Where it would grow over the edge of the screen it makes room
/// by moving, and unless it is moved meanwhile it gets back its place, too.
class FormerSize : public QObject
{
public:
    /// Owned by the window.
    explicit FormerSize(QWidget &window);

    /// With the next layout it grows as far as what it holds needs, though it may be made smaller than that.
    void growOnce() { m_grows = true; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QSize least() const;
    void grow();
    void goBack();
    void makeRoom(QSize before);

    QWidget &m_window;
    QSize m_former; ///< invalid while it has not grown
    QSize m_grown;
    QPoint m_formerPlace;
    std::optional<QPoint> m_movedTo; ///< where it made room
    bool m_grows = false;
    bool m_goesBack = false;
};

} // namespace nimb
