#include "platform/link_opener.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QStringList>

namespace nimb
{
namespace
{

bool mayBeOpened(const QUrl &address)
{
    static const QStringList schemes = {QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("ftp")};
    if (!address.isValid())
        return false;
    if (address.scheme() == QLatin1String("mailto"))
        return !address.path().isEmpty();
    return schemes.contains(address.scheme()) && !address.host().isEmpty();
}

} // namespace

bool DesktopLinkOpener::open(const QUrl &address)
{
    // The address goes to the handler percent-encoded, as one argument and without a shell.
    return mayBeOpened(address) && QDesktopServices::openUrl(address);
}

bool DesktopPageOpener::open(const QUrl &address)
{
    const bool isPage
        = address.isLocalFile() && address.host().isEmpty() && address.path().endsWith(QLatin1String(".html"));
    return isPage && QDesktopServices::openUrl(address);
}

bool DesktopFolderOpener::open(const QUrl &address)
{
    const bool isFolder = address.isLocalFile() && address.host().isEmpty() && QFileInfo(address.toLocalFile()).isDir();
    return isFolder && QDesktopServices::openUrl(address);
}

} // namespace nimb
