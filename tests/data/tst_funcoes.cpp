#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/Funcoes.h"
#include "platform/print/Printer.h"
#include "platform/window/Forms.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

#include <QApplication>
#include <QTest>

namespace {
class FirstWindow : public Form
{
    Q_OBJECT

public:
    FirstWindow() { setObjectName("frmfirst"); }
};

class SecondWindow : public Form
{
    Q_OBJECT

public:
    SecondWindow() { setObjectName("frmsecond"); }

private:
    void Form_Unload() override
    {
        if (Form_Aberto("frmfirst"))
            Forms::use<FirstWindow>().Unload();
    }
};

const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
const QLocale unitedStates(QLocale::English, QLocale::UnitedStates);
} // namespace

class tst_funcoes : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        machine.emplace();
        enterCafe(brazil);
    }
    void cleanup()
    {
        cafe.reset();
        machine.reset();
    }

    void keysOfANumberBox()
    {
        const auto typed = [](const QString &keys, bool negative) {
            QString text;
            for (const QChar key : keys)
                if (const int code = Filtrar_Numero(key.unicode(), text, negative))
                    text += QChar(code);
            return text;
        };
        QCOMPARE(typed("1.5", false), QString("1,5"));
        QCOMPARE(typed("a1,2.3,4 -\r5\b", false), QString("1,2345\b"));
        QCOMPARE(typed("1-2-3", true), QString("1-23"));
    }

    void sharesAreRoundedToTwoPlaces()
    {
        for (const QLocale &region : {brazil, unitedStates}) {
            enterCafe(region);
            QCOMPARE(Valor_Proporcional(10, 30, 10), 3.33);
            QCOMPARE(Valor_Proporcional(1.005, 1, 1), 1.01);
            QCOMPARE(Valor_Proporcional(5, 0, 10), 0.0);
        }
    }

    void currencyAndApostrophe()
    {
        QCOMPARE(Simbolo_Moeda_Regional(), QString("R$"));
        enterCafe(unitedStates);
        QCOMPARE(Simbolo_Moeda_Regional(), QString("$"));
        QVERIFY(Tem_Apostrofo("d'Água"));
        QVERIFY(!Tem_Apostrofo("d´Água"));
    }

    void categoriesGroupsAndLinks()
    {
        cafe->execute("Insert into Produtos (Codigo,Descrição,Categoria) values (9001,'TESTE','BEBIDAS')");
        cafe->execute("Insert into Produtos (Codigo,Descrição) values (9002,'SEM CATEGORIA')");
        CaminhoBD = cafe->folder() + "/anything.else";
        QCOMPARE(Categoria_Do_Produto("TESTE"), QString("BEBIDAS"));
        QCOMPARE(CaminhoBD, cafe->folder() + "/\\Morvelane.mdb");
        QCOMPARE(Categoria_Do_Produto("teste"), QString("-----"));
        QCOMPARE(CaminhoBD, cafe->folder() + "/\\\\Morvelane.mdb");
        QCOMPARE(Categoria_Do_Produto("SEM CATEGORIA"), QString("-----"));

        cafe->execute("Insert into Clientes (Codigo,Nome,Grupo) values (9001,'ANA TESTE','VIP')");
        cafe->execute("Insert into Links (Codigo,Nome,Codigo_Acesso) values (9001,'ANA TESTE','X1')");
        QCOMPARE(Grupo_Do_Cliente("ANA TESTE"), QString("VIP"));
        QVERIFY(Tem_Link("ANA TESTE"));
        QVERIFY(!Tem_Link("NOBODY"));
    }

    void theNewestCashPeriodDecides()
    {
        cafe->execute("Delete From Registro_Caixa");
        QVERIFY(!Caixa_Aberto());
        QCOMPARE(IdCaixa, 0.0);
        cafe->execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (1000000,True)");
        QVERIFY(Caixa_Aberto());
        QCOMPARE(IdCaixa, 1000000.0);
        cafe->execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (1000001,False)");
        QVERIFY(!Caixa_Aberto());
        QCOMPARE(IdCaixa, 1000001.0);
    }

    void fixedDiscounts()
    {
        cafe->execute("Delete From Descontos");
        addRule("1,True,10,3,'0','1',False");
        addRule("2,True,0,3,'0','1',False");
        addRule("3,False,10,0,'0','1',False");
        QVERIFY(Tem_Desconto_Fixo(1));
        QVERIFY(!Tem_Desconto_Fixo(3));
        QVERIFY(!Tem_Desconto_Fixo(4));
        QCOMPARE(Valor_Desconto_Fixo(1, 50), 5.0);
        QCOMPARE(Valor_Desconto_Fixo(1, 0.35), 0.04);
        QCOMPARE(Valor_Desconto_Fixo(2, 50), 3.0);
        QCOMPARE(Valor_Desconto_Fixo(3, 50), 0.0);
    }

    void rulesRefuseTotals()
    {
        struct Case
        {
            const char *rule;
            const char *total;
            bool refused;
        };
        for (const Case &test : std::initializer_list<Case>{{"'19,90','1',True", "19,89", true},
                                                            {"'19,90','1',True", "19,90", false},
                                                            {"'9,90','1',True", "10,00", false},
                                                            {"'25','2',True", "25,00", false},
                                                            {"'25','2',True", "25,01", true},
                                                            {"'25','9',True", "30,00", true},
                                                            {"'25','2',False", "1,00", false}}) {
            cafe->execute("Delete From Descontos");
            addRule(QString("7,False,10,0,") + test.rule);
            QCOMPARE(Desconto_Libera_Auto(7), QString(test.rule).endsWith("True"));
            QCOMPARE(Desconto_Atendido(7, test.total), test.refused);
        }
    }

    void withoutADataFileEveryAnswerIsEmpty()
    {
        CaminhoBD = "/nowhere/Morvelane.mdb";
        IdCaixa = 3;
        QCOMPARE(Categoria_Do_Produto("X"), QString("-----"));
        QCOMPARE(Grupo_Do_Cliente("X"), QString());
        QVERIFY(!Tem_Link("X") && !Tem_Desconto_Fixo(1) && !Desconto_Atendido(1, "1") && !Desconto_Libera_Auto(1));
        QCOMPARE(Valor_Desconto_Fixo(1, 50), 0.0);
        QVERIFY(!Caixa_Aberto());
        QCOMPARE(IdCaixa, 0.0);
    }

    void soundCanBeSilenced()
    {
        const QString wave = cafe->path("Caixa.wav");
        cafe->writeFile("Caixa.wav", "RIFF");
        cafe->setIni("Som", "Ativo", {});
        Tocar_Som(wave);
        QCOMPARE(machine->sounds.size(), 1);
        Tocar_Som(cafe->path("None.wav"));
        cafe->setIni("Som", "Ativo", "0");
        Tocar_Som(wave);
        QCOMPARE(machine->sounds.size(), 1);
    }

    void thePageComesBack()
    {
        Printer &printer = Printer::current();
        const QSize page(printer.PageWidth(), printer.PageHeight());
        Salvar_Escala_Impressora();
        printer.setPageSize(1000, 2000);
        Restaurar_Escala_Impressora();
        QCOMPARE(QSize(printer.PageWidth(), printer.PageHeight()), page);
    }

    void waitingEndsWithTheWindow()
    {
        Aguardar_Form("frmfirst");
        QCOMPARE(machine->sleeps, QList<int>({50}));

        Forms::use<FirstWindow>();
        QVERIFY(!Form_Aberto("FRMFIRST"));
        machine->whileAsleep = [this] {
            if (machine->sleeps.size() == 4)
                Forms::use<FirstWindow>().Unload();
        };
        Aguardar_Form("frmfirst");
        QCOMPARE(machine->sleeps.size(), 4);
    }

    void allWindowsUnload()
    {
        // The second takes the first along, whose turn would come next.
        Forms::use<SecondWindow>();
        Forms::use<FirstWindow>();
        Descarregar_Forms();
        QVERIFY(Forms::loaded().isEmpty());
    }

private:
    void enterCafe(const QLocale &region)
    {
        cafe.reset();
        cafe.emplace(region);
        cafe->start();
    }

    void addRule(const QString &values)
    {
        cafe->execute("Insert into Descontos (Codigo,Fixo,Relativo,Absoluto,Valor,Condicao,LiberarAuto) values (" +
                      values + ")");
    }

    std::optional<FakeMachine> machine;
    std::optional<TestCafe> cafe;
};

QTEST_MAIN(tst_funcoes)
#include "tst_funcoes.moc"
