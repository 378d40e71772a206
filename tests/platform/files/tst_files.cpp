#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"
#include "platform/files/RegistryStore.h"
#include "platform/files/TextOutput.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

class tst_files : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void resolvesIgnoringCase();
    void tellsOfFiles();
    void deletesAndRenames();
    void writesFilesAndPorts();
    void tellsOfRefusedLine();
    void waitsForBusyPrinter();
    void registryHoldsDefaultPrinter();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {
/// Number of the failure that a statement raises; 0 for none.
int failure(const std::function<void()> &statement)
{
    Err::Clear();
    OnErrorResumeNext(statement);
    return Err::Number();
}

QByteArray content(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}
} // namespace

void tst_files::init()
{
    Machine::current() = Machine();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_folder->path()) && QDir().mkpath("Café/fotos"));
    for (const char *name : {"Café/Config.INI", "Café/fotos/JOÃO.jpg", "b.txt", "B.TXT", "B.txt"})
        QVERIFY(QFile(name).open(QIODevice::WriteOnly));
}

void tst_files::resolvesIgnoringCase()
{
    const auto check = [&](const QString &given, const QString &found) {
        QCOMPARE(resolveIgnoringCase(given), found);
        QString joined = m_folder->path() + u'/' + given;
        QCOMPARE(resolveIgnoringCase(joined.replace(u'/', u'\\')), m_folder->path() + u'/' + found);
    };
    check("Café/Config.INI", "Café/Config.INI");
    check("CAFÉ\\FOTOS\\\\JOÃO.JPG", "Café/fotos/JOÃO.jpg");
    check("café\\", "Café/");
    check("CAFÉ\\Languages\\PT1.lng", "Café/Languages/PT1.lng");
    check("CAFÉ\\..\\CAFÉ\\.\\FOTOS", "Café/../Café/./fotos");
    check("b.txt", "b.txt");
    check("b.TXT", "B.TXT");
    check("", "");
}

void tst_files::tellsOfFiles()
{
    QCOMPARE(GetAttr("café\\config.ini"), 32);
    QCOMPARE(GetAttr("CAFÉ\\"), 16);
    for (const char *missing : {"", "Café/none", "Café/Config.INI/"})
        QCOMPARE(failure([&] { GetAttr(missing); }), ErrorNumber::FileNotFound);

    QCOMPARE(Dir("CAFÉ\\CONFIG.ini", 32), "Config.INI");
    for (const char *noFile : {"Café\\none.ini", "Café", "Café\\"})
        QCOMPARE(Dir(noFile), QString());
    QCOMPARE(failure([] { Dir("gone\\Config.INI"); }), ErrorNumber::BadFileName);
}

void tst_files::deletesAndRenames()
{
    renameFile("café\\FOTOS\\joão.jpg", "CAFÉ\\fotos\\João.JPG");
    QCOMPARE(QDir("Café/fotos").entryList(QDir::Files), {"João.JPG"});
    renameFile("Café\\fotos\\JOÃO.jpg", "CAFÉ\\Maria.jpg");
    for (const char *refused : {"Café/CONFIG.ini", "gone/Maria.jpg"})
        QCOMPARE(failure([&] { renameFile("Café/Maria.jpg", refused); }), ErrorNumber::PathAccess);
    QCOMPARE(QDir("Café").entryList(QDir::Files, QDir::Name), QStringList({"Config.INI", "Maria.jpg"}));

    Kill("café\\MARIA.JPG");
    QVERIFY(!QFile::exists("Café/Maria.jpg"));
    for (const char *noFile : {"café\\MARIA.JPG", "café\\fotos"})
        QCOMPARE(failure([&] { Kill(noFile); }), ErrorNumber::FileNotFound);
    // No one may delete a file of the kernel's, root neither.
    QCOMPARE(failure([] { Kill("/proc/self/status"); }), ErrorNumber::PathAccess);
}

void tst_files::writesFilesAndPorts()
{
    QVERIFY(QFile("device").open(QIODevice::WriteOnly));
    int asked = 0;
    Machine::current().portDevice = [&](int port) {
        asked = port;
        return QString("device");
    };
    TextOutput output;
    for (const auto &[name, port] : {std::pair{"LPT1", 1}, {"lpt9:", 9}, {" Lpt2 ", 2}, {"LPT10", 0}, {"./LPT1", 0}}) {
        asked = 0;
        output.Open(name);
        output.Print("Descrição € Ω");
        output.Print();
        output.Close();
        QCOMPARE(asked, port);
        QCOMPARE(content(port > 0 ? "device" : name), "Descri\xE7\xE3o \x80 ?\r\n\r\n");
        QCOMPARE(QFile::exists(name), port == 0);
    }
    QCOMPARE(failure([&] { output.Print("closed"); }), ErrorNumber::BadFileName);
    QCOMPARE(failure([&] { output.Open("gone\\Report.txt"); }), ErrorNumber::PathAccess);
}

void tst_files::tellsOfRefusedLine()
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

void tst_files::waitsForBusyPrinter()
{
    // A pipe takes some text and then no more until that is read, as a printer does.
    QCOMPARE(mkfifo("device", 0600), 0);
    Machine::current().portDevice = [](int) { return QString("device"); };
    QFile paper;
    QVERIFY(paper.open(::open("device", O_RDONLY | O_NONBLOCK), QIODevice::ReadOnly, QFile::AutoCloseHandle));
    const QString line(200'000, u'x');
    TextOutput output;
    output.Open("LPT1");
    qsizetype printed = 0;
    Machine::current().sleep = [&](int) { printed += paper.readAll().size(); };
    output.Print(line);
    QCOMPARE(printed + paper.readAll().size(), line.size() + 2);

    int slept = 0;
    Machine::current().sleep = [&](int milliseconds) { slept += milliseconds; };
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(failure([&] { output.Print(line); }), ErrorNumber::DeviceUnavailable);
        QCOMPARE(slept, 10'000);
    }
}

void tst_files::registryHoldsDefaultPrinter()
{
    std::uint32_t key = 0;
    QString value;
    QCOMPARE(RegistryStore::RegOpenKeyEx(0x80000005, "System", 0, 0, &key), RegistryStore::FileNotFound);
    QCOMPARE(RegistryStore::RegOpenKeyEx(0x80000005, "System\\CurrentControlSet\\Control\\Print\\Printers", 0, 0, &key),
             RegistryStore::Success);
    QCOMPARE(RegistryStore::RegQueryValueEx(key, "Default", &value), RegistryStore::FileNotFound);
    Machine::current().defaultPrinterName = [] { return QString("Epson LX"); };
    QCOMPARE(RegistryStore::RegQueryValueEx(key, "default", &value), RegistryStore::Success);
    QCOMPARE(value, QString("Epson LX") + QChar(u'\0'));
}

QTEST_GUILESS_MAIN(tst_files)
#include "tst_files.moc"
