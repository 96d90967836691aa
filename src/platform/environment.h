// What a program of this house is told from outside.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QProcessEnvironment;

namespace nimb
{

/// What the program is told by its environment.
struct Environment {
    std::optional<QString> address;  ///< NIMBCHAT_ADDRESS: dotted IPv4 to bind to
    std::optional<QString> hostName; ///< NIMBCHAT_HOSTNAME
    QStringList siteFolders; ///< XDG_CONFIG_DIRS, for what holds for everybody on the machine, the first one first
    QString profileFolder;   ///< NIMBCHAT_PROFILE, or NIMB-Chat in the user's configuration folder

    static Environment fromSystem();
    /// The same for a tool that looks at what another program uses: with sudo its user is still the one who sits there.
    static Environment ofCaller();
    /// Of another process on Linux, of which the system tells its variables and the folder in which it runs.
    static Environment ofProcess(const QProcessEnvironment &variables, const QString &folder);
};

} // namespace nimb
