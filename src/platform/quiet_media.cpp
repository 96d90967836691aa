#include "platform/quiet_media.h"

#include <QByteArray>

#include <array>

namespace nimb
{
namespace
{

struct Variable {
    const char *name;
    const char *value;
};

constexpr std::array<Variable, QuietMedia::variables> quieting = {{
    // Of Qt's FFmpeg backend: lists of kinds of graphics cards.
    {"QT_FFMPEG_DECODING_HW_DEVICE_TYPES", ","},
    {"QT_FFMPEG_ENCODING_HW_DEVICE_TYPES", ","},
    // Of the PipeWire library: how much it says, which is nothing.
    {"PIPEWIRE_DEBUG", "0"},
}};

} // namespace

QuietMedia::QuietMedia()
    : m_previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}))
{
    for (std::size_t i = 0; i < quieting.size(); ++i) {
        m_chosenByUser.set(i, qEnvironmentVariableIsSet(quieting[i].name));
        if (!m_chosenByUser.test(i))
            qputenv(quieting[i].name, QByteArray(quieting[i].value));
    }
}

/// Programs that ours starts do not inherit what is meant for ours.
QuietMedia::~QuietMedia()
{
    qInstallMessageHandler(m_previous);
    for (std::size_t i = 0; i < quieting.size(); ++i) {
        if (!m_chosenByUser.test(i))
            qunsetenv(quieting[i].name);
    }
}

} // namespace nimb
