#include "photo/Conversor_JPG.h"
#include "photo/frmwebcam.h"
#include "platform/media/CameraModule.h"
#include "platform/window/Forms.h"
#include "platform/window/PictureBox.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TestCafe.h"

#include <QDir>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

namespace {
/// Shades with the grain of a photo: greener to the right, and redder to the bottom.
QImage snapshot(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QRandomGenerator chance(1);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const int grain = chance.bounded(9);
            image.setPixel(x, y, qRgb(240 * y / size.height() + grain, 240 * x / size.width() + grain, 90 + grain));
        }
    return image;
}

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
        FakeCamera &camera = m_machine.installCamera();
        const QImage first = snapshot({320, 240});
        const QImage second = first.mirrored();
        camera.see(first);
        frmwebcam &window = Forms::use<frmwebcam>();
        window.Show();
        auto &preview = control<PictureBox>(window, "JanelaCaptura");
        QCOMPARE(preview.Picture().toImage(), first);
        QVERIFY(!control(window, "cmdconfirmar").isEnabled());

        QSignalSpy told(&window, &frmwebcam::confirmed);
        click(window, "cmdcapturar_tela");
        camera.see(second);
        QCOMPARE(preview.Picture().toImage(), second);
        QCOMPARE(control<PictureBox>(window, "pctfoto").Picture().toImage(), first);
        click(window, "cmdcapturar_tela");
        click(window, "cmdconfirmar");
        QCOMPARE(told.size(), 1);
        QVERIFY(told.first().first().toString().endsWith("\\Fototemp.jpg"));
        QVERIFY(psnr(QImage(m_cafe.path("Fototemp.jpg")), second) > 35);
        QVERIFY(!camera.isOpen && Forms::loaded().isEmpty());
        camera.see(first);
    }

    void noCameraClosesTheWindow()
    {
        for (const bool installed : {false, true}) {
            Machine::current().camera = [] { return nullptr; };
            if (installed)
                m_machine.installCamera().works = false;
            Attendant attendant;
            attendant.expectNotice("Não foi possível usar a câmera. Verifique se ela está ligada.", "Aviso");
            frmwebcam &window = Forms::use<frmwebcam>();
            window.Show();
            QVERIFY(!window.isVisible() && Forms::loaded().isEmpty());
        }
        QVERIFY(loadFirstCamera());
    }

    void fileHoldsThePicture()
    {
        const QTemporaryDir folder;
        QVERIFY(snapshot({9, 9}).save(folder.filePath("FOTOTEMP.JPG")));
        const QDateTime begin = m_machine.clock;
        for (const QSize size : {QSize(349, 290), QSize(640, 480), QSize(1, 1)}) {
            Salvar_JPG(QPixmap::fromImage(snapshot(size)), folder.filePath("Fototemp.jpg"));
            QCOMPARE(filesIn(folder).size(), 1);
            const double likeness = psnr(QImage(folder.filePath(filesIn(folder).first())), snapshot(size));
            QVERIFY2(likeness > 35, qPrintable(QString::number(likeness)));
        }
        QCOMPARE(m_machine.clock, begin);
    }

    void failuresWaitTheirTimeOut()
    {
        const QTemporaryDir folder;
        const QPixmap picture = QPixmap::fromImage(snapshot({640, 480}));
        const QTime begin = m_machine.clock.time();
        {
            const FullDisk full;
            Salvar_JPG(picture, folder.filePath("Fototemp.jpg"));
        }
        QCOMPARE(begin.secsTo(m_machine.clock.time()), 25);
        Salvar_JPG(QPixmap(), folder.filePath("Fototemp.jpg"));
        QCOMPARE(begin.secsTo(m_machine.clock.time()), 50);
        m_machine.clock.setTime(QTime(23, 59, 58));
        Salvar_JPG(picture, folder.filePath("missing folder/Fototemp.jpg"));
        QVERIFY(m_machine.clock.time() < QTime(0, 0, 1));
        QCOMPARE(filesIn(folder), QStringList());
    }

private:
    FakeMachine m_machine;
    TestCafe m_cafe;
};

STORY_MAIN(tst_photo)
#include "tst_photo.moc"
