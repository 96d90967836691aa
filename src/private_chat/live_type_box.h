// Where the text is seen that the peer is just typing.
#pragma once

#include <QPlainTextEdit>

namespace nimb
{

/// As much of its lower part is seen as its text needs; the rest of it is neither painted nor in the way of the mouse.
class LiveTypeBox : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LiveTypeBox(QWidget *parent);

    /// Pixels of its height that are seen, in the width that it has.
    int fit();

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace nimb
