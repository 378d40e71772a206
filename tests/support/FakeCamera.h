#pragma once

#include "platform/media/CaptureSource.h"

/// A camera that sees what a test puts before it.
class FakeCamera : public CaptureSource
{
public:
    bool works = true;
    bool isOpen = false;

    /// Sends a frame to whoever looks.
    void see(const QImage &frame);

    bool open() override;
    void startPreview(int milliseconds, const Preview &show) override;
    QImage copyFrame() const override { return m_frame; }
    void close() override;

private:
    QImage m_frame;
    Preview m_show;
};

/// Somebody before a wall, with the shades and the grain of a photo.
QImage portrait(QSize size, const QColor &shirt = QColor(60, 90, 150));
