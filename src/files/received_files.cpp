#include "files/received_files.h"

#include "base/isolated.h"
#include "base/limits.h"
#include "base/remote_text.h"
#include "files/file_name.h"

#include <QDir>

#include <algorithm>

namespace nimb
{

using State = ReceivedFile::State;
using What = FetchedBytes::What;

bool ReceivedFile::isPicture() const
{
    return isPictureName(link.name);
}

ReceivedFiles::ReceivedFiles(FileFetcher &fetcher) : m_fetcher(fetcher)
{
    m_fetcher.told = [this](const FetchedBytes &fetched) { told(fetched); };
}

ReceivedFiles::~ReceivedFiles()
{
    m_fetcher.told = nullptr;
    for (const int number : m_fetching)
        m_fetcher.stop(number);
}

std::optional<int> ReceivedFiles::add(const QString &message, Ipv4Address writer, const QString &sender,
                                      Ipv4Address own)
{
    std::optional<FileLink> link = fileLinkIn(message);
    if (!link || link->host != writer)
        return std::nullopt;
    if (has(*link))
        return std::nullopt;
    link->name = cleanFileName(link->name); // as it will be saved, so that it is not shown as something else
    insert({.link = *link, .sender = sender, .from = own});
    return m_last;
}

void ReceivedFiles::restore(ReceivedFile file)
{
    if (has(file.link))
        return;
    file.state = file.isGone ? State::failed : State::paused;
    file.sentence = file.isGone ? goneSentence(file) : QString();
    insert(std::move(file));
    m_fetcher.lookUp(wantedOf(m_files.back()));
}

/// Two rows would write into one unfinished file.
bool ReceivedFiles::has(const FileLink &link) const
{
    const auto tokenOf = [](const FileLink &of) { return of.path.split('/').value(1); };
    return std::ranges::any_of(m_files, [&](const ReceivedFile &file) {
        return file.link.host == link.host && tokenOf(file.link) == tokenOf(link);
    });
}

void ReceivedFiles::insert(ReceivedFile file)
{
    makeRoom();
    const int row = rowCount();
    beginInsertRows({}, row, row);
    file.number = ++m_last;
    m_files.push_back(std::move(file));
    endInsertRows();
}

/// The oldest go that nobody fetches or has begun to.
void ReceivedFiles::makeRoom()
{
    for (int row = 0; row < rowCount() && rowCount() >= limits::filesReceived;) {
        if (at(row).isUnderWay() || at(row).isUnfinished()) {
            ++row;
            continue;
        }
        const int number = at(row).number;
        removeRow(row);
        Q_EMIT changed(number);
    }
}

void ReceivedFiles::removeRow(int row)
{
    beginRemoveRows({}, row, row);
    m_files.erase(m_files.begin() + row);
    endRemoveRows();
}

const ReceivedFile *ReceivedFiles::find(int number) const
{
    const auto found = std::ranges::find(m_files, number, &ReceivedFile::number);
    return found == m_files.end() ? nullptr : &*found;
}

ReceivedFile *ReceivedFiles::findRow(int number)
{
    const auto found = std::ranges::find(m_files, number, &ReceivedFile::number);
    return found == m_files.end() ? nullptr : &*found;
}

// --- what the user wants

void ReceivedFiles::save(int number, const QString &folder)
{
    ReceivedFile *const file = findRow(number);
    if (!file || file->isUnderWay())
        return;
    m_lastFolder = folder;
    // What has come of it stays nowhere where nobody would look for it again.
    if (file->isHalted() && file->folder != folder) {
        m_fetcher.discard(wantedOf(*file));
        file->place = 0;
    }
    file->folder = folder;
    file->isLookedAt = false;
    begin(*file);
}

void ReceivedFiles::look(int number, const QString &folder)
{
    ReceivedFile *const file = findRow(number);
    if (!file || file->isUnderWay() || !file->isPicture())
        return;
    file->folder = folder;
    file->isLookedAt = true;
    begin(*file);
}

void ReceivedFiles::begin(ReceivedFile &file)
{
    file.state = State::waiting;
    file.sentence.clear();
    file.perSecond = 0;
    file.isGone = false;
    rowChanged(file);
    beginNext();
    Q_EMIT unfinishedChanged();
}

void ReceivedFiles::pause(int number)
{
    ReceivedFile *const file = findRow(number);
    if (!file || !file->isUnderWay())
        return;
    if (std::ranges::find(m_fetching, number) != m_fetching.end())
        return m_fetcher.stop(number); // which says so
    file->state = State::paused;
    rowChanged(*file);
    Q_EMIT unfinishedChanged();
}

void ReceivedFiles::resume(int number)
{
    ReceivedFile *const file = findRow(number);
    if (file && file->isHalted())
        begin(*file);
}

void ReceivedFiles::discard(int number)
{
    const ReceivedFile *const file = find(number);
    if (!file || !file->isHalted())
        return;
    m_fetcher.discard(wantedOf(*file));
    forget(*file);
}

void ReceivedFiles::forget(const ReceivedFile &file)
{
    const int number = file.number;
    removeRow(static_cast<int>(&file - m_files.data()));
    Q_EMIT discarded(number);
    Q_EMIT unfinishedChanged();
}

/// What waits for its sum alone leaves its place to others, and so does what is too much from one sender: he may let
/// us wait for ever.
bool ReceivedFiles::hasFreePlace(Ipv4Address sender) const
{
    int all = 0, hisOwn = 0;
    for (const int number : m_fetching) {
        const ReceivedFile *const file = find(number);
        if (!file || file->state == State::checking)
            continue;
        ++all;
        hisOwn += file->link.host == sender ? 1 : 0;
    }
    return all < limits::filesReceivedAtOnce && hisOwn < limits::filesReceivedFromOne;
}

void ReceivedFiles::beginNext()
{
    for (ReceivedFile &file : m_files) {
        const bool isHere = std::ranges::find(m_fetching, file.number) != m_fetching.end();
        if (file.state != State::waiting || isHere || !hasFreePlace(file.link.host))
            continue;
        m_fetching.push_back(file.number);
        m_fetcher.fetch(wantedOf(file));
    }
}

WantedFile ReceivedFiles::wantedOf(const ReceivedFile &file)
{
    return {.number = file.number,
            .host = file.link.host,
            .port = file.link.port,
            .path = file.link.path,
            .from = file.from,
            .folder = file.folder,
            .name = cleanFileName(file.link.name),
            .most = file.isLookedAt ? static_cast<quint64>(limits::shownPictureBytes) : 0};
}

// --- what has become of it

void ReceivedFiles::told(const FetchedBytes &fetched)
{
    const bool isOver = fetched.what == What::done || fetched.what == What::stopped || fetched.what == What::failed;
    if (isOver)
        std::erase(m_fetching, fetched.number);
    if (ReceivedFile *const file = findRow(fetched.number)) {
        if (fetched.what == What::there && !file->isHalted())
            return; // it has been gone on with meanwhile
        if (fetched.what == What::there && file->isGone && fetched.place == 0)
            return forget(*file);
        file->place = fetched.place;
        if (fetched.size > 0) // unless nobody has said it this time
            file->size = fetched.size;
        file->perSecond = fetched.perSecond;
        finish(*file, fetched);
        rowChanged(*file);
    }
    if (isOver || fetched.what == What::checking)
        beginNext();
    if (isOver)
        Q_EMIT unfinishedChanged();
}

void ReceivedFiles::finish(ReceivedFile &file, const FetchedBytes &fetched)
{
    switch (fetched.what) {
    case What::there:
        return;
    case What::summing:
        file.state = State::summing;
        return;
    case What::running:
        file.state = State::running;
        return;
    case What::waiting:
        file.state = State::waiting;
        return;
    case What::checking:
        file.state = State::checking;
        return;
    case What::stopped:
        file.state = State::paused;
        return;
    case What::failed:
        file.state = State::failed;
        file.sentence = fetched.isGone ? goneSentence(file) : fetched.sentence;
        file.isGone = fetched.isGone;
        return;
    case What::done:
        file.state = file.isLookedAt ? State::offered : State::done;
        (file.isLookedAt ? file.picture : file.path) = fetched.path;
        file.isChecked = fetched.isChecked;
        return;
    }
}

QString ReceivedFiles::goneSentence(const ReceivedFile &file)
{
    return tr("%1 no longer offers this file.").arg(paintedName(file.sender));
}

int ReceivedFiles::underWay() const
{
    return static_cast<int>(std::ranges::count_if(m_files, &ReceivedFile::isUnderWay));
}

std::vector<int> ReceivedFiles::offered() const
{
    std::vector<int> numbers;
    for (const ReceivedFile &file : m_files) {
        if (file.state == State::offered)
            numbers.push_back(file.number);
    }
    return numbers;
}

QString ReceivedFiles::progressOf(const ReceivedFile &file)
{
    switch (file.state) {
    case State::offered:
        return tr("offered");
    case State::waiting:
        return tr("waits for others");
    case State::summing:
        return tr("checks what is there: %1 %").arg(file.percent());
    case State::running:
        return file.perSecond > 0 ? tr("%1 % of %2, %3 a second")
                                        .arg(file.percent())
                                        .arg(fileSizeText(file.size), fileSizeText(file.perSecond))
                                  : tr("%1 % of %2").arg(file.percent()).arg(fileSizeText(file.size));
    case State::paused:
        return tr("paused at %1 %").arg(file.percent());
    case State::checking:
        return tr("is being checked");
    case State::done:
        return file.isChecked ? tr("saved and checked") : tr("saved; the sender gave nothing to check it by");
    case State::failed:
        return file.sentence;
    }
    return {};
}

// --- as a table

void ReceivedFiles::rowChanged(const ReceivedFile &file)
{
    const int row = static_cast<int>(&file - m_files.data());
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
    Q_EMIT changed(file.number);
}

int ReceivedFiles::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_files.size());
}

int ReceivedFiles::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ReceivedFiles::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case File:
        return tr("File");
    case From:
        return tr("From");
    case Progress:
        return tr("Progress");
    default:
        return tr("Folder");
    }
}

QVariant ReceivedFiles::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const ReceivedFile &file = at(index.row());
    switch (index.column()) {
    case File:
        return tr("%1 (%2)").arg(isolated(file.link.name), file.link.sizeText);
    case From:
        return file.sender;
    case Progress:
        return progressOf(file);
    default:
        return file.isLookedAt ? QString() : QDir::toNativeSeparators(file.folder);
    }
}

} // namespace nimb
