// A copy of the program for Windows as a real process under Wine.
#pragma once

#include "running_copy.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace nimb::test
{

/// What a program for Windows left behind. Nothing for the status when it did not end.
struct WindowsResult {
    std::optional<int> status;
    std::string printed;
};

/// Runs a program for Windows to its end; the variables are those of this process and `further`, "NAME=value" each.
WindowsResult runUnderWine(const QStringList &command, const QStringList &further = {}, const QByteArray &input = {});
/// The same path as a program for Windows takes it.
QString windowsPath(const QString &file);
/// What tools/windows/build made; a file below its folder.
QString builtForWindows(const QString &file);

/// Stands at 127.0.0.1: Wine binds every other loopback address as all of them.
class WindowsCopy : public RunningCopy
{
public:
    explicit WindowsCopy(const Rows &rows);

    void start(const QStringList &arguments);
    /// As the task manager asks a program to end, and its exit status.
    std::optional<int> end();
    /// A word for nimb-chatctl.exe, and what it answers.
    WindowsResult ask(const QStringList &words, const QByteArray &input = {}) const;
};

} // namespace nimb::test
