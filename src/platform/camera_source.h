// The frames of a camera.
#pragma once

#include "base/picture_source.h"

#include <QCoreApplication>

#include <memory>

class QCamera;
class QMediaCaptureSession;
class QVideoFrame;
class QVideoSink;

namespace nimb
{

/// What the camera saw as a frame of the own polled picture; nothing before it has seen anything.
std::optional<QByteArray> frameOf(const QVideoFrame &newest);

/// Runs the system's default camera as long as it lives.
class CameraSource : public PictureSource
{
    Q_DECLARE_TR_FUNCTIONS(CameraSource)

public:
    CameraSource();
    ~CameraSource() override;

    std::optional<QByteArray> frame() override;
    std::optional<QString> problem() const override { return m_problem; }
    PolledPicture origin() const override { return Camera{}; }

private:
    std::optional<QString> m_problem;
    std::unique_ptr<QCamera> m_camera;
    std::unique_ptr<QVideoSink> m_sink;
    std::unique_ptr<QMediaCaptureSession> m_session; ///< lets go of the two above first
};

} // namespace nimb
