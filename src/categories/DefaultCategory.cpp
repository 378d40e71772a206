#include "categories/DefaultCategory.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "data/Queries.h"

QString storedDefaultCategory()
{
    return Ler_INI(caminhoConfig(), "Categorias", "Padrao");
}

void storeDefaultCategory(const QString &name)
{
    Gravar_INI(caminhoConfig(), "Categorias", "Padrao", name);
}

QString usableDefaultCategory(const QString &fallback)
{
    const QString stored = storedDefaultCategory();
    const bool usable = !stored.isEmpty() && hasRow("Select * from Categoria Where Nome='" + stored + "'");
    return usable ? stored : fallback;
}
