#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/RegistryStore.h"
#include "platform/files/TextOutput.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_textoutput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writesFile();
    void writesPort_data();
    void writesPort();
    void neverMakesPortAFile();
    void tellsOfRefusedLine();
    void registryHoldsDefaultPrinter();

private:
    QByteArray content(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_textoutput::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    Machine::current() = Machine();
}

QByteArray tst_textoutput::content(const QString &name) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

void tst_textoutput::writesFile()
{
    TextOutput output;
    output.Open("Report.txt");
    output.Print("a longer first text");
    output.Close();
    QVERIFY(!output.isOpen());
    output.Open(m_folder->path() + "\\\\REPORT.txt");
    output.Print("Descrição");
    output.Print();
    output.Print("€ Ω");
    output.Close();
    QCOMPARE(content("Report.txt"), "Descri\xE7\xE3o\r\n\r\n\x80 ?\r\n");

    QVERIFY(!OnErrorResumeNext([&] { output.Print("closed"); }));
    QCOMPARE(Err::Number(), ErrorNumber::BadFileName);
    QVERIFY(!OnErrorResumeNext([&] { output.Open(m_folder->path() + "\\gone\\Report.txt"); }));
    QCOMPARE(Err::Number(), ErrorNumber::PathAccess);
    output.Close();
}

void tst_textoutput::writesPort_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("port");

    QTest::newRow("port") << "LPT1" << 1;
    QTest::newRow("colon and case") << "lpt9:" << 9;
    QTest::newRow("blanks") << " Lpt2 " << 2;
    QTest::newRow("no such port") << "LPT0" << 0;
    QTest::newRow("two digits") << "LPT10" << 0;
    QTest::newRow("file in a folder") << "./LPT1" << 0;
}

void tst_textoutput::writesPort()
{
    QFETCH(QString, name);
    QFETCH(int, port);
    const QString device = m_folder->filePath("device");
    QVERIFY(QFile(device).open(QIODevice::WriteOnly));
    int asked = 0;
    Machine::current().portDevice = [&](int number) {
        asked = number;
        return device;
    };
    TextOutput output;
    output.Open(name);
    output.Print("x");
    output.Close();
    QCOMPARE(asked, port);
    QCOMPARE(content(port > 0 ? "device" : name), "x\r\n");
    QCOMPARE(QDir(m_folder->path()).count(), port > 0 ? 3U : 4U);
}

void tst_textoutput::neverMakesPortAFile()
{
    TextOutput output;
    for (const QString &device : {QString(), m_folder->filePath("unplugged")}) {
        Machine::current().portDevice = [&](int) { return device; };
        Err::Clear();
        QVERIFY(!OnErrorResumeNext([&] { output.Open("LPT1"); }));
        QCOMPARE(Err::Number(), ErrorNumber::DeviceUnavailable);
        QVERIFY(!output.isOpen());
    }
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void tst_textoutput::tellsOfRefusedLine()
{
    Machine::current().portDevice = [](int) { return QString("/dev/full"); };
    TextOutput output;
    output.Open("LPT1");
    QVERIFY(!OnErrorResumeNext([&] { output.Print("first line"); }));
    QCOMPARE(Err::Number(), ErrorNumber::DeviceUnavailable);
}

void tst_textoutput::registryHoldsDefaultPrinter()
{
    constexpr std::uint32_t CurrentConfig = 0x80000005;
    const QString printers = "System\\CurrentControlSet\\Control\\Print\\Printers";
    std::uint32_t key = 0;
    QCOMPARE(RegistryStore::RegOpenKeyEx(0x80000001, printers, 0, 0, &key), RegistryStore::FileNotFound);
    QCOMPARE(RegistryStore::RegOpenKeyEx(CurrentConfig, "System", 0, 0, &key), RegistryStore::FileNotFound);
    QCOMPARE(RegistryStore::RegOpenKeyEx(CurrentConfig, printers, 0, 0, &key), RegistryStore::Success);

    QString value;
    QCOMPARE(RegistryStore::RegQueryValueEx(key, "Default", &value), RegistryStore::FileNotFound);
    Machine::current().defaultPrinterName = [] { return QString("Epson LX"); };
    QCOMPARE(RegistryStore::RegQueryValueEx(key, "Other", &value), RegistryStore::FileNotFound);
    QCOMPARE(RegistryStore::RegQueryValueEx(key, "default", &value), RegistryStore::Success);
    QCOMPARE(value, QString("Epson LX") + QChar(u'\0'));
    QCOMPARE(RegistryStore::RegCloseKey(key), RegistryStore::Success);
}

QTEST_GUILESS_MAIN(tst_textoutput)
#include "tst_textoutput.moc"
