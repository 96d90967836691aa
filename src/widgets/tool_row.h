// The row of tools below a log.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QToolButton;

namespace nimb
{

/// Shows the captions of its buttons where there is room for all of them, and elsewhere their pictures alone, which say
/// their captions as tool tips then.
class ToolRow : public QWidget
{
    Q_OBJECT

public:
    explicit ToolRow(QWidget *parent);

    /// Adds it at the end, in front of what stands at the other side.
    void add(QWidget *tool);
    void insertBehind(const QWidget *tool, QWidget *added);
    /// To the other side, for what comes and goes without moving the tools.
    void addAtEnd(QWidget *widget);

    /// Finds out how large the row is either way, as fonts, styles and what is shown at its end decide. The height
    /// stays, or what stands above would move.
    void refit();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QList<QToolButton *> buttons() const;
    void setFolded(bool folded);
    void fold();

    QHBoxLayout *m_row;
    int m_wholeWidth = 0, m_foldedWidth = 0, m_height = 0;
    bool m_isFolded = false;
};

} // namespace nimb
