#include "platform/link_opener.h"

#include "platform/watched_start.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QStandardPaths>
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

/// The address goes to the handler percent-encoded, as one argument and without a shell.
bool openWith(const DesktopHandler &handler, const QUrl &address, std::function<void()> failed)
{
    const QString program = handler ? handler() : QString();
    if (program.isEmpty())
        return QDesktopServices::openUrl(address);
    return startWatched(program, QString::fromLatin1(address.toEncoded()), std::move(failed));
}

} // namespace

QString desktopHandler()
{
    const bool isSandboxed = qEnvironmentVariableIsSet("SNAP")
        || !QStandardPaths::locate(QStandardPaths::RuntimeLocation, QStringLiteral("flatpak-info")).isEmpty();
    return isSandboxed ? QString() : QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
}

bool DesktopLinkOpener::open(const QUrl &address, std::function<void()> failed)
{
    return mayBeOpened(address) && openWith(m_handler, address, std::move(failed));
}

bool DesktopPageOpener::open(const QUrl &address, std::function<void()> failed)
{
    const bool isPage
        = address.isLocalFile() && address.host().isEmpty() && address.path().endsWith(QLatin1String(".html"));
    return isPage && openWith(m_handler, address, std::move(failed));
}

bool DesktopFolderOpener::open(const QUrl &address, std::function<void()> failed)
{
    const bool isFolder = address.isLocalFile() && address.host().isEmpty() && QFileInfo(address.toLocalFile()).isDir();
    return isFolder && openWith(m_handler, address, std::move(failed));
}

} // namespace nimb
