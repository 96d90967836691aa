// Where this system keeps what programs remember.
#pragma once

#include <QString>

#include <optional>

namespace nimb
{

/// The user's folder for the settings of programs.
QString configurationFolder();

/// That of the user who has asked for a program to be run as administrator; nothing where that is not known.
std::optional<QString> configurationFolderOfCaller();

/// Of settings for everybody on the machine.
QString siteFolder();

} // namespace nimb
