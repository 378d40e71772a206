#include "categories/CategoryOfSales.h"

#include "data/Acesso_BD.h"

void updateCategoryOfSales(const QString &change, const std::function<void(const QString &sql)> &execute)
{
    execute("Update Venda_Produtos Set " + change);
    if (Existe_Tabela("Venda_ProdutosOti"))
        execute("Update Venda_ProdutosOti Set " + change);
}
