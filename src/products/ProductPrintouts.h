#pragma once

class FlexGrid;
class Form;
class QString;

// The list of products on paper and in a file, in the grid's order and with its texts. `total` is the text of the label
// that counts them.

void printProducts(Form &form, const FlexGrid &tab_produtos, int Total_Produtos, const QString &total);
void saveProducts(const FlexGrid &tab_produtos, const QString &total);
