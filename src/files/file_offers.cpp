#include "files/file_offers.h"

#include "base/clock_text.h"
#include "base/isolated.h"
#include "base/limits.h"
#include "base/own_addresses.h"
#include "base/remote_text.h"
#include "files/file_link.h"
#include "files/file_name.h"
#include "protocol/address_text.h"

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace nimb
{
namespace
{

/// 128 bits that nobody guesses, from the system's own source.
QString newToken()
{
    std::array<quint32, 4> numbers{};
    QRandomGenerator::system()->fillRange(numbers.data(), static_cast<qsizetype>(numbers.size()));
    QString token;
    for (const quint32 number : numbers)
        token += QStringLiteral("%1").arg(number, 8, 16, QLatin1Char('0'));
    return token;
}

} // namespace

struct FileOffers::Offer {
    QString token;
    QString name;
    QString path;
    Recipients recipients;
    Answers answers;
    quint64 size = 0;
    OfferLife life = OfferLife::day;
    QDateTime until{};
    std::unique_ptr<Timer> age{};
    QHash<quint64, SentBytes> transfers{}; ///< under way
    int fetched = 0;                       ///< how often all of it
    bool isReadied = false;
    bool hasAddress = true; ///< the one at which it is offered is still one of this computer
    bool isLive = true;
    QString ended{}; ///< why it is not live any more
};

FileOffers::FileOffers(Parts parts) : m_parts(parts)
{
    m_parts.server.sent = [this](const SentBytes &bytes) { sent(bytes); };
    m_parts.server.failed = [this](const QString &token, const QString &sentence) {
        Offer *const offer = find(token);
        if (!offer || !offer->isLive)
            return;
        m_parts.log.fault(sentence);
        offer->answers.refused(sentence);
        end(*offer, sentence);
    };
}

FileOffers::~FileOffers()
{
    m_parts.server.sent = nullptr;
    m_parts.server.failed = nullptr;
    for (const auto &offer : m_offers) {
        if (offer->isLive)
            m_parts.server.withdraw(offer->token);
    }
}

QString FileOffers::nobodyThere()
{
    return tr("nobody was there to be told of it");
}

void FileOffers::offer(const QStringList &paths, const Recipients &recipients, const Answers &answers)
{
    if (paths.isEmpty() || !mayBegin(paths.size(), recipients, answers))
        return;
    makeRoom(paths.size());
    for (const QString &path : paths)
        offerOne(path, recipients, answers);
}

bool FileOffers::mayBegin(qsizetype count, const Recipients &recipients, const Answers &answers)
{
    const auto refuse = [&](const QString &sentence) {
        answers.refused(sentence);
        return false;
    };
    if (!isAvailable())
        return refuse(tr("This copy of NIMB-Chat was built without the part that sends files."));
    if (count > limits::filesAtOnce)
        return refuse(tr("At most %1 files are sent at once: put more of them into a folder and send that.")
                          .arg(limits::filesAtOnce));
    if (live() + count > limits::filesOffered)
        return refuse(tr("At most %1 files can be offered at a time: stop some under Tools > Transfers...")
                          .arg(limits::filesOffered));
    if (recipients.to.empty() || recipients.at.isUnspecified())
        return refuse(tr("There is nobody here to whom a file could be sent."));
    if (m_parts.common.filesExplained)
        return true;
    if (!explain(tr("Files are not encrypted on their way: whoever can listen in on this network can read them."),
                 answers))
        return false;
    m_parts.common.filesExplained = true;
    Q_EMIT explained();
    return true;
}

bool FileOffers::explain(const QString &sentence, const Answers &answers)
{
    if (!answers.explained)
        return m_parts.prompts.confirm(sentence, programTitle);
    answers.explained(sentence);
    return true;
}

void FileOffers::offerOne(const QString &path, const Recipients &recipients, const Answers &answers)
{
    auto made = std::make_unique<Offer>();
    made->token = newToken();
    made->path = path;
    made->name = cleanFileName(path);
    made->recipients = recipients;
    made->answers = answers;
    const QString token = made->token;
    made->age = m_parts.timers.oneShot(limits::fileOffered, [this, token] {
        if (Offer *const offer = find(token))
            end(*offer, tr("its time is over"));
    });
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_offers.push_back(std::move(made));
    endInsertRows();
    m_parts.server.serve({.token = token, .name = {}, .path = path, .to = recipients.to, .at = recipients.at},
                         [this, token](const FileServer::Readied &now) { readied(token, now); });
}

void FileOffers::readied(const QString &token, const FileServer::Readied &readied)
{
    Offer *const offer = find(token);
    if (!offer || !offer->isLive)
        return;
    const Answers answers = offer->answers; // the offer may have gone when they come back
    if (!readied.trouble.isEmpty()) {
        end(*offer, readied.trouble);
        return answers.refused(readied.trouble);
    }
    offer->isReadied = true;
    offer->name = readied.name;
    offer->size = readied.size;
    offer->until = m_parts.clock.now().addSecs(std::chrono::seconds(limits::fileOffered).count());
    offer->age->start();
    rowChanged(*offer);
    const QString message = fileMessage(offer->name, offer->size, offer->recipients.at, readied.port, token);
    if (!readied.leftOut.isEmpty())
        answers.leftOut(readied.leftOut);
    if (!answers.written(message))
        end(*offer, nobodyThere());
}

void FileOffers::sent(const SentBytes &sent)
{
    Offer *const offer = find(sent.token);
    if (!offer)
        return;
    if (sent.isOver)
        offer->transfers.remove(sent.transfer);
    else
        offer->transfers.insert(sent.transfer, sent);
    offer->fetched += sent.isWhole ? 1 : 0;
    if (sent.isWhole && offer->isLive && offer->life == OfferLife::once)
        return end(*offer, {});
    rowChanged(*offer);
}

void FileOffers::end(Offer &offer, const QString &why)
{
    offer.isLive = false;
    offer.ended = why;
    offer.transfers.clear();
    offer.age->stop();
    m_parts.server.withdraw(offer.token);
    rowChanged(offer);
}

void FileOffers::stop(int row)
{
    if (Offer &offer = *m_offers.at(static_cast<std::size_t>(row)); offer.isLive)
        end(offer, tr("stopped"));
}

void FileOffers::setLife(int row, OfferLife life)
{
    Offer &offer = *m_offers.at(static_cast<std::size_t>(row));
    if (!offer.isLive || offer.life == life)
        return;
    offer.life = life;
    if (life == OfferLife::once && offer.fetched > 0)
        return end(offer, {});
    if (life != OfferLife::day)
        offer.age->stop();
    else if (offer.isReadied)
        offer.age->start();
    offer.until = m_parts.clock.now().addSecs(std::chrono::seconds(limits::fileOffered).count());
    rowChanged(offer);
}

/// Each address has one sentence, however much is offered there.
void FileOffers::ownAddressesChanged(const OwnAddresses &own)
{
    const std::vector<NetworkCard> cards = own.cards();
    std::set<Ipv4Address> gone;
    for (const auto &offer : m_offers) {
        const Ipv4Address at = offer->recipients.at;
        const bool has = at.isLoopback() || std::ranges::count(cards, at, &NetworkCard::address) > 0;
        if (!offer->isLive || std::exchange(offer->hasAddress, has) == has)
            continue;
        rowChanged(*offer);
        if (!has)
            gone.insert(at);
    }
    for (const Ipv4Address at : gone)
        m_parts.log.fault(tr("Files are offered at %1, which this computer no longer has: nobody can fetch them, until "
                             "it has it again or you send them once more.")
                              .arg(addressText(at)));
}

const FileOffers::Offer &FileOffers::offerAt(int row) const
{
    return *m_offers.at(static_cast<std::size_t>(row));
}

OfferLife FileOffers::lifeOf(int row) const
{
    return offerAt(row).life;
}

bool FileOffers::isLive(int row) const
{
    return offerAt(row).isLive;
}

int FileOffers::underWay() const
{
    return static_cast<int>(
        std::ranges::count_if(m_offers, [](const auto &offer) { return !offer->transfers.empty(); }));
}

int FileOffers::live() const
{
    return static_cast<int>(std::ranges::count_if(m_offers, [](const auto &offer) { return offer->isLive; }));
}

FileOffers::Offer *FileOffers::find(const QString &token)
{
    const auto found = std::ranges::find(m_offers, token, [](const auto &offer) { return offer->token; });
    return found == m_offers.end() ? nullptr : found->get();
}

/// Of what is over the oldest rows go.
void FileOffers::makeRoom(qsizetype count)
{
    for (int row = 0; row < rowCount() && rowCount() + count > limits::filesOffered;) {
        if (isLive(row)) {
            ++row;
            continue;
        }
        beginRemoveRows({}, row, row);
        m_offers.erase(m_offers.begin() + row);
        endRemoveRows();
    }
}

// --- as a table

void FileOffers::rowChanged(const Offer &offer)
{
    const auto found = std::ranges::find(m_offers, &offer, [](const auto &one) { return one.get(); });
    const int row = static_cast<int>(found - m_offers.begin());
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

int FileOffers::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_offers.size());
}

int FileOffers::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FileOffers::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case File:
        return tr("File");
    case For:
        return tr("For");
    case Progress:
        return tr("Progress");
    default:
        return tr("Until");
    }
}

QVariant FileOffers::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const Offer &offer = offerAt(index.row());
    switch (index.column()) {
    case File:
        return role == Qt::ToolTipRole ? offer.path
            : offer.isReadied          ? tr("%1 (%2)").arg(isolated(offer.name), fileSizeText(offer.size))
                                       : offer.name;
    case For:
        return offer.recipients.whom;
    case Progress:
        return progressOf(offer);
    default:
        return untilOf(offer);
    }
}

QString FileOffers::progressOf(const Offer &offer) const
{
    if (!offer.isReadied && offer.isLive)
        return tr("being prepared");
    QStringList parts;
    for (const SentBytes &transfer : offer.transfers) {
        const quint64 percent = transfer.size > 0 ? transfer.place * 100 / transfer.size : 0;
        parts += tr("%1 % to %2").arg(percent).arg(addressText(transfer.to));
    }
    parts.sort();
    if (offer.isLive && !offer.hasAddress)
        parts.prepend(tr("offered at %1, which this computer no longer has").arg(addressText(offer.recipients.at)));
    if (offer.fetched > 0)
        parts += tr("fetched: %1").arg(offer.fetched);
    return parts.isEmpty() && offer.isLive ? tr("not fetched yet") : parts.join(QLatin1String(", "));
}

QString FileOffers::untilOf(const Offer &offer) const
{
    if (!offer.isLive)
        return offer.ended.isEmpty() ? tr("over") : tr("over: %1").arg(offer.ended);
    switch (offer.life) {
    case OfferLife::day:
        return offer.isReadied ? tr("%1 %2").arg(shortDate(offer.until), longTime(offer.until)) : QString();
    case OfferLife::once:
        return tr("it has been fetched");
    default:
        return tr("it is stopped");
    }
}

} // namespace nimb
