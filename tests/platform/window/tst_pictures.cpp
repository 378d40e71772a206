#include "platform/base/Err.h"
#include "platform/window/Pictures.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void refusesWhatIsNoPicture()
    {
        store("empty.jpg", "");
        store("words.jpg", "no picture at all");
        // Ten thousand pixels a side, and nothing behind.
        store("huge.gif", "GIF89a\x10\x27\x10\x27\x91\x01" + QByteArray(3, '\0'));
        for (const char *name : {"empty.jpg", "words.jpg", "huge.gif", "missing.jpg", "."})
            QVERIFY_THROWS_EXCEPTION(RunTimeError, LoadPicture(path(name)));
    }

    void loadsHugePicturesSmaller()
    {
        rusage before{};
        getrusage(RUSAGE_SELF, &before);
        const QString huge = path("huge.jpg");
        {
            QImage picture(10000, 10000, QImage::Format_Grayscale8);
            picture.fill(Qt::gray);
            QVERIFY(picture.save(huge));
        }
        QCOMPARE(LoadPicture(huge).size(), QSize(2560, 2560));
        rusage after{};
        getrusage(RUSAGE_SELF, &after);
        constexpr long mostKilobytes = 300'000;
        QVERIFY(after.ru_maxrss - before.ru_maxrss < mostKilobytes);
    }

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    void store(const QString &name, const QByteArray &bytes)
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
