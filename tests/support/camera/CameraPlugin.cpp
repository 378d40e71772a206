#include <gst/gst.h>

#include <cstdlib>
#include <unistd.h>

// Cameras made of files, as MORVELANE_TEST_CAMERAS lists them, one a line: "modes|file|event|from|to". The file holds
// one picture in the one mode that is offered, and is read anew for each; without a file a camera makes a chequered
// pattern in whatever mode is asked for. From a picture on an event happens to the camera, see `happen`.

namespace {
constexpr unsigned long pictureMicroseconds = 33'000;

struct Happening
{
    enum Field
    {
        Modes,
        File,
        Event,
        From,
        To,
        Count
    };

    gchar **fields;
    gint64 pictures = 0;

    bool is(const char *event) const { return g_str_equal(fields[Event], event); }
    gint64 number(Field field) const { return g_ascii_strtoll(fields[field], nullptr, 10); }
};

[[noreturn]] void hang()
{
    for (;;)
        ::pause();
}

GstPadProbeReturn happen(GstPad *pad, GstPadProbeInfo *, gpointer data)
{
    auto &camera = *static_cast<Happening *>(data);
    g_usleep(pictureMicroseconds);
    if (++camera.pictures <= camera.number(Happening::From))
        return GST_PAD_PROBE_OK;
    if (camera.is("crash"))
        std::abort();
    if (camera.is("hang"))
        hang();
    if (camera.is("unplugged"))
        GST_ELEMENT_ERROR(GST_ELEMENT(GST_OBJECT_PARENT(pad)), RESOURCE, READ, ("gone"), (nullptr));
    if (camera.is("late") && camera.pictures == 1)
        g_usleep(static_cast<gulong>(camera.number(Happening::To)));
    const bool silent = camera.is("silent") && camera.pictures < camera.number(Happening::To);
    return silent ? GST_PAD_PROBE_DROP : GST_PAD_PROBE_OK;
}

struct TestDevice
{
    GstDevice parent;
    gchar **fields;
};
using TestDeviceClass = GstDeviceClass;
G_DEFINE_TYPE(TestDevice, test_device, GST_TYPE_DEVICE)

GstElement *createElement(GstDevice *device, const gchar *name)
{
    auto *camera = g_new0(Happening, 1);
    camera->fields = reinterpret_cast<TestDevice *>(device)->fields;
    const gchar *file = camera->fields[Happening::File];
    GstElement *source = gst_element_factory_make(*file ? "multifilesrc" : "videotestsrc", name);
    if (*file) {
        GstCaps *modes = gst_device_get_caps(device);
        g_object_set(source, "location", camera->is("busy") ? "/nowhere" : file, "loop", TRUE, "caps", modes, nullptr);
        gst_caps_unref(modes);
    } else {
        gst_util_set_object_arg(G_OBJECT(source), "pattern", "checkers-8");
    }
    if (camera->is("ended"))
        g_object_set(source, "num-buffers", static_cast<gint>(camera->number(Happening::From)), nullptr);
    GstPad *pad = gst_element_get_static_pad(source, "src");
    gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_BUFFER, happen, camera, nullptr);
    gst_object_unref(pad);
    return source;
}

void test_device_init(TestDevice *) {}

void test_device_class_init(TestDeviceClass *klass)
{
    klass->create_element = createElement;
}

using TestProvider = GstDeviceProvider;
using TestProviderClass = GstDeviceProviderClass;
G_DEFINE_TYPE(TestProvider, test_provider, GST_TYPE_DEVICE_PROVIDER)

GList *probe(GstDeviceProvider *)
{
    GList *cameras = nullptr;
    gchar **lines = g_strsplit(g_getenv("MORVELANE_TEST_CAMERAS"), "\n", -1);
    for (gchar **line = lines; *line; ++line) {
        gchar **fields = g_strsplit(*line, "|", Happening::Count);
        if (g_strv_length(fields) != Happening::Count)
            continue;
        if (g_str_equal(fields[Happening::Event], "driver hangs"))
            hang();
        GstCaps *modes = gst_caps_from_string(fields[Happening::Modes]);
        auto *camera = static_cast<TestDevice *>(g_object_new(test_device_get_type(), "display-name", *line,
                                                              "device-class", "Video/Source", "caps", modes, nullptr));
        gst_caps_unref(modes);
        camera->fields = fields;
        cameras = g_list_append(cameras, camera);
    }
    g_strfreev(lines);
    return cameras;
}

void test_provider_init(TestProvider *) {}

void test_provider_class_init(TestProviderClass *klass)
{
    klass->probe = probe;
    gst_device_provider_class_set_static_metadata(klass, "Cameras of files", "Video/Source", "For tests",
                                                  "The Morvelane authors");
}

gboolean init(GstPlugin *plugin)
{
    return gst_device_provider_register(plugin, "test_camera", GST_RANK_PRIMARY, test_provider_get_type());
}
} // namespace

#define PACKAGE "morvelane"
GST_PLUGIN_DEFINE(GST_VERSION_MAJOR, GST_VERSION_MINOR, test_camera, "Cameras of files", init, "1", "MIT/X11",
                  "morvelane", "https://example.org")
