#pragma once

#include "platform/jet/Schema.h"

/// Whether a data file holds the table `Venda_ProdutosOti`, which only some cafés' files do.
enum class OtiTable
{
    Without,
    With
};

/// The design of the shared data file, step by step. Only the tool that tends a café runs the steps: a terminal works
/// with every file as it finds it.
QList<SchemaStep> esquemaDoBanco(OtiTable oti = OtiTable::Without);

/// The tables as the last step leaves them.
QList<TableDef> tabelasDoBanco(OtiTable oti = OtiTable::Without);
