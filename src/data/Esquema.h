#pragma once

#include "platform/jet/Schema.h"

/// Whether a data file holds the table `Venda_ProdutosOti`, which only some cafés' files do.
enum class OtiTable
{
    Without,
    With
};

/// The design of the shared data file, step by step.
QList<SchemaStep> esquemaDoBanco(OtiTable oti = OtiTable::Without);
