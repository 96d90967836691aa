#include "files/file_source.h"

#include "base/limits.h"
#include "base/remote_text.h"
#include "files/file_name.h"
#include "files/zip_layout.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <mutex>
#include <optional>
#include <vector>

namespace nimb
{
namespace
{

QString sentenceOf(const char *text, const QString &name)
{
    return QCoreApplication::translate("FileSource", text).arg(name);
}

QString changedSentence(const QString &path)
{
    return sentenceOf(
        QT_TRANSLATE_NOOP("FileSource", "%1 has changed since it was offered, so its transfer has ended."),
        QFileInfo(path).fileName());
}

/// A file as it was when it was looked at.
struct SeenFile {
    QString path;
    std::uint64_t size = 0;
    QDateTime modified;
};

SeenFile seen(const QFileInfo &info)
{
    return {info.filePath(), static_cast<std::uint64_t>(info.size()), info.lastModified()};
}

/// One file that is read in pieces, and not any more once it is another one.
class OpenFile
{
public:
    explicit OpenFile(const SeenFile &file) : m_file(file), m_handle(file.path)
    {
        if (!m_handle.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            m_trouble = sentenceOf(QT_TRANSLATE_NOOP("FileSource", "%1 cannot be read."), m_handle.fileName());
    }

    std::size_t read(std::uint64_t place, std::span<char> room)
    {
        if (!m_trouble.isEmpty() || isChanged() || !m_handle.seek(static_cast<qint64>(place)))
            return 0;
        const qint64 read = m_handle.read(room.data(), static_cast<qint64>(room.size()));
        if (read <= 0)
            m_trouble = changedSentence(m_file.path);
        return read > 0 ? static_cast<std::size_t>(read) : 0;
    }

    const QString &trouble() const { return m_trouble; }

private:
    bool isChanged()
    {
        const bool isSame = static_cast<std::uint64_t>(m_handle.size()) == m_file.size
            && m_handle.fileTime(QFileDevice::FileModificationTime) == m_file.modified;
        if (!isSame)
            m_trouble = changedSentence(m_file.path);
        return !isSame;
    }

    const SeenFile &m_file;
    QFile m_handle;
    QString m_trouble;
};

// --- a file

class PlainFile : public FileSource
{
public:
    explicit PlainFile(SeenFile file) : m_file(std::move(file)) { }

    std::uint64_t size() const override { return m_file.size; }
    std::unique_ptr<SourceReader> open(const std::atomic<bool> &) const override
    {
        return std::make_unique<Reader>(m_file);
    }

private:
    class Reader : public SourceReader
    {
    public:
        explicit Reader(const SeenFile &file) : m_open(file) { }
        std::size_t read(std::uint64_t place, std::span<char> room) override { return m_open.read(place, room); }
        QString trouble() const override { return m_open.trouble(); }

    private:
        OpenFile m_open;
    };

    SeenFile m_file;
};

// --- a folder

class FolderArchive : public FileSource
{
public:
    FolderArchive(std::vector<ZipEntry> entries, std::vector<SeenFile> files)
        : m_layout(std::move(entries)), m_files(std::move(files)), m_sums(m_files.size())
    {
    }

    std::uint64_t size() const override { return m_layout.size(); }
    std::unique_ptr<SourceReader> open(const std::atomic<bool> &isStopped) const override;

private:
    class Reader;

    std::optional<quint32> knownSum(std::size_t entry) const
    {
        const std::lock_guard lock(m_mutex);
        return m_sums[entry];
    }
    void keepSum(std::size_t entry, quint32 sum) const
    {
        const std::lock_guard lock(m_mutex);
        m_sums[entry] = sum;
    }

    ZipLayout m_layout;
    std::vector<SeenFile> m_files; ///< of each entry
    mutable std::mutex m_mutex;
    mutable std::vector<std::optional<quint32>> m_sums; ///< known once somebody has read the file
};

class FolderArchive::Reader : public SourceReader
{
public:
    Reader(const FolderArchive &archive, const std::atomic<bool> &isStopped)
        : m_archive(archive), m_isStopped(isStopped)
    {
    }

    std::size_t read(std::uint64_t place, std::span<char> room) override
    {
        std::size_t filled = 0;
        while (filled < room.size() && place + filled < m_archive.size() && !m_isStopped) {
            const std::size_t read = readPiece(place + filled, room.subspan(filled));
            if (read == 0)
                break;
            filled += read;
        }
        return m_trouble.isEmpty() ? filled : 0;
    }
    QString trouble() const override { return m_trouble; }

private:
    std::size_t readPiece(std::uint64_t place, std::span<char> room)
    {
        const ZipLayout &layout = m_archive.m_layout;
        const ZipLayout::Piece piece = layout.at(place);
        if (const auto *bytes = std::get_if<ZipLayout::FileBytes>(&piece))
            return readFile(bytes->entry, bytes->offset,
                            room.first(std::min<std::uint64_t>(room.size(), bytes->length)));
        if (const auto *header = std::get_if<ZipLayout::Header>(&piece))
            return copy(layout.header(header->entry), header->offset, room);
        if (const auto *end = std::get_if<ZipLayout::End>(&piece))
            return copy(layout.end(), end->offset, room);
        if (const auto *behind = std::get_if<ZipLayout::Sum>(&piece)) {
            const std::optional<quint32> sum = sumOf(behind->entry);
            return sum ? copy(layout.sum(behind->entry, *sum), behind->offset, room) : 0;
        }
        const auto &row = std::get<ZipLayout::Directory>(piece);
        const std::optional<quint32> sum = sumOf(row.entry);
        return sum ? copy(layout.directory(row.entry, *sum), row.offset, room) : 0;
    }

    static std::size_t copy(const QByteArray &bytes, std::uint64_t offset, std::span<char> room)
    {
        const auto length = std::min<std::size_t>(room.size(), static_cast<std::size_t>(bytes.size()) - offset);
        std::copy_n(bytes.constData() + offset, length, room.begin());
        return length;
    }

    std::size_t readFile(std::size_t entry, std::uint64_t offset, std::span<char> room)
    {
        if (m_entry != entry || !m_open) {
            m_open.emplace(m_archive.m_files[entry]);
            m_entry = entry;
            m_summed = 0;
            m_sum = 0;
        }
        const std::size_t read = m_open->read(offset, room);
        if (read == 0)
            m_trouble = m_open->trouble();
        if (offset == m_summed)
            addToSum(room.first(read));
        return read;
    }

    /// Who reads a file from its beginning to its end knows its sum then.
    void addToSum(std::span<const char> bytes)
    {
        m_sum = crc32(m_sum, bytes);
        m_summed += bytes.size();
        if (m_summed == m_archive.m_files[m_entry].size)
            m_archive.keepSum(m_entry, m_sum);
    }

    /// Reads the file where nobody has done so yet, as when a transfer is resumed in the middle of it.
    std::optional<quint32> sumOf(std::size_t entry)
    {
        const SeenFile &file = m_archive.m_files[entry];
        if (file.size == 0)
            return 0;
        if (const std::optional<quint32> known = m_archive.knownSum(entry))
            return known;
        m_open.reset();
        std::vector<char> room(limits::filePiece);
        for (std::uint64_t place = 0; place < file.size;) {
            const std::size_t read = m_isStopped ? 0 : readFile(entry, place, room);
            if (read == 0)
                return std::nullopt;
            place += read;
        }
        return m_archive.knownSum(entry);
    }

    const FolderArchive &m_archive;
    const std::atomic<bool> &m_isStopped;
    std::optional<OpenFile> m_open;
    std::size_t m_entry = 0;
    std::uint64_t m_summed = 0; ///< bytes of it that are in the sum
    quint32 m_sum = 0;
    QString m_trouble;
};

std::unique_ptr<SourceReader> FolderArchive::open(const std::atomic<bool> &isStopped) const
{
    return std::make_unique<Reader>(*this, isStopped);
}

/// The name as it is on the disk, or nothing where it is no text: no other system could be told of it.
std::optional<QString> textOf(const std::filesystem::path &path)
{
    const std::string bytes = path.string();
    const QByteArray name(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const QString text = QFile::decodeName(name);
    return QFile::encodeName(text) == name ? std::optional(text) : std::nullopt;
}

/// Goes through a folder, without following links.
class FolderWalk
{
public:
    using Found = std::pair<ZipEntry, SeenFile>;

    explicit FolderWalk(const QFileInfo &folder)
        : m_root(folder.fileName() + QLatin1Char('/')),
          m_inside(folder.filePath()), m_found{{ZipEntry{m_root, 0, folder.lastModified()}, SeenFile{}}}
    {
    }

    /// What stands in the way, a sentence; nothing when all has been seen, or when it was stopped.
    std::optional<QString> go(const std::atomic<bool> &isStopped)
    {
        std::error_code error;
        const QByteArray place = QFile::encodeName(m_inside.path());
        std::filesystem::recursive_directory_iterator entries(
            place.constData(), std::filesystem::directory_options::skip_permission_denied, error);
        for (; !error && entries != decltype(entries)() && !isStopped; entries.increment(error)) {
            if (!take(entries->path()))
                entries.disable_recursion_pending();
            if (m_found.size() + static_cast<std::size_t>(m_leftOut.size()) > limits::filesInFolder)
                return sentenceOf(QT_TRANSLATE_NOOP("FileSource", "%1 holds too many files to be sent as one."),
                                  m_inside.dirName());
        }
        if (error)
            return sentenceOf(QT_TRANSLATE_NOOP("FileSource", "%1 cannot be sent: it cannot be read to its end."),
                              m_inside.dirName());
        return std::nullopt;
    }

    /// In the order of their names.
    std::vector<Found> takeFound()
    {
        std::ranges::sort(m_found, {}, [](const auto &entry) { return entry.first.name; });
        return std::move(m_found);
    }

    /// Empty where all is there.
    QString leftOut()
    {
        if (m_leftOut.empty())
            return {};
        std::ranges::sort(m_leftOut);
        QStringList names;
        for (qsizetype i = 0; i < std::min<qsizetype>(m_leftOut.size(), namesSaid); ++i)
            names += shownName(m_leftOut[i]);
        QString all = names.join(QLatin1String(", "));
        if (m_leftOut.size() > names.size())
            all = QCoreApplication::translate("FileSource", "%1 and %2 more")
                      .arg(all, QString::number(m_leftOut.size() - names.size()));
        return QCoreApplication::translate("FileSource",
                                           "%1 left out of %2: %3. Links are not followed, and what cannot be read "
                                           "is not sent.")
            .arg(QString::number(m_leftOut.size()), m_inside.dirName(), all);
    }

private:
    static constexpr qsizetype namesSaid = 3, longestNameSaid = 40;

    /// A name may hold what turns the sentence round or breaks it.
    static QString shownName(const QString &name) { return paintedName(name, longestNameSaid); }

    /// False where it is left out.
    bool take(const std::filesystem::path &path)
    {
        const std::optional<QString> text = textOf(path);
        const QFileInfo info(text.value_or(QString()));
        const bool isFolder = info.isDir() && info.isExecutable();
        if (!text || info.isSymLink() || !info.isReadable() || !(isFolder || info.isFile())) {
            m_leftOut += text ? info.fileName() : QString::fromUtf8(path.filename().string().c_str());
            return false;
        }
        const QString name = m_root + m_inside.relativeFilePath(info.filePath());
        if (isFolder)
            m_found.push_back({ZipEntry{name + QLatin1Char('/'), 0, info.lastModified()}, SeenFile{}});
        else
            m_found.push_back({ZipEntry{name, static_cast<quint64>(info.size()), info.lastModified()}, seen(info)});
        return true;
    }

    QString m_root;
    QDir m_inside;
    std::vector<Found> m_found;
    QStringList m_leftOut;
};

FoundSource findFolder(const QFileInfo &folder, const std::atomic<bool> &isStopped)
{
    FolderWalk walk(folder);
    if (const std::optional<QString> trouble = walk.go(isStopped))
        return *trouble;
    std::vector<ZipEntry> entries;
    std::vector<SeenFile> seenFiles;
    for (auto &[entry, file] : walk.takeFound()) {
        entries.push_back(std::move(entry));
        seenFiles.push_back(std::move(file));
    }
    return NamedSource{std::make_shared<const FolderArchive>(std::move(entries), std::move(seenFiles)),
                       cleanFileName(folder.fileName() + QLatin1String(".zip")), walk.leftOut()};
}

} // namespace

FoundSource findSource(const QString &path, const std::atomic<bool> &isStopped)
{
    const QFileInfo info(QDir(path).absolutePath());
    if (info.isDir() && info.isReadable())
        return findFolder(info, isStopped);
    if (info.isFile() && info.isReadable())
        return NamedSource{std::make_shared<const PlainFile>(seen(info)), cleanFileName(info.fileName()), {}};
    return sentenceOf(QT_TRANSLATE_NOOP("FileSource", "%1 cannot be sent: it is no file or folder that can be read."),
                      info.fileName());
}

} // namespace nimb
