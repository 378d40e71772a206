#include "platform/files/IniProfile.h"
#include "platform/files/PointerFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace {
QString pointerIn(const QString &folder)
{
    return GetPrivateProfileString("Configuracoes", "BD", {}, 255, folder + "/ConfigIni.txt");
}
} // namespace

class tst_pointerfile : public QObject
{
    Q_OBJECT

private slots:
    /// Ages of the pointers in days; a place with a negative one has none.
    void leadsToOneFolder_data()
    {
        QTest::addColumn<int>("program");
        QTest::addColumn<int>("user");
        QTest::addColumn<int>("everyone");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("pointer");
        QTest::newRow("carried copy") << 9 << 1 << 0 << "program"
                                      << "program";
        QTest::newRow("new computer") << -1 << -1 << -1 << "user"
                                      << "";
        QTest::newRow("first start of a user") << -1 << -1 << 5 << "user"
                                               << "everyone";
        QTest::newRow("the user chose later") << -1 << 1 << 5 << "user"
                                              << "user";
        QTest::newRow("the owner chose later") << -1 << 5 << 1 << "user"
                                               << "everyone";
    }

    void leadsToOneFolder()
    {
        const QTemporaryDir computer;
        const auto place = [&](const QString &name, int age) {
            QString path = computer.filePath(name);
            if (age >= 0 && QDir().mkpath(path)) {
                // Names may come from a system to which their case means nothing.
                QFile pointer(path + "/CONFIGINI.TXT");
                WritePrivateProfileString("Configuracoes", "BD", name, pointer.fileName());
                pointer.open(QIODevice::ReadWrite);
                pointer.setFileTime(QDateTime::currentDateTime().addDays(-age), QFileDevice::FileModificationTime);
            }
            return path;
        };
        QFETCH(int, program);
        QFETCH(int, user);
        QFETCH(int, everyone);
        const PointerPlaces places{place("program", program), place("user", user), place("everyone", everyone)};
        const QString folder = places.folder();
        QTEST(QFileInfo(folder).fileName(), "folder");
        QTEST(pointerIn(folder), "pointer");
        // What was taken over is a file of the user's own, and there it can be written.
        QVERIFY(WritePrivateProfileString("Configuracoes", "BD", "chosen", folder + "/ConfigIni.txt"));
        QCOMPARE(pointerIn(places.folder()), QString("chosen"));
    }
};

QTEST_GUILESS_MAIN(tst_pointerfile)
#include "tst_pointerfile.moc"
