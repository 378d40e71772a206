#include "data/Connection.h"
#include "platform/files/IniProfile.h"
#include "tests/support/EngineSql.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

#include <memory>

namespace {

struct Answer
{
    int code;
    QString out, err;
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

    void demoReadsRightInItsRegion()
    {
        for (const auto &[locale, price, absolute, date] :
             {std::tuple("pt_BR.UTF-8", "2,80", "8,5", "^\\d\\d/\\d\\d/\\d{4}$"),
              {"en_US.UTF-8", "2.80", "8.5", "^\\d\\d?/\\d\\d?/\\d{4}$"}}) {
            init();
            const Answer made = tool({"create", at("cafe"), "--demo", "--sales", "40", "--oti"}, locale);
            QCOMPARE(made.code, 0);
            QCOMPARE(made.err, QString());
            QCOMPARE(entries(m_place->path()), QStringList("cafe"));

            // The first row, behind the line that names the fields.
            const auto ask = [&](const QString &sql) {
                return tool({"query", at("cafe"), sql}, locale).out.section('\n', 1, 1);
            };
            QCOMPARE(ask("Select Valor_Unitario From Produtos Where Descrição='ÁGUA MINERAL COM GÁS 500ML'"), price);
            QCOMPARE(ask("Select Absoluto From Descontos Where Codigo=4"), absolute);
            // Every amount reads as a number in the region that it was made for.
            QCOMPARE(ask("Select Count(*) From Produtos Where Cdbl(Valor_Unitario)>0"), QString("151"));
            QCOMPARE(ask("Select Count(*) From Venda_Produtos Where Cdbl(Valor_Total)>0"), QString("40"));
            QVERIFY(QRegularExpression(date).match(ask("Select Data From Venda_Produtos")).hasMatch());
            QCOMPARE(tool({"check", at("cafe")}, locale).code, 0);

            QCOMPARE(GetPrivateProfileString("SQL", "servidor", {}, 500, at("cafe/config.ini")),
                     at("cafe/Morvelane.mdb"));
        }
    }

    void refuses()
    {
        QCOMPARE(tool({"create", at("cafe")}).code, 0);
        const QByteArray dataFile = readFile(at("cafe/Morvelane.mdb"));
        const auto check = [&](int code, const QString &word, QStringList arguments) {
            for (QString &argument : arguments)
                if (argument.startsWith('@'))
                    argument = at(argument.mid(1));
            const Answer answer = tool(arguments);
            const QString shown = arguments.join(' ') + ": " + answer.err;
            QVERIFY2(answer.code == code && answer.err.contains(word), qPrintable(shown));
            QVERIFY2(answer.err.count('\n') == 1 && answer.out.isEmpty(), qPrintable(shown));
            QCOMPARE(entries(m_place->path()), QStringList("cafe"));
            QVERIFY2(readFile(at("cafe/Morvelane.mdb")) == dataFile, qPrintable(shown));
        };
        check(2, "\"-1\"", {"create", "@new", "--demo", "--sales=-1"});
        check(1, "at most", {"create", "@new", "--demo", "--customers", "2000000"});
        check(1, "not empty", {"create", "@cafe"});
        check(2, "read", {"query", "@cafe", "Delete From Clientes"});
        check(1, "", {"query", "@cafe", "Select * From Clientes; Delete From Clientes"});
        check(1, "no such folder", {"check", "@new"});
        check(1, "no café", {"point", "@"});
        check(1, "exists", {"backup", "@cafe", "@cafe/MORVELANE.mdb"});
    }

    void pointsTheTerminalAtTheCafe()
    {
        QCOMPARE(tool({"create", at("cafe")}).code, 0);
        // A copy of the tool, as one beside its own pointer would change that one.
        QVERIFY(QFile::copy(CAFE_TOOL, at("tool")));
        qputenv("XDG_DATA_HOME", at("home").toUtf8());
        qputenv("XDG_CONFIG_DIRS", (at("desktop") + ':' + at("etc")).toUtf8());
        const auto pointer = [&](const QString &place) {
            return GetPrivateProfileString("Configuracoes", "BD", {}, 500, at(place + "/ConfigIni.txt"));
        };
        for (const QStringList &options : {QStringList{}, QStringList{"--everyone"}})
            QCOMPARE(QProcess::execute(at("tool"), QStringList{"point", at("cafe")} + options), 0);
        for (const char *place : {"home/morvelane", "etc/morvelane"})
            QCOMPARE(pointer(place), at("cafe/Morvelane.mdb"));
        QVERIFY(!QFileInfo::exists(at("ConfigIni.txt")) && !QFileInfo::exists(at("desktop")));
    }

    void aKilledCreationLeavesNoFolder()
    {
        QProcess process;
        process.start(CAFE_TOOL, {"create", at("cafe"), "--demo", "--sales", "500000"});
        QTRY_VERIFY(!entries(m_place->path()).isEmpty());
        process.kill();
        QVERIFY(process.waitForFinished());
        QVERIFY(!QFileInfo::exists(at("cafe")));
        QCOMPARE(tool({"create", at("cafe")}).code, 0);
        QCOMPARE(entries(m_place->path()), QStringList("cafe"));
    }

    void tellsWhatIsWrongWithTheFolder()
    {
        QCOMPARE(tool({"create", at("cafe")}).code, 0);
        QVERIFY(QDir(at("cafe/Fotos")).removeRecursively() && QFile::remove(at("cafe/Caixa.wav")));
        QVERIFY(QFile::setPermissions(at("cafe"), QFile::Permissions(0x7775)));
        QVERIFY(QFile::setPermissions(at("cafe/config.ini"), QFile::Permissions(0x6664)));
        QVERIFY(mkfifo(at("cafe/inf.rcb").toUtf8().constData(), 0600) == 0);
        runEngineSql(at("cafe/Morvelane.mdb"), dataFilePassword,
                     "CREATE TRIGGER extra AFTER INSERT ON Clientes BEGIN DELETE FROM Links; END;"
                     "CREATE VIEW \"a\x1b[31m\" AS SELECT 1");
        const Answer answer = tool({"check", at("cafe")});
        for (const char *word : {"Fotos: is missing", "Caixa.wav: is missing", "config.ini: strangers",
                                 "inf.rcb: cannot", "trigger extra is not", "view a\\x1b[31m is not"})
            QVERIFY2(answer.err.contains(word), qPrintable(answer.err));
        QCOMPARE(answer.err.count('\n'), 6);
    }

private:
    QString at(const QString &name) const { return m_place->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_place;
};

QTEST_GUILESS_MAIN(tst_cafe_tool)
#include "tst_cafe_tool.moc"
