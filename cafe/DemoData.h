#pragma once

#include "cafe/Cafe.h"

// What is written into a new data file. Amounts are written by the computer's regional settings, because the terminals
// read them so.

/// The company, a customer group, a category and the reserved product: what every café has.
void fillBasics(Database &db);

/// Raises when a demo café of this size cannot be made.
void requireDemoSizes(const CafeOptions &options);
/// All that makes the demo café; the same rows for the same options, but for dates and times.
void fillDemo(Database &db, const CafeOptions &options);
/// The reason of discount that a sale window proposes.
QString demoDefaultMotive();

void fillDemoCustomers(Database &db, int count);
/// How many customers can be told apart by their names.
int demoCustomerLimit();

void fillDemoProducts(Database &db, int count);

/// Sells lines in the cash periods 1 to `periods`, one a day, of which the last was yesterday's.
void fillDemoSales(Database &db, int count, int periods);
