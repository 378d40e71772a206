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

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
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
    void tillAndPermission();
    void queryPrintsLinesOfValues();
    void backupHoldsTheSame();
    void refuses_data();
    void refuses();
    void findsDamage_data();
    void findsDamage();
    void aKilledCreationLeavesNoFolder();
    void helpsWithEachCommand();

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

void tst_cafe_tool::tillAndPermission()
{
    // An empty folder of that name is as good as none.
    QVERIFY(QDir().mkdir(at("cafe")));
    QCOMPARE(tool({"create", at("cafe")}).code, 0);
    QCOMPARE(tool({"check", at("cafe")}).err, QString());
    QCOMPARE(single("Select Descrição,Servico From Produtos"), QString("TEMPO DE ACESSO|True"));
    QCOMPARE(single("Select Count(*) From Clientes"), QString("0"));

    const auto till = [&](const QString &action) {
        const Answer answer = tool({"till", action, at("cafe")});
        return QString("%1 %2").arg(answer.code).arg((answer.out + answer.err).trimmed());
    };
    QCOMPARE(till("status"), QString("0 There was no cash period yet."));
    QCOMPARE(till("close"), QString("1 morvelane-cafe: no cash period is open"));
    QCOMPARE(till("open"), QString("0 Cash period 1 is open."));
    QCOMPARE(till("open"), QString("1 morvelane-cafe: cash period 1 is open already"));
    QCOMPARE(till("close"), QString("0 Cash period 1 is closed."));
    QCOMPARE(till("open"), QString("0 Cash period 2 is open."));
    QCOMPARE(till("status"), QString("0 Cash period 2 is open."));

    const QByteArray expected = read(at("cafe/config.ini"));
    QByteArray blocked = expected;
    blocked.replace("[Modulo Externo]\r\nAtivo=1", "[Modulo Externo]\r\nAtivo=0");
    QVERIFY(expected.contains("Porta=4455\r\n"));
    QCOMPARE(tool({"module", "block", at("cafe")}).code, 0);
    QCOMPARE(read(at("cafe/config.ini")), blocked);
    QCOMPARE(tool({"module", "allow", at("cafe")}).code, 0);
    QCOMPARE(read(at("cafe/config.ini")), expected);
}

void tst_cafe_tool::queryPrintsLinesOfValues()
{
    QCOMPARE(tool({"create", at("cafe"), "--demo", "--customers", "2", "--products", "0"}).code, 0);
    const Answer answer = tool({"query", at("cafe"), "Select Codigo, Cidade, MsgObs From Clientes Order By Codigo"});
    QCOMPARE(answer.out, QString("Codigo\tCidade\tMsgObs\n1\tPOUSO VERDE\tFalse\n2\tPOUSO VERDE\tFalse\n"));
    // A line end in a value comes as two characters, so that a row stays a line.
    QCOMPARE(single("Select Nome From Empresa Where Nome <> 'a\tb\nc\\d'"), QString("CAFÉ MORVELANE"));
    QCOMPARE(tool({"query", at("cafe"), "Select Max('a\tb\nc\\d') From Clientes"}).rows().value(0),
             QStringList("a\\tb\\nc\\\\d"));
}

void tst_cafe_tool::backupHoldsTheSame()
{
    QCOMPARE(tool({"create", at("cafe"), "--demo", "--sales", "20"}).code, 0);
    QCOMPARE(tool({"backup", at("cafe"), at("copy.mdb")}).code, 0);
    QVERIFY(!read(at("copy.mdb")).contains("SQLite format"));
    QCOMPARE(tool({"backup", at("cafe"), at("copy.mdb")}).code, 1);

    const QString sales = "Select * From Venda_Produtos Order By Codigo";
    const QString before = tool({"query", at("cafe"), sales}).out;
    QVERIFY(QFile::remove(at("cafe/Morvelane.mdb")));
    QVERIFY(QFile::rename(at("copy.mdb"), at("cafe/Morvelane.mdb")));
    QCOMPARE(tool({"query", at("cafe"), sales}).out, before);
    QCOMPARE(tool({"check", at("cafe")}).code, 0);
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
    row("unknown option", 2, "bogus", {"check", "--bogus", "@cafe"});
    row("argument missing", 2, "usage", {"create"});
    row("argument too many", 2, "usage", {"check", "@cafe", "@cafe"});
    row("count without demo", 2, "--demo", {"create", "@new", "--customers", "5"});
    row("count no number", 2, "\"many\"", {"create", "@new", "--demo", "--sales", "many"});
    row("negative count", 2, "\"-1\"", {"create", "@new", "--demo", "--sales=-1"});
    row("sales of nothing", 1, "products", {"create", "@new", "--demo", "--sales", "5", "--products", "0"});
    row("more customers than names", 1, "at most", {"create", "@new", "--demo", "--customers", "2000000"});
    row("folder in use", 1, "not empty", {"create", "@cafe"});
    row("name of a file", 1, "is a file", {"create", "@cafe/config.ini"});
    row("parent missing", 1, "no such folder", {"create", "@new/cafe"});
    row("till action", 2, "open, close", {"till", "burn", "@cafe"});
    row("till of nothing", 1, "no such folder", {"till", "open", "@new"});
    row("module action", 2, "allow or block", {"module", "maybe", "@cafe"});
    row("module of nothing", 1, "no such folder", {"module", "allow", "@new"});
    row("writing query", 2, "read", {"query", "@cafe", "Delete From Clientes"});
    row("two statements", 1, "", {"query", "@cafe", "Select * From Clientes; Delete From Clientes"});
    row("unknown table", 1, "Fornecedores", {"query", "@cafe", "Select * From Fornecedores"});
    row("check of nothing", 1, "no such folder", {"check", "@new"});
    row("backup over the live file", 1, "exists", {"backup", "@cafe", "@cafe/Morvelane.mdb"});
    row("backup to nowhere", 1, "no such folder", {"backup", "@cafe", "@new/copy.mdb"});
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

void tst_cafe_tool::findsDamage_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("bytes"); // a null array removes the file
    QTest::addColumn<QString>("fault");
    QByteArray noise(4096, '\0');
    for (qsizetype i = 0; i < noise.size(); ++i)
        noise[i] = static_cast<char>(i * 37 % 251);
    QTest::newRow("data file of noise") << "Morvelane.mdb" << noise << "Morvelane.mdb: ";
    QTest::newRow("empty data file") << "Morvelane.mdb" << QByteArray("") << "Morvelane.mdb: ";
    QTest::newRow("no data file") << "Morvelane.mdb" << QByteArray() << "no café";
    QTest::newRow("configuration of noise") << "config.ini" << noise << "config.ini, line 1:";
    QTest::newRow("no configuration") << "config.ini" << QByteArray() << "config.ini: is missing";
    QTest::newRow("line of nothing") << "config.ini" << QByteArray("[Config_Regional]\nIdioma=Portugues.lng\nworm\n")
                                     << "config.ini, line 3:";
    QTest::newRow("no language") << "config.ini" << QByteArray("[Moeda]\nSimbolo=R$\n") << "names no language";
    QTest::newRow("language not there") << "config.ini" << QByteArray("[Config_Regional]\nIdioma=Latim.lng\n")
                                        << "Latim.lng: [frmvenda] String9 is missing";
    QTest::newRow("language file gone") << "Languages/Portugues2.lng" << QByteArray()
                                        << "[frmvenda] MsgBox7 is missing";
    QTest::newRow("text without marks") << "Languages/Portugues1.lng" << QByteArray("[frmvenda]\nString9=Aviso\n")
                                        << "String9 does not stand between";
    QTest::newRow("receipt counter") << "inf.rcb" << QByteArray("[Recibo]\nID=abc\n") << "inf.rcb: ID is no number";
}

void tst_cafe_tool::findsDamage()
{
    QCOMPARE(tool({"create", at("cafe")}).code, 0);
    QFETCH(QString, file);
    QFETCH(QByteArray, bytes);
    if (bytes.isNull())
        QVERIFY(QFile::remove(at("cafe/" + file)));
    else
        write(at("cafe/" + file), bytes);

    const Answer answer = tool({"check", at("cafe")});
    QCOMPARE(answer.code, 1);
    QFETCH(QString, fault);
    QVERIFY2(answer.err.contains(fault), qPrintable(answer.err));
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

void tst_cafe_tool::helpsWithEachCommand()
{
    const Answer overview = tool({"--help"});
    QCOMPARE(overview.code, 0);
    QCOMPARE(tool({}).code, 2);
    for (const QString &command : QStringList{"create", "till", "module", "query", "check", "backup"}) {
        QVERIFY(overview.out.contains("morvelane-cafe " + command));
        const Answer help = tool({command, "--help"});
        QCOMPARE(help.code, 0);
        QVERIFY(help.out.startsWith("Usage: morvelane-cafe " + command));
    }
}

QTEST_GUILESS_MAIN(tst_cafe_tool)
#include "tst_cafe_tool.moc"
