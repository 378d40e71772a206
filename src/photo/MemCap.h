#pragma once

#include <memory>

class CaptureSource;
class PictureBox;

/// What the webcam window does with the camera.
class MemCap
{
public:
    /// Whether the camera is connected.
    bool Conectado = false;

    /// Connects the first camera and shows what it sees.
    void connectTo(PictureBox &preview);
    /// Copies the frame of this moment to the clipboard.
    void copyFrame() const;
    void close();

private:
    std::shared_ptr<CaptureSource> m_camera;
};
