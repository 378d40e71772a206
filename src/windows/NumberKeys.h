#pragma once

#include <QString>

/// Decides on one key in a number box: the key to be typed, or 0.
int Filtrar_Numero(int key, const QString &text, bool negative);
