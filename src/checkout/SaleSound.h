#pragma once

#include <QString>

/// Plays a wave file unless the café is silenced.
void Tocar_Som(const QString &path);

/// The till's own sound, which ends a sale.
void Tocar_Caixa();
