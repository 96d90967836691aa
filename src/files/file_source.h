// The bytes that are served: those of a file, or of an archive that is made of a folder while it is read.
#pragma once

#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>
#include <span>
#include <variant>

namespace nimb
{

/// Reads for one transfer.
class SourceReader
{
public:
    virtual ~SourceReader() = default;
    /// Fills the room as far as there are bytes from that place on; nothing: see trouble().
    virtual std::size_t read(std::uint64_t place, std::span<char> room) = 0;
    /// Why nothing was read, as a sentence; empty where it was stopped.
    virtual QString trouble() const = 0;
};

/// What was found when it was offered, and nothing else: a file that has changed since cannot be read any more.
class FileSource
{
public:
    virtual ~FileSource() = default;
    virtual std::uint64_t size() const = 0;
    /// isStopped: ends what takes long. Both outlive the reader.
    virtual std::unique_ptr<SourceReader> open(const std::atomic<bool> &isStopped) const = 0;
};

struct NamedSource {
    std::shared_ptr<const FileSource> source;
    QString name;      ///< for the peer: clean, and of a folder that of an archive
    QString leftOut{}; ///< what of a folder is not in it, a sentence; empty: all is
};
using FoundSource = std::variant<NamedSource, QString>;

/// Looks at a file, or at all names and sizes of a folder, without reading what is in them. Links within a folder are
/// left out, for they lead elsewhere, and so is what cannot be read. Without a source: the reason, a sentence.
FoundSource findSource(const QString &path, const std::atomic<bool> &isStopped);

} // namespace nimb
