// Pop-up texts through the system's own program for them.
#pragma once

#include "base/net_send.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

namespace nimb
{

enum class MessageSystem {
    netSend,  ///< "net send", of a Windows with the message service
    msg,      ///< msg.exe, of a later Windows but for its smallest editions
    smbClient ///< everywhere else: the message service of smbclient
};

MessageSystem ownMessageSystem();

/// A program with its arguments, each of which reaches it as one whatever it holds.
struct MessageCommand {
    QString program; ///< a name to be found on the search path
    QStringList arguments;
    QByteArray input; ///< its standard input
};

MessageCommand messageCommand(MessageSystem system, const QString &computer, const QString &message);

/// Starts the program without a shell and without a window; it may outlive us. Where it is missing, the sentence says
/// what to install.
class NetSendRunner : public NetSend
{
    Q_DECLARE_TR_FUNCTIONS(NetSendRunner)

public:
    explicit NetSendRunner(MessageSystem system = ownMessageSystem()) : m_system(system) { }

    [[nodiscard]] std::optional<QString> send(const QString &computer, const QString &message) override;

private:
    QString missing() const;

    MessageSystem m_system;
};

} // namespace nimb
