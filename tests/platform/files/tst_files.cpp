#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"
#include "platform/files/TextOutput.h"

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
