#include "photo/frmwebcam.h"
#include "platform/media/CameraModule.h"
#include "platform/window/Forms.h"
#include "platform/window/PictureBox.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeCamera.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class TestWebcam : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_cafe.start(); }

    void theLastFrameIsStored()
    {
        FakeCamera &camera = m_machine.installCamera();
        const QImage first = portrait({320, 240}, Qt::darkRed);
        const QImage second = portrait({320, 240}, Qt::darkGreen);
        camera.see(first);
        frmwebcam &window = Forms::use<frmwebcam>();
        window.Show();
        auto &preview = control<PictureBox>(window, "JanelaCaptura");
        QCOMPARE(preview.Picture().toImage(), first);
        QVERIFY(!control<QPushButton>(window, "cmdconfirmar").isEnabled());

        QSignalSpy told(&window, &frmwebcam::confirmed);
        click(window, "cmdcapturar_tela");
        camera.see(second);
        QCOMPARE(preview.Picture().toImage(), second);
        QCOMPARE(control<PictureBox>(window, "pctfoto").Picture().toImage(), first);
        click(window, "cmdcapturar_tela");
        click(window, "cmdconfirmar");
        QCOMPARE(told.size(), 1);
        QVERIFY(told.first().first().toString().endsWith("\\Fototemp.jpg"));
        const QImage stored(m_cafe.path("Fototemp.jpg"));
        QCOMPARE(stored.size(), second.size());
        const QColor shirt = stored.pixelColor(160, 220);
        QVERIFY(shirt.green() > shirt.red() + 50);
        QVERIFY(!camera.isOpen && Forms::loaded().isEmpty());
        camera.see(first);
    }

    void noCameraClosesTheWindow()
    {
        for (const bool installed : {false, true}) {
            m_machine.camera.reset();
            if (installed)
                m_machine.installCamera().works = false;
            Attendant attendant;
            attendant.expectNotice("Não foi possível usar a câmera. Verifique se ela está ligada.", "Aviso");
            frmwebcam &window = Forms::use<frmwebcam>();
            window.Show();
            QVERIFY(!window.isVisible() && Forms::loaded().isEmpty());
        }
    }

    void cameraModuleIsFound() { QVERIFY(loadFirstCamera()); }

private:
    FakeMachine m_machine;
    TestCafe m_cafe;
};

QTEST_MAIN(TestWebcam)
#include "tst_frmwebcam.moc"
