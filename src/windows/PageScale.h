#pragma once

/// Keeps the current printer's page for the next `Restaurar_Escala_Impressora`; the last one kept counts.
void Salvar_Escala_Impressora();
void Restaurar_Escala_Impressora();
