#pragma once

/// The product that the administration program keeps for itself: never sold, never removed.
constexpr double reservedProduct = 1;

/// What the products' window remembers as long as it is open.
struct ProductState
{
    int Total_Produtos = 0;
    /// Rows of the list: the one picked last and the one under edit; 0 for none.
    int LinhaSelecionada = 0;
    int LinhaEditada = 0;
    /// Key of the product under edit.
    double CodigoEditado = 0;
    /// Whether the box said service when the edit began.
    bool Servico_Produto = false;
};
