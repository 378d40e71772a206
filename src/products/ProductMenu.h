#pragma once

class ProductList;

/// Sets or clears the menu flag of all products, the reserved one too, after a question.
void setMenuFlags(ProductList &list, bool inMenu);
