#pragma once

#include "sale/Cart.h"

#include <QString>

/// Flags of a sale as they go into the tables: 255 for yes, 0 for no.
constexpr quint8 yesFlag = 255;

/// What the sale window knows of the sale under way beside its discount.
struct SaleState
{
    Cart cart;
    QString Nome_Cliente;
    QString Nick_Cliente;
    /// 255 for a walk-in sale.
    quint8 Avulsa_Venda = 0;
    /// 255 for a sale that is not paid now.
    quint8 Debito_Venda = 0;
    /// Row of the cart that Remove acts on; 0 after a sale.
    double Linha_Consumo = 1;
    /// Text of the paid value after its blanks were replaced.
    QString Texto_Pago;
    QString Motivo_Venda;
    double Proximo_Codigo = 0;
};
