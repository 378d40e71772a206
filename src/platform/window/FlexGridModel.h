#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QPixmap>

#include <functional>
#include <map>

/// Texts of a grid, row by row; row 0 is the headings, so that the view's first row is the grid's row 1.
class FlexGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Rows and columns below are the grid's, which the caller has checked.
    int Rows() const { return m_rows; }
    int Cols() const { return m_cols; }
    void setRows(int rows);
    void setCols(int cols);
    void removeRow(int row);
    const QString &text(int row, int col) const { return m_texts.at(cell(row, col)); }
    void setText(int row, int col, const QString &text);
    QPixmap picture(int row, int col) const;
    void setPicture(int row, int col, const QPixmap &picture);
    void setAlignment(int col, Qt::Alignment alignment);
    void clear();
    void setAttention(std::function<bool(int row, int col)> attention) { m_attention = std::move(attention); }

private:
    qsizetype cell(int row, int col) const { return qsizetype(row) * m_cols + col; }

    int m_rows = 1;
    int m_cols = 2;
    QList<QString> m_texts = QList<QString>(2);
    QList<Qt::Alignment> m_alignments;
    std::map<std::pair<int, int>, QPixmap> m_pictures;
    std::function<bool(int, int)> m_attention;
};
