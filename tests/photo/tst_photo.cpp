#include "photo/Conversor_JPG.h"
#include "photo/frmwebcam.h"
#include "platform/window/Clipboard.h"
#include "platform/window/PictureBox.h"
#include "shell/frmprincipal.h"
#include "tests/support/FullDisk.h"
#include "tests/support/Portrait.h"
#include "tests/support/TestDesk.h"

#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTimer>

#include <cmath>

#include <sys/wait.h>

namespace {
const QString cannotUse = "Não foi possível usar a câmera. Verifique se ela está ligada.";

/// Likeness of two pictures in decibels.
double psnr(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 0;
    double squares = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            for (const int shift : {0, 8, 16})
                squares += std::pow(int(one.pixel(x, y) >> shift & 255) - int(other.pixel(x, y) >> shift & 255), 2);
    return 10 * std::log10(255 * 255 * 3.0 * one.width() * one.height() / squares);
}

/// The window before a camera, from its opening on.
struct Window
{
    explicit Window(TestCamera &before, const QImage &seen = {}) : camera(before), form(opened(before, seen)) {}
    ~Window() { form.Unload(); }

    static frmwebcam &opened(TestCamera &camera, const QImage &seen)
    {
        if (!seen.isNull())
            camera.see(seen);
        auto &form = Forms::use<frmwebcam>();
        form.Show();
        return form;
    }
    PictureBox &preview() const { return control<PictureBox>(form, "JanelaCaptura"); }
    QImage previewed() const { return preview().Picture().toImage(); }
    QImage captured() const { return control<PictureBox>(form, "pctfoto").Picture().toImage(); }
    void press(const char *button) const { click(form, button); }
    bool sees(const QImage &image) const
    {
        return QTest::qWaitFor([&] { return previewed() == image; });
    }

    TestCamera &camera;
    frmwebcam &form;
};

/// Whether no process is left, not even one that ended and is not reaped; a busy computer takes its time.
bool isWithoutChildren()
{
    siginfo_t left;
    return QTest::qWaitFor([&] { return ::waitid(P_ALL, 0, &left, WEXITED | WNOHANG | WNOWAIT) == -1; });
}

QStringList filesIn(const QTemporaryDir &folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
}
} // namespace

/// The road of a photo from the camera to its file.
class tst_photo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_cafe.start(); }

    void theLastFrameIsStored()
    {
        const QImage first = portrait({640, 480});
        const QImage second = first.mirrored();
        Window window(m_machine.installCamera(), first);
        QVERIFY(window.sees(first));
        QVERIFY(!control(window.form, "cmdconfirmar").isEnabled());

        QSignalSpy told(&window.form, &frmwebcam::confirmed);
        window.press("cmdcapturar_tela");
        window.camera.see(second);
        QVERIFY(window.sees(second));
        QCOMPARE(window.captured(), first);
        window.press("cmdcapturar_tela");
        window.press("cmdconfirmar");
        QCOMPARE(told.size(), 1);
        QVERIFY(told.first().first().toString().endsWith("\\Fototemp.jpg"));
        QVERIFY(psnr(QImage(m_cafe.path("Fototemp.jpg")), second) > 35);
        QVERIFY(Forms::loaded().isEmpty() && isWithoutChildren());
    }

    /// The sides are cut, nothing is stretched, and the mode with the least work is taken, of the first camera alone.
    void sizesAndModes()
    {
        for (const QSize size : {QSize(1280, 720), QSize(3840, 2160), QSize(320, 240)}) {
            TestCamera &camera = m_machine.installCamera();
            const QImage seen = portrait(size);
            size.height() == 720 ? camera.seeJpeg(seen) : camera.see(seen);
            TestCamera second;
            second.see(portrait({640, 480}).mirrored());
            TestCamera::plug({&camera, &second});
            const QSize cut = QSize(4, 3).scaled(size, Qt::KeepAspectRatio);
            const QImage wanted = seen.copy((size.width() - cut.width()) / 2, 0, cut.width(), cut.height())
                                      .scaled(640, 480, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            Window window(camera);
            const double likeness = psnr(window.previewed(), wanted);
            QVERIFY2(likeness > 25, qPrintable(QString::number(likeness)));
        }
        TestCamera &camera = m_machine.installCamera();
        camera.offer("image/jpeg,width=640,height=480;video/x-raw,width=352,height=288,framerate=30/1;"
                     "video/x-raw,width=1280,height=720,framerate=30/1;"
                     "video/x-raw,width=640,height=480,framerate={30/1,5/1}");
        Window window(camera);
        // Squares of eight pixels that were not scaled.
        QCOMPARE(window.previewed().pixel(7, 7), window.previewed().pixel(0, 0));
        QVERIFY(window.previewed().pixel(8, 7) != window.previewed().pixel(7, 7));
    }

    void noCameraClosesTheWindow()
    {
        for (const char *fault : {"none", "no program", "busy", "crash", "driver hangs", "hang", "late"}) {
            TestCamera &camera = m_machine.installCamera();
            camera.see(portrait({640, 480}));
            camera.suffer(fault, 0, 5'000'000);
            if (qstrcmp(fault, "none") == 0)
                TestCamera::plug({});
            if (qstrcmp(fault, "no program") == 0)
                Machine::current().cameraProgram = [] { return QString("/nowhere"); };
            Attendant attendant;
            attendant.expectNotice(cannotUse, "Aviso");
            QElapsedTimer clock;
            clock.start();
            const Window window(camera);
            QVERIFY2(clock.elapsed() < 5000 && !window.form.isVisible(), fault);
            QVERIFY(Forms::loaded().isEmpty() && isWithoutChildren());
        }
    }

    void saysThatThereIsNoPictureAndShowsTheNextOne()
    {
        const QImage first = portrait({640, 480});
        for (const char *fault : {"silent", "unplugged", "ended", "crash", "hang"}) {
            TestCamera &camera = m_machine.installCamera();
            camera.suffer(fault, 20, 120);
            Window window(camera, first);
            window.press("cmdcapturar_tela");
            QTRY_COMPARE(window.preview().text(), cannotUse);
            QVERIFY(window.preview().Picture().isNull());
            // What was seen last is no picture of this moment.
            QGuiApplication::clipboard()->clear();
            window.press("cmdcapturar_tela");
            QVERIFY(!Clipboard::hasPicture() && window.captured() == first);
            const bool comesBack = qstrcmp(fault, "hang") != 0;
            QVERIFY2(!comesBack || window.sees(first), fault);
            QElapsedTimer clock;
            clock.start();
            window.press("cmdcancelar");
            QVERIFY(clock.elapsed() < 300 && isWithoutChildren());
        }
    }

    /// What the attendant does while the camera takes its time.
    void pressesWhileItConnects()
    {
        TestCamera &camera = m_machine.installCamera();
        camera.see(portrait({640, 480}));
        camera.suffer("late", 0, 1'500'000);
        int opened = 0;
        const auto later = [&](const auto &press) {
            QTimer::singleShot(700, this, [&opened, press] {
                ++opened;
                press(Forms::use<frmwebcam>());
            });
        };
        later([](frmwebcam &form) { form.Show(); });
        {
            const Window window(camera);
            QVERIFY(window.form.isVisible() && Forms::loaded().size() == 1);
            window.press("cmdcancelar");
        }
        later([](frmwebcam &form) { form.close(); });
        const Window closed(camera);
        QVERIFY(!closed.form.isVisible() && Forms::loaded().isEmpty() && isWithoutChildren());
        Forms::use<frmprincipal>();
        later([](frmwebcam &) { loadedWindow("frmprincipal").Unload(); });
        const Window left(camera);
        QVERIFY(Forms::loaded().isEmpty() && isWithoutChildren() && opened == 3);
    }

    void fileHoldsThePictureOrNothing()
    {
        const QTemporaryDir folder;
        const auto save = [&](const QImage &image, const QString &name = "Fototemp.jpg") {
            const QTime begin = m_machine.clock.time();
            Salvar_JPG(QPixmap::fromImage(image), folder.filePath(name));
            return begin.secsTo(m_machine.clock.time());
        };
        // Failures wait their time out.
        {
            const FullDisk full;
            QCOMPARE(save(portrait({640, 480})), 25);
        }
        QCOMPARE(save({}), 25);
        m_machine.clock.setTime(QTime(23, 59, 58));
        save(portrait({640, 480}), "missing folder/Fototemp.jpg");
        QVERIFY(m_machine.clock.time() < QTime(0, 0, 1));
        QCOMPARE(filesIn(folder), QStringList());
        QVERIFY(portrait({9, 9}).save(folder.filePath("FOTOTEMP.JPG")));
        for (const QSize size : {QSize(349, 290), QSize(640, 480), QSize(1, 1)}) {
            QCOMPARE(save(portrait(size)), 0);
            QCOMPARE(filesIn(folder).size(), 1);
            const double likeness = psnr(QImage(folder.filePath(filesIn(folder).first())), portrait(size));
            QVERIFY2(likeness > 35, qPrintable(QString::number(likeness)));
        }
    }

private:
    FakeMachine m_machine;
    TestCafe m_cafe;
};

STORY_MAIN(tst_photo)
#include "tst_photo.moc"
