#pragma once

#include "platform/jet/Catalogue.h"
#include "platform/jet/engine/SqlCipherConnection.h"

/// The declared column types, index and trigger names of a file carry the whole description of its tables.

Catalogue readSqlCipherCatalogue(SqlCipherConnection &connection);
/// Triggers and views that no table's description calls for.
QStringList foreignSqlCipherParts(SqlCipherConnection &connection);
void createSqlCipherTable(SqlCipherConnection &connection, const TableDef &table);
void turnSqlCipherFields(SqlCipherConnection &connection, const FieldsToNumbers &change);
