#pragma once

class FigureTable;
class QString;

/// The products' window on a café with many stored sales. It works on a copy, with as many products as the list can
/// hold and with both tables of sales, and leaves the café as it is.
void addProductFigures(FigureTable &table, const QString &cafe);
