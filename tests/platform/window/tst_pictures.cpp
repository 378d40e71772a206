#include "platform/base/Err.h"
#include "platform/window/Pictures.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QTemporaryDir>
#include <QTest>

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void loadsWhatIsAPicture()
    {
        QTemporaryDir folder;
        QImage photo(30, 20, QImage::Format_RGB32);
        photo.fill(Qt::blue);
        // A photo keeps its upper-cased path, and its ending may lie.
        QVERIFY(photo.save(folder.filePath("maria.bmp"), "PNG"));
        QCOMPARE(LoadPicture(folder.filePath("MARIA.BMP")).size(), QSize(30, 20));

        QFile text(folder.filePath("text.jpg"));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no picture") > 0);
        text.close();
        for (const char *name : {"text.jpg", "nowhere.jpg", ""}) {
            Err::Clear();
            OnErrorResumeNext([&] { LoadPicture(folder.filePath(name)); });
            QCOMPARE(Err::Number(), ErrorNumber::InvalidPicture);
        }
    }

    void drawsItsOwnInTheDesktopsInk()
    {
        QPalette palette;
        palette.setColor(QPalette::WindowText, QColor(10, 200, 30));
        QGuiApplication::setPalette(palette);
        const QStringList files = QDir(":/pictures").entryList();
        QCOMPARE(files.size(), 7);
        for (const QString &file : files) {
            const QImage image = bundledPicture(QFileInfo(file).completeBaseName(), {48, 48}).toImage();
            bool inked = false;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    inked |= image.pixelColor(x, y).alpha() > 100 && qAbs(image.pixelColor(x, y).green() - 200) < 4;
            QVERIFY2(inked, qPrintable(file));
            QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        }
        QVERIFY(!OnErrorResumeNext([] { bundledPicture("nowhere", {8, 8}); }));
    }
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
