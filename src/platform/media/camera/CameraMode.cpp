#include "platform/media/camera/CameraMode.h"

#include <cstdint>
#include <limits>
#include <tuple>

namespace {
constexpr int wantedRate = 15;
constexpr int usualRate = 30;
/// Large plain pictures come slower than this over USB, where compressed ones come at full rate.
constexpr int slowRate = 10;

/// What a mode costs, the cheapest first.
using Cost = std::tuple<std::int64_t, bool, bool>;

void fixateNearest(GstStructure *mode, const char *field, int wanted)
{
    if (gst_structure_has_field(mode, field))
        gst_structure_fixate_field_nearest_int(mode, field, wanted);
}

/// Gives a mode one of its rates, and tells whether even that is slow.
bool fixateRate(GstStructure *mode)
{
    if (!gst_structure_has_field(mode, "framerate"))
        return false;
    const GValue *rates = gst_structure_get_value(mode, "framerate");
    GValue offered = G_VALUE_INIT;
    g_value_init(&offered, G_VALUE_TYPE(rates));
    g_value_copy(rates, &offered);
    int count = 0;
    int seconds = 1;
    for (const int rate : {wantedRate, usualRate}) {
        gst_structure_set_value(mode, "framerate", &offered);
        gst_structure_fixate_field_nearest_fraction(mode, "framerate", rate, 1);
        gst_structure_get_fraction(mode, "framerate", &count, &seconds);
        if (count >= slowRate * seconds)
            break;
    }
    g_value_unset(&offered);
    return count < slowRate * seconds;
}

CameraMode modeOf(const GstStructure *offered)
{
    GstStructure *one = gst_structure_copy(offered);
    fixateNearest(one, "width", CameraFrame::width);
    fixateNearest(one, "height", CameraFrame::height);
    CameraMode mode;
    mode.isSlow = fixateRate(one);
    mode.isJpeg = gst_structure_has_name(one, "image/jpeg");
    gst_structure_get_int(one, "width", &mode.width);
    gst_structure_get_int(one, "height", &mode.height);
    // Where the camera doesn't tell the shape of its pixels, any would do, the oddest first.
    GstStructure *square = gst_structure_copy(one);
    gst_structure_set(square, "pixel-aspect-ratio", GST_TYPE_FRACTION, 1, 1, nullptr);
    mode.caps = gst_caps_new_full(square, one, nullptr);
    return mode;
}

Cost costOf(const CameraMode &mode)
{
    const std::int64_t pixels = std::int64_t{mode.width} * mode.height;
    const bool covers = mode.width >= CameraFrame::width && mode.height >= CameraFrame::height;
    return {covers ? pixels : std::numeric_limits<std::int64_t>::max() - pixels, mode.isSlow, mode.isJpeg};
}

bool isReadable(const GstCaps *offered, unsigned index)
{
    const GstStructure *each = gst_caps_get_structure(offered, index);
    const bool known = gst_structure_has_name(each, "video/x-raw") || gst_structure_has_name(each, "image/jpeg");
    // What lies in a graphics card's memory would need its driver.
    return known &&
           gst_caps_features_is_equal(gst_caps_get_features(offered, index), GST_CAPS_FEATURES_MEMORY_SYSTEM_MEMORY);
}
} // namespace

CameraMode bestMode(const GstCaps *offered)
{
    CameraMode best;
    for (unsigned i = 0; offered && i < gst_caps_get_size(offered); ++i) {
        if (!isReadable(offered, i))
            continue;
        const CameraMode mode = modeOf(gst_caps_get_structure(offered, i));
        if (!best.caps || costOf(mode) < costOf(best))
            best = mode;
    }
    if (!best.caps)
        best.caps = gst_caps_new_any();
    return best;
}
