// Files of this machine that others may fetch, as the engine asks for them.
#pragma once

#include "protocol/ipv4_address.h"

#include <QString>

#include <functional>
#include <vector>

namespace nimb
{

struct ServedFile {
    QString token;               ///< whoever knows it, and is one of those below, gets the file
    QString name;                ///< in its address; empty: its own, cleaned, and of a folder with the suffix ".zip"
    QString path;                ///< of a file, or of a folder, which is served as one archive
    std::vector<Ipv4Address> to; ///< nobody else
    Ipv4Address at;              ///< the own address that is listened on
};

/// How far a transfer is.
struct SentBytes {
    QString token;
    quint64 transfer = 0; ///< each has another number
    Ipv4Address to;
    quint64 place = 0; ///< in the file, up to which it was sent
    quint64 size = 0;  ///< of the file
    bool isOver = false;
    bool isWhole = false; ///< over, and the end of the file has been sent
};

class FileServer
{
public:
    /// Beside the size and the port there may be a reason why it is not served.
    struct Readied {
        quint64 size = 0;
        std::uint16_t port = 0;
        QString name{};    ///< in the address
        QString trouble{}; ///< a sentence; empty: served from now on
        QString leftOut{}; ///< a sentence on what of a folder is not in it; empty: all is
    };

    virtual ~FileServer() = default;
    /// False where the program was built without one.
    [[nodiscard]] virtual bool isAvailable() const = 0;
    /// Looks at the file, or at all of a folder, and serves it then until it is withdrawn. Nothing here waits: ready is
    /// called later, and not at all once this has ended or the file has been withdrawn.
    virtual void serve(const ServedFile &file, std::function<void(const Readied &)> ready) = 0;
    /// Breaks off its transfers; soon listens no more where nothing else is served. Nothing here waits.
    virtual void withdraw(const QString &token) = 0;

    /// Called while transfers are under way.
    std::function<void(const SentBytes &)> sent;
    /// Called when a file cannot be served any more, for it has changed or cannot be read.
    std::function<void(const QString &token, const QString &sentence)> failed;
};

} // namespace nimb
