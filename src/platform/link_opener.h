// Opens addresses with the program that the user's desktop has for them.
#pragma once

#include "base/link_opener.h"

#include <QString>

#include <functional>
#include <utility>

namespace nimb
{

/// The program that opens an address which it gets as its one argument. Empty: Qt knows another way, on which nobody
/// hears how it ends.
using DesktopHandler = std::function<QString()>;

/// The desktop's own, unless this program runs in a sandbox, which has a door for that.
QString desktopHandler();

/// Opens http, https, ftp and mailto addresses and nothing else, whoever asks: links come from strangers, and the
/// desktop would start programs for some other kinds. Needs the application object.
class DesktopLinkOpener : public LinkOpener
{
public:
    /// handler: asked each time.
    explicit DesktopLinkOpener(DesktopHandler handler = {}) : m_handler(std::move(handler)) { }
    bool open(const QUrl &address, std::function<void()> failed) override;

private:
    DesktopHandler m_handler;
};

/// Opens the pages that ship with the program with what shows web pages, and nothing else: no text that a peer sends
/// comes here. Needs the application object.
class DesktopPageOpener : public LinkOpener
{
public:
    explicit DesktopPageOpener(DesktopHandler handler = {}) : m_handler(std::move(handler)) { }
    bool open(const QUrl &address, std::function<void()> failed) override;

private:
    DesktopHandler m_handler;
};

/// Opens folders of this machine with what shows folders, and nothing else: never a file in one. Needs the application
/// object.
class DesktopFolderOpener : public LinkOpener
{
public:
    explicit DesktopFolderOpener(DesktopHandler handler = {}) : m_handler(std::move(handler)) { }
    bool open(const QUrl &address, std::function<void()> failed) override;

private:
    DesktopHandler m_handler;
};

} // namespace nimb
