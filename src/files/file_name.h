// Names of files that go from one computer to another: fit for every system, and never a path.
#pragma once

#include "protocol/ipv4_address.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>

namespace nimb
{

/// What is left of a name that may have come from anybody: no folder, no character that a system forbids or that nobody
/// sees, no name that Windows keeps for its devices, no dot or blank at either end, at most limits::fileNameLength
/// characters, and so short that it fits a link and a folder. Never empty; a suffix is kept where the name is cut.
QString cleanFileName(const QString &name);

/// "Plan.pdf" for the first try, then "Plan (2).pdf" and so on; "Photos.tar (2).gz" is as good as any.
QString numberedFileName(const QString &name, int number);

/// Of what has come so far of a file: other ones for other senders and other offers, whatever they call theirs.
/// path: as in the link, its token first.
QString unfinishedFileName(const QString &name, Ipv4Address sender, const QByteArray &path);

/// The name as it stands in an address: everything but letters, digits, "-", "_", "." and "~" of ASCII is encoded.
QByteArray encodedFileName(const QString &name);
/// The bytes that a part of an address means; nothing where an escape is broken.
std::optional<QByteArray> decodedPart(std::string_view part);

/// "0 bytes", "1 byte", "999 bytes", "1.0 kB", "2.3 MB", "20.0 GB": thousands, as most desktops count. The same in
/// every language, for it travels.
QString fileSizeText(quint64 bytes);

/// The suffix says that it is a picture of a kind that can be shown.
bool isPictureName(const QString &name);

} // namespace nimb
