#include "tests/platform/jet/DataFile.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

/// Terminals as processes of their own: this program starts itself as the second one.
class tst_concurrency : public QObject
{
    Q_OBJECT

private slots:
    void makesWritersWait();
    void copiesWhileOthersWrite();
    void survivesAKilledWriter();

private:
    static constexpr int rowsPerWriter = 60;

    static std::unique_ptr<QProcess> startWriter(const DataFile &file, const QString &name, int rows);
    static void waitForFirstRow(const DataFile &file);
};

namespace {

/// Stores rows as a terminal does: the next number is read, then used, with nothing held between.
int writeRows(const QString &path, const QString &name, int rows)
{
    try {
        const DatabaseHandle db = DataFile::openAt(path);
        for (int i = 0; i < rows; ++i) {
            const RecordsetHandle maximum = db->OpenRecordset("Select Max(Codigo) From Vendas");
            const double next = maximum->Fields(0).isNull() ? 1 : maximum->Fields(0).number() + 1;
            db->Execute(QString("Insert into Vendas (Codigo,Nome) values (%1,'%2')").arg(next, 0, 'f', 0).arg(name));
            db->Execute("UPDATE Produtos SET Quantidade=(Cdbl(Quantidade)-CDbl('1')) Where Descrição='ÁGUA'");
        }
        return 0;
    } catch (const RunTimeError &error) {
        qCritical("%d %s", error.Number(), error.what());
        return 1;
    }
}

} // namespace

std::unique_ptr<QProcess> tst_concurrency::startWriter(const DataFile &file, const QString &name, int rows)
{
    auto writer = std::make_unique<QProcess>();
    writer->setProcessChannelMode(QProcess::ForwardedChannels);
    writer->start(QCoreApplication::applicationFilePath(), {"write", file.path(), name, QString::number(rows)});
    return writer;
}

void tst_concurrency::waitForFirstRow(const DataFile &file)
{
    QTRY_VERIFY_WITH_TIMEOUT(file.answer("Select Count(*) From Vendas") != "0", 30'000);
}

void tst_concurrency::makesWritersWait()
{
    const DataFile file;
    file.db->Execute("Insert into Produtos (Codigo,Descrição,Quantidade) values (1,'ÁGUA','1000')");
    const auto second = startWriter(file, "segundo", rowsPerWriter);
    const auto third = startWriter(file, "terceiro", rowsPerWriter);
    waitForFirstRow(file);
    QCOMPARE(writeRows(file.path(), "primeiro", rowsPerWriter), 0);
    for (QProcess *writer : {second.get(), third.get()}) {
        QVERIFY(writer->waitForFinished(60'000));
        QCOMPARE(writer->exitCode(), 0);
    }
    // No row and no change of the stock was lost, and each row has a number of its own.
    const QString all = QString::number(3 * rowsPerWriter);
    QCOMPARE(file.answer("Select Count(*),Max(Codigo),Min(Codigo) From Vendas"), all + "|" + all + "|1");
    QCOMPARE(file.answer("Select Quantidade From Produtos"), QString::number(1000 - 3 * rowsPerWriter));
    QCOMPARE(file.db->checkIntegrity(), QStringList());
}

void tst_concurrency::copiesWhileOthersWrite()
{
    const DataFile file;
    file.db->Execute("Insert into Produtos (Codigo,Descrição,Quantidade) values (1,'ÁGUA','1000')");
    const auto writer = startWriter(file, "outro", 100'000);
    waitForFirstRow(file);
    for (int i = 0; i < 5; ++i) {
        const QString copied = file.path(QString("copia%1.mdb").arg(i));
        file.db->backupTo(copied);
        QCOMPARE(writer->state(), QProcess::Running);
        const DatabaseHandle copy = DataFile::openAt(copied);
        QCOMPARE(copy->checkIntegrity(), QStringList());
        const double rows = copy->OpenRecordset("Select Count(*) From Vendas")->Fields(0).number();
        const double stock = copy->OpenRecordset("Select Quantidade From Produtos")->Fields(0).number();
        QVERIFY(rows - (1000 - stock) == 0 || rows - (1000 - stock) == 1);
    }
    writer->kill();
    QVERIFY(writer->waitForFinished());
}

void tst_concurrency::survivesAKilledWriter()
{
    const DataFile file;
    file.db->Execute("Insert into Produtos (Codigo,Descrição,Quantidade) values (1,'ÁGUA','1000')");
    for (int round = 0; round < 6; ++round) {
        const QString before = file.answer("Select Count(*) From Vendas");
        const auto writer = startWriter(file, "morre", 100'000);
        QTRY_VERIFY_WITH_TIMEOUT(file.answer("Select Count(*) From Vendas") != before, 30'000);
        QTest::qWait(round * 3);
        writer->kill();
        QVERIFY(writer->waitForFinished());

        const DatabaseHandle next = file.open();
        QCOMPARE(next->checkIntegrity(), QStringList());
        const double rows = next->OpenRecordset("Select Count(*) From Vendas")->Fields(0).number();
        const double highest = next->OpenRecordset("Select Max(Codigo) From Vendas")->Fields(0).number();
        QCOMPARE(rows, highest);
        QCOMPARE(writeRows(file.path(), "depois", 1), 0);
    }
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "write" && arguments.size() == 5)
        return writeRows(arguments[2], arguments[3], arguments[4].toInt());
    tst_concurrency test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_concurrency.moc"
