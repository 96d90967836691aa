// What Qt Multimedia is kept from saying and doing while it looks for devices.
#pragma once

#include <QtGlobal>

#include <bitset>
#include <cstddef>

namespace nimb
{

/// While one lives, Qt's remarks are not printed, among them the one on a missing sound server, whose unnamed category
/// cannot be switched off by itself, and the sound system's library says nothing of what is not installed. And a
/// backend that is loaded meanwhile does not look for graphics cards that could decode films: we have none to show, and
/// their drivers write to the error output. Made where devices are first asked for, on one thread alone.
class QuietMedia
{
public:
    static constexpr std::size_t variables = 3; ///< of the environment that quieten libraries

    QuietMedia();
    ~QuietMedia();
    Q_DISABLE_COPY_MOVE(QuietMedia)

private:
    QtMessageHandler m_previous;
    std::bitset<variables> m_chosenByUser;
};

} // namespace nimb
