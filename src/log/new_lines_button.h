// The way back to the end of a log.
#pragma once

#include <QToolButton>

namespace nimb
{

class RichTextLogEdit;

/// Lies over the lower right corner of its log while lines have come that stand below what is seen, and counts them.
class NewLinesButton : public QToolButton
{
    Q_OBJECT

public:
    /// A child of the log.
    explicit NewLinesButton(RichTextLogEdit &log);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showLines(int lines);
    void place();

    RichTextLogEdit &m_log;
};

} // namespace nimb
