#pragma once

#include <QList>
#include <QString>

/// A product in the cart, as the texts that the grid shows, the statements take and the receipt prints. Its category is
/// no part of it: each rule and each sale asks for it anew, as another terminal may have changed it meanwhile.
struct CartLine
{
    /// In capitals.
    QString Descrição = {};
    /// The text of a number.
    QString Quantidade = "0";
    /// "####0.00"; empty while the price has never been a number.
    QString Valor = {};
};

/// The lines in the order in which they were added. The grid shows the first one in its row 1.
using Cart = QList<CartLine>;
