#pragma once

class Tour;

/// From the start of the program over four sales at the counter: a customer's with a discount and change, a walk-in
/// one, an unpaid one, and one that a closed till refuses.
void tourProductSales(Tour &tour);
