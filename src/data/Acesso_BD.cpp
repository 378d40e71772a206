#include "data/Acesso_BD.h"

#include "configuration/Arquivos.h"
#include "configuration/Globais.h"
#include "platform/base/Err.h"
#include "platform/files/Paths.h"
#include "platform/jet/DBEngine.h"

#include <algorithm>

DatabaseHandle BancoPrincipal;
RecordsetHandle RecordsetGlobal1;
RecordsetHandle RecordsetGlobal2;
RecordsetHandle RecordsetGlobal3;

namespace {
/// Serves `Existe_Tabela` alone.
DatabaseHandle tableTestDatabase;

bool isSeparator(QChar character)
{
    return character == '/' || character == '\\';
}

DatabaseHandle openShared(const QString &path, const QString &connect)
{
    return DBEngine::Workspaces(0).OpenDatabase(path, false, false, connect);
}

/// Puts a mended copy in the place of a damaged file and opens it.
DatabaseHandle repairAndOpen(const QString &path, const QString &connect)
{
    const QString locale = ";LANGID=0x0409;CP=1252;COUNTRY=0" + connect;
    const QString folder = Extrair_Pasta(path);
    const QString mended = folder + "\\morvelaneB.mdb";
    // The leftover is looked for behind the whole path instead of the folder, where none can be.
    const QString leftover = path + "\\morvelaneB.mdb";

    DatabaseHandle database;
    OnErrorResumeNext(
        [&] {
            if (Existe_Arquivo(leftover))
                Kill(leftover);
        },
        [&] { DBEngine::RepairDatabase(path); },
        [&] { DBEngine::CompactDatabase(path, mended, locale, false, locale); }, [&] { Kill(path); },
        [&] { renameFile(mended, folder + "\\Morvelane.mdb"); }, [&] { database = openShared(path, connect); });
    return database;
}

/// Closes the target and sees that there is a database; true when the database was open already.
bool prepareQuery(RecordsetHandle &target, DatabaseHandle &database)
{
    Fechar_Recordset(target);
    if (database)
        return true;
    Abrir_BD(CaminhoBD, 0, 3, textoConexao(), database);
    return false;
}
} // namespace

QString textoConexao()
{
    return ";PWD=qzt3172";
}

DatabaseHandle Abrir_BD(QString &path, int, int, const QString &connect, DatabaseHandle &handle)
{
    if (handle)
        return handle;

    DatabaseHandle database;
    OnErrorGoToEnd([&] { database = openShared(path, connect); });
    // Existe_Arquivo clears the error, so that the repair is never reached for a file that is there. The order stays:
    // a repair replaces the file under all other terminals.
    if (Existe_Arquivo(path) && Err::Number() == ErrorNumber::UnrecognisedFormat)
        database = repairAndOpen(path, connect);
    if (Err::Number() != 0)
        database.reset();

    handle = database;
    return database;
}

void Abrir_Banco_Principal()
{
    Abrir_BD(CaminhoBD, 0, 3, textoConexao(), BancoPrincipal);
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
        OnErrorResumeNext([&] { rs->Close(); });
    rs.reset();
    Err::Clear();
}

void Fechar_BD(DatabaseHandle &db)
{
    if (db)
        OnErrorResumeNext([&] { db->Close(); });
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
    bool found = false;
    Fechar_BD(tableTestDatabase);
    Abrir_BD(CaminhoBD, 0, 3, textoConexao(), tableTestDatabase);
    if (tableTestDatabase)
        OnErrorResumeNext([&] {
            const QList<TableDef> tables = tableTestDatabase->TableDefs();
            found = std::any_of(tables.begin(), tables.end(),
                                [&](const TableDef &table) { return table.Name.toUpper() == name.toUpper(); });
        });
    Fechar_BD(tableTestDatabase);
    return found;
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
