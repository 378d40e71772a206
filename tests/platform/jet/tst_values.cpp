#include "platform/jet/TextOrder.h"
#include "platform/text/RegionalSettings.h"
#include "tests/platform/jet/DataFile.h"

#include <QTest>

/// How values are stored, compared, put in order and read back.
class tst_values : public QObject
{
    Q_OBJECT

private slots:
    void init() { RegionalSettings::use(QLocale("pt_BR")); }
    void textStaysText_data();
    void textStaysText();
    void takesEveryTrueAlike_data();
    void takesEveryTrueAlike();
    void convertsToTheFieldsType();
    void readsByTheRegionalSettings();
    void readsFieldsByNameAndPlace();
    void outlivesItsDatabase();
    void ordersByLanguage();
    void comparesBeyondAscii_data();
    void comparesBeyondAscii();
};

void tst_values::textStaysText_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("stock");
    QTest::addColumn<QString>("sold");
    QTest::addColumn<QString>("left");
    QTest::newRow("whole") << "pt_BR"
                           << "10"
                           << "2"
                           << "8";
    QTest::newRow("comma") << "pt_BR"
                           << "10"
                           << "2,5"
                           << "7,5";
    QTest::newRow("a point is no decimal there") << "pt_BR"
                                                 << "100"
                                                 << "1.5"
                                                 << "85";
    QTest::newRow("point") << "en_US"
                           << "10"
                           << "2.5"
                           << "7.5";
    QTest::newRow("no binary crumbs") << "en_US"
                                      << "0.3"
                                      << "0.1"
                                      << "0.2";
    QTest::newRow("below nothing") << "en_US"
                                   << "1"
                                   << "3"
                                   << "-2";
}

void tst_values::textStaysText()
{
    QFETCH(QString, region);
    QFETCH(QString, stock);
    QFETCH(QString, sold);
    QFETCH(QString, left);
    RegionalSettings::use(QLocale(region));
    DataFile file;
    file.db->Execute("Insert into Produtos (Codigo,Descrição,Quantidade) values (1,'ÁGUA','" + stock + "')");
    file.db->Execute("UPDATE Produtos SET Quantidade=(Cdbl(Quantidade)-CDbl('" + sold +
                     "')) Where Descrição='ÁGUA' And Servico=False");
    const RecordsetHandle rs = file.db->OpenRecordset("Select Quantidade From Produtos");
    QCOMPARE(rs->Fields("Quantidade").kind(), FieldValue::Kind::Text);
    QCOMPARE(rs->Fields("Quantidade").text(), left);
}

void tst_values::takesEveryTrueAlike_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<bool>("expected");
    for (const char *yes : {"True", "1", "-1", "255", "(1=1)", "Codigo=1"})
        QTest::newRow(yes) << yes << true;
    for (const char *no : {"False", "0", "Null", "Not True"})
        QTest::newRow(no) << no << false;
}

void tst_values::takesEveryTrueAlike()
{
    QFETCH(QString, written);
    QFETCH(bool, expected);
    DataFile file;
    file.db->Execute("Insert into Produtos (Codigo) values (1)");
    QCOMPARE(file.answer("Select Servico From Produtos"), "False");
    file.db->Execute("Update Produtos Set Servico=" + written);
    if (!written.contains("Codigo"))
        file.db->Execute("Insert into Produtos (Codigo,Servico) values (2," + written + ")");
    const RecordsetHandle rs =
        file.db->OpenRecordset("Select Servico From Produtos Where Servico=" + QString(expected ? "True" : "False"));
    QCOMPARE(rs->Fields(0).kind(), FieldValue::Kind::Boolean);
    QCOMPARE(rs->Fields(0).boolean(), expected);
    QCOMPARE(rs->Fields(0).number(), expected ? -1.0 : 0.0);
    QCOMPARE(file.answer(QString("Select Count(*) From Produtos Where Servico=%1").arg(expected ? "False" : "True")),
             "0");
}

void tst_values::convertsToTheFieldsType()
{
    DataFile file;
    file.db->Execute("Insert into Produtos (Codigo,Descrição,Quantidade,Valor) values ('1.000',2.5,True,Null)");
    QCOMPARE(file.answer("Select * From Produtos"), "1000|2,5|-1|~|False|~");
    file.db->Execute("Update Produtos Set Codigo=Quantidade, Valor=Codigo, Descrição=Codigo/16");
    QCOMPARE(file.answer("Select * From Produtos"), "-1|62,5|-1|1000|False|~");
    QCOMPARE(errorOf([&] { file.db->Execute("Update Produtos Set Valor=Cdbl(Categoria)"); }),
             ErrorNumber::TypeMismatch);
}

void tst_values::readsByTheRegionalSettings()
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

void tst_values::readsFieldsByNameAndPlace()
{
    DataFile file;
    file.db->Execute("Insert into Produtos (Codigo,Descrição) values (1,'ÁGUA')");
    const RecordsetHandle rs = file.db->OpenRecordset("Select Codigo, DESCRIÇÃO, Val(Codigo) From Produtos");
    QCOMPARE(rs->FieldName(1), "Descrição");
    QCOMPARE(rs->FieldName(2), "Expr1002");
    QCOMPARE(rs->Fields("descriÇão").text(), "ÁGUA");
    QVERIFY(errorOf([&] { rs->Fields("Valor"); }) != 0);
    QVERIFY(errorOf([&] { rs->Fields(3); }) != 0);
    rs->MoveNext();
    QVERIFY(rs->Eof());
    QVERIFY(errorOf([&] { rs->Fields(0); }) != 0);
    QVERIFY(errorOf([&] { rs->MoveNext(); }) != 0);
}

void tst_values::outlivesItsDatabase()
{
    DataFile file;
    const QString longText = QString("çã").repeated(200'000);
    file.db->Execute("Insert into Vendas (Codigo,Nome) values (1,'" + longText + "')");
    file.db->Execute("Insert into Vendas (Codigo,Nome) values (2,'')");
    const RecordsetHandle rs = file.db->OpenRecordset("Select Nome From Vendas Order By Codigo");
    file.db->Execute("Delete From Vendas");
    file.db->Close();
    QVERIFY(errorOf([&] { file.db->OpenRecordset("Select * From Vendas"); }) != 0);
    const FieldValue first = rs->Fields(0);
    rs->MoveNext();
    QCOMPARE(first.text(), longText);
    QVERIFY(!rs->Fields(0).isNull());
    rs->Close();
    QVERIFY(rs->Eof());
}

void tst_values::ordersByLanguage()
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

void tst_values::comparesBeyondAscii_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<int>("byLanguage");
    QTest::addColumn<bool>("sameInAnyCase");
    const auto row = [](const char *left, const char *right, int byLanguage, bool same) {
        QTest::addRow("%s %s", left, right) << QByteArray(left) << QByteArray(right) << byLanguage << same;
    };
    row("ação", "AÇÃO", 0, true);
    row("acao", "ação", -1, false);
    row("açãob", "acaoa", 1, false);
    row("a\u0301gua", "água", 0, false);
    row("a\u0301gua", "AGUA", 1, false);
    row("n\u0303", "n", 1, false);
    row("ñandu", "nz", -1, false);
    row("ж", "Ж", 0, true);
    row("z", "ж", -1, false);
    row("€", "0", -1, false);
    row("\xC3", "a", -1, false);
    row("a\xF0\x9F", "a", 1, false);
    row("", "a", -1, false);
}

void tst_values::comparesBeyondAscii()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QFETCH(bool, sameInAnyCase);
    const std::string_view a(left.constData(), static_cast<std::size_t>(left.size()));
    const std::string_view b(right.constData(), static_cast<std::size_t>(right.size()));
    const auto sign = [](int value) { return value < 0 ? -1 : int(value > 0); };
    QTEST(sign(languageKey(a).compare(languageKey(b))), "byLanguage");
    QCOMPARE(compareAnyCase(a, b) == 0, sameInAnyCase);
    QCOMPARE(sign(compareAnyCase(b, a)), -sign(compareAnyCase(a, b)));
}

QTEST_GUILESS_MAIN(tst_values)
#include "tst_values.moc"
