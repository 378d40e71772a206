#pragma once

#include "platform/media/CameraModule.h"

#include <QCamera>
#include <QElapsedTimer>
#include <QMediaCaptureSession>
#include <QVideoSink>

/// The first camera of the computer.
class FirstCamera : public CaptureSource
{
public:
    bool open() override;
    void startPreview(int milliseconds, const Preview &show) override;
    QImage copyFrame() const override { return m_frame; }
    void close() override;

private:
    void take(const QVideoFrame &frame);

    QMediaCaptureSession m_session;
    QVideoSink m_sink;
    std::unique_ptr<QCamera> m_camera;
    QMetaObject::Connection m_frames;
    Preview m_show;
    int m_milliseconds = 0;
    QElapsedTimer m_sinceFrame;
    QImage m_frame;
};

class FirstCameraModule : public QObject, public CameraModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CameraModule_iid)
    Q_INTERFACES(CameraModule)

public:
    std::shared_ptr<CaptureSource> firstCamera() override { return std::make_shared<FirstCamera>(); }
};
