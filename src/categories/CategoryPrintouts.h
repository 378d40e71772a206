#pragma once

class FlexGrid;
class QString;

// The list of categories on paper and in a file. `total` is the text of the label that counts them.

void printCategories(const FlexGrid &tab_categorias, const QString &total);
void saveCategories(const FlexGrid &tab_categorias, const QString &total);
