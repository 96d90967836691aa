// Whether anybody listens to a screen reader.
#pragma once

#include <QAccessible>

namespace nimb
{

class ScreenReaders : private QAccessible::ActivationObserver
{
public:
    ScreenReaders() { QAccessible::installActivationObserver(this); }
    ~ScreenReaders() override { QAccessible::removeActivationObserver(this); }
    Q_DISABLE_COPY_MOVE(ScreenReaders)

    bool areThere() const { return m_areThere; }

private:
    void accessibilityActiveChanged(bool active) override { m_areThere = active; }

    bool m_areThere = QAccessible::isActive();
};

} // namespace nimb
