#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "platform/print/Printer.h"
#include "platform/window/Forms.h"
#include "shell/frmprincipal.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>

#include <memory>

namespace {
const QString noLanguage = "Idioma não econtrado no caminho especificado! Execute o Administrador antes de rodar o "
                           "módulo auxiliar! ";
const QString advice =
    "Certifique-se que o caminho indicado está liberado totalmente para leitura e gravação de dados!";
const QString badPath = "Caminho do arquivo inválido!";
const QString noFile = "Arquivo não encontrado!";
const QString blocked = "A execução do programa está bloqueada. Solicite permissão ao administrador!";
const QString dialogFilter = "Morvelane.mdb (Morvelane.mdb) |Morvelane.mdb|";
} // namespace

/// The main window on a real café: how it starts, what its door asks, and what it leaves behind.
class tst_frmprincipal : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsReady();
    void startsWithoutPointerFile();
    void startsWithoutLanguage();
    void takesDefaultPrinter();
    void asksPermissionAtEachPress();
    void refusesPath_data();
    void refusesPath();
    void takesAnotherFolder();
    void choosesFile();
    void shareGoesAndComesBack();
    void closingEndsTheProgram();

private:
    void open();
    void press() { click(*window, "cmdvendaprod"); }
    void expectNotice(const QString &text, const QString &title = "Aviso") { attendant->expectNotice(text, title); }
    /// States whether the sale window is open, and closes it.
    bool saleOpened();
    QString pointer() const { return Ler_INI(pointerFile(), "Configuracoes", "BD"); }
    QString pointerFile() const { return cafe->programFolder() + "/ConfigIni.txt"; }
    bool ready() const { return control(*window, "cmdvendaprod").isEnabled(); }

    std::unique_ptr<FakeMachine> machine;
    std::unique_ptr<TestCafe> cafe;
    std::unique_ptr<Attendant> attendant;
    Form *window = nullptr;
};

void tst_frmprincipal::init()
{
    machine = std::make_unique<FakeMachine>();
    cafe = std::make_unique<TestCafe>();
    attendant = std::make_unique<Attendant>();
}

void tst_frmprincipal::cleanup()
{
    attendant.reset();
    cafe.reset();
    machine.reset();
}

void tst_frmprincipal::open()
{
    window = &Forms::use<frmprincipal>();
    window->Show();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

bool tst_frmprincipal::saleOpened()
{
    const QList<Form *> forms = Forms::loaded();
    if (forms.size() == 1)
        return false;
    const bool shown = forms.last()->Name() == "frmvenda" && forms.last()->isVisible();
    forms.last()->Unload();
    window->activateWindow();
    return shown;
}

void tst_frmprincipal::startsReady()
{
    cafe->setIni("Config_Regional", "Idioma", "portugues.lng");
    cafe->setIni("Moeda", "Simbolo", "");
    open();
    QCOMPARE(NomeIdioma, QString("PORTUGUES.LNG"));
    QCOMPARE(SimboloMoeda, QString("R$"));
    QVERIFY(ready());
    // The windows behind them are still to come.
    QVERIFY(!control(*window, "cmdclientes").isEnabled());
    QVERIFY(!control(*window, "cmdprodutos").isEnabled());
    QCOMPARE(control<QProgressBar>(*window, "barra").value(), 100);

    // The pointer file is written at each press, changed path or not.
    QFile::remove(pointerFile());
    press();
    QVERIFY(saleOpened());
    QCOMPARE(pointer(), cafe->dataFile());
}

void tst_frmprincipal::startsWithoutPointerFile()
{
    QFile::remove(pointerFile());
    open();
    QVERIFY(!ready());
    // A chosen file doesn't help: the language is looked for beside the known data file, and none is known.
    attendant->expectOpenFile(dialogFilter, cafe->dataFile());
    attendant->expectNotice(noLanguage + advice, QGuiApplication::applicationDisplayName());
    click(*window, "cmdbuscabd");
    QVERIFY(!ready());
    QVERIFY(!QFile::exists(pointerFile()));
}

void tst_frmprincipal::startsWithoutLanguage()
{
    cafe->setIni("Config_Regional", "Idioma", "");
    attendant->expectNotice(noLanguage + advice, QGuiApplication::applicationDisplayName());
    open();
    QVERIFY(!ready());
    // It is told once; the file dialog is the way back.
    QWidget another;
    another.show();
    another.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&another));
    window->Show();
    QVERIFY(QTest::qWaitForWindowActive(window));
    cafe->setIni("Config_Regional", "Idioma", "Portugues.lng");
    attendant->expectOpenFile(dialogFilter, cafe->dataFile());
    click(*window, "cmdbuscabd");
    QVERIFY(ready());
}

void tst_frmprincipal::takesDefaultPrinter()
{
    machine->printerNames = {"Fita", "Laser do Balcão", "LASER DO BALCÃO"};
    machine->defaultPrinter = "  laser do balcão ";
    open();
    QCOMPARE(Printer::current().DeviceName(), QString("Laser do Balcão"));
}

void tst_frmprincipal::asksPermissionAtEachPress()
{
    open();
    // Nothing is trimmed, so a blank before the 0 lets terminals run.
    for (const char *value : {"0", "abc", "", " 0", "0", "1"}) {
        cafe->setIni("Modulo Externo", "Ativo", value);
        const bool allowed = QByteArray(value) != "0" && QByteArray(value) != "";
        if (!allowed)
            expectNotice(blocked);
        press();
        QCOMPARE(saleOpened(), allowed);
    }
    // The gate comes first.
    cafe->setIni("Modulo Externo", "Ativo", "0");
    replaceText(control(*window, "txtbasedados"), "");
    expectNotice(blocked);
    press();
}

void tst_frmprincipal::refusesPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("empty") << QString() << badPath;
    QTest::newRow("another name") << "config.ini" << noFile;
    QTest::newRow("no such file") << "fotos/Morvelane.mdb" << noFile;
    QTest::newRow("folder") << "." << noFile;
    QTest::newRow("name in another case") << "LANGUAGES/MORVELANE.MDB" << QString();
    QTest::newRow("the other separator") << "Languages\\..\\morvelane.mdb" << QString();
}

void tst_frmprincipal::refusesPath()
{
    QFETCH(QString, path);
    QFETCH(QString, refusal);
    cafe->writeFile("Languages/MORVELANE.mdb", {});
    open();
    const QString typed = path.isEmpty() ? path : cafe->path(path);
    replaceText(control(*window, "txtbasedados"), typed);
    if (!refusal.isEmpty())
        expectNotice(refusal);
    press();
    QCOMPARE(saleOpened(), refusal.isEmpty());
    QCOMPARE(CaminhoBD, refusal.isEmpty() ? typed : cafe->dataFile());
    QCOMPARE(pointer(), CaminhoBD);
}

void tst_frmprincipal::takesAnotherFolder()
{
    const TestCafe other;
    Gravar_INI(other.path("config.ini"), "Moeda", "Simbolo", "US$");
    Machine::current().programFolder = [this] { return cafe->programFolder(); };
    open();
    const auto pressFor = [&](const QString &path, const QString &symbol) {
        replaceText(control(*window, "txtbasedados"), path);
        press();
        QVERIFY(saleOpened());
        QCOMPARE(SimboloMoeda, symbol);
        QCOMPARE(CaminhoBD, path);
        QCOMPARE(pointer(), path);
    };
    // The currency is read beside the known file before the new path takes its place, so it follows one edit later.
    pressFor(other.dataFile(), "R$");
    pressFor(other.folder() + "//Morvelane.mdb", "US$");
    pressFor(cafe->dataFile(), "US$");
    // Without the language of the folder that is left, there is no way out of it.
    cafe->setIni("Config_Regional", "Idioma", "");
    expectNotice(noLanguage, QGuiApplication::applicationDisplayName());
    press();
    QVERIFY(!saleOpened());
}

void tst_frmprincipal::choosesFile()
{
    open();
    auto &box = control<QLineEdit>(*window, "txtbasedados");
    attendant->expectOpenFile(dialogFilter, {});
    click(*window, "cmdbuscabd");
    attendant->expectOpenFile(dialogFilter, cafe->path("none/Morvelane.mdb"));
    expectNotice(badPath + " " + advice);
    click(*window, "cmdbuscabd");
    QCOMPARE(box.text(), cafe->dataFile());

    attendant->expectOpenFile(dialogFilter, cafe->path("config.ini"));
    click(*window, "cmdbuscabd");
    QCOMPARE(box.text(), cafe->path("config.ini"));
    QVERIFY(ready());
    QCOMPARE(CaminhoBD, cafe->dataFile());
    QCOMPARE(pointer(), cafe->dataFile());
}

void tst_frmprincipal::shareGoesAndComesBack()
{
    open();
    const QString away = cafe->folder() + ".away";
    QVERIFY(QDir().rename(cafe->folder(), away));
    expectNotice(blocked);
    press();
    QVERIFY(ready());
    QVERIFY(QDir().rename(away, cafe->folder()));
    press();
    QVERIFY(saleOpened());
}

void tst_frmprincipal::closingEndsTheProgram()
{
    open();
    press();
    QVERIFY(BancoPrincipal);
    window->close();
    QCOMPARE(Forms::loaded().size(), 0);
    QVERIFY(!BancoPrincipal);
}

QTEST_MAIN(tst_frmprincipal)
#include "tst_frmprincipal.moc"
