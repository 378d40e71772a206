#pragma once

#include <QStringList>

/// Labels for a sheet of three columns of ten, as `Imprimir_Barras` takes them.
struct BarLabels
{
    QString tipo;      ///< "39", "128", "2/5" or "Codabar"
    int modulo = 0;    ///< width of the narrowest element, in twips
    double altura = 0; ///< height of the bars, in twips
    QStringList textos;
    bool mostrar_numero = false;
    bool mostrar_barras = false;
    /// The label on a partly used sheet to begin at, counted from 1.
    int linha = 1;
    int coluna = 1;
};

/// Draws the labels on the printer in force, down each column and then across, and over as many sheets as they need.
/// The caller ends the document and restores the printer's scale.
void Imprimir_Barras(const BarLabels &etiquetas);
