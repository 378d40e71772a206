#pragma once

#include "configuration/Globais.h"
#include "data/Connection.h"

#include <QString>

/// Opens the database into an empty handle, or gives the open one back, whatever its path; empty on failure. The two
/// numbers are not looked at.
DatabaseHandle Abrir_BD(QString &path, int, int, const QString &connect, DatabaseHandle &handle);

/// Opens the main handle at `CaminhoBD` when it is empty.
void Abrir_Banco_Principal();

/// The database behind the main handle, opened at need. Raises when it can't be opened.
Database &mainDatabase();

/// Closes the target first, opens an empty handle, and runs a query to be read forward; empty on failure. The two
/// numbers are not looked at.
RecordsetHandle Abrir_Recordset(RecordsetHandle &target, DatabaseHandle &handle, const QString &sql, int = 2,
                                int = 512);
/// The same with the caller's type and options, all of which are read forward. Nothing calls it.
RecordsetHandle Abrir_Recordset_Opcoes(RecordsetHandle &target, DatabaseHandle &handle, const QString &sql, int type,
                                       int options);
/// Leaves the handle empty and the error state clear, whatever happened.
void Fechar_Recordset(RecordsetHandle &rs);
void Fechar_BD(DatabaseHandle &db);
void Fechar_Recordsets_Globais();

/// Whether the data file holds a table of that name, in any case.
bool Existe_Tabela(const QString &name);

/// Folder of a path, without trailing separator.
QString Extrair_Pasta(const QString &path);
