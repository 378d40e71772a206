#pragma once

#include <QStringList>

/// Ends of the query for the rules of the sale of a code, in the order in which they are tried: rules for a
/// registration before general ones, and among them those of the customer's group before those for everybody.
QStringList codeRuleConditions(const QString &group);
