#include "platform/media/FirstCamera.h"

#include <QCameraDevice>
#include <QMediaDevices>
#include <QVideoFrame>

bool FirstCamera::open()
{
    // Without a camera the sink would deliver a test pattern.
    const QList<QCameraDevice> cameras = QMediaDevices::videoInputs();
    if (cameras.isEmpty())
        return false;
    m_camera = std::make_unique<QCamera>(cameras.first());
    m_session.setCamera(m_camera.get());
    m_session.setVideoSink(&m_sink);
    m_camera->start();
    return m_camera->isActive() && m_camera->error() == QCamera::NoError;
}

void FirstCamera::startPreview(int milliseconds, const Preview &show)
{
    m_milliseconds = milliseconds;
    m_show = show;
    m_frames = QObject::connect(&m_sink, &QVideoSink::videoFrameChanged, &m_sink,
                                [this](const QVideoFrame &frame) { take(frame); });
}

void FirstCamera::close()
{
    QObject::disconnect(m_frames);
    m_session.setCamera(nullptr);
    m_camera.reset();
}

void FirstCamera::take(const QVideoFrame &frame)
{
    const bool soon = m_sinceFrame.isValid() && m_sinceFrame.elapsed() < m_milliseconds;
    if (soon || !m_camera->isActive())
        return;
    // Not every frame can be read: a camera may lose its cable between two of them.
    QImage image = frame.toImage();
    if (image.isNull())
        return;
    m_sinceFrame.start();
    m_frame = std::move(image);
    m_show(m_frame);
}
