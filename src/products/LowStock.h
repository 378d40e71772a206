#pragma once

#include "platform/jet/Recordset.h"
#include "platform/text/Numbers.h"

/// Whether a stock is at or below its minimum. Both are texts that count up to their first comma, 9,5 as 9; that stays.
template <typename Text>
bool isLow(const Text &stock, const Text &minimum)
{
    return Val(minimum) >= Val(stock);
}

/// The same of a row of `Produtos`. Raises when a field is missing.
inline bool isLow(const Recordset &product)
{
    return isLow(product.Fields("Quantidade").utf8(), product.Fields("Estoque_Min").utf8());
}
