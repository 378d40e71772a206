#include "platform/files/IniProfile.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

struct Answer
{
    int code;
    QString out, err;

    QList<QStringList> rows() const
    {
        QList<QStringList> table;
        for (const QString &line : out.split('\n', Qt::SkipEmptyParts).mid(1))
            table.append(line.split('\t'));
        return table;
    }
};

Answer tool(const QStringList &arguments, const QString &locale = "en_US.UTF-8")
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", locale);
    process.setProcessEnvironment(environment);
    process.start(CAFE_TOOL, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, process.errorString()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

class tst_cafe_tool : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_place = std::make_unique<QTemporaryDir>(); }

    void demoReadsRightInItsRegion_data();
    void demoReadsRightInItsRegion();
    void refuses_data();
    void refuses();
    void aKilledCreationLeavesNoFolder();

private:
    QString at(const QString &name) const { return m_place->filePath(name); }
    QString single(const QString &sql, const QString &locale = "en_US.UTF-8") const
    {
        const QList<QStringList> rows = tool({"query", at("cafe"), sql}, locale).rows();
        return rows.isEmpty() ? "no row" : rows[0].join('|');
    }

    std::unique_ptr<QTemporaryDir> m_place;
};

void tst_cafe_tool::demoReadsRightInItsRegion_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("absolute");
    QTest::addColumn<QString>("date");
    QTest::newRow("comma") << "pt_BR.UTF-8"
                           << "2,80"
                           << "8,5"
                           << "^\\d\\d/\\d\\d/\\d{4}$";
    QTest::newRow("point") << "en_US.UTF-8"
                           << "2.80"
                           << "8.5"
                           << "^\\d\\d?/\\d\\d?/\\d{4}$";
}

void tst_cafe_tool::demoReadsRightInItsRegion()
{
    QFETCH(QString, locale);
    const Answer made = tool({"create", at("cafe"), "--demo", "--sales", "40", "--oti"}, locale);
    QCOMPARE(made.code, 0);
    QCOMPARE(made.err, QString());
    QCOMPARE(entries(m_place->path()), QStringList("cafe"));

    const auto ask = [&](const QString &sql) { return single(sql, locale); };
    QTEST(ask("Select Valor_Unitario From Produtos Where Descrição='ÁGUA MINERAL COM GÁS 500ML'"), "price");
    QTEST(ask("Select Absoluto From Descontos Where Codigo=4"), "absolute");
    QCOMPARE(ask("Select Count(*) From Clientes"), QString("300"));
    // Every amount reads as a number in the region that it was made for.
    QCOMPARE(ask("Select Count(*) From Produtos Where Cdbl(Valor_Unitario)>0"), QString("151"));
    QCOMPARE(ask("Select Count(*) From Produtos Where Servico=False And Val(Quantidade)=Val(Estoque_Min)").toInt() > 5,
             true);
    QCOMPARE(ask("Select Count(*) From Venda_Produtos Where Cdbl(Valor_Total)>0"), QString("40"));
    QCOMPARE(ask("Select Count(*) From Venda_ProdutosOti"), QString("0"));
    QCOMPARE(ask("Select Caixa_Aberto From Registro_Caixa Order By ID_Caixa Desc"), QString("True"));
    QFETCH(QString, date);
    QVERIFY(QRegularExpression(date).match(ask("Select Data From Venda_Produtos")).hasMatch());
    QCOMPARE(tool({"check", at("cafe")}, locale).code, 0);

    QCOMPARE(GetPrivateProfileString("SQL", "servidor", {}, 500, at("cafe/config.ini")), at("cafe/Morvelane.mdb"));
}

void tst_cafe_tool::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("word");
    const auto row = [](const char *name, int code, const QString &word, const QStringList &arguments) {
        QTest::newRow(name) << arguments << code << word;
    };
    row("unknown command", 2, "no command", {"sell"});
    row("argument missing", 2, "usage", {"create"});
    row("count without demo", 2, "--demo", {"create", "@new", "--customers", "5"});
    row("negative count", 2, "\"-1\"", {"create", "@new", "--demo", "--sales=-1"});
    row("more customers than names", 1, "at most", {"create", "@new", "--demo", "--customers", "2000000"});
    row("folder in use", 1, "not empty", {"create", "@cafe"});
    row("parent missing", 1, "no such folder", {"create", "@new/cafe"});
    row("till action", 2, "open, close", {"till", "burn", "@cafe"});
    row("writing query", 2, "read", {"query", "@cafe", "Delete From Clientes"});
    row("two statements", 1, "", {"query", "@cafe", "Select * From Clientes; Delete From Clientes"});
    row("check of nothing", 1, "no such folder", {"check", "@new"});
    row("backup over the live file", 1, "exists", {"backup", "@cafe", "@cafe/Morvelane.mdb"});
}

void tst_cafe_tool::refuses()
{
    // One café serves all rows, because none of them may change it.
    static const QTemporaryDir place;
    const auto at = [](const QString &name) { return place.filePath(name); };
    if (!QFileInfo::exists(at("cafe")))
        QCOMPARE(tool({"create", at("cafe")}).code, 0);
    const QByteArray dataFile = read(at("cafe/Morvelane.mdb"));
    QFETCH(QStringList, arguments);
    for (QString &argument : arguments) {
        if (argument.startsWith('@'))
            argument = at(argument.mid(1));
    }
    const Answer answer = tool(arguments);
    QTEST(answer.code, "code");
    QFETCH(QString, word);
    QVERIFY2(answer.err.contains(word), qPrintable(answer.err));
    QCOMPARE(answer.err.count('\n'), 1);
    QCOMPARE(answer.out, QString());
    QCOMPARE(entries(place.path()), QStringList("cafe"));
    QCOMPARE(read(at("cafe/Morvelane.mdb")), dataFile);
}

void tst_cafe_tool::aKilledCreationLeavesNoFolder()
{
    QProcess process;
    process.start(CAFE_TOOL, {"create", at("cafe"), "--demo", "--sales", "500000"});
    QTRY_VERIFY(!entries(m_place->path()).isEmpty());
    process.kill();
    QVERIFY(process.waitForFinished());
    QVERIFY(!QFileInfo::exists(at("cafe")));
    QCOMPARE(tool({"create", at("cafe")}).code, 0);
}

QTEST_GUILESS_MAIN(tst_cafe_tool)
#include "tst_cafe_tool.moc"
