#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/Funcoes.h"
#include "tests/support/TestCafe.h"

#include <QApplication>
#include <QTest>

class tst_funcoes : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        cafe.emplace();
        cafe->start();
    }
    void cleanup() { cafe.reset(); }

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

    void aRowIsReadBesideTheKnownPath()
    {
        cafe->execute("Insert into Produtos (Codigo,Descrição,Categoria) values (9001,'TESTE','BEBIDAS')");
        CaminhoBD = cafe->folder() + "/anything.else";
        QCOMPARE(Categoria_Do_Produto("TESTE"), QString("BEBIDAS"));
        QCOMPARE(CaminhoBD, cafe->folder() + "/\\Morvelane.mdb");
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

private:
    std::optional<TestCafe> cafe;
};

QTEST_MAIN(tst_funcoes)
#include "tst_funcoes.moc"
