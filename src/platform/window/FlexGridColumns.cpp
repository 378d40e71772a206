#include "platform/window/FlexGridColumns.h"

#include "platform/window/FlexGridHeadings.h"
#include "platform/window/FlexGridModel.h"

#include <QFontMetricsF>
#include <QScopedValueRollback>
#include <QTableView>
#include <QtMath>

#include <algorithm>
#include <array>

namespace {
constexpr int textMargin = 6;
/// A remark may be a paragraph; a name is never longer than this many digits.
constexpr int mostDigits = 50;

/// Widths of texts in parts of a pixel, summed up from their letters: a list has some hundred thousand texts, and
/// shaping each would take longer than reading it.
class TextWidths
{
public:
    static constexpr int parts = 64;

    explicit TextWidths(const QFont &font) : m_metrics(font)
    {
        for (char16_t letter = 0; letter < m_letters.size(); ++letter)
            m_letters[letter] = measured(QChar(letter));
        m_widest = *std::max_element(m_letters.begin(), m_letters.end());
    }

    /// The wider of a width and that of a text.
    int wider(int width, const QString &text) const
    {
        // Few texts of a list are longer than its longest so far.
        return text.size() * m_widest <= width ? width : std::max(width, of(text));
    }

private:
    int measured(QChar letter) const { return qCeil(m_metrics.horizontalAdvance(letter) * parts); }

    int of(const QString &text) const
    {
        int sum = 0;
        for (const QChar letter : text)
            sum += letter.unicode() < m_letters.size() ? m_letters[letter.unicode()] : measured(letter);
        return sum;
    }

    QFontMetricsF m_metrics;
    std::array<int, 256> m_letters{};
    int m_widest = 0;
};
} // namespace

FlexGridColumns::FlexGridColumns(QTableView *grid, const FlexGridModel *model)
    : QObject(grid), m_grid(grid), m_model(model)
{
    const QHeaderView *headings = grid->horizontalHeader();
    connect(headings, &QHeaderView::sectionResized, this, [this](int col, int, int width) { dragged(col, width); });
    connect(headings, &QHeaderView::sectionHandleDoubleClicked, this, [this](int col) { dragged(col, 0); });
}

void FlexGridColumns::measure()
{
    const TextWidths widths(m_grid->font());
    QList<int> widest(m_model->Cols());
    for (int row = 1; row < m_model->Rows(); ++row)
        for (int col = 0; col < m_model->Cols(); ++col)
            widest[col] = widths.wider(widest[col], m_model->text(row, col));
    for (int col = 0; col < m_model->Cols(); ++col)
        at(col).texts = widest[col] / TextWidths::parts + 1;
    arrange();
}

void FlexGridColumns::makeRoomFor(int col, const QString &text)
{
    const int width = m_grid->fontMetrics().horizontalAdvance(text);
    if (width <= at(col).texts)
        return;
    at(col).texts = width;
    arrange();
}

void FlexGridColumns::arrange()
{
    const QScopedValueRollback arranging(m_arranging, true);
    QHeaderView &headings = *m_grid->horizontalHeader();
    const int room = m_grid->viewport()->width();
    // The blanks of the headings yield first where there isn't room for all.
    QList<Need> needs(m_model->Cols());
    Need sum;
    for (int col = 0; col < needs.size(); ++col) {
        needs[col] = need(col);
        sum.least += needs[col].least;
        sum.blanks += needs[col].blanks;
    }
    const qreal share = sum.blanks > 0 ? std::clamp(qreal(room - sum.least) / sum.blanks, 0.0, 1.0) : 0;
    int left = room;
    for (int col = 0; col < needs.size(); ++col) {
        int width = needs[col].least + int(needs[col].blanks * share);
        if (col == needs.size() - 1 && at(col).dragged == 0)
            width = std::max(width, left);
        headings.resizeSection(col, width);
        left -= headings.sectionSize(col);
    }
}

FlexGridColumns::Column &FlexGridColumns::at(int col)
{
    m_columns.resize(std::max<qsizetype>(m_columns.size(), col + 1));
    return m_columns[col];
}

FlexGridColumns::Need FlexGridColumns::need(int col)
{
    const Column &column = at(col);
    if (column.dragged > 0)
        return {column.dragged, 0};
    const auto &headings = *static_cast<FlexGridHeadings *>(m_grid->horizontalHeader());
    const QFontMetrics metrics = headings.fontMetrics();
    const QString &heading = m_model->text(0, col);
    const int picture = headings.pictureRoom(col);
    const int most = mostDigits * m_grid->fontMetrics().horizontalAdvance('0');
    // A pixel more, as letters side by side may be wider than their sum by less than one.
    const int texts = std::min(column.texts + 1, most);
    const int least = std::max(metrics.horizontalAdvance(heading.trimmed()) + picture, texts);
    return {least + 2 * textMargin, std::max(metrics.horizontalAdvance(heading) + picture - least, 0)};
}

void FlexGridColumns::dragged(int col, int width)
{
    if (m_arranging)
        return;
    at(col).dragged = width;
    arrange();
}
