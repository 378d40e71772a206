#include "tests/platform/jet/DataFile.h"

#include <QTest>

class tst_database : public QObject
{
    Q_OBJECT

private slots:
    void first();
};

void tst_database::first()
{
    DataFile file;
    file.db->Execute(
        "Insert into PRODUTOS (codigo,DESCRIÇÃO,quantidade,Servico,Categoria) values (1,'Água','10',False,'Bebidas')");
    file.db->Execute(
        "Insert into PRODUTOS (codigo,DESCRIÇÃO,quantidade,Servico,Categoria) values (2,'Bala','9',255,'Doces')");
    file.db->Execute(
        "UPDATE Produtos SET Quantidade=(Cdbl(Quantidade)-CDbl('2')) Where Descrição='Água' And Servico=False");
    QCOMPARE(file.answer("Select * from Produtos Order By Descrição"),
             "1|Água|8|~|False|Bebidas 2|Bala|9|~|True|Doces");
    QCOMPARE(file.answer("Select Max(codigo) From Produtos"), "2");
    QCOMPARE(file.answer("Select Codigo From Produtos Where Categoria='BEBIDAS'"), "1");
}

QTEST_GUILESS_MAIN(tst_database)
#include "tst_database.moc"
