#pragma once

#include <QPixmap>
#include <QTableView>

#include <functional>
#include <optional>

class FlexGridColumns;
class FlexGridModel;
class QInputEvent;

/// The flexible grid: texts in rows and columns, row 0 being the headings.
///
/// It knows a current cell (`Row`, `Col`) and the opposite corner of the selection (`RowSel`, `ColSel`); both are row
/// selections on screen. Rows and cells that aren't there raise SubscriptOutOfRange. A grid starts with two columns and
/// the headings alone; a window whose design holds more sets `Rows` and `Cols` there.
class FlexGrid : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(int Rows READ Rows WRITE setRows)
    Q_PROPERTY(int Cols READ Cols WRITE setCols)
    Q_PROPERTY(QString FormatString READ FormatString WRITE setFormatString)
    Q_PROPERTY(bool ranges READ ranges WRITE setRanges)

public:
    explicit FlexGrid(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

    int Rows() const;
    /// Adds empty rows at the end or removes the last ones; 1 leaves the headings alone.
    void setRows(int rows);
    int Cols() const;
    void setCols(int cols);

    int Row() const { return m_selection.row; }
    /// Moves the current cell and collapses the selection to it. With no row but the headings it is 0. Row 0 takes
    /// `CellPicture` to a heading, and no row looks selected.
    void setRow(int row);
    int RowSel() const { return m_selection.rowSel; }
    int Col() const { return m_selection.col; }
    void setCol(int col);
    int ColSel() const { return m_selection.colSel; }
    void setColSel(int col);

    /// Whether Shift and a drag select several rows; a list whose buttons act on one row shows only one.
    bool ranges() const { return m_ranges; }
    void setRanges(bool ranges) { m_ranges = ranges; }
    /// For a list in which keys move on and only a click or Space picks: the rows from the picked one to `RowSel` are
    /// highlighted, and none while it is 0. In other lists the current row is the picked one.
    void setPickedRow(int row);
    int pickedRow() const;

    void setTopRow(int row);
    /// Whether any part of the row is in view.
    bool RowIsVisible(int row) const;

    QString TextMatrix(int row, int col) const;
    /// The first row from `row` on with a text in one of the columns that begins with the term, without regard to
    /// case; 0 for none.
    int findPrefix(const QString &term, int row, std::initializer_list<int> cols) const;
    /// Makes a found row the current one, at the top of the list and highlighted as a whole, and hands the keyboard to
    /// the list.
    void goToRow(int row, int col);
    void setTextMatrix(int row, int col, const QString &text);

    QString FormatString() const { return m_formatString; }
    /// Columns separated by "|": an optional "<", "^" or ">" for the alignment, then the heading, whose length with its
    /// blanks is the least width of the column. Columns beyond the text are kept.
    void setFormatString(const QString &format);

    /// Picture of the current cell; a null picture removes it.
    void setCellPicture(const QPixmap &picture);
    QPixmap CellPicture() const;

    /// Tells which texts stand out because they want attention; asked whenever one is drawn.
    void setAttention(const std::function<bool(int row, int col)> &attention);

    /// Empties all texts and pictures, the headings' too; rows and columns stay.
    void Clear();
    /// The headings and the last row beside them can't be removed.
    void RemoveItem(int row);
    /// Changes texts, rows and columns without repainting meanwhile. Whatever becomes of the selection is told once, at
    /// the end.
    void inOneStep(const std::function<void()> &change);

signals:
    /// The attendant clicked a cell or pressed Space in the list, or clicked a heading. A heading gives
    /// its column to `Col` and leaves the rows as they are.
    void Click();
    /// The selection changed, or another row bears its number: by the attendant, by the program, by rows that come or
    /// go.
    void SelChange();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Selection
    {
        int row = 0;
        int rowSel = 0;
        int col = 0;
        int colSel = 0;
        bool operator==(const Selection &) const = default;
    };

    void requireRow(int row) const;
    void requireCol(int col) const;
    void select(const Selection &selection);
    void showSelection();
    void adaptSelection(const Selection &selection, bool otherRow = false);
    int anchorOf(const QInputEvent &event) const;
    void selectFrom(int anchor, int row, int col);
    void moveTo(int row, int col, int anchor);
    int rowNear(int y) const;
    void headingClicked(int col);
    void fitRowsToFont();
    void repaintTexts();

    FlexGridModel *m_model;
    FlexGridColumns *m_columns;
    Selection m_selection;
    std::optional<int> m_picked;
    QString m_formatString;
    bool m_ranges = true;
    bool m_pressed = false;
    int m_steps = 0;
    bool m_untold = false;
};
