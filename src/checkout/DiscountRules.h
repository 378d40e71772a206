#pragma once

#include <QString>

// What a rule of `Descontos` says of a sale; a rule that can't be read says nothing.

bool Tem_Desconto_Fixo(double code);
double Valor_Desconto_Fixo(double code, double total);
/// True when the rule refuses a sale of that value.
bool Desconto_Atendido(quint8 code, const QString &value);
bool Desconto_Libera_Auto(quint8 code);

/// The share of `value` that `share` has in `base`, to two places.
double Valor_Proporcional(double share, double base, double value);
