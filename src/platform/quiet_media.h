// What Qt Multimedia is kept from saying and doing while it looks for devices.
#pragma once

#include <QtGlobal>

namespace nimb
{

/// While one lives, Qt's remarks are not printed, among them the one on a missing sound server, whose unnamed category
/// cannot be switched off by itself. And a backend that is loaded meanwhile does not look for graphics cards that could
/// decode films: we have none to show, and their drivers write to the error output. Made where devices are first asked
/// for, on one thread alone.
class QuietMedia
{
public:
    QuietMedia();
    ~QuietMedia();
    Q_DISABLE_COPY_MOVE(QuietMedia)

private:
    QtMessageHandler m_previous;
    bool m_decodingWasSet;
    bool m_encodingWasSet;
};

} // namespace nimb
