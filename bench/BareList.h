#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QTableView>

#include <vector>

class BareStatement;

/// The texts of a list and nothing more.
class BareTexts : public QAbstractTableModel
{
public:
    explicit BareTexts(int columns) : m_columns(columns) {}

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    const QString &text(int row, int column) const { return m_texts[static_cast<std::size_t>(m_rows[row] + column)]; }
    void load(BareStatement &statement, const std::vector<int> &fields, int sortedBy);

private:
    int m_columns;
    std::vector<QString> m_texts;
    /// Where each row begins.
    QList<int> m_rows;
};

/// The reference for the windows' lists: a table view that shows what a statement yields. The rows are put in order
/// here, as the engine would carry all columns through its sort, or look up each row of an index.
class BareList
{
public:
    /// The statement's columns that are shown.
    explicit BareList(const std::vector<int> &fields);

    void show() { m_view.show(); }
    /// The column that the rows are sorted by; -1 leaves them as they come.
    void load(BareStatement &statement, int sortedBy) { m_texts.load(statement, m_fields, sortedBy); }
    /// Goes to the first row in which one of the columns begins with the text, in any case; false when none does.
    bool goTo(const QString &beginning, int firstColumn, int lastColumn);

private:
    std::vector<int> m_fields;
    BareTexts m_texts;
    QTableView m_view;
};
