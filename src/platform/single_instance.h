// One running copy for each profile folder and user.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QLocalServer;
class QLocalSocket;

namespace nimb
{

class InstanceLock;

/// The first copy holds a lock that the system takes back when the process ends, however it ends. It listens for later
/// starts, which say which window they look for and end.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype longestMessage = 4096;  ///< bytes
    static constexpr qsizetype longestCommand = 65536; ///< bytes, with the marks at both ends
    static constexpr qsizetype marksOfACommand = 2;    ///< bytes

    explicit SingleInstance(const QString &profileFolder, QObject *parent = nullptr);
    ~SingleInstance() override;

    /// True when this is the first copy; it listens from then on. Where no lock can be had at all (a folder that
    /// cannot be made or written to) every copy counts as the first: the program starts rather than not.
    [[nodiscard]] bool acquire();

    /// Tells the first copy that somebody started the program again. Returns after its acknowledgement, and after two
    /// seconds at the latest when there is none. A caption of more than longestMessage bytes arrives cut.
    void handOver(const QString &expectedCaption);

    using CommandHandler
        = std::function<void(const QByteArray &command, std::function<void(const QByteArray &)> reply)>;
    /// In the first copy: what answers the commands of nimb-chatctl. Without it they are not answered.
    void setCommandHandler(CommandHandler handler) { m_handler = std::move(handler); }

    /// The answer of the first copy of that profile to a command that is not too long; nothing when none runs, empty
    /// when it gives none within a minute.
    static std::optional<QByteArray> ask(const QString &profileFolder, const QByteArray &command);

    /// Full path of the socket on which the first copy listens.
    QString socketPath() const { return m_socketPath; }

Q_SIGNALS:
    /// In the first copy, for each later start, with the caption of the window to bring forward.
    void secondStart(const QString &caption);

private:
    void greet();
    void readFrom(QLocalSocket &client);
    void answer(QLocalSocket &client, const QByteArray &command);

    QString m_folder;
    QString m_socketPath;
    std::unique_ptr<InstanceLock> m_lock;
    CommandHandler m_handler;
    std::unique_ptr<QLocalServer> m_server; // closed before the lock is given back
};

} // namespace nimb
