#pragma once

#include "configuration/Globais.h"

/// Reads the newest cash period into `IdCaixa`, 0 when there is none.
void Obter_Ultimo_Caixa();
/// Whether the newest cash period is open.
bool Caixa_Aberto();
