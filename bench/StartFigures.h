#pragma once

class FigureTable;
class QString;

/// Whole processes: the start of the terminal on a café, and the memory of its sale window over a long list.
void addStartFigures(FigureTable &table, const QString &cafe);
