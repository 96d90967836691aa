// Opens an address with whatever the user's system has for it.
#pragma once

#include <QUrl>

namespace nimb
{

class LinkOpener
{
public:
    virtual ~LinkOpener() = default;
    /// Hands the address to the system's handler and returns at once. False when the system has none; whether it does
    /// its work nobody hears. The caller has made sure that this kind of address may be opened.
    [[nodiscard]] virtual bool open(const QUrl &address) = 0;
};

} // namespace nimb
