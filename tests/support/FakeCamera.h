#pragma once

#include "platform/media/CaptureSource.h"

/// A camera that sees what a test puts before it.
class FakeCamera : public CaptureSource
{
public:
    bool works = true;
    bool isOpen = false;

    /// Sends a frame to whoever looks.
    void see(const QImage &frame)
    {
        m_frame = frame;
        if (m_show)
            m_show(frame);
    }

    bool open() override { return isOpen = works; }
    void startPreview(int, const Preview &show) override
    {
        m_show = show;
        if (!m_frame.isNull())
            m_show(m_frame);
    }
    QImage copyFrame() const override { return m_frame; }
    void close() override
    {
        isOpen = false;
        m_show = nullptr;
    }

private:
    QImage m_frame;
    Preview m_show;
};
