#pragma once

class Tour;

/// A customer registered by keyboard and camera, a rename that the sales follow, a search, a removal, and the list on
/// paper and in a file. It needs the product sales before it.
void tourCustomers(Tour &tour);
