#pragma once

#include <QList>
#include <QObject>

class FlexGridModel;
class QTableView;

/// Widths of a grid's columns. Each takes the room that its heading and its texts need, and the last one what is left
/// besides; a width that the attendant drags stays for as long as the grid lives. A double click on a heading's edge
/// takes it back.
class FlexGridColumns : public QObject
{
    Q_OBJECT

public:
    FlexGridColumns(QTableView *grid, const FlexGridModel *model);

    /// Looks at all texts anew.
    void measure();
    /// Makes room for a text that has come.
    void makeRoomFor(int col, const QString &text);
    /// Shares the room out, whatever has changed.
    void arrange();

private:
    struct Column
    {
        /// Of the widest text below the heading.
        int texts = 0;
        /// 0 until the attendant drags.
        int dragged = 0;
    };

    struct Need
    {
        int least = 0;
        /// What the blanks add with which a heading sizes its column.
        int blanks = 0;
    };

    Column &at(int col);
    Need need(int col);
    void dragged(int col, int width);

    QTableView *m_grid;
    const FlexGridModel *m_model;
    QList<Column> m_columns;
    bool m_arranging = false;
};
