#include "tests/support/TestCamera.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QSaveFile>

namespace {
QString modeOf(const QString &kind, const QImage &image)
{
    return QString("%1,width=%2,height=%3,framerate=30/1").arg(kind).arg(image.width()).arg(image.height());
}
} // namespace

TestCamera::TestCamera()
{
    qputenv("GST_PLUGIN_PATH", TEST_CAMERA_FOLDER);
    qputenv("GST_REGISTRY", TEST_CAMERA_FOLDER "/registry.bin");
    qputenv("GST_PLUGIN_FEATURE_RANK",
            "v4l2deviceprovider:NONE,pipewiredeviceprovider:NONE,libcameraprovider:NONE,decklinkdeviceprovider:NONE");
    plug({this});
}

void TestCamera::see(const QImage &image)
{
    const QImage plain = image.convertToFormat(QImage::Format_RGB888);
    show(QByteArray(reinterpret_cast<const char *>(plain.constBits()), plain.sizeInBytes()),
         modeOf("video/x-raw,format=RGB", image));
}

void TestCamera::seeJpeg(const QImage &image)
{
    QBuffer file;
    image.save(&file, "JPG");
    show(file.data(), modeOf("image/jpeg", image));
}

void TestCamera::show(const QByteArray &content, const QString &mode)
{
    m_file = m_folder.filePath("picture");
    m_modes = mode;
    // At once, as the camera may be reading the one before.
    QSaveFile file(m_file);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        qFatal("No picture for the camera");
    plug({this});
}

void TestCamera::suffer(const QString &event, int from, int to)
{
    m_event = QString("%1|%2|%3").arg(event).arg(from).arg(to);
    plug({this});
}

void TestCamera::offer(const QString &modes)
{
    m_file.clear();
    m_modes = modes;
    plug({this});
}

void TestCamera::plug(const QList<const TestCamera *> &cameras)
{
    QStringList lines;
    for (const TestCamera *camera : cameras)
        lines += QStringList{camera->m_modes, camera->m_file, camera->m_event}.join('|');
    qputenv("MORVELANE_TEST_CAMERAS", lines.join('\n').toUtf8());
}
