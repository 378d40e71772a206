#include "tour/Tour.h"

#include "cafe/Cafe.h"
#include "configuration/Arquivos_INI.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "tests/support/Portrait.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>
#include <QWidget>

namespace {
void tell(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

QStringList fieldsOf(const Recordset &rs)
{
    QStringList fields;
    for (int index = 0; index < rs.FieldCount(); ++index)
        fields += rs.Fields(index).text();
    return fields;
}
} // namespace

Tour::Tour(const QString &folder)
    : m_folder(folder), m_attendant([this](const QString &what, const Place &) { fail(what); })
{
    if (!QDir().mkpath(m_folder))
        throw RunTimeError(ErrorNumber::PathAccess, "The folder " + m_folder + " cannot be made.");
    createCafe(cafe(), {.demo = true});
    Gravar_INI(m_programFolder.filePath("ConfigIni.txt"), "Configuracoes", "BD", dataFileOf(cafe()));
    m_database = openDataFile(cafe());
    prepareMachine();
    PromptService::use(&m_attendant);
}

Tour::~Tour()
{
    PromptService::use(nullptr);
}

void Tour::prepareMachine()
{
    Machine &machine = Machine::current();
    machine.programFolder = [this] { return m_programFolder.path(); };
    machine.playWave = [this](const QString &path) { m_sounds += path; };
    m_camera.see(portrait({640, 480}));
    machine.printerNames = [] { return QStringList(); };
    machine.defaultPrinterName = [] { return QString(); };
    machine.printoutFolder = [this] { return m_folder; };
    machine.openDocument = [](const QString &) {};
}

void Tour::chapter(const QString &title) const
{
    tell("\n== " + title);
}

void Tour::picture(QWidget &window, const QString &name)
{
    QCoreApplication::processEvents();
    pictureAsItStands(window, name);
}

void Tour::pictureAsItStands(QWidget &window, const QString &name)
{
    const QString file = QString("%1-%2.png").arg(++m_pictures, 2, 10, QChar('0')).arg(name);
    if (!window.grab().save(path(file)))
        fail("The picture " + file + " could not be written.");
}

void Tour::expect(const QString &what, const QString &actual, const QString &expected)
{
    if (actual == expected)
        tell("   " + what + ": " + actual);
    else
        fail(what + ": \"" + actual + "\" instead of \"" + expected + "\"");
}

void Tour::fail(const QString &what)
{
    m_failed = true;
    tell("!! " + what);
}

QString Tour::row(const QString &sql) const
{
    const RecordsetHandle rs = m_database->OpenRecordset(sql);
    return rs->Eof() ? QString() : fieldsOf(*rs).join(" | ");
}

QString Tour::value(const QString &sql) const
{
    const RecordsetHandle rs = m_database->OpenRecordset(sql);
    return rs->Eof() ? QString() : rs->Fields(0).text();
}

void Tour::tellStoredSales() const
{
    const RecordsetHandle rs =
        m_database->OpenRecordset("Select Codigo,Nome,Descrição,Quantidade,Valor_Total,Desconto,Motivo_Desconto,Avulsa,"
                                  "Debito,Id_Caixa from Venda_Produtos Order By Codigo");
    QStringList names;
    for (int index = 0; index < rs->FieldCount(); ++index)
        names += rs->FieldName(index);
    tell(names.join(" | "));
    for (; !rs->Eof(); rs->MoveNext())
        tell(fieldsOf(*rs).join(" | "));
}

QStringList Tour::printouts() const
{
    return QDir(m_folder).entryList({"*.pdf"}, QDir::Files, QDir::Name);
}
