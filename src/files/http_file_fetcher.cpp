#include "files/http_file_fetcher.h"

#include "base/event_loop_calls.h"
#include "base/limits.h"
#include "base/work_thread.h"
#include "files/file_name.h"
#include "files/http_head.h"
#include "platform/origin_mark.h"
#include "platform/profile_folder.h"
#include "protocol/address_text.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <system_error>
#include <utility>
#include <vector>

namespace nimb
{
namespace
{

using What = FetchedBytes::What;
using namespace std::chrono_literals;

constexpr auto lookForStop = 100ms;
constexpr auto connecting = 10s;
constexpr auto rateOver = 1000ms;
/// That a sum is asked for which the sender has not worked out yet.
constexpr std::chrono::seconds longestBetweenAsking = 30s;
constexpr int namesTried = 1000;

/// Where it lies until all has come.
QString partPath(const WantedFile &file)
{
    return QDir(file.folder).filePath(unfinishedFileName(file.name, file.host, file.path));
}

/// One connection. Every wait ends soon after the fetch is stopped.
class FileConnection
{
public:
    FileConnection(const WantedFile &file, const std::atomic<bool> &isStopped) : m_file(file), m_isStopped(isStopped)
    {
        m_socket.setProxy(QNetworkProxy::NoProxy);
        m_socket.setReadBufferSize(2 * static_cast<qint64>(limits::filePiece));
    }

    bool open()
    {
        if (!m_file.from.isUnspecified())
            m_socket.bind(QHostAddress(m_file.from.number()));
        QEventLoop wait;
        QTimer look;
        const QDeadlineTimer deadline(connecting);
        QObject::connect(&m_socket, &QTcpSocket::stateChanged, &wait, [&](QAbstractSocket::SocketState state) {
            if (state == QAbstractSocket::ConnectedState || state == QAbstractSocket::UnconnectedState)
                wait.quit();
        });
        QObject::connect(&look, &QTimer::timeout, &wait, [&] {
            if (m_isStopped || deadline.hasExpired())
                wait.quit();
        });
        look.start(lookForStop);
        m_socket.connectToHost(QHostAddress(m_file.host.number()), m_file.port);
        if (m_socket.state() != QAbstractSocket::ConnectedState
            && m_socket.state() != QAbstractSocket::UnconnectedState)
            wait.exec();
        return m_socket.state() == QAbstractSocket::ConnectedState;
    }

    /// The machine is there, and nothing is offered on it: a firewall keeps silent, or says that it is one.
    bool wasRefused() const { return m_socket.error() == QAbstractSocket::ConnectionRefusedError; }

    /// Asks, and reads the head of the answer; nothing where none came that can be used.
    std::optional<HttpHead> ask(const QByteArray &method, const QByteArray &headers)
    {
        m_socket.write(method + ' ' + m_file.path + " HTTP/1.1\r\nHost: " + addressText(m_file.host).toLatin1() + ':'
                       + QByteArray::number(m_file.port) + "\r\nConnection: close\r\nAccept-Encoding: identity\r\n"
                       + headers + "\r\n");
        QByteArray head;
        while (!head.endsWith("\r\n\r\n")) {
            if (head.size() > limits::fileRequestBytes || !waitForBytes())
                return std::nullopt;
            while (m_socket.bytesAvailable() > 0 && !head.endsWith("\r\n\r\n")
                   && head.size() <= limits::fileRequestBytes)
                head += m_socket.read(1);
        }
        head.chop(4);
        return readHttpHead({head.constData(), static_cast<std::size_t>(head.size())});
    }

    /// Some bytes of what follows; none: the connection has ended, stands still, or is no longer wanted.
    QByteArray read(quint64 most)
    {
        return waitForBytes() ? m_socket.read(static_cast<qint64>(std::min<quint64>(most, limits::filePiece)))
                              : QByteArray();
    }

private:
    bool waitForBytes()
    {
        const QDeadlineTimer deadline(2 * limits::fileTransferStalls);
        while (m_socket.bytesAvailable() == 0 && !m_isStopped && !deadline.hasExpired()) {
            const bool hasCome = m_socket.waitForReadyRead(static_cast<int>(lookForStop.count()));
            if (!hasCome && m_socket.state() != QAbstractSocket::ConnectedState)
                break;
        }
        return m_socket.bytesAvailable() > 0 && !m_isStopped;
    }

    const WantedFile &m_file;
    const std::atomic<bool> &m_isStopped;
    QTcpSocket m_socket;
};

} // namespace

/// What one thread does.
class HttpFileFetcher::Fetch
{
    Q_DECLARE_TR_FUNCTIONS(HttpFileFetcher)

public:
    using Tell = std::function<void(const FetchedBytes &)>;

    Fetch(WantedFile file, Tell tell) : m_file(std::move(file)), m_tell(std::move(tell)) { }

    void stop() { m_isStopped = true; }

    void run()
    {
        m_state.number = m_file.number;
        const std::optional<QString> trouble = m_file.most > 0 || QDir(m_file.folder).exists()
            ? fetchAll()
            : tr("The folder %1 is not there any more.").arg(QDir::toNativeSeparators(m_file.folder));
        if (m_part.isOpen())
            m_state.place = static_cast<quint64>(m_part.size());
        const bool isEmpty = m_part.isOpen() && m_part.size() == 0;
        m_part.close();
        if (isEmpty)
            m_part.remove();
        m_state.perSecond = 0;
        m_state.what = m_state.what == What::done ? What::done : m_isStopped ? What::stopped : What::failed;
        m_state.sentence = m_state.what == What::failed ? trouble.value_or(QString()) : QString();
        m_tell(m_state);
    }

private:
    using Trouble = std::optional<QString>;

    Trouble fetchAll()
    {
        m_part.setFileName(partPath(m_file));
        if (!m_part.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
            return tr("%1 cannot be written: %2.")
                .arg(QDir::toNativeSeparators(m_part.fileName()), m_part.errorString());
        if (m_part.size() > 0) {
            if (Trouble trouble = askBeforeSumming())
                return trouble;
            if (!sumWhatIsThere())
                return std::nullopt;
        }
        while (!m_isWhole) {
            const quint64 before = m_state.place;
            if (Trouble trouble = attempt())
                return trouble;
            if (m_isStopped)
                return std::nullopt;
            // As long as each try brings something there is hope.
            if (!m_isWhole && !m_waited && m_state.place == before)
                return tr("The connection to the sender broke off.");
        }
        return check();
    }

    /// Reading much takes minutes: whoever has gone by then has gone before.
    Trouble askBeforeSumming()
    {
        FileConnection connection(m_file, m_isStopped);
        if (!connection.open())
            return unreachedTrouble(connection);
        const std::optional<HttpHead> head = connection.ask("HEAD", {});
        if (!head)
            return tr("The sender broke off, or gave an answer that cannot be used.");
        if (head->status == 404)
            return goneTrouble();
        if (head->status == 200) {
            m_state.size = head->length.value_or(0);
            m_tag = head->tag;
        }
        return std::nullopt;
    }

    Trouble unreachedTrouble(const FileConnection &connection)
    {
        return connection.wasRefused() ? goneTrouble() : tr("The sender cannot be reached.");
    }

    Trouble goneTrouble()
    {
        m_state.isGone = true;
        return tr("The sender offers it no longer.");
    }

    /// Of an earlier try; false when it was stopped meanwhile.
    bool sumWhatIsThere()
    {
        m_state.what = What::summing;
        m_state.place = 0;
        m_tell(m_state);
        while (!m_isStopped) {
            const QByteArray piece = m_part.read(static_cast<qint64>(limits::filePiece));
            if (piece.isEmpty()) {
                m_state.perSecond = 0; // of the disk
                m_sinceRated.invalidate();
                return true;
            }
            m_sum.addData(piece);
            m_state.place += static_cast<quint64>(piece.size());
            tellProgress();
        }
        return false;
    }

    void beginAnew()
    {
        m_part.resize(0);
        m_part.seek(0);
        m_sum.reset();
        m_state.place = 0;
    }

    /// One connection. Nothing: it brought what it could.
    Trouble attempt()
    {
        m_waited = false;
        FileConnection connection(m_file, m_isStopped);
        if (!connection.open())
            return unreachedTrouble(connection);
        QByteArray headers;
        if (m_state.place > 0)
            headers = "Range: bytes=" + QByteArray::number(m_state.place) + "-\r\n"
                + (m_tag.isEmpty() ? QByteArray() : "If-Range: " + m_tag + "\r\n");
        const std::optional<HttpHead> head = connection.ask("GET", headers);
        if (m_isStopped)
            return std::nullopt;
        if (!head)
            return tr("The sender broke off, or gave an answer that cannot be used.");
        return takeAnswer(connection, *head);
    }

    Trouble takeAnswer(FileConnection &connection, const HttpHead &head)
    {
        m_head = head;
        switch (head.status) {
        case 200:
            beginAnew();
            m_state.size = head.length.value_or(0);
            break;
        case 206:
            if (head.first != m_state.place)
                return tr("The sender gave an answer that cannot be used.");
            m_state.size = *head.total;
            break;
        case 416:
            if (m_state.place == 0)
                return tr("The sender gave an answer that cannot be used.");
            if (head.total == m_state.place) {
                m_isWhole = true;
                m_head.isSumPending = true; // this answer says nothing of it
            } else {
                beginAnew();
            }
            m_waited = true;
            return std::nullopt;
        case 503:
            return waitForTurn();
        case 404:
            return goneTrouble();
        default:
            return tr("The sender gave an answer that cannot be used.");
        }
        m_tag = head.tag;
        if (!head.length)
            return tr("The sender gave an answer that cannot be used.");
        if (m_file.most > 0 && m_state.size > m_file.most)
            return tr("It is too large to be shown.");
        return takeBytes(connection);
    }

    Trouble waitForTurn()
    {
        m_waited = true;
        m_state.what = What::waiting;
        m_tell(m_state);
        pause(std::chrono::seconds(std::clamp<quint64>(m_head.retryAfter.value_or(2), 1, 30)));
        return std::nullopt;
    }

    void pause(std::chrono::milliseconds time)
    {
        const QDeadlineTimer deadline(time);
        while (!m_isStopped && !deadline.hasExpired())
            QThread::msleep(static_cast<unsigned long>(lookForStop.count()));
    }

    Trouble takeBytes(FileConnection &connection)
    {
        // Asked of the folder itself: Qt looks for its disk in a list of mounts, in which a container's may be missing.
        std::error_code unknown;
        const std::filesystem::space_info room
            = std::filesystem::space(QFileInfo(m_file.folder).filesystemAbsoluteFilePath(), unknown);
        if (!unknown && room.available < m_state.size - m_state.place)
            return whatIsKept(tr("There is too little room in %1.").arg(QDir::toNativeSeparators(m_file.folder)));
        m_state.what = What::running;
        tellProgress();
        while (m_state.place < m_state.size) {
            const QByteArray bytes = connection.read(m_state.size - m_state.place);
            if (bytes.isEmpty())
                return std::nullopt;
            if (Trouble trouble = write(bytes))
                return trouble;
            tellProgress();
        }
        m_isWhole = true;
        return std::nullopt;
    }

    /// A disk that gets full takes some of it first, and says only then what is wrong.
    Trouble write(QByteArrayView bytes)
    {
        while (!bytes.isEmpty()) {
            forgetTrouble();
            const qint64 written = m_part.write(bytes.data(), bytes.size());
            if (written <= 0)
                return writeTrouble(wasDiskFull());
            m_sum.addData(bytes.first(written));
            m_state.place += static_cast<quint64>(written);
            bytes = bytes.sliced(written);
        }
        return std::nullopt;
    }

    Trouble writeTrouble(bool wasFull)
    {
        const bool isFull = m_part.error() == QFileDevice::ResourceError || wasFull;
        return whatIsKept(isFull ? tr("There is no room any more in %1.").arg(QDir::toNativeSeparators(m_file.folder))
                                 : tr("%1 cannot be written on: %2.")
                                       .arg(QDir::toNativeSeparators(m_part.fileName()), m_part.errorString()));
    }

    QString whatIsKept(const QString &sentence) const
    {
        return m_state.place > 0 ? tr("%1 What has come is kept.").arg(sentence) : sentence;
    }

    void tellProgress()
    {
        if (m_sinceTold.isValid() && m_sinceTold.elapsed() < limits::fileProgressTold.count())
            return;
        m_sinceTold.start();
        if (!m_sinceRated.isValid()) {
            m_sinceRated.start();
            m_rated = m_state.place;
        } else if (m_sinceRated.elapsed() >= rateOver.count()) {
            const auto elapsed = static_cast<quint64>(m_sinceRated.restart());
            m_state.perSecond = (m_state.place - std::min(m_rated, m_state.place)) * 1000 / elapsed;
            m_rated = m_state.place;
        }
        m_tell(m_state);
    }

    // --- all has come

    Trouble check()
    {
        m_state.what = What::checking;
        m_tell(m_state);
        const QByteArray sum = m_sum.result();
        const bool isOnlyShown = m_file.most > 0; // and thrown away: nobody waits for its sum
        std::chrono::seconds between{1};
        while (m_head.sum.isEmpty() && m_head.isSumPending && !m_isStopped && !isOnlyShown) {
            askForSum();
            if (m_head.sum.isEmpty() && m_head.isSumPending)
                pause(std::exchange(between, std::min(between * 2, longestBetweenAsking)));
        }
        if (m_isStopped)
            return std::nullopt;
        m_state.isChecked = !m_head.sum.isEmpty();
        if (m_state.isChecked && m_head.sum != sum) {
            m_part.remove();
            m_state.place = 0;
            return tr("What has come is not what was sent. It has been removed.");
        }
        return putInPlace();
    }

    /// The sender may have worked it out by now; one that has gone never will.
    void askForSum()
    {
        FileConnection connection(m_file, m_isStopped);
        const std::optional<HttpHead> head = connection.open() ? connection.ask("HEAD", {}) : std::nullopt;
        m_head = head && head->status == 200 ? *head : HttpHead{};
    }

    Trouble putInPlace()
    {
        m_part.close();
        for (int number = 1; number <= namesTried; ++number) {
            const QString path = QDir(m_file.folder).filePath(numberedFileName(m_file.name, number));
            if (QFileInfo::exists(path) || !m_part.rename(path))
                continue; // somebody else has taken it just now
            markOrigin(path,
                       QStringLiteral("http://%1:%2").arg(addressText(m_file.host)).arg(m_file.port)
                           + QString::fromLatin1(m_file.path));
            m_state.path = path;
            m_state.what = What::done;
            return std::nullopt;
        }
        return tr("%1 cannot be renamed: %2.").arg(QDir::toNativeSeparators(m_part.fileName()), m_part.errorString());
    }

    const WantedFile m_file;
    const Tell m_tell;
    std::atomic<bool> m_isStopped = false;
    FetchedBytes m_state;
    QFile m_part;
    QCryptographicHash m_sum{QCryptographicHash::Sha256};
    HttpHead m_head; ///< of the last answer
    QByteArray m_tag;
    bool m_isWhole = false;
    bool m_waited = false; ///< the last try brought nothing, and was not meant to
    QElapsedTimer m_sinceTold, m_sinceRated;
    quint64 m_rated = 0;
};

HttpFileFetcher::HttpFileFetcher() : m_calls(std::make_unique<EventLoopCalls>()) { }

/// Threads end before what they call.
HttpFileFetcher::~HttpFileFetcher()
{
    for (const auto &[number, running] : m_running)
        running.fetch->stop();
    for (const auto &[number, running] : m_running)
        running.thread->wait();
}

void HttpFileFetcher::fetch(const WantedFile &file)
{
    if (m_running.contains(file.number))
        return;
    const auto tellHere = [this, calls = m_calls.get()](const FetchedBytes &fetched) {
        calls->put([this, fetched] { tell(fetched); });
    };
    Running &running = m_running[file.number];
    running.fetch = std::make_shared<Fetch>(file, tellHere);
    running.thread.reset(QThread::create([fetch = running.fetch] { fetch->run(); }));
    running.thread->start();
}

void HttpFileFetcher::stop(int number)
{
    if (const auto running = m_running.find(number); running != m_running.end())
        running->second.fetch->stop();
}

/// For folders of other machines, which may take their time.
WorkThread &HttpFileFetcher::besides()
{
    if (!m_besides)
        m_besides = std::make_unique<WorkThread>();
    return *m_besides;
}

void HttpFileFetcher::discard(const WantedFile &file)
{
    besides().put([file] { QFile::remove(partPath(file)); });
}

void HttpFileFetcher::lookUp(const WantedFile &file)
{
    besides().put([this, file] {
        const auto size = static_cast<quint64>(QFileInfo(partPath(file)).size());
        m_calls->put(
            [this, state = FetchedBytes{.number = file.number, .what = What::there, .place = size}] { tell(state); });
    });
}

void HttpFileFetcher::tell(const FetchedBytes &fetched)
{
    if (fetched.what == What::done || fetched.what == What::stopped || fetched.what == What::failed) {
        if (const auto running = m_running.find(fetched.number); running != m_running.end()) {
            running->second.thread->wait();
            m_running.erase(running);
        }
    }
    if (told)
        told(fetched);
}

} // namespace nimb
