// Message boxes on the screen.
#pragma once

#include "base/prompts.h"

#include <QMessageBox>
#include <QPointer>

#include <vector>

namespace nimb
{

class MessageBoxes : public Prompts
{
public:
    /// The boxes belong to this window from now on.
    void setParentWindow(QWidget *window) { m_window = window; }
    /// Nobody is there to answer: boxes that are open close as if cancelled, later questions are answered with Cancel,
    /// and what is told goes to standard error.
    void setUnattended();
    /// The same when there is no screen any more on which a box could close.
    void setNobodyThere() { m_unattended = true; }

    bool confirm(const QString &text, const QString &title) override;
    bool ask(const QString &text, const QString &title) override;
    std::optional<bool> decide(const QString &text, const QString &title) override;
    std::optional<bool> decideCarefully(const QString &text, const QString &title) override;
    std::optional<bool> decideUnasked(const QString &text, const QString &title) override;
    bool tell(const QString &text, const QString &title) override;
    /// Whether something was told to nobody.
    bool wereMissed() const { return m_missed; }

private:
    enum class Manner {
        usual,
        careful, ///< Return means No
        unasked, ///< the same, and no focus
    };

    /// The box stands over the window in which the user is.
    int show(const QString &picture, QMessageBox::StandardButtons buttons, const QString &text, const QString &title,
             Manner manner = Manner::usual);
    /// The window in which the user is.
    QWidget *over() const;
    static int answerBeside(QMessageBox &box);
    std::optional<bool> decideIn(Manner manner, const QString &text, const QString &title);

    QPointer<QWidget> m_window;
    std::vector<QPointer<QMessageBox>> m_open; ///< the innermost last
    bool m_unattended = false;
    bool m_missed = false;
};

} // namespace nimb
