#pragma once

#include <QStringList>

struct Customer;

QString insertStatement(const Customer &customer, double codigo);
QString updateStatement(const Customer &customer, double codigo);

/// Carry a name, and then a nick, that an edit changed to everything that points to the customer by its name.
QStringList carryOverStatements(const Customer &customer, const QString &oldName, const QString &oldNick);
