// Whether the desktop starts the program by itself.
#pragma once

#include <QString>

#include <optional>

namespace nimb
{

class Autostart
{
public:
    virtual ~Autostart() = default;

    /// The desktop starts the program when this user logs in.
    virtual bool isOn() const = 0;
    /// From the next login on, minimised and under that nickname. Empty on success, otherwise the system's reason.
    [[nodiscard]] virtual std::optional<QString> switchOn(const QString &nickname) = 0;
    [[nodiscard]] virtual std::optional<QString> switchOff() = 0;
};

} // namespace nimb
