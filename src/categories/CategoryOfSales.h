#pragma once

#include <QString>

#include <functional>

/// Changes the products sold so far, in the table of this program and in the one that only some data files hold.
/// `change` is an Update from its assignments on.
void updateCategoryOfSales(const QString &change, const std::function<void(const QString &sql)> &execute);
