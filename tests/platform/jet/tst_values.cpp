#include "platform/text/RegionalSettings.h"
#include "tests/platform/jet/DataFile.h"

#include <QTest>

/// How values are stored, compared, put in order and read back.
class tst_values : public QObject
{
    Q_OBJECT

private slots:
    void init() { RegionalSettings::use(QLocale("pt_BR")); }
    void textStaysText()
    {
        const auto check = [](const char *region, const QString &stock, const QString &sold, const char *left) {
            RegionalSettings::use(QLocale(region));
            DataFile file;
            file.db->Execute("Insert into Produtos (Codigo,Descrição,Quantidade) values (1,'ÁGUA','" + stock + "')");
            file.db->Execute("UPDATE Produtos SET Quantidade=(Cdbl(Quantidade)-CDbl('" + sold +
                             "')) Where Descrição='ÁGUA' And Servico=False");
            const RecordsetHandle rs = file.db->OpenRecordset("Select Quantidade From Produtos");
            QCOMPARE(rs->Fields("Quantidade").kind(), FieldValue::Kind::Text);
            QCOMPARE(rs->Fields("Quantidade").text(), left);
        };
        check("pt_BR", "10", "2,5", "7,5");
        // A point is no decimal there.
        check("pt_BR", "100", "1.5", "85");
        check("en_US", "0.3", "0.1", "0.2");
        check("en_US", "1", "3", "-2");
    }

    void takesEveryTrueAlike()
    {
        const auto check = [](const QString &written, bool expected) {
            const DataFile file;
            file.db->Execute("Insert into Produtos (Codigo) values (1)");
            QCOMPARE(file.answer("Select Servico From Produtos"), "False");
            file.db->Execute("Update Produtos Set Servico=" + written);
            const RecordsetHandle rs = file.db->OpenRecordset(
                QString("Select Servico From Produtos Where Servico=%1").arg(expected ? "True" : "False"));
            QCOMPARE(rs->Fields(0).kind(), FieldValue::Kind::Boolean);
            QCOMPARE(rs->Fields(0).boolean(), expected);
            QCOMPARE(rs->Fields(0).number(), expected ? -1.0 : 0.0);
        };
        for (const char *yes : {"True", "1", "-1", "255", "Codigo=1"})
            check(yes, true);
        for (const char *no : {"False", "0", "Null", "Not True"})
            check(no, false);
    }

    void ordersEveryTrueFirst()
    {
        const DataFile file;
        file.run("INSERT INTO Vendas (Codigo, Paga) VALUES (1, 0), (2, 255), (3, -1), (4, 0), (5, 1)");
        QCOMPARE(file.answer("Select Codigo From Vendas Order By Paga,Codigo"), "2 3 5 1 4");
    }

    void readsByTheRegionalSettings()
    {
        DataFile file;
        file.db->Execute("Insert into Vendas (Codigo,Nome) values (1234567.25,'2,5')");
        const RecordsetHandle rs = file.db->OpenRecordset("Select Codigo,Nome,Paga From Vendas");
        QCOMPARE(rs->Fields("Codigo").kind(), FieldValue::Kind::Number);
        QCOMPARE(rs->Fields("Codigo").text(), "1234567,25");
        QCOMPARE(rs->Fields("Codigo").number(), 1234567.25);
        QCOMPARE(rs->Fields("Nome").number(), 2.5);
        RegionalSettings::use(QLocale("en_US"));
        QCOMPARE(rs->Fields("Codigo").text(), "1234567.25");
        QCOMPARE(rs->Fields("Nome").number(), 25.0);

        const FieldValue null;
        QCOMPARE(null.text(), "");
        QCOMPARE(errorOf([&] { null.number(); }), ErrorNumber::InvalidUseOfNull);
        QCOMPARE(errorOf([&] { null.boolean(); }), ErrorNumber::InvalidUseOfNull);
        QCOMPARE(errorOf([] { FieldValue(FieldValue::Kind::Text, "x").number(); }), ErrorNumber::TypeMismatch);
    }

    void ordersByLanguage()
    {
        const QStringList inOrder = {" z", "(z)",  "-",    "1",  "10", "2",  "a", "Á",
                                     "ab", "água", "Bala", "Ca", "Çb", "cc", "z"};
        DataFile file;
        for (qsizetype i = inOrder.size(); i-- > 0;)
            file.db->Execute("Insert into Vendas (Codigo,Nome) values (1,'" + inOrder[i] + "')");
        QStringList found;
        for (const RecordsetHandle rs = file.db->OpenRecordset("Select Nome From Vendas Order By Nome"); !rs->Eof();
             rs->MoveNext())
            found.append(rs->Fields(0).text());
        QCOMPARE(found, inOrder);
        QCOMPARE(file.answer("Select Count(*) From Vendas Where Nome>='A' And Nome<'B'"), "4");
    }
};

QTEST_GUILESS_MAIN(tst_values)
#include "tst_values.moc"
