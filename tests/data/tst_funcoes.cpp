#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/Funcoes.h"
#include "platform/print/Printer.h"
#include "platform/window/Forms.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

#include <QApplication>
#include <QTest>

class WaitedFor : public Form
{
    Q_OBJECT

public:
    WaitedFor() { setObjectName("frmwaited"); }
};

class tst_funcoes : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        machine.emplace();
        cafe.emplace();
        cafe->start();
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

    void numbersFollowTheRegion()
    {
        for (const auto &[locale, symbol] : {std::pair("pt_BR", "R$"), std::pair("en_US", "$")}) {
            cafe.reset();
            cafe.emplace(QLocale(locale));
            QCOMPARE(Simbolo_Moeda_Regional(), QString(symbol));
            QCOMPARE(Valor_Proporcional(10, 30, 10), 3.33);
            QCOMPARE(Valor_Proporcional(1.005, 1, 1), 1.01);
            QCOMPARE(Valor_Proporcional(5, 0, 10), 0.0);
        }
    }

    void rowsAnswer()
    {
        cafe->execute("Insert into Produtos (Codigo,Descrição,Categoria) values (9001,'TESTE','BEBIDAS')");
        cafe->execute("Insert into Produtos (Codigo,Descrição) values (9002,'SEM CATEGORIA')");
        cafe->execute("Insert into Clientes (Codigo,Nome,Grupo) values (9001,'ANA TESTE','VIP')");
        cafe->execute("Insert into Links (Codigo,Nome,Codigo_Acesso) values (9001,'ANA TESTE','X1')");
        CaminhoBD = cafe->folder() + "/anything.else";
        QCOMPARE(Categoria_Do_Produto("TESTE"), QString("BEBIDAS"));
        // The path is put right first, and then gains a separator at each call.
        QCOMPARE(CaminhoBD, cafe->folder() + "/\\Morvelane.mdb");
        QCOMPARE(Categoria_Do_Produto("teste"), QString("-----"));
        QCOMPARE(CaminhoBD, cafe->folder() + "/\\\\Morvelane.mdb");
        QCOMPARE(Categoria_Do_Produto("SEM CATEGORIA"), QString("-----"));
        QCOMPARE(Grupo_Do_Cliente("ANA TESTE"), QString("VIP"));
        QVERIFY(Tem_Link("ANA TESTE"));
        QVERIFY(!Tem_Link("NOBODY"));
    }

    void theNewestCashPeriodDecides()
    {
        const auto open = [](bool expected, double number) { return Caixa_Aberto() == expected && IdCaixa == number; };
        cafe->execute("Delete From Registro_Caixa");
        QVERIFY(open(false, 0));
        cafe->execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (1000000,True)");
        QVERIFY(open(true, 1000000));
        cafe->execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (1000001,False)");
        QVERIFY(open(false, 1000001));
    }

    void fixedDiscounts()
    {
        setRules({"1,True,10,3,'0','1',False", "2,True,0,3,'0','1',False", "3,False,10,0,'0','1',False"});
        QVERIFY(Tem_Desconto_Fixo(1));
        QVERIFY(!Tem_Desconto_Fixo(3));
        QCOMPARE(Valor_Desconto_Fixo(1, 50), 5.0);
        QCOMPARE(Valor_Desconto_Fixo(1, 0.35), 0.04);
        QCOMPARE(Valor_Desconto_Fixo(2, 50), 3.0);
        QCOMPARE(Valor_Desconto_Fixo(3, 50), 0.0);
    }

    void rulesRefuseTotals()
    {
        setRules({"1,False,10,0,'19,90','1',True", "2,False,10,0,'25','2',True", "3,False,10,0,'25','9',True",
                  "4,False,10,0,'25','2',False"});
        QVERIFY(Desconto_Atendido(1, "19,89"));
        QVERIFY(!Desconto_Atendido(1, "19,90"));
        QVERIFY(!Desconto_Atendido(1, "100,00"));
        QVERIFY(!Desconto_Atendido(2, "25,00"));
        QVERIFY(Desconto_Atendido(2, "25,01"));
        QVERIFY(Desconto_Atendido(3, "30,00"));
        QVERIFY(!Desconto_Atendido(4, "1,00"));
        QVERIFY(Desconto_Libera_Auto(1));
        QVERIFY(!Desconto_Libera_Auto(4));
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
        cafe->writeFile("Caixa.wav", "RIFF");
        const auto sounds = [this](const QString &name, const QString &active) {
            cafe->setIni("Som", "Ativo", active);
            machine->sounds.clear();
            Tocar_Som(cafe->path(name));
            return machine->sounds.size();
        };
        QCOMPARE(sounds("Caixa.wav", ""), 1);
        QCOMPARE(sounds("Caixa.wav", "0"), 0);
        QCOMPARE(sounds("None.wav", "1"), 0);
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
        Aguardar_Form("frmwaited");
        QCOMPARE(machine->sleeps, QList<int>({50}));

        Forms::use<WaitedFor>();
        QVERIFY(!Form_Aberto("FRMWAITED"));
        machine->whileAsleep = [this] {
            if (machine->sleeps.size() == 4)
                Descarregar_Forms();
        };
        Aguardar_Form("frmwaited");
        QCOMPARE(machine->sleeps.size(), 4);
    }

private:
    void setRules(const QStringList &rules)
    {
        cafe->execute("Delete From Descontos");
        for (const QString &rule : rules)
            cafe->execute("Insert into Descontos (Codigo,Fixo,Relativo,Absoluto,Valor,Condicao,LiberarAuto) values (" +
                          rule + ")");
    }

    std::optional<FakeMachine> machine;
    std::optional<TestCafe> cafe;
};

QTEST_MAIN(tst_funcoes)
#include "tst_funcoes.moc"
