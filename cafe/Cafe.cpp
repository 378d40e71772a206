#include "cafe/Cafe.h"

#include "configuration/PointerFile.h"
#include "data/Connection.h"
#include "data/Esquema.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"
#include "platform/files/Paths.h"
#include "platform/jet/DBEngine.h"
#include "platform/text/Numbers.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

void requireFolder(const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        throw RunTimeError(ErrorNumber::FileNotFound, folder + ": there is no such folder");
}

CashPeriod newestPeriod(Database &db)
{
    const RecordsetHandle newest = db.OpenRecordset("Select Max(ID_Caixa) From Registro_Caixa");
    if (newest->Eof() || newest->Fields(0).isNull())
        return {};
    CashPeriod period;
    period.number = qRound64(newest->Fields(0).number());
    const RecordsetHandle row =
        db.OpenRecordset(QString("Select Caixa_Aberto From Registro_Caixa Where ID_Caixa=%1").arg(period.number));
    period.open = !row->Eof() && row->Fields(0).boolean();
    return period;
}

} // namespace

QString dataFileOf(const QString &folder)
{
    return resolveIgnoringCase(folder + "/Morvelane.mdb");
}

QString configFileOf(const QString &folder)
{
    return resolveIgnoringCase(folder + "/config.ini");
}

DatabaseHandle openDataFile(const QString &folder)
{
    requireFolder(folder);
    const QString file = dataFileOf(folder);
    if (!QFileInfo::exists(file))
        throw RunTimeError(ErrorNumber::FileNotFound, folder + ": no café is in this folder");
    return DBEngine::Workspaces(0).OpenDatabase(file, false, false, connectText());
}

CashPeriod tillStatus(const QString &folder)
{
    return newestPeriod(*openDataFile(folder));
}

CashPeriod openTill(const QString &folder)
{
    const DatabaseHandle db = openDataFile(folder);
    CashPeriod period = newestPeriod(*db);
    if (period.open)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                           QString("cash period %1 is open already").arg(period.number));
    period = {period.number + 1, true};
    db->Execute(QString("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (%1,True)").arg(period.number));
    return period;
}

CashPeriod closeTill(const QString &folder)
{
    const DatabaseHandle db = openDataFile(folder);
    CashPeriod period = newestPeriod(*db);
    if (!period.open)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "no cash period is open");
    db->Execute(QString("Update Registro_Caixa Set Caixa_Aberto=False Where ID_Caixa=%1").arg(period.number));
    period.open = false;
    return period;
}

void allowModule(const QString &folder, bool allowed)
{
    requireFolder(folder);
    const QString file = configFileOf(folder);
    if (!QFileInfo::exists(file))
        throw RunTimeError(ErrorNumber::FileNotFound, folder + ": there is no config.ini in this folder");
    if (!WritePrivateProfileString("Modulo Externo", "Ativo", allowed ? "1" : "0", file))
        throw RunTimeError(ErrorNumber::PathAccess, file + ": cannot be written");
}

QString pointAt(const QString &folder, PointFor whom)
{
    requireFolder(folder);
    const QString dataFile = dataFileOf(QFileInfo(folder).absoluteFilePath());
    if (!QFileInfo::exists(dataFile))
        throw RunTimeError(ErrorNumber::FileNotFound, folder + ": no café is in this folder");
    const PointerPlaces places = PointerPlaces::onThisComputer();
    const QString place = whom == PointFor::Everyone ? places.ofEveryone : places.folder();
    QDir().mkpath(place);
    QString file = resolveIgnoringCase(place + '/' + pointerFileName);
    if (!WritePrivateProfileString("Configuracoes", "BD", dataFile, file))
        throw RunTimeError(ErrorNumber::PathAccess, file + ": cannot be written");
    return file;
}

QStringList upgradeCafe(const QString &folder)
{
    const DatabaseHandle db = openDataFile(folder);
    if (db->schemaVersion() == 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                           folder + ": another program made the data file, whose design stays its own");
    QStringList read;
    const QStringList fields{"Relativo", "Absoluto"};
    static const QRegularExpression digits("^[0-9]+$");
    for (const RecordsetHandle rs =
             db->OpenRecordset("Select Codigo," + fields.join(',') + " From Descontos Order By Codigo");
         !rs->Eof(); rs->MoveNext())
        for (const QString &field : fields) {
            const FieldValue value = rs->Fields(field);
            const QString text = value.text();
            if (value.kind() == FieldValue::Kind::Text && !digits.match(text).hasMatch())
                read += QString("Discount rule %1: %2 \"%3\" is read as %4.")
                            .arg(rs->Fields(0).text(), field, text, Cstr(readNumber(text).value_or(Val(text))));
        }
    db->applySchema(esquemaDoBanco());
    return read;
}

void backupCafe(const QString &folder, const QString &file)
{
    if (QFileInfo::exists(resolveIgnoringCase(file)))
        throw RunTimeError(ErrorNumber::PathAccess, file + ": exists already");
    if (!QFileInfo(QFileInfo(file).absolutePath()).isDir())
        throw RunTimeError(ErrorNumber::FileNotFound, file + ": there is no such folder");
    openDataFile(folder)->backupTo(file);
}
