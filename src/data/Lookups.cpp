#include "data/Lookups.h"

#include "configuration/Arquivos.h"
#include "configuration/Globais.h"
#include "data/Placeholders.h"
#include "data/Queries.h"

QString Categoria_Do_Produto(const QString &description)
{
    // Each call adds one more separator to the path. It stays: every path of the program is joined so.
    CaminhoBD = Pasta_Do_Arquivo(CaminhoBD) + "\\Morvelane.mdb";
    QString category = Placeholder::NoCategory;
    readFirstRow("Select Categoria From Produtos Where Descrição='" + description + "'", [&](const Recordset &rs) {
        const FieldValue value = rs.Fields("Categoria");
        if (!value.isNull())
            category = value.text();
    });
    return category;
}

QString Grupo_Do_Cliente(const QString &name)
{
    QString group;
    readFirstRow("Select Grupo From Clientes Where Nome='" + name + "'",
                 [&](const Recordset &rs) { group = rs.Fields("Grupo").text(); });
    return group;
}

bool Tem_Link(const QString &name)
{
    return hasRow("Select Codigo from Links Where Nome='" + name + "'");
}
