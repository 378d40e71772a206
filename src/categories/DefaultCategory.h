#pragma once

#include <QString>

// The category that a new product gets, as `config.ini` names it for all terminals.

QString storedDefaultCategory();
void storeDefaultCategory(const QString &name);

/// The stored default as long as it is a category; otherwise the fallback, also where the categories can't be read.
QString usableDefaultCategory(const QString &fallback);
