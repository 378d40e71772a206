#include "photo/Conversor_JPG.h"
#include "tests/support/FakeCamera.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <QTest>

#include <cmath>

namespace {

/// Likeness of two pictures in decibels.
double psnr(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 0;
    double squares = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            for (const int difference : {a.red() - b.red(), a.green() - b.green(), a.blue() - b.blue()})
                squares += difference * difference;
        }
    }
    const double mean = squares / (3.0 * one.width() * one.height());
    return mean > 0 ? 10 * std::log10(255 * 255 / mean) : 100;
}

} // namespace

class TestJpeg : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void fileHoldsThePicture()
    {
        QFile old(file("FOTOTEMP.JPG"));
        QVERIFY(old.open(QIODevice::WriteOnly));
        for (const QSize size : {QSize(349, 290), QSize(640, 480), QSize(1, 1)}) {
            const QImage picture = portrait(size);
            Salvar_JPG(QPixmap::fromImage(picture), file("Fototemp.jpg"));
            QCOMPARE(files().size(), 1);
            const double likeness = psnr(QImage(file(files().first())), picture);
            QVERIFY2(likeness > 35, qPrintable(QString::number(likeness)));
        }
        QVERIFY(m_machine.sleeps.isEmpty());
    }

    void failuresWaitTheirTimeOut()
    {
        const QPixmap picture = QPixmap::fromImage(portrait({640, 480}));
        const QTime begin = m_machine.clock.time();
        {
            const FullDisk full;
            Salvar_JPG(picture, file("Fototemp.jpg"));
        }
        QCOMPARE(begin.secsTo(m_machine.clock.time()), 25);
        Salvar_JPG(QPixmap(), file("Fototemp.jpg"));
        QCOMPARE(begin.secsTo(m_machine.clock.time()), 50);
        m_machine.clock.setTime(QTime(23, 59, 58));
        Salvar_JPG(picture, file("missing folder/Fototemp.jpg"));
        QVERIFY(m_machine.clock.time() < QTime(0, 0, 1));
        QCOMPARE(files(), QStringList());
    }

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden); }

    FakeMachine m_machine;
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestJpeg)
#include "tst_jpeg.moc"
