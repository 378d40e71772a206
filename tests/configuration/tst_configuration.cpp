#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "configuration/Idiomas.h"
#include "configuration/PointerFile.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"

#include <QApplication>
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
    return Ler_INI(folder + "/ConfigIni.txt", "Configuracoes", "BD");
}
} // namespace

class tst_configuration : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder.emplace();
        QDir(folder->path()).mkdir("Languages");
        CaminhoBD = folder->path() + "/Morvelane.mdb";
        NomeIdioma = "PORTUGUES.LNG";
    }

    void existenceClearsTheErrorState()
    {
        Gravar_INI(caminhoConfig(), "Moeda", "Simbolo", "R$");
        const QString cafe = folder->path();
        for (const auto &[path, there] : std::initializer_list<std::pair<QString, bool>>{
                 {caminhoConfig(), true}, {cafe, true}, {cafe + "/none.ini", false}, {"", false}}) {
            Err::set(RunTimeError(ErrorNumber::UnrecognisedFormat, {}));
            QCOMPARE(Existe_Arquivo(path), there);
            QCOMPARE(Err::Number(), 0);
        }
        QCOMPARE(Pasta_Do_Arquivo("/srv/cafe/\\Morvelane.mdb"), QString("/srv/cafe/\\"));
    }

    void whatCannotBeWrittenIsLostWithoutAWord()
    {
        CaminhoBD = "/dev/null/Morvelane.mdb";
        Gravar_INI(caminhoConfig(), "Modulo Externo", "Ativo", "1");
        QCOMPARE(Ler_INI(caminhoConfig(), "Modulo Externo", "Ativo"), QString());
    }

    void textsComeFromTheFirstFileThatHoldsThem()
    {
        write("PORTUGUES5.LNG", "String1", "'five'");
        QCOMPARE(textoIdioma("frmvenda", "String1"), QString("five"));
        write("PORTUGUES3.LNG", "String1", "'three'");
        write("PORTUGUES1.LNG", "String1", "");
        QCOMPARE(textoIdioma("frmvenda", "String1"), QString("three"));
    }

    void delimitersAreCutWhateverTheyAre()
    {
        for (const auto &[value, text] :
             std::initializer_list<std::pair<QString, QString>>{{"\"Preço: \"", "Preço: "},
                                                                {"Total", "ota"},
                                                                {"x", "x"},
                                                                {"'" + QString(600, u'é') + "'", QString(497, u'é')}}) {
            write("PORTUGUES1.LNG", "String1", value);
            QCOMPARE(textoIdioma("frmvenda", "String1"), text);
        }
    }

    void loadedTextsStayWhileDirectReadsFollow()
    {
        write("PORTUGUES1.LNG", "String7_3", "'texto'");
        write("ENGLISH1.LNG", "String7_3", "'text'");
        Carregar_Idioma();

        NomeIdioma = "ENGLISH.LNG";
        QCOMPARE(textoIdioma("frmvenda", "String7_3"), QString("text"));
        QCOMPARE(textoCarregado("frmvenda", "String7_3"), QString("texto"));
        Carregar_Idioma();
        QCOMPARE(textoCarregado("frmvenda", "String7_3"), QString("text"));
    }

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
        for (const auto &[situation, ages, leading, pointer] : cases)
            checkPointer(situation, ages, leading, pointer);
    }

private:
    static void checkPointer(const char *situation, const std::array<int, 3> &ages, const QString &leading,
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
        QVERIFY2(QFileInfo(found).fileName() == leading && pointerIn(found) == pointer, situation);
        // What was taken over is a file of the user's own, and there it can be written.
        QVERIFY(WritePrivateProfileString("Configuracoes", "BD", "chosen", found + "/ConfigIni.txt"));
        QCOMPARE(pointerIn(places.folder()), QString("chosen"));
        // A carried copy's pointer may lie on a share: it doesn't say where ports may be.
        for (const QString &each : {found, places.ofEveryone})
            QVERIFY(QDir().mkpath(each) &&
                    WritePrivateProfileString("Ports", "Folders", "/srv;" + each, each + "/ConfigIni.txt"));
        QCOMPARE(places.portFolders(), QStringList({"/srv", places.ofEveryone}));
    }

    void write(const QString &file, const QString &key, const QString &value)
    {
        Gravar_INI(folder->path() + "\\Languages\\" + file, "frmvenda", key, value);
    }

    std::optional<QTemporaryDir> folder;
};

QTEST_MAIN(tst_configuration)
#include "tst_configuration.moc"
