#pragma once

#include "platform/media/CameraFrame.h"

#include <gst/gst.h>

/// One of the sizes and rates that a camera offers.
struct CameraMode
{
    GstCaps *caps = nullptr;
    bool isJpeg = false;
    bool isSlow = false;
    int width = CameraFrame::width;
    int height = CameraFrame::height;
};

/// The mode that makes 640×480 with the least work: the smallest that covers it, or else the largest; then one that
/// isn't slow, then one that isn't compressed. Where the camera tells nothing, the mode leaves the choice to the
/// pipeline.
CameraMode bestMode(const GstCaps *offered);
