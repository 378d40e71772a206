#include "platform/media/CameraModule.h"

#include <QPluginLoader>

std::shared_ptr<CaptureSource> loadFirstCamera()
{
    // Looked for beside the program and in Qt's folders for plugins.
    QPluginLoader loader("morvelane-camera");
    auto *module = qobject_cast<CameraModule *>(loader.instance());
    return module ? module->firstCamera() : nullptr;
}
