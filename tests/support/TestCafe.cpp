#include "tests/support/TestCafe.h"

#include "configuration/Globais.h"
#include "configuration/Idiomas.h"
#include "data/Acesso_BD.h"
#include "data/CashPeriod.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/print/Printer.h"
#include "platform/text/Numbers.h"
#include "platform/text/RegionalSettings.h"
#include "platform/window/Forms.h"
#include "tests/support/EngineSql.h"
#include "windows/OpenForms.h"

#include <filesystem>
#include <utility>

namespace {
/// A café from which tests take their copies: it is made once for a run, as a new data file takes its time. All
/// demo cafés of a run are of one size.
QString sampleFolder(const QLocale &region, const CafeOptions &options)
{
    static const QTemporaryDir samples;
    QString folder = samples.filePath(QString("%1-%2-%3").arg(region.name()).arg(options.demo).arg(options.oti));
    if (!QDir(folder).exists())
        createCafe(folder, options);
    return folder;
}

void forgetProgram()
{
    Descarregar_Forms();
    DoEvents();
    Globais::current() = {};
    Printer::current() = Printer();
    Err::Clear();
}
} // namespace

TestCafe::TestCafe(const QLocale &region, const CafeOptions &options)
    : m_savedProgramFolder(Machine::current().programFolder)
{
    forgetProgram();
    RegionalSettings::use(region);
    std::filesystem::copy(sampleFolder(region, options).toStdString(), folder().toStdString(),
                          std::filesystem::copy_options::recursive);
    QDir().mkpath(programFolder());
    Gravar_INI(programFolder() + "\\ConfigIni.txt", "Configuracoes", "BD", dataFile());
    Machine::current().programFolder = [folder = programFolder()] { return folder; };
}

TestCafe::~TestCafe()
{
    forgetProgram();
    Machine::current().programFolder = m_savedProgramFolder;
    RegionalSettings::use(QLocale::system());
}

void TestCafe::start()
{
    CaminhoBD = dataFile();
    NomeIdioma = ini("Config_Regional", "Idioma").toUpper();
    SimboloMoeda = ini("Moeda", "Simbolo");
    if (SimboloMoeda.isEmpty())
        SimboloMoeda = Simbolo_Moeda_Regional();
    Carregar_Idioma();
}

QStringList TestCafe::query(const QString &sql)
{
    QStringList rows;
    for (const RecordsetHandle rs = database().OpenRecordset(sql); !rs->Eof(); rs->MoveNext()) {
        QStringList row;
        for (int field = 0; field < rs->FieldCount(); ++field)
            row.append(rs->Fields(field).text());
        rows.append(row.join('|'));
    }
    return rows;
}

void TestCafe::loseField(const QString &table, const QString &field)
{
    static int version = 9000;
    const QString sql =
        "PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = replace(sql, '\"%1\"', '\"%1 old\"')"
        " WHERE tbl_name = '%2'; PRAGMA schema_version = %3";
    runEngineSql(dataFile(), dataFilePassword, sql.arg(field, table).arg(++version));
}

void TestCafe::executeAll(const QStringList &statements)
{
    database().inTransaction([&] {
        for (const QString &statement : statements)
            execute(statement);
    });
}

QByteArray TestCafe::readGolden(const QString &path) const
{
    return QString::fromUtf8(readFile(path)).replace("\n", "\r\n").toLatin1();
}

Database &TestCafe::database()
{
    if (!m_database)
        m_database = openDataFile(folder());
    return *m_database;
}
