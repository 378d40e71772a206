#pragma once

class FigureTable;

/// Sheets of labels as PDF files.
void addLabelFigures(FigureTable &table);
