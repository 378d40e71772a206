#pragma once

#include <QString>

class FigureTable;

/// What the sale of an access code costs; leaves the codes it sells in the café.
void addCodeFigures(FigureTable &table, const QString &cafe);
