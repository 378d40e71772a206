#pragma once

class FigureTable;
class QString;

/// The customer window on a café with 32,767 customers and many stored sales. It works on a copy, with as many sold
/// codes and with links for all, and leaves the café as it is.
void addCustomerFigures(FigureTable &table, const QString &cafe);
