#pragma once

#include <memory>

class FirstCamera;
class PictureBox;
class QString;

/// What the webcam window does with the camera.
class MemCap
{
public:
    /// Whether the camera is connected.
    bool Conectado = false;

    /// Connects the first camera and shows what it sees, or `withoutPicture` while it sees nothing. Events run
    /// meanwhile, in which the camera may be closed again.
    void connectTo(PictureBox &preview, const QString &withoutPicture);
    /// Copies the frame of this moment to the clipboard, if there is one.
    void copyFrame() const;
    void close();

private:
    std::shared_ptr<FirstCamera> m_camera;
};
