// What the attendant does in a grid, by keyboard and by mouse.

#include "platform/window/FlexGrid.h"

#include "platform/window/FlexGridColumns.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

void FlexGrid::keyPressEvent(QKeyEvent *event)
{
    const int page = std::max(viewport()->height() / verticalHeader()->defaultSectionSize() - 1, 1);
    int row = RowSel();
    int col = ColSel();
    switch (event->key()) {
    case Qt::Key_Up:
        --row;
        break;
    case Qt::Key_Down:
        ++row;
        break;
    case Qt::Key_PageUp:
        row -= page;
        break;
    case Qt::Key_PageDown:
        row += page;
        break;
    case Qt::Key_Home:
        row = 1;
        break;
    case Qt::Key_End:
        row = Rows() - 1;
        break;
    case Qt::Key_Left:
        --col;
        break;
    case Qt::Key_Right:
        ++col;
        break;
    case Qt::Key_Space:
        // Whoever works without a mouse picks the row with it.
        if (Row() > 0)
            emit Click();
        return;
    default:
        // Enter and all other keys belong to the window.
        event->ignore();
        return;
    }
    if (Rows() > 1)
        moveTo(std::clamp(row, 1, Rows() - 1), std::clamp(col, 0, Cols() - 1), anchorOf(*event));
}

void FlexGrid::mousePressEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    const int row = rowAt(place.y()) + 1;
    const int anchor = anchorOf(*event);
    m_pressed = event->button() == Qt::LeftButton && row > 0;
    if (!m_pressed)
        return;
    // Beside the last column the click means it.
    const int column = columnAt(place.x());
    const int col = column < 0 ? Cols() - 1 : column;
    selectFrom(anchor, row, col);
}

void FlexGrid::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_ranges || !m_pressed || Rows() < 2)
        return;
    const int row = rowNear(event->position().toPoint().y());
    if (row != RowSel())
        moveTo(row, ColSel(), Row());
}

void FlexGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_pressed)
        return;
    m_pressed = false;
    emit Click();
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void FlexGrid::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitRowsToFont();
        m_columns->measure();
    }
}

void FlexGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    m_columns->arrange();
}

void FlexGrid::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!hasFocus() || RowSel() < 1)
        return;
    // Where the arrow keys stand, be it among the rows picked or beside them.
    const bool picked = selectionModel()->isRowSelected(RowSel() - 1);
    QRect frame(0, rowViewportPosition(RowSel() - 1), viewport()->width(), rowHeight(RowSel() - 1));
    frame.setRight(std::min(frame.right(), horizontalHeader()->length() - horizontalHeader()->offset() - 1));
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(picked ? QPalette::HighlightedText : QPalette::Link)));
    painter.drawRect(frame.adjusted(1, 1, -2, -2));
}

/// The row at a height of the viewport; beyond its edges the next row that isn't in view yet.
int FlexGrid::rowNear(int y) const
{
    const int height = viewport()->height();
    int row = rowAt(std::clamp(y, 0, height - 1)) + 1;
    if (row == 0)
        row = Rows() - 1;
    return std::clamp(row + (y < 0 ? -1 : 0) + (y >= height ? 1 : 0), 1, Rows() - 1);
}

/// The row from which Shift selects: the one picked, so that what is highlighted grows or shrinks; 0 for none.
int FlexGrid::anchorOf(const QInputEvent &event) const
{
    return m_ranges && event.modifiers() & Qt::ShiftModifier && Row() > 0 ? pickedRow() : 0;
}

void FlexGrid::selectFrom(int anchor, int row, int col)
{
    if (anchor > 0)
        select({anchor, row, Col(), col});
    else
        select({row, row, col, col});
}

void FlexGrid::moveTo(int row, int col, int anchor)
{
    // Scrolled before anyone is told, so that a window that keeps the row in view finds it there.
    scrollTo(model()->index(row - 1, col));
    selectFrom(anchor, row, col);
}

void FlexGrid::headingClicked(int col)
{
    // After a picture was put on a heading the current row is 0; a window reads the column only in a row of its list.
    const int row = std::max(Row(), std::min(Rows() - 1, 1));
    select({row, std::max(RowSel(), row), col, col});
    emit Click();
}
