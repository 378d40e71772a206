#include "platform/base/Err.h"
#include "platform/window/Pictures.h"
#include "tests/support/Files.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void refusesWhatIsNoPicture()
    {
        // Ten thousand pixels a side, and nothing behind.
        const QByteArray huge = "GIF89a\x10\x27\x10\x27\x91\x01" + QByteArray(3, '\0');
        for (const QByteArray &bytes : {QByteArray(), QByteArray("no picture at all"), huge}) {
            writeFile(path("bad.gif"), bytes);
            QVERIFY_THROWS_EXCEPTION(RunTimeError, LoadPicture(path("bad.gif")));
        }
        QVERIFY_THROWS_EXCEPTION(RunTimeError, LoadPicture(path("missing.gif")));
    }

    void loadsHugePicturesSmaller()
    {
        QImage picture(10000, 10000, QImage::Format_Grayscale8);
        picture.fill(Qt::gray);
        QVERIFY(picture.save(path("huge.jpg")));
        QCOMPARE(LoadPicture(path("huge.jpg")).size(), QSize(2560, 2560));
    }

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
