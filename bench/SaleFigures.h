#pragma once

class FigureTable;
class QString;

/// The sale window on two cafés with 32,767 customers and 255 rules: one with a thousand stored sales, one with a
/// million.
void addSaleFigures(FigureTable &table, const QString &smallCafe, const QString &largeCafe);
