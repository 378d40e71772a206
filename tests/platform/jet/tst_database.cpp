#include "platform/jet/engine/SqlCipherConnection.h"
#include "platform/text/RegionalSettings.h"
#include "tests/platform/jet/DataFile.h"

#include <QDir>
#include <QFile>
#include <QTest>

/// The life of a data file: opening, design, damage, loss and copies.
class tst_database : public QObject
{
    Q_OBJECT

private slots:
    void refusesWhatIsNoDataFile()
    {
        DataFile file;
        file.write("zero", {});
        file.write("noise", QByteArray(50'000, '\x5A'));
        file.db->Close();
        file.write("torn", file.bytes().replace(20, 900, QByteArray(900, '\0')));
        const QByteArray before = file.bytes();
        using namespace ErrorNumber;
        for (const auto &[name, error, connect] : {std::tuple("Nenhum.mdb", CannotOpenFile, connectText),
                                                   {"zero", UnrecognisedFormat, connectText},
                                                   {"noise", UnrecognisedFormat, connectText},
                                                   {"torn", UnrecognisedFormat, connectText},
                                                   {"Dados.mdb", UnrecognisedFormat, ";PWD=outra"}}) {
            const auto open = [&] { DBEngine::Workspaces(0).OpenDatabase(file.path(name), false, false, connect); };
            QVERIFY2(errorOf(open) == error, name);
        }
        QCOMPARE(QFile::exists(file.path("Nenhum.mdb")), false);
        QCOMPARE(QFileInfo(file.path("zero")).size(), 0);
        QCOMPARE(file.bytes(), before);
    }

    void runsASchemaStepWholeAndOnce()
    {
        RegionalSettings::use(QLocale("pt_BR"));
        const DataFile file;
        // What other programs gave the table stays with it.
        file.run(
            "ALTER TABLE Produtos ADD COLUMN Nota VARCHAR(9) DEFAULT 'n'; CREATE INDEX own ON produtos (Nota);"
            "CREATE TRIGGER [own trigger] AFTER DELETE ON Produtos BEGIN INSERT INTO Vendas (Codigo) VALUES (9); END");
        for (const char *row : {"5,'8,5'", "2,'10%'", "3,'x'", "4,Null", "7,'1.000,25'"})
            file.db->Execute("Insert into Produtos (Codigo,Valor) values (" + QString(row) + ")");
        const QList<SchemaStep> steps{{2, {{"Nova", {{"Nome"}}, KeyKind::None, {}, {}}}, {{"produtos", {"valor"}}}}};
        QVERIFY(errorOf([&] { file.db->applySchema({{2, steps[0].NewTables, {steps[0].NewNumbers[0], {"X", {}}}}}); }));
        QCOMPARE(file.db->schemaVersion() * 10 + file.open()->TableDefs().size(), 12);
        for (const DatabaseHandle &db : {file.db, file.open()}) {
            db->applySchema(steps);
            QCOMPARE(DataFile::answer(db, "Select Codigo,Valor,Nota,Servico From Produtos"),
                     "5|8,5|n|False 2|10|n|False 3|0|n|False 4|~|n|False 7|1000,25|n|False");
        }
        QCOMPARE(file.answer("Select Codigo From Produtos Where Valor>8 Order By Valor"), "5 2 7");
        QVERIFY(errorOf([&] { file.db->Execute("Insert into Produtos (Codigo,Valor) values (8,'x')"); }));
        QVERIFY(errorOf([&] { file.db->Execute("Insert into Produtos (Codigo) values (5)"); }));
        QVERIFY(errorOf([&] { file.run("CREATE INDEX own ON Vendas (Codigo)"); }));
        file.db->Execute("Delete from Produtos Where Codigo=5");
        QCOMPARE(file.answer("Select Codigo From Vendas"), "9");
    }

    void renumbersOrRefusesATakenKey()
    {
        const DataFile file;
        for (const char *row : {"5,'a'", "5,'b'", "2,'c'", "5,'d'", "Null,'e'", "Null,'f'"})
            file.db->Execute("Insert into Vendas (Codigo,Nome) values (" + QString(row) + ")");
        QCOMPARE(file.answer("Select Codigo,Nome From Vendas Order By Nome"), "5|a 6|b 2|c 7|d ~|e ~|f");
        QCOMPARE(file.answer("Select Codigo,Nome From Vendas Order By Nome Desc"), "~|f ~|e 7|d 2|c 6|b 5|a");
        file.db->Execute("Insert into Produtos (Codigo) values (1)");
        QCOMPARE(errorOf([&] { file.db->Execute("Insert into Produtos (Codigo) values (1)"); }),
                 ErrorNumber::DuplicateKey);
    }

    void servesAgainWhenTheShareComesBack()
    {
        const DataFile file;
        const QString away = file.path("longe.mdb");
        for (int round = 0; round < 2; ++round) {
            QVERIFY(QFile::rename(file.path(), away));
            QVERIFY(errorOf([&] { file.db->Execute("Insert into Vendas (Codigo) values (1)"); }) != 0);
            QVERIFY(errorOf([&] { file.answer("Select * From Vendas"); }) != 0);
            QVERIFY(!QFile::exists(file.path()));
            QVERIFY(QFile::rename(away, file.path()));
            file.db->Execute("Insert into Vendas (Codigo) values (7)");
        }
        // No half transaction stays.
        QVERIFY(errorOf([&] {
                    file.db->inTransaction([&] {
                        file.db->Execute("Insert into Vendas (Codigo) values (1)");
                        QVERIFY(QFile::rename(file.path(), away));
                        errorOf([&] { file.db->Execute("Insert into Vendas (Codigo) values (2)"); });
                        QVERIFY(QFile::rename(away, file.path()));
                        file.db->Execute("Insert into Vendas (Codigo) values (3)");
                    });
                }) != 0);
        QCOMPARE(file.answer("Select Codigo From Vendas"), "7 8");
    }

    void servesABackupThatTakesItsPlace()
    {
        const DataFile backup;
        backup.db->Execute("Insert into Vendas (Codigo,Nome) values (5,'antes')");
        backup.db->Close();
        const DataFile file;
        // Another file by the same name, and another content in the same file, which tells of itself at the first read.
        for (const bool inPlace : {false, true}) {
            if (!inPlace)
                QVERIFY(QFile::rename(file.path(), file.path("velho.mdb")));
            file.write("Dados.mdb", backup.bytes());
            QCOMPARE(file.answer("Select * From Vendas"), "5|antes|False");
            file.write("Dados.mdb", DataFile().bytes());
            file.db->Execute("Insert into Vendas (Codigo) values (6)");
            QCOMPARE(file.answer("Select Codigo From Vendas"), "6");
        }
        // What a transaction began on one file isn't ended on another.
        QVERIFY(errorOf([&] {
                    file.db->inTransaction([&] {
                        QVERIFY(QFile::remove(file.path()));
                        file.write("Dados.mdb", backup.bytes());
                        errorOf([&] { file.db->Execute("Insert into Vendas (Codigo) values (7)"); });
                    });
                }) != 0);
        QCOMPARE(file.answer("Select Codigo From Vendas"), "5");
    }

    void reportsDamage()
    {
        DataFile file;
        file.db->inTransaction([&] {
            for (int i = 0; i < 2'000; ++i)
                file.db->Execute(QString("Insert into Vendas (Codigo,Nome) values (%1,'%2')").arg(i).arg(i, 60));
        });
        QCOMPARE(file.db->checkIntegrity(), QStringList());
        file.db->Close();

        QByteArray bytes = file.bytes();
        bytes[bytes.size() - 20 * 1024 + 300] = static_cast<char>(~bytes[bytes.size() - 20 * 1024 + 300]);
        file.write("onePage", bytes);
        const DatabaseHandle db = DataFile::openAt(file.path("onePage"));
        QVERIFY(!db->checkIntegrity().isEmpty());
        QVERIFY(errorOf([&] { DataFile::answer(db, "Select * From Vendas"); }) != 0);
        QVERIFY(errorOf([&] { db->backupTo(file.path("copia.mdb")); }) != 0);
        QVERIFY(!QFile::exists(file.path("copia.mdb")));
        // What lies on sound pages is still served.
        QCOMPARE(DataFile::answer(db, "Select Codigo From Vendas Where Codigo=1"), "1");

        file.write("torn", bytes.left(bytes.size() / 2));
        QVERIFY(errorOf([&] { DataFile::answer(DataFile::openAt(file.path("torn")), "Select * From Vendas"); }) != 0);
    }

    void copiesItself()
    {
        const DataFile file;
        file.db->Execute("Insert into Vendas (Codigo,Nome) values (1,'ÁGUA')");
        const QString copy = file.path("copia.mdb");
        const auto rights = [](const QString &path) { return int(QFileInfo(path).permissions()) & 0x777; };
        QVERIFY(QFile::setPermissions(file.path(), QFile::ReadOwner | QFile::WriteOwner));
        file.db->backupTo(copy);
        QCOMPARE(rights(copy), rights(file.path()));
        const DatabaseHandle copied = DataFile::openAt(copy);
        QCOMPARE(DataFile::answer(copied, "Select * From Vendas"), "1|ÁGUA|False");
        QCOMPARE(copied->schemaVersion(), 1);

        for (const char *taken : {"DADOS.mdb", "copia.mdb", "COPIA.mdb"})
            QVERIFY(errorOf([&] { file.db->backupTo(file.path(taken)); }) != 0);
        QVERIFY(errorOf([&] { file.db->backupTo(file.path("")); }) != 0);
        QCOMPARE(QDir(file.path("")).entryList(QDir::Files), QStringList({"copia.mdb", "Dados.mdb"}));
        QCOMPARE(file.answer("Select Codigo From Vendas"), "1");
    }

    void tellsItsOwnFaultsFromThoseOfAStatement()
    {
        const DataFile file;
        SqlCipherConnection connection({file.path(), connectText.mid(5)});
        QVERIFY_THROWS_EXCEPTION(std::logic_error, connection.step(nullptr));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, connection.run("SELEC 1"));
    }
};

QTEST_GUILESS_MAIN(tst_database)
#include "tst_database.moc"
