#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/Lookups.h"
#include "platform/base/Err.h"
#include "tests/support/TestCafe.h"

#include <QApplication>
#include <QDir>
#include <QTest>

/// The data file as the whole program opens and asks it.
class tst_data : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        cafe.emplace();
        cafe->start();
    }
    void cleanup() { cafe.reset(); }

    void theOpenHandleOutlivesItsPath()
    {
        QVERIFY(canAsk());
        const DatabaseHandle first = BancoPrincipal;
        CaminhoBD = "/nowhere/Morvelane.mdb";
        QVERIFY(canAsk());
        QVERIFY(!Existe_Tabela("Produtos"));
        QCOMPARE(BancoPrincipal, first);

        // A connection that broke isn't opened anew.
        CaminhoBD = cafe->dataFile();
        first->Close();
        QVERIFY(!canAsk());
        QCOMPARE(BancoPrincipal, first);
        Fechar_BD(BancoPrincipal);
        QVERIFY(canAsk());
    }

    void aFileThatCannotBeOpenedGivesNoHandleAndStays()
    {
        QString path = cafe->path("broken.mdb");
        const QByteArray content(8192, 'Z');
        cafe->writeFile("broken.mdb", content);
        const QStringList before = QDir(cafe->folder()).entryList();
        DatabaseHandle handle;
        QVERIFY(!Abrir_BD(path, 0, 3, connectText(), handle));
        QVERIFY(!handle);
        // No repair was tried, since the error is forgotten by then.
        QCOMPARE(Err::Number(), 0);
        QCOMPARE(cafe->readFile("broken.mdb"), content);
        QCOMPARE(QDir(cafe->folder()).entryList(), before);
        QVERIFY(!Abrir_BD(CaminhoBD, 0, 3, ";PWD=another", handle));
        QVERIFY(Abrir_BD(CaminhoBD, 0, 3, connectText(), handle));
        Fechar_BD(handle);
    }

    void aQueryClosesItsTargetFirst()
    {
        RecordsetHandle rs;
        QVERIFY(Abrir_Recordset(rs, BancoPrincipal, "Select Nome From Clientes"));
        const RecordsetHandle before = rs;
        QVERIFY(!Abrir_Recordset(rs, BancoPrincipal, "Select Nome From No_Such_Table"));
        QVERIFY(!rs);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, before->MoveNext());

        Abrir_Recordset_Opcoes(RecordsetGlobal3, BancoPrincipal, "Select Count(*) From Clientes", dbOpenDynaset,
                               dbSeeChanges);
        QVERIFY(RecordsetGlobal3 && !RecordsetGlobal3->Eof());
        Fechar_Recordsets_Globais();
        QVERIFY(!RecordsetGlobal3);
    }

    void aRowIsReadBesideTheKnownPath()
    {
        cafe->execute("Insert into Produtos (Codigo,Descrição,Categoria) values (9001,'TESTE','BEBIDAS')");
        CaminhoBD = cafe->folder() + "/anything.else";
        QCOMPARE(Categoria_Do_Produto("TESTE"), QString("BEBIDAS"));
        QCOMPARE(CaminhoBD, cafe->folder() + "/\\Morvelane.mdb");
        QCOMPARE(Extrair_Pasta(CaminhoBD), cafe->folder());
    }

private:
    /// Whether the main handle answers a query.
    static bool canAsk()
    {
        RecordsetHandle rs;
        const bool answered = Abrir_Recordset(rs, BancoPrincipal, "Select Count(*) From Produtos") != nullptr;
        Fechar_Recordset(rs);
        return answered;
    }

    std::optional<TestCafe> cafe;
};

QTEST_MAIN(tst_data)
#include "tst_data.moc"
