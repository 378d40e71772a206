#pragma once

class Printer;
enum class ScaleMode;

/// Keeps the current printer's page for the next `Restaurar_Escala_Impressora`; the last one kept counts.
void Salvar_Escala_Impressora();
void Restaurar_Escala_Impressora();

/// Sets the printer up for places in that unit and for upright letters of the one type that everything is printed in.
void setUpPrinter(Printer &printer, double points, ScaleMode scale);
/// The same with a sheet of A4, after the page that was in force is kept.
void setUpSheet(Printer &printer, double points, ScaleMode scale);
