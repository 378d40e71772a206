#pragma once

#include <array>
#include <cstdint>

/// What the camera's process writes on its output: this before each picture, whose size never varies, so that nothing
/// in it has to be believed but the mark.
struct CameraFrame
{
    static constexpr int width = 640;
    static constexpr int height = 480;
    static constexpr int bytesPerLine = 3 * width; ///< red, green, blue
    static constexpr int pictureBytes = bytesPerLine * height;
    static constexpr std::array<char, 8> ownMark{'M', 'V', 'F', 'r', 'a', 'm', 'e', '1'};

    std::array<char, 8> mark = ownMark;
    /// When the camera gave the picture, on the monotonic clock. 0 in the one header without a picture behind it, which
    /// tells that the media library is up and looks for the camera now.
    std::int64_t nanoseconds = 0;
};
