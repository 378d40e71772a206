#pragma once

#include "platform/media/CaptureSource.h"

#include <QtPlugin>

#include <memory>

/// The one entrance to the module that knows cameras. It is a file of its own beside the program, since the media
/// libraries behind it are large and most days nobody takes a photo.
class CameraModule
{
public:
    virtual ~CameraModule() = default;
    virtual std::shared_ptr<CaptureSource> firstCamera() = 0;
};

#define CameraModule_iid "Morvelane.CameraModule"
Q_DECLARE_INTERFACE(CameraModule, CameraModule_iid)

/// Loads the module at its first use; null when it isn't there.
std::shared_ptr<CaptureSource> loadFirstCamera();
