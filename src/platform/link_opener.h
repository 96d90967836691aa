// Opens addresses with the program that the user's desktop has for them.
#pragma once

#include "base/link_opener.h"

namespace nimb
{

/// Opens http, https, ftp and mailto addresses and nothing else, whoever asks: links come from strangers, and the
/// desktop would start programs for some other kinds. Needs the application object.
class DesktopLinkOpener : public LinkOpener
{
public:
    bool open(const QUrl &address) override;
};

/// Opens the pages that ship with the program with what shows web pages, and nothing else: no text that a peer sends
/// comes here. Needs the application object.
class DesktopPageOpener : public LinkOpener
{
public:
    bool open(const QUrl &address) override;
};

/// Opens folders of this machine with what shows folders, and nothing else: never a file in one. Needs the application
/// object.
class DesktopFolderOpener : public LinkOpener
{
public:
    bool open(const QUrl &address) override;
};

} // namespace nimb
