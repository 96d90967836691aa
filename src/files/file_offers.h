// What the user offers to others: to whom, until when, and how far it has come.
#pragma once

#include "base/Common.h"
#include "base/file_server.h"
#include "base/main_log.h"
#include "base/prompts.h"
#include "base/timers.h"

#include <QAbstractTableModel>
#include <QHash>

#include <memory>
#include <vector>

namespace nimb
{

class OwnAddresses;

/// How long something is offered.
enum class OfferLife {
    day,          ///< limits::fileOffered
    once,         ///< until somebody has all of it
    untilStopped, ///< and never longer than the program runs, like the others
};

/// One row for each file, the newest last. Rows of what is over stay to be read, as long as there is room.
class FileOffers : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { File, For, Progress, Until, ColumnCount };

    struct Parts {
        FileServer &server;
        Common &common;
        Prompts &prompts;
        Timers &timers;
        const WallClock &clock;
        MainLog &log;
    };
    struct Recipients {
        std::vector<Ipv4Address> to;
        Ipv4Address at{}; ///< the own address that they know
        QString whom{};   ///< for people
    };
    /// What becomes of a wish. written: is called with the message for each file, and returns whether it could be sent.
    struct Answers {
        std::function<bool(const QString &message)> written;
        /// Later, too, when what was offered cannot be sent any more.
        std::function<void(const QString &sentence)> refused;
        /// A part of it is not sent; before the message for the rest.
        std::function<void(const QString &sentence)> leftOut;
        /// Takes what is to be known the first time; without it the user is asked whether he knows.
        std::function<void(const QString &sentence)> explained{};
    };

    explicit FileOffers(Parts parts);
    ~FileOffers() override;

    /// Why what could not be written of is over; the end of a sentence.
    static QString nobodyThere();

    bool isAvailable() const { return m_parts.server.isAvailable(); }
    /// Files and folders. The first time it is said that nothing is encrypted.
    void offer(const QStringList &paths, const Recipients &recipients, const Answers &answers);
    void stop(int row);
    void setLife(int row, OfferLife life);
    OfferLife lifeOf(int row) const;
    bool isLive(int row) const;
    /// Says which offers stand at an address that this computer has no longer; they work again when it is back.
    void ownAddressesChanged(const OwnAddresses &own);
    /// How many are being sent now, and how many can be fetched.
    int underWay() const;
    int live() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// The user has been told what there is to know; the settings have changed.
    void explained();

private:
    struct Offer;

    const Offer &offerAt(int row) const;
    bool mayBegin(qsizetype count, const Recipients &recipients, const Answers &answers);
    /// False when the user shies away.
    bool explain(const QString &sentence, const Answers &answers);
    void offerOne(const QString &path, const Recipients &recipients, const Answers &answers);
    void readied(const QString &token, const FileServer::Readied &readied);
    void sent(const SentBytes &sent);
    void end(Offer &offer, const QString &why);
    Offer *find(const QString &token);
    void makeRoom(qsizetype count);
    void rowChanged(const Offer &offer);
    QString progressOf(const Offer &offer) const;
    QString untilOf(const Offer &offer) const;

    Parts m_parts;
    std::vector<std::unique_ptr<Offer>> m_offers;
};

} // namespace nimb
