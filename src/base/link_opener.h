// Opens an address with whatever the user's system has for it.
#pragma once

#include <QUrl>

namespace nimb
{

class LinkOpener
{
public:
    virtual ~LinkOpener() = default;
    /// Hands the address to the system's handler and returns at once; a failure stays unnoticed. The caller has made
    /// sure that this kind of address may be opened.
    virtual void open(const QUrl &address) = 0;
};

} // namespace nimb
