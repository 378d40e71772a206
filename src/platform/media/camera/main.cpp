#include "platform/media/CameraFrame.h"
#include "platform/media/camera/CameraMode.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <gst/app/gstappsink.h>

#include <algorithm>
#include <atomic>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <cstring>

// Owns the computer's first camera for the terminal and writes what it sees to the standard output, 640×480, at most 15
// pictures a second. Drivers and media libraries may crash or hang here without harm to the till, which ends this
// process whenever it likes. It ends by itself when the camera does.

namespace {
constexpr std::int64_t second = 1'000'000'000;

/// Lets through what is due of the camera's pictures, before any work is put into the others.
struct Gate
{
    std::int64_t interval = 0;
    std::int64_t due = 0;
    std::atomic<std::int64_t> lastLetThrough{0};
};

/// Nothing is taken down: a camera's driver may not come back from that.
[[noreturn]] void end()
{
    std::_Exit(EXIT_SUCCESS);
}

std::int64_t now()
{
    return g_get_monotonic_time() * 1000;
}

/// Waits as long as the till is busy; meanwhile the pipeline drops all pictures but the newest.
void deliver(int output, const void *data, std::size_t size)
{
    for (const auto *next = static_cast<const char *>(data); size > 0;) {
        const ssize_t written = ::write(output, next, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            end();
        next += written;
        size -= static_cast<std::size_t>(written);
    }
}

GstPadProbeReturn pass(GstPad *, GstPadProbeInfo *, gpointer data)
{
    auto &gate = *static_cast<Gate *>(data);
    const std::int64_t moment = now();
    if (moment < gate.due)
        return GST_PAD_PROBE_DROP;
    gate.due = std::max(gate.due, moment - gate.interval) + gate.interval;
    gate.lastLetThrough = moment;
    return GST_PAD_PROBE_OK;
}

GstDevice *firstCamera()
{
    GstDeviceMonitor *monitor = gst_device_monitor_new();
    gst_device_monitor_add_filter(monitor, "Video/Source", nullptr);
    GList *devices = gst_device_monitor_get_devices(monitor);
    return devices ? GST_DEVICE(devices->data) : nullptr;
}

/// Cuts the sides rather than stretch what a wide camera sees.
GstElement *lineBehind(const CameraMode &mode)
{
    gchar *text = g_strdup_printf("%s aspectratiocrop aspect-ratio=4/3 ! "
                                  "videoconvertscale add-borders=false ! "
                                  "video/x-raw,format=RGB,width=%d,height=%d,pixel-aspect-ratio=1/1 ! "
                                  "appsink name=pictures sync=false drop=true max-buffers=1",
                                  mode.isJpeg ? "jpegdec !" : "", CameraFrame::width, CameraFrame::height);
    GstElement *line = gst_parse_bin_from_description(text, TRUE, nullptr);
    g_free(text);
    if (!line)
        end();
    return line;
}

/// Pictures beyond full HD come rarer, so that a camera that offers nothing smaller costs no more time.
std::int64_t intervalOf(const CameraMode &mode)
{
    constexpr std::int64_t mostPerSecond = 15;
    constexpr std::int64_t fullHd = 1920 * 1080;
    return second / mostPerSecond * std::max(fullHd, std::int64_t{mode.width} * mode.height) / fullHd;
}

void send(int output, GstSample *sample, std::int64_t taken)
{
    GstBuffer *buffer = gst_sample_get_buffer(sample);
    GstMapInfo map;
    if (gst_buffer_map(buffer, &map, GST_MAP_READ)) {
        if (map.size == CameraFrame::pictureBytes) {
            const CameraFrame header{.nanoseconds = taken};
            deliver(output, &header, sizeof header);
            deliver(output, map.data, map.size);
        }
        gst_buffer_unmap(buffer, &map);
    }
    gst_sample_unref(sample);
}

[[noreturn]] void watch(GstDevice *camera, int output)
{
    const CameraMode mode = bestMode(gst_device_get_caps(camera));
    GstElement *pipeline = gst_pipeline_new(nullptr);
    GstElement *source = gst_device_create_element(camera, nullptr);
    GstElement *line = lineBehind(mode);
    if (!source)
        end();
    gst_bin_add_many(GST_BIN(pipeline), source, line, nullptr);
    if (!gst_element_link_filtered(source, line, mode.caps))
        end();
    Gate gate{.interval = intervalOf(mode)};
    gst_pad_add_probe(gst_element_get_static_pad(line, "sink"), GST_PAD_PROBE_TYPE_BUFFER, pass, &gate, nullptr);
    GstAppSink *sink = GST_APP_SINK(gst_bin_get_by_name(GST_BIN(line), "pictures"));
    GstBus *bus = gst_element_get_bus(pipeline);
    if (gst_element_set_state(pipeline, GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE)
        end();
    constexpr auto ends = static_cast<GstMessageType>(GST_MESSAGE_ERROR | GST_MESSAGE_EOS);
    while (!gst_app_sink_is_eos(sink) && !gst_bus_pop_filtered(bus, ends))
        if (GstSample *sample = gst_app_sink_try_pull_sample(sink, second / 10))
            send(output, sample, gate.lastLetThrough);
    end();
}
} // namespace

/// `argv[1]` is the number of the process that starts this one.
int main(int argc, char **argv)
{
    int parent = 0;
    if (argc != 2 || std::from_chars(argv[1], argv[1] + std::strlen(argv[1]), parent).ec != std::errc())
        return EXIT_FAILURE;
    // However the terminal ends, this must not keep the camera.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        return EXIT_FAILURE;
    // The terminal ends the whole group.
    ::setpgid(0, 0);
    // Libraries that print would write between the pictures.
    const int output = ::dup(STDOUT_FILENO);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    // Room for a whole picture, so that the terminal wakes up once for it.
    ::fcntl(output, F_SETPIPE_SZ, 1 << 20);
    gst_init(nullptr, nullptr);
    const CameraFrame isUp;
    deliver(output, &isUp, sizeof isUp);
    if (GstDevice *camera = firstCamera())
        watch(camera, output);
    end();
}
