#pragma once

class FlexGrid;
class Form;
struct ProductState;

/// Removes the products between the row picked last and the end of the selection, but for the reserved one. True when
/// the window has to be loaded anew, which the report of success follows. The pointer stays an hourglass until the
/// caller is done.
bool removeProducts(Form &form, const FlexGrid &tab_produtos, const ProductState &state);
