// What an administrator gives to everybody on a machine who has set nothing else.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <utility>

namespace nimb
{

struct SiteDefaults {
    using Values = QMap<std::pair<QString, QString>, QString>; ///< by section and key

    Values values{};
    QStringList faults; ///< a sentence for each line that says nothing, and for a file that cannot be read
};

/// Reads `nimb-chat/defaults.ini` in the first of these folders that has one. In UTF-8: "[section]", "key=value" with
/// the sections, keys and values of the store, and lines of remarks that begin with "#" or ";". What is wrong in it is
/// told, and all else is taken.
SiteDefaults readSiteDefaults(const QStringList &folders);

} // namespace nimb
