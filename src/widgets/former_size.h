// A window that had to grow for a panel or a strip goes back to its size when that has gone.
#pragma once

#include <QObject>
#include <QSize>

class QWidget;

namespace nimb
{

/// A layout makes its window larger when what it holds needs more, and leaves it so. Unless the user has given it
/// another size meanwhile, it gets back the one it had.
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

    QWidget &m_window;
    QSize m_former; ///< invalid while it has not grown
    QSize m_grown;
    bool m_grows = false;
    bool m_goesBack = false;
};

} // namespace nimb
