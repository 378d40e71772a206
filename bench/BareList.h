#pragma once

#include <QAbstractTableModel>
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

    const QString &text(int row, int column) const { return m_texts[place(row, column)]; }
    void load(BareStatement &statement, const std::vector<int> &fields);

private:
    std::size_t place(int row, int column) const { return static_cast<std::size_t>(row * m_columns + column); }

    int m_columns;
    std::vector<QString> m_texts;
};

/// The reference for the windows' lists: a table view that shows what a statement yields.
class BareList
{
public:
    /// The statement's columns that are shown.
    explicit BareList(const std::vector<int> &fields);

    void show() { m_view.show(); }
    void load(BareStatement &statement) { m_texts.load(statement, m_fields); }
    /// Goes to the first row in which one of the columns begins with the text, in any case; false when none does.
    bool goTo(const QString &beginning, int firstColumn, int lastColumn);

private:
    std::vector<int> m_fields;
    BareTexts m_texts;
    QTableView m_view;
};
