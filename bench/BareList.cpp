#include "bench/BareList.h"

#include "bench/BareFile.h"
#include "platform/text/UpperPrefix.h"

#include <QHeaderView>

#include <algorithm>

int BareTexts::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int BareTexts::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant BareTexts::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole ? text(index.row(), index.column()) : QVariant();
}

void BareTexts::load(BareStatement &statement, const std::vector<int> &fields, int sortedBy)
{
    beginResetModel();
    m_texts.clear();
    m_rows.clear();
    while (statement.next()) {
        m_rows.append(static_cast<int>(m_texts.size()));
        for (const int field : fields) {
            const std::string_view text = statement.text(field);
            m_texts.push_back(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        }
    }
    if (sortedBy >= 0)
        std::stable_sort(m_rows.begin(), m_rows.end(), [this, sortedBy](int left, int right) {
            return m_texts[static_cast<std::size_t>(left + sortedBy)] <
                   m_texts[static_cast<std::size_t>(right + sortedBy)];
        });
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
    // The toolkit's own comparison without case takes longer than the program's.
    const UpperPrefix prefix(beginning);
    const int rows = m_texts.rowCount();
    for (int row = 0; row < rows; ++row)
        for (int column = firstColumn; column <= lastColumn; ++column)
            if (prefix.begins(m_texts.text(row, column))) {
                m_view.setCurrentIndex(m_texts.index(row, column));
                return true;
            }
    return false;
}
