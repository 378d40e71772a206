#include "tour/OffscreenScreen.h"

OffscreenScreen::OffscreenScreen(int width, int height)
{
    const QString screen = R"({"screens":[{"name":"%1x%2","x":0,"y":0,"width":%1,"height":%2,"logicalDpi":96,)"
                           R"("logicalBaseDpi":96,"dpr":1}]})";
    if (!m_file.open())
        qFatal("No temporary file");
    m_file.write(screen.arg(width).arg(height).toUtf8());
    m_file.flush();
}

QByteArray OffscreenScreen::platform() const
{
    return "offscreen:configfile=" + m_file.fileName().toUtf8();
}
