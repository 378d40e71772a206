#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/Funcoes.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

#include <QApplication>
#include <QTest>

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
        QCOMPARE(typed("a1,2.3,4 -\r5\b", false), QString("1,2345\b"));
        QCOMPARE(typed("1-2-3", true), QString("1-23"));
    }

    void rowsAnswer()
    {
        cafe->execute("Insert into Produtos (Codigo,Descrição,Categoria) values (9001,'TESTE','BEBIDAS')");
        cafe->execute("Insert into Produtos (Codigo,Descrição) values (9002,'SEM CATEGORIA')");
        cafe->execute("Insert into Clientes (Codigo,Nome,Grupo) values (9001,'ANA TESTE','VIP')");
        cafe->execute("Insert into Links (Codigo,Nome,Codigo_Acesso) values (9001,'ANA TESTE','X1')");
        CaminhoBD = cafe->folder() + "/anything.else";
        QCOMPARE(Categoria_Do_Produto("TESTE"), QString("BEBIDAS"));
        QCOMPARE(CaminhoBD, cafe->folder() + "/\\Morvelane.mdb");
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
        setRules({"1,False,10,0,'19,90','1',True", "2,False,10,0,'25','2',True", "4,False,10,0,'25','2',False"});
        QVERIFY(Desconto_Atendido(1, "19,89"));
        QVERIFY(!Desconto_Atendido(1, "19,90"));
        QVERIFY(!Desconto_Atendido(2, "25,00"));
        QVERIFY(Desconto_Atendido(2, "25,01"));
        QVERIFY(!Desconto_Atendido(4, "1,00"));
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
