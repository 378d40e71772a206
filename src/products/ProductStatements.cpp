#include "products/ProductStatements.h"

#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "products/ProductRecord.h"

#include <QStringList>

namespace {
QString flag(bool set)
{
    return set ? "1" : "0";
}
} // namespace

QString insertStatement(const ProductRecord &product, double codigo)
{
    const QDateTime now = Machine::current().now();
    const QStringList texts{FormatDate(now),     FormatTime(now),        product.Descrição,  product.Quantidade,
                            product.Estoque_Min, product.Valor_Unitario, product.Fornecedor, product.Cod};
    return "Insert into Produtos (Codigo,Data,Hora,Descrição,Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod,"
           "Servico,Cardapio,Categoria, Cod_Barra) values (" +
           Cstr(codigo) + ",'" + texts.join("','") + "'," + flag(product.Servico) + "," + flag(product.Cardapio) +
           ",'" + product.Categoria + "','" + product.Cod_Barra + "')";
}

QString updateStatement(const ProductRecord &product, double codigo)
{
    const QDateTime now = Machine::current().now();
    return "Update Produtos Set Descrição = '" + product.Descrição + "', Data ='" + FormatDate(now) + "', Hora ='" +
           FormatTime(now) + "', Quantidade ='" + product.Quantidade + "', Estoque_Min ='" + product.Estoque_Min +
           "', Valor_Unitario ='" + product.Valor_Unitario + "', Fornecedor ='" + product.Fornecedor + "', Cod='" +
           product.Cod + "', Cardapio=" + flag(product.Cardapio) + ", Cod_Barra='" + product.Cod_Barra +
           "', Servico=" + flag(product.Servico) + ", Categoria='" + product.Categoria +
           "' Where Codigo = " + Cstr(codigo);
}
