// Files that peers offer, brought here: as the engine asks for them.
#pragma once

#include "protocol/ipv4_address.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace nimb
{

struct WantedFile {
    int number = 0; ///< by which it is called
    Ipv4Address host{};
    std::uint16_t port = 0;
    QByteArray path;    ///< of the address, encoded
    Ipv4Address from{}; ///< the own address that the peer knows
    QString folder;     ///< where it is put
    QString name;       ///< there; with a number where the name is taken
    quint64 most = 0;   ///< a larger one is not fetched; 0: however large
};

/// How far it is.
struct FetchedBytes {
    enum class What {
        there, ///< nothing is under way; it was looked up how much of it is here
        running,
        summing,  ///< the peer is there; what earlier tries have left is being read
        waiting,  ///< the peer sends too many others now
        checking, ///< all is here; the sum is waited for
        done,
        stopped, ///< as was wished; what is here stays for resuming
        failed,  ///< likewise, unless the sentence says that it was removed
    };

    int number = 0;
    What what = What::running;
    quint64 place = 0, size = 0;
    quint64 perSecond = 0;  ///< bytes, lately
    QString path{};         ///< done: where it is
    bool isChecked = false; ///< done: the sum is that of the peer
    QString sentence{};     ///< failed: why
    bool isGone = false;    ///< failed: it will not be had any more
};

class FileFetcher
{
public:
    virtual ~FileFetcher() = default;
    /// Goes on where an earlier one ended, as far as that is the same file. Nothing here waits.
    virtual void fetch(const WantedFile &file) = 0;
    virtual void stop(int number) = 0;
    /// Looks how much of it earlier tries have left, and says so once. Nothing here waits.
    virtual void lookUp(const WantedFile &file) = 0;
    /// Removes what tries that are over have left of it. Nothing here waits.
    virtual void discard(const WantedFile &file) = 0;

    /// Called on the thread of the event loop; for each file done, stopped or failed comes last.
    std::function<void(const FetchedBytes &)> told;
};

} // namespace nimb
