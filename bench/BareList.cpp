#include "bench/BareList.h"

#include "bench/BareFile.h"

#include <QHeaderView>

int BareTexts::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_texts.size()) / m_columns;
}

int BareTexts::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant BareTexts::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole ? text(index.row(), index.column()) : QVariant();
}

void BareTexts::load(BareStatement &statement, const std::vector<int> &fields)
{
    beginResetModel();
    m_texts.clear();
    while (statement.next())
        for (const int field : fields) {
            const std::string_view text = statement.text(field);
            m_texts.push_back(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        }
    endResetModel();
}

BareList::BareList(const std::vector<int> &fields) : m_fields(fields), m_texts(static_cast<int>(fields.size()))
{
    m_view.verticalHeader()->hide();
    m_view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view.setModel(&m_texts);
}

bool BareList::goTo(const QString &beginning, int firstColumn, int lastColumn)
{
    // Most texts are told from the wanted one by their first letter.
    const QChar first = beginning.front().toUpper();
    for (int row = 0; row < m_texts.rowCount(); ++row)
        for (int column = firstColumn; column <= lastColumn; ++column) {
            const QString &text = m_texts.text(row, column);
            if (!text.isEmpty() && (text.front() == first || text.front().toUpper() == first) &&
                text.startsWith(beginning, Qt::CaseInsensitive)) {
                m_view.setCurrentIndex(m_texts.index(row, column));
                return true;
            }
        }
    return false;
}
