// Message boxes on the screen.
#pragma once

#include "core/prompts.h"

#include <QPointer>
#include <QWidget>

namespace nimb
{

class MessageBoxes : public Prompts
{
public:
    /// The boxes belong to this window from now on.
    void setParentWindow(QWidget *window) { m_window = window; }
    /// Nobody is there to answer: questions are answered with Cancel, and what is told goes to standard error.
    void setUnattended() { m_unattended = true; }

    bool confirm(const QString &text, const QString &title) override;
    void tell(const QString &text, const QString &title) override;

private:
    QPointer<QWidget> m_window;
    bool m_unattended = false;
};

} // namespace nimb
