#include "data/Acesso_BD.h"

#include "configuration/Arquivos.h"
#include "configuration/Globais.h"
#include "platform/base/Err.h"
#include "platform/files/Paths.h"
#include "platform/jet/DBEngine.h"

#include <QFile>

#include <algorithm>

namespace {
bool isSeparator(QChar character)
{
    return character == '/' || character == '\\';
}

DatabaseHandle openShared(const QString &path, const QString &connect)
{
    return DBEngine::Workspaces(0).OpenDatabase(path, false, false, connect);
}

/// Puts a mended copy in the place of a damaged file and opens it; whole copies are what this engine has for that. It
/// is never entered, as `Abrir_BD` looks for the error only after Existe_Arquivo has cleared it, and that order stays:
/// a repair replaces the file under all other terminals.
DatabaseHandle repairAndOpen(const QString &path, const QString &connect)
{
    const QString folder = Extrair_Pasta(path);
    const QString mended = folder + "\\morvelaneB.mdb";
    DatabaseHandle database;
    OnErrorResumeNext(
        // Looked for behind the whole path instead of the folder, where none can be.
        [&] { Kill(path + "\\morvelaneB.mdb"); }, [&] { openShared(path, connect)->backupTo(mended); },
        [&] { Kill(path); },
        [&] { QFile::rename(resolveIgnoringCase(mended), resolveIgnoringCase(folder + "\\Morvelane.mdb")); },
        [&] { database = openShared(path, connect); });
    return database;
}

/// Closes the target and sees that there is a database; true when the database was open already.
bool prepareQuery(RecordsetHandle &target, DatabaseHandle &database)
{
    Fechar_Recordset(target);
    if (database)
        return true;
    Abrir_BD(CaminhoBD, 0, 3, connectText(), database);
    return false;
}
} // namespace

DatabaseHandle Abrir_BD(QString &path, int, int, const QString &connect, DatabaseHandle &handle)
{
    if (handle)
        return handle;

    DatabaseHandle database;
    OnErrorGoToEnd([&] { database = openShared(path, connect); });
    if (Existe_Arquivo(path) && Err::Number() == ErrorNumber::UnrecognisedFormat)
        database = repairAndOpen(path, connect);
    if (Err::Number() != 0)
        database.reset();

    handle = database;
    return database;
}

void Abrir_Banco_Principal()
{
    Abrir_BD(CaminhoBD, 0, 3, connectText(), BancoPrincipal);
}

Database &mainDatabase()
{
    Abrir_Banco_Principal();
    if (!BancoPrincipal)
        throw RunTimeError(ErrorNumber::ObjectNotSet, "The data file is not open.");
    return *BancoPrincipal;
}

RecordsetHandle Abrir_Recordset(RecordsetHandle &target, DatabaseHandle &handle, const QString &sql, int, int)
{
    const bool wasOpen = prepareQuery(target, handle);
    if (handle)
        OnErrorResumeNext([&] {
            target = wasOpen ? handle->OpenRecordset(sql, dbOpenForwardOnly, dbSeeChanges)
                             : handle->OpenRecordset(sql, dbOpenForwardOnly);
        });
    return target;
}

RecordsetHandle Abrir_Recordset_Opcoes(RecordsetHandle &target, DatabaseHandle &handle, const QString &sql, int type,
                                       int options)
{
    prepareQuery(target, handle);
    if (handle)
        OnErrorResumeNext([&] { target = handle->OpenRecordset(sql, type, options); });
    return target;
}

void Fechar_Recordset(RecordsetHandle &rs)
{
    if (rs)
        rs->Close();
    rs.reset();
    Err::Clear();
}

void Fechar_BD(DatabaseHandle &db)
{
    if (db)
        db->Close();
    db.reset();
    Err::Clear();
}

void Fechar_Recordsets_Globais()
{
    for (RecordsetHandle *rs : {&RecordsetGlobal1, &RecordsetGlobal2, &RecordsetGlobal3})
        Fechar_Recordset(*rs);
}

bool Existe_Tabela(const QString &name)
{
    // A handle of its own, which sees what other programs did since the main one was opened.
    DatabaseHandle database;
    QList<TableDef> tables;
    Abrir_BD(CaminhoBD, 0, 3, connectText(), database);
    if (database)
        OnErrorResumeNext([&] { tables = database->TableDefs(); });
    Fechar_BD(database);
    return std::any_of(tables.cbegin(), tables.cend(),
                       [&](const TableDef &table) { return table.Name.toUpper() == name.toUpper(); });
}

QString Extrair_Pasta(const QString &path)
{
    // A drive letter without a folder means the current folder too: this system has no drives with one of their own.
    const bool hasFolder = std::any_of(path.begin(), path.end(), isSeparator);
    QString folder = hasFolder ? Pasta_Do_Arquivo(path) : CurDir();
    while (!folder.isEmpty() && isSeparator(folder.back()))
        folder.chop(1);
    return folder;
}
