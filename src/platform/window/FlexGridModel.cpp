#include "platform/window/FlexGridModel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

int FlexGridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows - 1;
}

int FlexGridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_cols;
}

QVariant FlexGridModel::data(const QModelIndex &index, int role) const
{
    const int row = index.row() + 1;
    switch (role) {
    case Qt::DisplayRole:
        // A text of several lines stands in one row here.
        return QString(text(row, index.column())).replace('\n', ' ');
    case Qt::DecorationRole:
        if (const QPixmap found = picture(row, index.column()); !found.isNull())
            return found;
        return {};
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    case Qt::ForegroundRole:
        if (m_attention && m_attention(row, index.column()))
            return QGuiApplication::palette().brush(QPalette::BrightText);
        return {};
    case Qt::FontRole:
        if (m_attention && m_attention(row, index.column())) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

QVariant FlexGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return {};
    if (role == Qt::DisplayRole)
        return text(0, section);
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(m_alignments.value(section, Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return {};
}

void FlexGridModel::setRows(int rows)
{
    if (rows > m_rows) {
        beginInsertRows({}, m_rows - 1, rows - 2);
        m_texts.resize(qsizetype(rows) * m_cols);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows - 1, m_rows - 2);
        m_texts.resize(qsizetype(rows) * m_cols);
        m_pictures.erase(m_pictures.lower_bound({rows, 0}), m_pictures.end());
        m_rows = rows;
        endRemoveRows();
    }
}

void FlexGridModel::setCols(int cols)
{
    if (cols == m_cols)
        return;
    beginResetModel();
    QList<QString> texts(qsizetype(m_rows) * cols);
    const int kept = std::min(cols, m_cols);
    for (int row = 0; row < m_rows; ++row)
        for (int col = 0; col < kept; ++col)
            texts[qsizetype(row) * cols + col] = text(row, col);
    m_texts = std::move(texts);
    std::erase_if(m_pictures, [cols](const auto &each) { return each.first.second >= cols; });
    m_cols = cols;
    endResetModel();
}

void FlexGridModel::removeRow(int row)
{
    beginRemoveRows({}, row - 1, row - 1);
    m_texts.remove(cell(row, 0), m_cols);
    std::map<std::pair<int, int>, QPixmap> pictures;
    for (const auto &[place, pixmap] : m_pictures)
        if (place.first != row)
            pictures.emplace(std::pair(place.first - (place.first > row ? 1 : 0), place.second), pixmap);
    m_pictures = std::move(pictures);
    --m_rows;
    endRemoveRows();
}

void FlexGridModel::setText(int row, int col, const QString &text)
{
    // A load writes some hundred thousand cells: the grid repaints once instead of being told of each.
    m_texts[cell(row, col)] = text;
}

QPixmap FlexGridModel::picture(int row, int col) const
{
    const auto found = m_pictures.find({row, col});
    return found == m_pictures.end() ? QPixmap() : found->second;
}

void FlexGridModel::setPicture(int row, int col, const QPixmap &picture)
{
    if (picture.isNull())
        m_pictures.erase({row, col});
    else
        m_pictures[{row, col}] = picture;
}

void FlexGridModel::setAlignment(int col, Qt::Alignment alignment)
{
    while (m_alignments.size() <= col)
        m_alignments.append(Qt::AlignLeft);
    m_alignments[col] = alignment;
}

void FlexGridModel::clear()
{
    m_texts.fill(QString());
    m_pictures.clear();
}
