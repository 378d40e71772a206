#include "platform/window/FlexGrid.h"

#include "platform/base/Err.h"
#include "platform/text/UpperPrefix.h"
#include "platform/window/FlexGridColumns.h"
#include "platform/window/FlexGridHeadings.h"
#include "platform/window/FlexGridModel.h"

#include <QScopeGuard>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

constexpr int cannotRemoveLastRow = 30015;
constexpr int cellMargin = 6;

Qt::Alignment alignmentOf(QChar mark)
{
    return mark == '^' ? Qt::AlignHCenter : mark == '>' ? Qt::AlignRight : Qt::AlignLeft;
}

} // namespace

FlexGrid::FlexGrid(QWidget *parent) : QTableView(parent), m_model(new FlexGridModel(this))
{
    setModel(m_model);
    setHorizontalHeader(new FlexGridHeadings(this));
    m_columns = new FlexGridColumns(this, m_model);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &FlexGrid::headingClicked);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    // The selection is ours: QTableView knows no anchor that the program could read or set.
    setSelectionMode(NoSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setAutoScroll(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    fitRowsToFont();
}

QSize FlexGrid::minimumSizeHint() const
{
    // A list of fewer rows in view is no list: the window scrolls sooner than its lists shrink further.
    constexpr int leastRows = 4;
    const int height = horizontalHeader()->sizeHint().height() + leastRows * verticalHeader()->defaultSectionSize();
    return QTableView::minimumSizeHint().expandedTo({0, height + 2 * frameWidth()});
}

int FlexGrid::Rows() const
{
    return m_model->Rows();
}

void FlexGrid::setRows(int rows)
{
    if (rows < 1)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    Selection selection = m_selection;
    // The first rows of all make the first one current; later ones leave a Row 0 alone.
    if (Rows() == 1 && rows > 1)
        selection.row = selection.rowSel = 1;
    m_model->setRows(rows);
    // What is filled anew begins at its top.
    if (rows == 1)
        verticalScrollBar()->setValue(0);
    adaptSelection(selection);
}

int FlexGrid::Cols() const
{
    return m_model->Cols();
}

void FlexGrid::setCols(int cols)
{
    if (cols < 1)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    m_model->setCols(cols);
    m_columns->arrange();
    adaptSelection(m_selection);
}

void FlexGrid::setRow(int row)
{
    requireRow(row);
    select({row, row, Col(), Col()});
}

void FlexGrid::setCol(int col)
{
    requireCol(col);
    select({Row(), Row(), col, col});
}

void FlexGrid::setColSel(int col)
{
    requireCol(col);
    select({Row(), RowSel(), Col(), col});
}

void FlexGrid::setTopRow(int row)
{
    requireRow(row);
    if (row == 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    // Rows that came just now are in the scroll bar's range only after this.
    executeDelayedItemsLayout();
    updateGeometries();
    verticalScrollBar()->setValue(row - 1);
}

bool FlexGrid::RowIsVisible(int row) const
{
    requireRow(row);
    if (row == 0)
        return true;
    const int top = rowViewportPosition(row - 1);
    return top + rowHeight(row - 1) > 0 && top < viewport()->height();
}

QString FlexGrid::TextMatrix(int row, int col) const
{
    requireRow(row);
    requireCol(col);
    return m_model->text(row, col);
}

int FlexGrid::findPrefix(const QString &term, int row, std::initializer_list<int> cols) const
{
    const UpperPrefix prefix(term);
    for (const int col : cols)
        requireCol(col);
    for (int each = row; each < Rows(); ++each)
        for (const int col : cols)
            if (prefix.begins(m_model->text(each, col)))
                return each;
    return 0;
}

void FlexGrid::goToRow(int row, int col)
{
    setCol(col);
    setRow(row);
    setTopRow(row);
    setFocus();
    setColSel(Cols() - 1);
}

void FlexGrid::setTextMatrix(int row, int col, const QString &text)
{
    requireRow(row);
    requireCol(col);
    m_model->setText(row, col, text);
    if (m_steps > 0)
        return;
    if (row > 0)
        m_columns->makeRoomFor(col, text);
    repaintTexts();
}

void FlexGrid::setFormatString(const QString &format)
{
    m_formatString = format;
    const QStringList columns = format.split('|');
    if (columns.size() > Cols())
        setCols(int(columns.size()));
    ensurePolished();
    for (int col = 0; col < columns.size(); ++col) {
        QString heading = columns.at(col);
        const QChar mark = heading.isEmpty() ? QChar() : heading.front();
        m_model->setAlignment(col, alignmentOf(mark));
        if (mark == '<' || mark == '^' || mark == '>')
            heading.remove(0, 1);
        m_model->setText(0, col, heading);
    }
    m_columns->arrange();
    repaintTexts();
}

void FlexGrid::setCellPicture(const QPixmap &picture)
{
    m_model->setPicture(Row(), Col(), picture);
    m_columns->arrange();
    repaintTexts();
}

QPixmap FlexGrid::CellPicture() const
{
    return m_model->picture(Row(), Col());
}

void FlexGrid::setAttention(const std::function<bool(int row, int col)> &attention)
{
    m_model->setAttention(attention);
}

void FlexGrid::Clear()
{
    m_model->clear();
    repaintTexts();
}

void FlexGrid::RemoveItem(int row)
{
    requireRow(row);
    if (row == 0 || Rows() == 2)
        throw RunTimeError(cannotRemoveLastRow, "The headings and the last row can't be removed");
    m_model->removeRow(row);
    adaptSelection(m_selection, row <= std::max(Row(), RowSel()));
}

void FlexGrid::inOneStep(const std::function<void()> &change)
{
    {
        ++m_steps;
        setUpdatesEnabled(false);
        const auto settle = qScopeGuard([this] {
            if (--m_steps > 0)
                return;
            m_columns->measure();
            showSelection();
            setUpdatesEnabled(true);
        });
        change();
    }
    if (m_steps == 0 && std::exchange(m_untold, false))
        emit SelChange();
}

int FlexGrid::pickedRow() const
{
    // While the button is down the row under it is about to be picked.
    const int row = m_pressed ? Row() : m_picked.value_or(Row());
    return row < Rows() ? row : 0;
}

void FlexGrid::setPickedRow(int row)
{
    m_picked = row;
    showSelection();
}

void FlexGrid::requireRow(int row) const
{
    if (row < 0 || row >= Rows())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, QString("Subscript out of range (row %1)").arg(row));
}

void FlexGrid::requireCol(int col) const
{
    if (col < 0 || col >= Cols())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, QString("Subscript out of range (column %1)").arg(col));
}

void FlexGrid::select(const Selection &selection)
{
    if (selection != m_selection)
        adaptSelection(selection);
}

void FlexGrid::showSelection()
{
    if (m_steps > 0)
        return;
    if (Row() == 0) {
        selectionModel()->clear();
        return;
    }
    QItemSelection rows;
    if (const int picked = pickedRow(); picked > 0) {
        const int other = std::max(RowSel(), 1);
        rows.select(m_model->index(std::min(picked, other) - 1, 0),
                    m_model->index(std::max(picked, other) - 1, Cols() - 1));
    }
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(m_model->index(std::max(RowSel(), 1) - 1, Col()), QItemSelectionModel::NoUpdate);
    // The frame of the row in which the keys stand goes with it.
    viewport()->update();
}

/// Takes a selection as far as there are rows and columns for it. `otherRow` says that a row bears another's number.
void FlexGrid::adaptSelection(const Selection &selection, bool otherRow)
{
    const Selection before = m_selection;
    m_selection = {std::min(selection.row, Rows() - 1), std::min(selection.rowSel, Rows() - 1),
                   std::min(selection.col, Cols() - 1), std::min(selection.colSel, Cols() - 1)};
    showSelection();
    if (!otherRow && m_selection == before)
        return;
    if (m_steps > 0)
        m_untold = true;
    else
        emit SelChange();
}

void FlexGrid::fitRowsToFont()
{
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + cellMargin + 2);
}

void FlexGrid::repaintTexts()
{
    viewport()->update();
    horizontalHeader()->viewport()->update();
}
