// The commands of nimb-chatctl that the running copy carries out.
#pragma once

#include "platform/environment.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace nimb
{

/// What such a command line asks for, as RemoteCommands takes it.
struct ConsoleCommand {
    QJsonObject request;
    bool asJson = false;
    bool needsInput = false; ///< its text is to be read from the standard input first

    /// Nothing for words that are no such command.
    static std::optional<ConsoleCommand> of(const QStringList &words);
};

/// What is printed, and the exit status: 0 done, 1 refused, 2 when no copy runs.
struct ConsoleAnswer {
    int status = 2;
    QByteArray output;
    QByteArray complaint; ///< for the standard error
};

ConsoleAnswer askRunningCopy(const Environment &environment, const ConsoleCommand &command);

} // namespace nimb
