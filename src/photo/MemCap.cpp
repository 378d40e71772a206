#include "photo/MemCap.h"

#include "platform/media/FirstCamera.h"
#include "platform/window/Clipboard.h"
#include "platform/window/Forms.h"
#include "platform/window/PictureBox.h"

void MemCap::connectTo(PictureBox &preview, const QString &withoutPicture)
{
    // Whoever closes the window while this waits lets go of the camera.
    const auto camera = m_camera = std::make_shared<FirstCamera>();
    QObject::connect(camera.get(), &FirstCamera::sees, &preview,
                     [&preview](const QImage &frame) { preview.setPicture(QPixmap::fromImage(frame)); });
    QObject::connect(camera.get(), &FirstCamera::seesNothing, &preview,
                     [&preview, withoutPicture] { preview.setText(withoutPicture); });
    const EventPump pump;
    Conectado = camera->open();
}

void MemCap::copyFrame() const
{
    const QImage frame = Conectado ? m_camera->picture() : QImage();
    if (!frame.isNull())
        Clipboard::SetData(QPixmap::fromImage(frame));
}

void MemCap::close()
{
    if (m_camera)
        m_camera->close();
    m_camera.reset();
    Conectado = false;
}
