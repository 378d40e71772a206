#pragma once

#include <QString>
#include <QStringList>

/// Ends of the query for the rules of a product sale, in the order in which they are tried: the customer's group with
/// the category, the group, the category, everybody.
QStringList productRuleConditions(const QString &group, const QString &category);

/// Whether a category has a rule of its own, as the confirmation asks.
void TemDescontoAutomatico(const QString &categoria, bool &resposta);
