// Starting with the desktop: an entry in the folder that every desktop reads at a login.
#pragma once

#include "base/autostart.h"

namespace nimb
{

/// An entry of the Desktop Application Autostart Specification, for this user alone.
class DesktopAutostart : public Autostart
{
public:
    /// folder: where the entries are, in the user's own configuration; name: of the file, without its ending; program:
    /// the full path of what is started.
    DesktopAutostart(const QString &folder, const QString &name, QString program);

    /// One that the user has switched off elsewhere, in the settings of the desktop, is not on.
    bool isOn() const override;
    std::optional<QString> switchOn(const QString &nickname) override;
    std::optional<QString> switchOff() override;

private:
    QString m_path, m_program;
};

} // namespace nimb
