#pragma once

#include <QImage>

#include <functional>

/// A camera: open it, see what it sees, copy one frame, close it.
class CaptureSource
{
public:
    using Preview = std::function<void(const QImage &frame)>;

    virtual ~CaptureSource() = default;

    /// False when there is no camera, or when it can't be used.
    virtual bool open() = 0;
    /// From here on `show` gets the camera's frames, at most one in so many milliseconds.
    virtual void startPreview(int milliseconds, const Preview &show) = 0;
    /// The newest frame; a null image while none has come.
    virtual QImage copyFrame() const = 0;
    virtual void close() = 0;
};
