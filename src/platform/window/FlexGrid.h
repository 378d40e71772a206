#pragma once

#include <QPixmap>
#include <QTableView>

class FlexGridModel;

/// The flexible grid: texts in rows and columns, row 0 being the headings.
///
/// It knows a current cell (`Row`, `Col`) and the opposite corner of the selection (`RowSel`, `ColSel`); both are row
/// selections on screen. Rows and cells that aren't there raise SubscriptOutOfRange.
class FlexGrid : public QTableView
{
    Q_OBJECT

public:
    explicit FlexGrid(QWidget *parent = nullptr);

    int Rows() const;
    /// Adds empty rows at the end or removes the last ones; 1 leaves the headings alone.
    void setRows(int rows);
    int Cols() const;
    void setCols(int cols);

    int Row() const;
    /// Moves the current cell and collapses the selection to it. With no row but the headings it is 0.
    void setRow(int row);
    int RowSel() const;
    void setRowSel(int row);
    int Col() const;
    void setCol(int col);
    int ColSel() const;
    void setColSel(int col);

    int TopRow() const;
    void setTopRow(int row);
    bool RowIsVisible(int row) const;

    QString TextMatrix(int row, int col) const;
    void setTextMatrix(int row, int col, const QString &text);

    QString FormatString() const;
    /// Columns separated by "|": an optional "<", "^" or ">" for the alignment, then the heading, whose length with its
    /// blanks sizes the column; the last column takes what is left. Columns beyond the text are kept.
    void setFormatString(const QString &format);

    /// Picture of the current cell; a null picture removes it.
    void setCellPicture(const QPixmap &picture);
    QPixmap CellPicture() const;

    /// Empties all texts and pictures, the headings' too; rows and columns stay.
    void Clear();
    void RemoveItem(int row);

signals:
    /// The attendant clicked a cell, or a heading (`MouseRow` 0).
    void Click();
    /// The selection changed, by the attendant or by the program.
    void SelChange();

public:
    /// Row and column of the last click.
    int MouseRow() const;
    int MouseCol() const;
};
