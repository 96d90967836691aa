#include "platform/camera_source.h"

#include "platform/picture_frame.h"
#include "platform/quiet_media.h"

#include <QCamera>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QVideoFrame>
#include <QVideoSink>

namespace nimb
{

CameraSource::CameraSource()
{
    const QuietMedia here;
    const QCameraDevice device = QMediaDevices::defaultVideoInput();
    if (device.isNull()) {
        m_problem = tr("There is no camera.");
        return;
    }
    m_camera = std::make_unique<QCamera>(device);
    m_sink = std::make_unique<QVideoSink>();
    m_session = std::make_unique<QMediaCaptureSession>();
    QObject::connect(
        m_camera.get(), &QCamera::errorOccurred, m_camera.get(),
        [this](QCamera::Error, const QString &text) { m_problem = tr("The camera stopped: %1").arg(text); });
    m_session->setCamera(m_camera.get());
    m_session->setVideoSink(m_sink.get());
    m_camera->start();
}

CameraSource::~CameraSource() = default;

std::optional<QByteArray> frameOf(const QVideoFrame &newest)
{
    const QImage image = newest.isValid() ? newest.toImage() : QImage();
    if (image.isNull())
        return std::nullopt;
    return frameOf(image);
}

/// The frame is turned into a picture only when somebody asks for it.
std::optional<QByteArray> CameraSource::frame()
{
    if (!m_sink)
        return std::nullopt;
    if (!QMediaDevices::videoInputs().contains(m_camera->cameraDevice())) {
        m_problem = tr("The camera was unplugged.");
        return std::nullopt;
    }
    return frameOf(m_sink->videoFrame());
}

} // namespace nimb
