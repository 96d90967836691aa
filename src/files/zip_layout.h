// A folder as one file: where each byte of it lies, known before any file is read.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <span>
#include <variant>
#include <vector>

namespace nimb
{

/// The sum that ZIP asks for. Begins with 0; what follows is added to what has come.
quint32 crc32(quint32 sum, std::span<const char> bytes);

/// One file or folder of an archive.
struct ZipEntry {
    QString name; ///< parted by "/"; that of a folder ends with one
    quint64 size = 0;
    QDateTime modified{};
    bool isFolder() const { return name.endsWith(u'/'); }
};

/// A ZIP64 archive whose files are stored as they are. The sums of files follow them, so that each place is fixed by
/// the names and sizes alone, and a transfer can be resumed anywhere.
class ZipLayout
{
public:
    explicit ZipLayout(std::vector<ZipEntry> entries);

    quint64 size() const { return m_size; }
    const std::vector<ZipEntry> &entries() const { return m_entries; }

    /// What lies at a place: bytes of a file, or bytes that are made.
    struct FileBytes {
        std::size_t entry = 0;
        quint64 offset = 0; ///< in the file
        quint64 length = 0; ///< up to its end
    };
    struct Header {
        std::size_t entry = 0;
        quint64 offset = 0; ///< in the bytes of header()
    };
    struct Sum { ///< behind the bytes of a file; needs its sum
        std::size_t entry = 0;
        quint64 offset = 0;
    };
    struct Directory { ///< needs the sum of that entry
        std::size_t entry = 0;
        quint64 offset = 0;
    };
    struct End {
        quint64 offset = 0;
    };
    using Piece = std::variant<Header, FileBytes, Sum, Directory, End>;

    /// place: below size().
    Piece at(quint64 place) const;

    QByteArray header(std::size_t entry) const;
    QByteArray sum(std::size_t entry, quint32 crc) const;
    QByteArray directory(std::size_t entry, quint32 crc) const;
    QByteArray end() const;

private:
    std::vector<ZipEntry> m_entries;
    std::vector<quint64> m_starts;    ///< of the headers
    std::vector<quint64> m_directory; ///< of the directory's entries, in the archive
    quint64 m_directoryStart = 0;
    quint64 m_directoryEnd = 0;
    quint64 m_size = 0;
};

} // namespace nimb
