#include "platform/media/FirstCamera.h"

#include <QCamera>
#include <QCameraDevice>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QVideoFrame>
#include <QVideoSink>

struct FirstCamera::Line
{
    explicit Line(const QCameraDevice &device) : camera(device)
    {
        session.setCamera(&camera);
        session.setVideoSink(&sink);
    }

    QVideoSink sink;
    QCamera camera;
    QMediaCaptureSession session;
};

FirstCamera::FirstCamera() = default;
FirstCamera::~FirstCamera() = default;

bool FirstCamera::open()
{
    // Without a camera the sink would deliver a test pattern.
    const QList<QCameraDevice> cameras = QMediaDevices::videoInputs();
    if (cameras.isEmpty())
        return false;
    m_line = std::make_unique<Line>(cameras.first());
    m_line->camera.start();
    return m_line->camera.isActive() && m_line->camera.error() == QCamera::NoError;
}

void FirstCamera::startPreview(int milliseconds, const Preview &show)
{
    m_milliseconds = milliseconds;
    m_show = show;
    QVideoSink &sink = m_line->sink;
    QObject::connect(&sink, &QVideoSink::videoFrameChanged, &sink, [this](const QVideoFrame &frame) { take(frame); });
}

void FirstCamera::close()
{
    m_line.reset();
}

void FirstCamera::take(const QVideoFrame &frame)
{
    const bool soon = m_sinceFrame.isValid() && m_sinceFrame.elapsed() < m_milliseconds;
    if (soon || !m_line->camera.isActive())
        return;
    // Not every frame can be read: a camera may lose its cable between two of them.
    QImage image = frame.toImage();
    if (image.isNull())
        return;
    m_sinceFrame.start();
    m_frame = std::move(image);
    m_show(m_frame);
}
