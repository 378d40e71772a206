#include "configuration/PointerFile.h"
#include "platform/files/IniProfile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <tuple>

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
    void leadsToOneFolder()
    {
        // Ages of the pointers in days, beside the program, of the user and of everyone; a place with a negative one
        // has none. Then the folder and the pointer that hold.
        const std::tuple<const char *, std::array<int, 3>, QString, QString> cases[] = {
            {"carried copy", {9, 1, 0}, "program", "program"},
            {"new computer", {-1, -1, -1}, "user", ""},
            {"first start of a user", {-1, -1, 5}, "user", "everyone"},
            {"the user chose later", {-1, 1, 5}, "user", "user"},
            {"the owner chose later", {-1, 5, 1}, "user", "everyone"}};
        for (const auto &[situation, ages, folder, pointer] : cases)
            check(situation, ages, folder, pointer);
    }

private:
    static void check(const char *situation, const std::array<int, 3> &ages, const QString &folder,
                      const QString &pointer)
    {
        const QTemporaryDir computer;
        const auto place = [&](const QString &name, int age) {
            QString path = computer.filePath(name);
            if (age >= 0 && QDir().mkpath(path)) {
                // Names may come from a system to which their case means nothing.
                QFile file(path + "/CONFIGINI.TXT");
                WritePrivateProfileString("Configuracoes", "BD", name, file.fileName());
                file.open(QIODevice::ReadWrite);
                file.setFileTime(QDateTime::currentDateTime().addDays(-age), QFileDevice::FileModificationTime);
            }
            return path;
        };
        const PointerPlaces places{place("program", ages[0]), place("user", ages[1]), place("everyone", ages[2])};
        const QString found = places.folder();
        QVERIFY2(QFileInfo(found).fileName() == folder && pointerIn(found) == pointer, situation);
        // What was taken over is a file of the user's own, and there it can be written.
        QVERIFY(WritePrivateProfileString("Configuracoes", "BD", "chosen", found + "/ConfigIni.txt"));
        QCOMPARE(pointerIn(places.folder()), QString("chosen"));
        // A carried copy's pointer may lie on a share: it doesn't say where ports may be.
        for (const QString &each : {found, places.ofEveryone})
            QVERIFY(QDir().mkpath(each) &&
                    WritePrivateProfileString("Ports", "Folders", "/srv;" + each, each + "/ConfigIni.txt"));
        QCOMPARE(places.portFolders(), QStringList({"/srv", places.ofEveryone}));
    }
};

QTEST_GUILESS_MAIN(tst_pointerfile)
#include "tst_pointerfile.moc"
