#pragma once

#include "customers/Customer.h"

// What no two customers may share. Each asks the data file for another customer with the same name, nick or document,
// tells whose the first one found is, and returns that text; null where there is none. They raise when a query fails.

CustomerText takenTextOfNew(const Customer &customer);
/// The same of the customer under edit, who bears the old name in the data file still.
CustomerText takenTextOfEdited(const Customer &customer, const QString &oldName);
