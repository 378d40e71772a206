#pragma once

class Tour;

/// In the middle of a sale: a new category and a new product with a scanned barcode, an edit, a removal, and back at
/// the counter the sale of the new product.
void tourProducts(Tour &tour);
