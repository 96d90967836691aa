// Opens an address with whatever the user's system has for it.
#pragma once

#include <QUrl>

#include <functional>

namespace nimb
{

class LinkOpener
{
public:
    virtual ~LinkOpener() = default;
    /// Hands the address to the system's handler and returns at once. False when the system has none. failed: called
    /// later when the handler says that it has found nothing to open the address with, where that can be heard at all.
    /// The caller has made sure that this kind of address may be opened.
    [[nodiscard]] virtual bool open(const QUrl &address, std::function<void()> failed) = 0;
};

} // namespace nimb
