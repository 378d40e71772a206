#pragma once

#include <QString>

/// A product with its texts as they are stored.
struct ProductRecord
{
    QString Descrição;
    QString Quantidade;
    QString Estoque_Min;
    QString Valor_Unitario;
    QString Fornecedor;
    QString Cod;
    QString Cod_Barra;
    QString Categoria;
    bool Servico = false;
    bool Cardapio = false;
};
