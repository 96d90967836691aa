// Finds the web addresses in a line of a log and says what a click on one opens.
#pragma once

#include <QString>
#include <QStringView>
#include <QUrl>

#include <vector>

namespace nimb
{

/// A web address within a line.
struct Link {
    qsizetype start = 0;
    qsizetype length = 0; ///< in UTF-16 units, like start
    /// What a click opens: the link's text cut at 1023 characters, with "http://" before "www." and everything encoded
    /// that an address cannot hold, which may make it longer again.
    QUrl target;
};

/// The links of one complete line of plain text, from left to right: http, https, ftp and mailto addresses, and what
/// begins with "www."; bare mail addresses, too, of a host whose name has a dot. An address that names a user
/// ("http://user@host") is none, nor is any part of it. The time taken grows with the length of the line and not
/// faster, whatever the line holds.
std::vector<Link> findLinks(QStringView line);

/// The full address to read before clicking. All of it is encoded but the host, which is in its punycode form only
/// where it mixes scripts that no language mixes, or where it holds symbols.
QString readableAddress(const QUrl &target);

} // namespace nimb
