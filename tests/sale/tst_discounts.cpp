#include "tests/sale/SaleCounter.h"

#include <QTest>

/// The rules of discount a sale meets.
class tst_discounts : public QObject
{
    Q_OBJECT

private slots:
    void picksRules()
    {
        QHash<QString, QString> rules;
        for (const QStringList &rule :
             table({"9|Absoluto='1', Valor='9'", "10|Relativo='50', Valor='10'", "20|Relativo='1', Valor='20'",
                    "21|Relativo='9', Valor='20'", "25|Absoluto='0,75', Valor='25', Condicao='2'", "32|Relativo='10'",
                    "33|Relativo='10', Fixo=False", "40|Relativo='10', Grupo='VIP'",
                    "41|Relativo='20', Grupo='VIP', Categoria='bebidas'",
                    "42|Relativo='30', Grupo='ESTUDANTE', Categoria='BEBIDAS'", "43|Absoluto='2', Grupo=''",
                    "51|Absoluto='1', AtoCadastro=True", "52|Absoluto='1', TipoVenda='1'",
                    "53|Absoluto='1', LiberarAuto=False", "54|Absoluto='1', Valor='25,01'"}))
            rules[rule[0]] = rule[1];
        SaleCounter counter;
        counter.change("Produtos", "Categoria='BEBIDAS'");
        // Rules, price, the rule picked and its amount, the final total; a sixth column is a walk-in sale.
        for (const QStringList &row :
             table({"10 20|25|20|0,25|24,75", "10 20|20|20|0,2|19,80", "10 20|19,99|10|10|9,99",
                    "9 10|25|10|12,5|12,50", "10 20 25|25|25|0,75|24,25", "10 25|25,01|10|12,51|12,50",
                    "20 21|25|21|2,25|22,75", "32|12,25|32|1,23|11,02", "33|25|33||25,00", "10 40 41 42|25|41|5|20,00",
                    "10 40 42|25|40|2,5|22,50", "10 42|25|42|7,5|17,50", "10 40|25|10|12,5|12,50|walk-in",
                    "10 43|25|43|2|23,00|walk-in", "51 52 53 54|25|1||25,00"})) {
            counter.cafe.execute("Delete from Descontos Where Codigo>1");
            for (const QString &code : row[0].split(' '))
                counter.add("Descontos", rules[code] + ", Codigo=" + code);
            counter.change("Produtos", "Valor_Unitario='" + row[1] + "'");
            counter.open();
            if (row.size() > 5)
                counter.press("optavulsa");
            counter.put("BALA");
            const QStringList shown{row[0], row[1], counter.shown("txtmotivo"), counter.shown("txtvalor_desconto"),
                                    counter.shown("lbltotal_final").mid(3)};
            QCOMPARE(shown, row.mid(0, 5));
            QCOMPARE(counter.at("chkdesconto").property("checked").toBool(), row[2] != "1");
            QCOMPARE(counter.at("txtvalor_desconto").isEnabled(), row[3].isEmpty());
        }
    }
};

QTEST_MAIN(tst_discounts)
#include "tst_discounts.moc"
