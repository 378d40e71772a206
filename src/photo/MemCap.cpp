#include "photo/MemCap.h"

#include "platform/base/Machine.h"
#include "platform/media/CaptureSource.h"
#include "platform/window/Clipboard.h"
#include "platform/window/PictureBox.h"

void MemCap::connectTo(PictureBox &preview)
{
    constexpr int previewMilliseconds = 66;
    m_camera = Machine::current().camera();
    Conectado = m_camera && m_camera->open();
    if (Conectado)
        m_camera->startPreview(previewMilliseconds,
                               [box = &preview](const QImage &frame) { box->setPicture(QPixmap::fromImage(frame)); });
}

void MemCap::copyFrame() const
{
    const QImage frame = Conectado ? m_camera->copyFrame() : QImage();
    if (!frame.isNull())
        Clipboard::SetData(QPixmap::fromImage(frame));
}

void MemCap::close()
{
    if (Conectado)
        m_camera->close();
    m_camera.reset();
    Conectado = false;
}
