#include "platform/quiet_media.h"

#include <QByteArray>

namespace nimb
{
namespace
{

// Of Qt's FFmpeg backend: lists of kinds of graphics cards.
constexpr char decoding[] = "QT_FFMPEG_DECODING_HW_DEVICE_TYPES";
constexpr char encoding[] = "QT_FFMPEG_ENCODING_HW_DEVICE_TYPES";

/// Whether the user has chosen; an empty list otherwise.
bool isSetOrEmptied(const char *variable)
{
    if (qEnvironmentVariableIsSet(variable))
        return true;
    qputenv(variable, QByteArrayLiteral(","));
    return false;
}

} // namespace

QuietMedia::QuietMedia()
    : m_previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {})),
      m_decodingWasSet(isSetOrEmptied(decoding)), m_encodingWasSet(isSetOrEmptied(encoding))
{
}

/// Programs that ours starts do not inherit what is meant for ours.
QuietMedia::~QuietMedia()
{
    qInstallMessageHandler(m_previous);
    if (!m_decodingWasSet)
        qunsetenv(decoding);
    if (!m_encodingWasSet)
        qunsetenv(encoding);
}

} // namespace nimb
