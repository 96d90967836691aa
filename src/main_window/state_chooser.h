// The own-state chooser: a combo box in which nothing is chosen by accident.
#pragma once

#include <QComboBox>

namespace nimb
{

/// Every choice is told to all contacts, so neither the wheel nor the arrow keys step through the closed list: the
/// wheel does nothing, the arrows open it.
class StateChooser : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace nimb
