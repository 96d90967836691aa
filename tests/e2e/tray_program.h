// A program that shows the icons of others in a notification area of the test screen.
#pragma once

#include "desktop.h"

#include <QProcess>

namespace nimb::test
{

class TrayProgram
{
public:
    /// Returns when it takes icons; a test failure when it does not start.
    TrayProgram();
    ~TrayProgram();
    Q_DISABLE_COPY_MOVE(TrayProgram)

    /// Waits for the icon of the program; a test failure and a null window when it does not come.
    Window icon() const;
    /// The same without waiting, and without a failure.
    Window iconNow() const;

    /// Ends at once and without a word. Returns when the screen has no notification area any more.
    void kill();

private:
    QProcess m_process;
};

} // namespace nimb::test
