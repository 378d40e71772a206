#pragma once

class FlexGrid;
struct CategoryState;

/// Removes the selected categories and moves their products to the one that can't be removed. True when the window has
/// to be loaded anew.
bool removeCategories(const FlexGrid &tab_categorias, const CategoryState &state);
