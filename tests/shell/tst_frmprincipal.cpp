#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "shell/Registros.h"
#include "shell/frmprincipal.h"
#include "tests/support/TestDesk.h"

#include <QDir>
#include <QFile>
#include <QTimer>

namespace {
const QString noLanguage = "Idioma não econtrado no caminho especificado! Execute o Administrador antes de rodar o "
                           "módulo auxiliar! ";
const QString advice =
    "Certifique-se que o caminho indicado está liberado totalmente para leitura e gravação de dados!";
const QString blocked = "A execução do programa está bloqueada. Solicite permissão ao administrador!";

/// The main window of a program that hasn't started.
class Shell : public TestDesk
{
public:
    Shell() : TestDesk({"frmprincipal", {}}, use<frmprincipal>) { Globais::current() = {}; }
    bool ready() { return at("cmdvendaprod").isEnabled(); }
    QString pointerFile() const { return cafe.programFolder() + "/ConfigIni.txt"; }
    QString pointer() const { return Ler_INI(pointerFile(), "Configuracoes", "BD"); }
    /// Whether the door opens the sale window, which is closed again.
    bool enters()
    {
        press("cmdvendaprod");
        const QList<Form *> forms = Forms::loaded();
        const bool entered = forms.size() == 2 && forms[1]->Name() == "frmvenda" && forms[1]->isVisible();
        if (entered)
            forms[1]->Unload();
        return entered;
    }
};
} // namespace

/// The main window: how it starts, what its door asks, and what it leaves behind.
class tst_frmprincipal : public QObject
{
    Q_OBJECT

private slots:
    void startsAndEnds()
    {
        Shell shell;
        shell.cafe.setIni("Config_Regional", "Idioma", "portugues.lng");
        shell.cafe.setIni("Moeda", "Simbolo", "");
        shell.open();
        QCOMPARE(NomeIdioma + SimboloMoeda, QString("PORTUGUES.LNGR$"));
        QVERIFY(shell.ready());
        // The pointer file is written at each press, changed path or not.
        QFile::remove(shell.pointerFile());
        shell.press("cmdvendaprod");
        QCOMPARE(shell.pointer(), shell.cafe.dataFile());
        shell.window().close();
        QCOMPARE(Forms::loaded().size(), 0);
        QVERIFY(!BancoPrincipal);
        QCOMPARE(Texto_Erro_Registro(1015) + Texto_Erro_Registro(3),
                 QString("The Registry Database is corrupt!Undefined Error Code:  3"));
    }

    void startsWithoutLanguage()
    {
        Shell shell;
        shell.cafe.setIni("Config_Regional", "Idioma", "");
        shell.attendant.expectNotice(noLanguage + advice, QGuiApplication::applicationDisplayName());
        shell.open();
        QVERIFY(!shell.ready());
        shell.cafe.setIni("Config_Regional", "Idioma", "Portugues.lng");
        shell.attendant.expectOpenFile("Morvelane.mdb (Morvelane.mdb) |Morvelane.mdb|", shell.cafe.dataFile());
        shell.press("cmdbuscabd");
        QVERIFY(shell.ready());
    }

    void asksPermissionAtEachPress()
    {
        Shell shell;
        shell.open();
        // Nothing is trimmed, so a blank before the 0 lets terminals run. A share that is gone permits nothing.
        for (const QString value : {"0", "", " 0", "gone", "1"}) {
            const QString away = shell.cafe.folder() + ".away";
            const bool refused = value == "0" || value.isEmpty() || value == "gone";
            if (value == "gone")
                QVERIFY(QDir().rename(shell.cafe.folder(), away));
            else
                shell.cafe.setIni("Modulo Externo", "Ativo", value);
            if (refused)
                shell.attendant.expectNotice(blocked, "Aviso");
            QCOMPARE(shell.enters(), !refused);
            QDir().rename(away, shell.cafe.folder());
        }
    }

    void checksPath()
    {
        Shell shell;
        shell.cafe.writeFile("Languages/MORVELANE.mdb", {});
        shell.open();
        for (const QStringList &row : QList<QStringList>{{"", "Caminho do arquivo inválido!"},
                                                         {"/config.ini", "Arquivo não encontrado!"},
                                                         {"/Fotos/Morvelane.mdb", "Arquivo não encontrado!"},
                                                         {"/LANGUAGES\\..\\morvelane.MDB", ""}}) {
            const QString known = CaminhoBD;
            const QString typed = row[0].isEmpty() ? QString() : shell.cafe.folder() + row[0];
            shell.type("txtbasedados", typed);
            if (!row[1].isEmpty())
                shell.attendant.expectNotice(row[1], "Aviso");
            QCOMPARE(shell.enters(), row[1].isEmpty());
            QCOMPARE(CaminhoBD, row[1].isEmpty() ? typed : known);
            QCOMPARE(shell.pointer(), CaminhoBD);
        }
    }

    void takesAnotherFolder()
    {
        const TestCafe other;
        Gravar_INI(other.path("config.ini"), "Moeda", "Simbolo", "US$");
        Shell shell;
        shell.open();
        // The currency is read beside the known file before the new path takes its place, so it follows one edit later.
        for (const QStringList &row : QList<QStringList>{{other.dataFile(), "R$"},
                                                         {other.folder() + "//Morvelane.mdb", "US$"},
                                                         {shell.cafe.dataFile(), "US$"}}) {
            shell.type("txtbasedados", row[0]);
            QVERIFY(shell.enters());
            QCOMPARE((QStringList{CaminhoBD, SimboloMoeda, shell.pointer()}), row + QStringList{row[0]});
        }
        // Typed while the texts are loaded: what stands in the box in the end is opened.
        shell.type("txtbasedados", other.dataFile());
        QTimer::singleShot(0, [&] { shell.type("txtbasedados", shell.cafe.dataFile()); });
        QVERIFY(shell.enters());
        QCOMPARE(shell.pointer(), shell.cafe.dataFile());
    }
};

STORY_MAIN(tst_frmprincipal)
#include "tst_frmprincipal.moc"
