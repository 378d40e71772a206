#pragma once

#include "platform/media/CameraModule.h"

#include <QElapsedTimer>

class QVideoFrame;

/// The first camera of the computer.
class FirstCamera : public CaptureSource
{
public:
    FirstCamera();
    ~FirstCamera() override;

    bool open() override;
    void startPreview(int milliseconds, const Preview &show) override;
    QImage copyFrame() const override { return m_frame; }
    void close() override;

private:
    void take(const QVideoFrame &frame);

    struct Line;

    /// Laid only to a camera that is there: making its parts wakes the whole media system.
    std::unique_ptr<Line> m_line;
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
