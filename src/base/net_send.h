// Sends a pop-up text to a computer whose user need not run the messenger.
#pragma once

#include <QString>

#include <optional>

namespace nimb
{

class NetSend
{
public:
    virtual ~NetSend() = default;
    /// Hands the text to the system's service for such messages, without waiting for it; whether it arrives is not
    /// known. Returns one sentence for the user when this system has no such service.
    [[nodiscard]] virtual std::optional<QString> send(const QString &computer, const QString &message) = 0;
};

} // namespace nimb
