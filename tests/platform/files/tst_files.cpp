#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"
#include "platform/files/TextOutput.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

int failure(const std::function<void()> &statement)
{
    Err::Clear();
    OnErrorResumeNext(statement);
    return Err::Number();
}

} // namespace

class tst_files : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        Machine::current() = Machine();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()) && QDir().mkpath("Café/fotos"));
        for (const char *name : {"Café/Config.INI", "Café/fotos/JOÃO.jpg", "b.txt", "B.TXT", "B.txt"})
            QVERIFY(QFile(name).open(QIODevice::WriteOnly));
    }

    void resolvesIgnoringCase()
    {
        const auto check = [&](const QString &given, const QString &found) {
            QCOMPARE(resolveIgnoringCase(given), found);
            QString joined = m_folder->path() + u'/' + given;
            QCOMPARE(resolveIgnoringCase(joined.replace(u'/', u'\\')), m_folder->path() + u'/' + found);
        };
        check("CAFÉ\\FOTOS\\\\JOÃO.JPG", "Café/fotos/JOÃO.jpg");
        check("CAFÉ\\Languages\\PT1.lng", "Café/Languages/PT1.lng");
        check("b.txt", "b.txt");
        check("b.TXT", "B.TXT");
    }

    void renames()
    {
        renameFile("Café\\fotos\\JOÃO.jpg", "CAFÉ\\Maria.jpg");
        for (const char *refused : {"Café/CONFIG.ini", "gone/Maria.jpg"})
            QCOMPARE(failure([&] { renameFile("Café/Maria.jpg", refused); }), ErrorNumber::PathAccess);
        QCOMPARE(QDir("Café").entryList(QDir::Files, QDir::Name), QStringList({"Config.INI", "Maria.jpg"}));
    }

    void copiesWholeOrNotAtAll()
    {
        const QByteArray photo(200'000, 'p');
        const auto content = [](const QString &name) {
            QFile file(name);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
        };
        QFile source("Temp.jpg");
        QVERIFY(source.open(QIODevice::WriteOnly) && source.write("old") == 3);
        source.close();
        FileCopy("TEMP.JPG", "CAFÉ\\FOTOS\\joão.JPG");
        QCOMPARE(content("Café/fotos/JOÃO.jpg"), "old");
        QVERIFY(source.open(QIODevice::WriteOnly) && source.write(photo) == photo.size());
        source.close();
        {
            const FullDisk full;
            QCOMPARE(failure([] { FileCopy("Temp.jpg", "Café/fotos/JOÃO.jpg"); }), ErrorNumber::PathAccess);
        }
        QCOMPARE(content("Café/fotos/JOÃO.jpg"), "old");
        FileCopy("Temp.jpg", "Café/fotos/JOÃO.jpg");
        QCOMPARE(content("Café/fotos/JOÃO.jpg"), photo);
        QCOMPARE(QDir("Café/fotos").entryList(QDir::Files | QDir::Hidden), QStringList("JOÃO.jpg"));
        QCOMPARE(failure([] { FileCopy("gone.jpg", "x.jpg"); }), ErrorNumber::FileNotFound);
        QCOMPARE(failure([] { FileCopy("Temp.jpg", "gone/x.jpg"); }), ErrorNumber::PathAccess);
    }

    void writesFilesAndPorts()
    {
        QVERIFY(QFile("device").open(QIODevice::WriteOnly));
        int asked = 0;
        Machine::current().portDevice = [&](int port) {
            asked = port;
            return QString("device");
        };
        TextOutput output;
        for (const auto &[name, port] :
             {std::pair{"LPT1", 1}, {"lpt9:", 9}, {" Lpt2 ", 2}, {"LPT10", 0}, {"./LPT1", 0}}) {
            asked = 0;
            output.Open(name);
            output.Print("Descrição € Ω");
            output.Print();
            output.Close();
            QCOMPARE(asked, port);
            QFile written(port > 0 ? "device" : name);
            QVERIFY(written.open(QIODevice::ReadOnly));
            QCOMPARE(written.readAll(), "Descri\xE7\xE3o \x80 ?\r\n\r\n");
            QCOMPARE(QFile::exists(name), port == 0);
        }
    }

    void tellsOfRefusedLine()
    {
        TextOutput output;
        QString device;
        Machine::current().portDevice = [&](int) { return device; };
        for (const char *missing : {"", "unplugged"}) {
            device = missing;
            QCOMPARE(failure([&] { output.Open("LPT1"); }), ErrorNumber::DeviceUnavailable);
            QVERIFY(!output.isOpen() && !QFile::exists("LPT1") && !QFile::exists("unplugged"));
        }
        device = "/dev/full";
        output.Open("LPT1");
        QCOMPARE(failure([&] { output.Print("first line"); }), ErrorNumber::DeviceUnavailable);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_files)
#include "tst_files.moc"
