#include "platform/base/Machine.h"
#include "platform/files/IniProfile.h"
#include "platform/files/Paths.h"
#include "platform/files/TextOutput.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

class tst_files : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        qunsetenv("TMPDIR");
        Machine::current() = Machine();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()) && QDir().mkpath("Café/fotos"));
        for (const char *name : {"Café/Config.INI", "Café/fotos/JOÃO.jpg", "b.txt", "B.TXT", "B.txt"})
            writeFile(name);
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

    void copiesWholeOrNotAtAll()
    {
        const QByteArray photo(200'000, 'p');
        writeFile("Temp.jpg", "old");
        FileCopy("TEMP.JPG", "CAFÉ\\FOTOS\\joão.JPG");
        QCOMPARE(readFile("Café/fotos/JOÃO.jpg"), "old");
        writeFile("Temp.jpg", photo);
        {
            const FullDisk full;
            QCOMPARE(errorOf([] { FileCopy("Temp.jpg", "Café/fotos/JOÃO.jpg"); }), ErrorNumber::PathAccess);
        }
        QCOMPARE(readFile("Café/fotos/JOÃO.jpg"), "old");
        FileCopy("Temp.jpg", "Café/fotos/JOÃO.jpg");
        QCOMPARE(readFile("Café/fotos/JOÃO.jpg"), photo);
        QCOMPARE(QDir("Café/fotos").entryList(QDir::Files | QDir::Hidden), QStringList("JOÃO.jpg"));
        QCOMPARE(errorOf([] { FileCopy("gone.jpg", "x.jpg"); }), ErrorNumber::FileNotFound);
        QCOMPARE(errorOf([] { FileCopy("Temp.jpg", "gone/x.jpg"); }), ErrorNumber::PathAccess);
    }

    void writesFilesAndPorts()
    {
        writeFile("device");
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
            QCOMPARE(readFile(port > 0 ? "device" : name), "Descri\xE7\xE3o \x80 ?\r\n\r\n");
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
            QCOMPARE(errorOf([&] { output.Open("LPT1"); }), ErrorNumber::DeviceUnavailable);
            QVERIFY(!output.isOpen() && !QFile::exists("LPT1") && !QFile::exists("unplugged"));
        }
        device = "/dev/full";
        output.Open("LPT1");
        QCOMPARE(errorOf([&] { output.Print("first line"); }), ErrorNumber::DeviceUnavailable);
    }

    /// Whoever can write the share names the port; no file of this user's may come to harm.
    void reachesNoFileThroughAPort()
    {
        qputenv("TMPDIR", m_folder->filePath("tmp").toUtf8());
        QVERIFY(QDir().mkpath("tmp") && QDir().mkpath("home") && QDir().mkpath("spool/today"));
        Machine::current().portFolders = [&] { return QStringList{" ", m_folder->filePath("spool")}; };
        writeFile("tmp/data");
        writeFile("b.txt", "7 bytes");
        QVERIFY(QFile::link(m_folder->filePath("b.txt"), "tmp/link") && QFile::link("../gone", "tmp/dangling"));
        QVERIFY(QFile::link(m_folder->filePath("home"), "tmp/home") && mkfifo("tmp/pipe", 0600) == 0);
        TextOutput output;
        const auto prints = [&](const QString &name) {
            return errorOf([&] {
                output.OpenPort(name);
                output.Print("receipt");
                output.Close();
            });
        };
        for (const char *name : {"b.txt", "home/new", "tmp/data", "tmp/link", "tmp/dangling", "tmp/home/new",
                                 "tmp/pipe", "tmp/../home/new", "tmp", "gone/new", "~/.profile", "/new"})
            QVERIFY2(prints(name) == ErrorNumber::DeviceUnavailable && !output.isOpen(), name);
        QCOMPARE(QFileInfo("b.txt").size(), 7);
        QVERIFY(QDir("home").isEmpty() && !QFile::exists("gone") && QFileInfo("tmp/data").size() == 0);
        // A file that was made as a port is written anew, even where a copy with its rights took its place.
        for (const char *name : {"tmp/port", "spool/today/port", "/dev/null", "tmp/port"})
            QCOMPARE(prints(name), 0);
        QCOMPARE(QFileInfo("tmp/port").size(), 9);
        QCOMPARE(QProcess::execute("sh", {"-c", "cp -p tmp/port tmp/copy && mv tmp/copy tmp/port"}), 0);
        QCOMPARE(prints("tmp/port"), 0);
    }

    void waitsOnceForADeviceThatTakesNothing()
    {
        int slept = 0;
        Machine::current().sleep = [&](int milliseconds) { slept += milliseconds; };
        const int other = posix_openpt(O_RDWR | O_NOCTTY);
        QVERIFY(grantpt(other) == 0 && unlockpt(other) == 0);
        TextOutput output;
        output.OpenPort(ptsname(other));
        for (int line = 0; line < 100; ++line)
            errorOf([&] { output.Print(QString(1000, u'x')); });
        QCOMPARE(Err::Number(), 0 + ErrorNumber::DeviceUnavailable);
        QCOMPARE(slept, 10'000);
        output.Close();
        close(other);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_files)
#include "tst_files.moc"
