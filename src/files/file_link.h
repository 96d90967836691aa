// The message that offers a file, as it is written and as it is found in what a peer writes.
#pragma once

#include "protocol/ipv4_address.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>

namespace nimb
{

/// Where a file can be had.
struct FileLink {
    QString name;     ///< as the message shows it; clean already where our own program has written it
    QString sizeText; ///< as the message says it, for people: "2.3 MB"
    Ipv4Address host{};
    std::uint16_t port = 0;
    QString token;   ///< 32 hexadecimal digits
    QByteArray path; ///< of the address, encoded: what is asked for

    bool operator==(const FileLink &) const = default;
};

/// "Plan.pdf (2.3 MB) http://192.168.1.12:5549/0123456789abcdef0123456789abcdef/Plan.pdf"
QString fileMessage(const QString &name, quint64 size, Ipv4Address host, std::uint16_t port, const QString &token);

/// The same as it came.
QString messageOf(const FileLink &link);

/// What such a message offers; nothing for every other one, though it may hold links. The name in front must be the one
/// that the address ends with: nobody is shown another name than that of what he gets.
std::optional<FileLink> fileLinkIn(const QString &message);

/// What the path of a request asks for.
struct AskedFile {
    std::string_view token;
    QByteArray name; ///< bytes of UTF-8, if the peer is one of us
};

/// Nothing where the path does not have the form of a link's.
std::optional<AskedFile> askedFile(std::string_view path);

} // namespace nimb
