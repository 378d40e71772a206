#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "configuration/Idiomas.h"
#include "platform/base/Err.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

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

private:
    void write(const QString &file, const QString &key, const QString &value)
    {
        Gravar_INI(folder->path() + "\\Languages\\" + file, "frmvenda", key, value);
    }

    std::optional<QTemporaryDir> folder;
};

QTEST_MAIN(tst_configuration)
#include "tst_configuration.moc"
