#include "platform/single_instance.h"

#include "platform/instance_lock.h"
#include "platform/local_user.h"
#include "platform/profile_folder.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <QStringDecoder>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace nimb
{
namespace
{

using namespace std::chrono_literals;

constexpr auto patience = 2s, patienceForAnAnswer = 60s;

// A message is the caption in UTF-8 and an end mark, which no command line can hold; the answer is one byte. A command
// begins with a mark with which no caption begins; its answer ends with the end mark.
constexpr char endMark = '\0';
constexpr char acknowledgement = '!';
constexpr char commandMark = '\1';

/// The path of a socket has room for about a hundred bytes, so the folder enters by its hash.
QString socketPathIn(const QString &sockets, const QString &folder)
{
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    const QByteArray name = QFile::encodeName(canonical.isEmpty() ? QDir(folder).absolutePath() : canonical);
    const QByteArray hash = QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex().left(16);
    return QStringLiteral("%1nimb-chat-%2-%3").arg(sockets, userNumber(), QString::fromLatin1(hash));
}

QString socketPathFor(const QString &folder)
{
    return socketPathIn(placesOfSockets().constFirst(), folder);
}

int millisecondsLeft(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

/// Cut between two characters if it is too long.
QByteArray messageFor(const QString &caption)
{
    QByteArray text = caption.toUtf8();
    text.replace(endMark, ' ');
    const auto startsCharacter = [&text](qsizetype i) { return (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80; };
    qsizetype end = std::min(text.size(), SingleInstance::longestMessage - 1);
    while (end > 0 && end < text.size() && !startsCharacter(end))
        --end;
    return text.left(end) + endMark;
}

/// A copy listens there. Whoever connects and says nothing is dropped by it.
bool isAnswered(const QString &socketPath)
{
    if (!belongsToUser(socketPath))
        return false;
    QLocalSocket socket;
    socket.connectToServer(socketPath);
    return socket.waitForConnected(millisecondsLeft(QDeadlineTimer(patience)));
}

} // namespace

SingleInstance::SingleInstance(const QString &profileFolder, QObject *parent)
    : QObject(parent), m_folder(QDir(profileFolder).absolutePath())
{
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::acquire()
{
    if (m_server)
        return true;
    static_cast<void>(makePrivateFolder(m_folder)); // a failure shows in the next line
    m_socketPath = socketPathFor(m_folder);         // canonical only once the folder is there
    if (!m_lock)
        m_lock = std::make_unique<InstanceLock>(m_folder + QStringLiteral("/lock"));
    const InstanceLock::Outcome outcome = m_lock->tryToHold();
    takeFileFromOthers(m_folder + QStringLiteral("/lock"));
    // No lock can be had in a folder that is read only, and who removes the folder of a running copy, or the lock in
    // it, leaves a new one to be held; then the socket decides.
    if (outcome == InstanceLock::Outcome::heldElsewhere || isAnswered(m_socketPath)) {
        m_lock.reset();
        return false;
    }
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, &SingleInstance::greet);
    QLocalServer::removeServer(m_socketPath); // left behind by a copy that was killed
    m_server->listen(m_socketPath);
    return true;
}

void SingleInstance::handOver(const QString &expectedCaption)
{
    const QDeadlineTimer deadline(patience);
    m_socketPath = socketPathFor(m_folder);
    if (!belongsToUser(m_socketPath))
        return;
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    if (!socket.waitForConnected(millisecondsLeft(deadline)))
        return;
    socket.write(messageFor(expectedCaption));
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(millisecondsLeft(deadline)))
            return;
    }
    socket.waitForReadyRead(millisecondsLeft(deadline)); // the acknowledgement, or the end of the connection
}

void SingleInstance::greet()
{
    while (QLocalSocket *client = m_server->nextPendingConnection()) {
        client->setReadBufferSize(longestCommand);
        connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        connect(client, &QLocalSocket::readyRead, this, [this, client] { readFrom(*client); });
        QTimer::singleShot(patience, client, [client] {
            if (client->peek(longestCommand).contains(endMark))
                return; // all is said, and it waits for its answer
            client->abort();
            client->deleteLater();
        });
        readFrom(*client); // what came before anybody listened
    }
}

void SingleInstance::readFrom(QLocalSocket &client)
{
    const QByteArray message = client.peek(longestCommand);
    const bool isCommand = message.startsWith(commandMark);
    const qsizetype end = message.indexOf(endMark);
    if (end < 0) {
        if (message.size() >= (isCommand ? longestCommand : longestMessage))
            client.abort();
        return;
    }
    if (isCommand)
        return answer(client, message.mid(1, end - 1));
    client.disconnect(this);                                                       // one message a client
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless); // nothing follows
    const QString caption = decoder(QByteArrayView(message).first(end));
    if (decoder.hasError()) {
        client.abort();
        return;
    }
    client.write(&acknowledgement, 1);
    client.disconnectFromServer();
    Q_EMIT secondStart(caption);
}

void SingleInstance::answer(QLocalSocket &client, const QByteArray &command)
{
    client.disconnect(this); // one a client
    if (!m_handler)
        return client.abort();
    m_handler(command, [asker = QPointer(&client)](const QByteArray &answer) {
        if (!asker)
            return;
        asker->write(answer + endMark);
        asker->disconnectFromServer();
    });
}

std::optional<QByteArray> SingleInstance::ask(const QString &profileFolder, const QByteArray &command)
{
    const QDeadlineTimer deadline(patienceForAnAnswer);
    QLocalSocket socket;
    // Whoever asks from a service or another session may have been told of another folder than the copy was.
    for (const QString &sockets : placesOfSockets()) {
        const QString path = socketPathIn(sockets, QDir(profileFolder).absolutePath());
        if (!belongsToUser(path))
            continue;
        socket.connectToServer(path);
        if (socket.waitForConnected(millisecondsLeft(deadline)))
            break;
    }
    if (socket.state() != QLocalSocket::ConnectedState)
        return std::nullopt;
    socket.write(commandMark + command + endMark);
    QByteArray answer;
    while (!answer.endsWith(endMark)) {
        if (!socket.waitForReadyRead(millisecondsLeft(deadline)))
            return QByteArray();
        answer += socket.readAll();
    }
    return answer.chopped(1);
}

} // namespace nimb
