#include "platform/text/RegionalSettings.h"
#include "tests/platform/jet/DataFile.h"

#include <QTest>

/// What the reader takes and refuses, asked of a real file.
class tst_reader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        RegionalSettings::use(QLocale("pt_BR"));
        for (const char *row : {"1,'ÁGUA','10','2,50',False,'Bebidas'", "2,'BALA','9,5','0,10',True,'Doces'",
                                "3,'D''ÁGUA','0','x',False,'doces'", "4,Null,Null,Null,False,'DOÇURA'"})
            m_file.db->Execute("Insert into Produtos (Codigo,Descrição,Quantidade,Valor,Servico,Categoria) values (" +
                               QString(row) + ")");
        m_file.db->Execute("Insert into Vendas (Codigo,Nome) values (2,'BALA')");
    }

    void answers()
    {
        const auto check = [this](const QString &sql, const char *expected) {
            QVERIFY2(m_file.answer(sql) == expected, qPrintable(sql + " gives " + m_file.answer(sql)));
        };
        const auto where = [&](const QString &condition, const char *codes) {
            check("Select Codigo From Produtos Where " + condition + " Order By Codigo", codes);
        };
        check("SELECT max(CODIGO),MIN(codigo), Count ( * ) ,Count(VALOR) from PRODUTOS", "4|1|4|3");
        check("select * from produtos where codigo=2;", "2|BALA|9,5|0,10|True|Doces");
        check("Select Codigo From Produtos Order By Servico Asc, Val(Quantidade) Desc, Codigo", "2 1 3 4");
        where("descriÇÃO='água'", "");
        where("[descrição] = 'ÁGUA'", "1");
        where("Codigo=1 OR Codigo=2 AND Servico=False", "1");
        where("(Codigo=1 OR Codigo=2) AND Servico = True", "2");
        where("Codigo In (1, 3) Or Descrição In (Select nome From Vendas Where Codigo=2)", "1 2 3");
        where("Descrição Is Not Null And Descrição <> 'BALA'", "1 3");
        where("Cdbl(Quantidade)>=Cdbl('9,50') And Codigo < 3", "1 2");
        where("Quantidade - '0,5' = 9 And Codigo=2", "2");
        where("Servico=255 Or Servico=-1", "2");
        where("Categoria='doçura' Or categoria='bebidas'", "1 4");
        where("Codigo=Null", "");
    }

    void refuses()
    {
        using namespace ErrorNumber;
        const auto refused = [this](const QString &sql, int error) {
            QVERIFY2(errorOf([&] { m_file.db->OpenRecordset(sql); }) == error, qPrintable(sql));
        };
        refused("", BadSql);
        refused("Select Codigo From Produtos Where Servico = True Categoria='x' AND Codigo=1", BadSql);
        refused("Select * From Produtos Where Descrição='D'AGUA'", BadSql);
        refused("Select * From Produtos Where Codigo=1 OR ", BadSql);
        refused("Select * From Produtos Where Codigo=7,5", BadSql);
        refused("Select * From Produtos Where Codigo=1; Delete From Produtos", BadSql);
        refused("Select load_extension('x') From Produtos", BadSql);
        refused("Select * From sqlite_master", UnknownTable);
        refused("Select Nenhum From Produtos", UnknownField);
        refused("Select * From Produtos Where Codigo In (Select Nome From Vendas Where Valor='x')", UnknownField);
        refused("Select * From Produtos Where Descrição=1", TypeMismatch);
        refused("Select * From Produtos Where Cdbl(Valor)=1 And Codigo>0", TypeMismatch);
        refused("Select * From Produtos Where Codigo=Cdbl('')", TypeMismatch);
        refused("Delete From Produtos Where Codigo=9", BadSql);
    }

    void refusesEndlessNesting()
    {
        for (const QString &condition :
             {QString(100'000, '(') + "Codigo=1" + QString(100'000, ')'),
              QString("Codigo In (Select Codigo From Produtos Where ").repeated(10'000) + "Codigo=1"})
            QCOMPARE(errorOf([&] { m_file.db->OpenRecordset("Select * From Produtos Where " + condition); }),
                     ErrorNumber::BadSql);
        QCOMPARE(m_file.answer("Select Codigo From Produtos Where " + QString("Not ").repeated(100'000) + "Codigo=1"),
                 "1");
    }

private:
    DataFile m_file;
};

QTEST_GUILESS_MAIN(tst_reader)
#include "tst_reader.moc"
