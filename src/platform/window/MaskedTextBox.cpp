#include "platform/window/MaskedTextBox.h"

#include <algorithm>

namespace {

constexpr QChar place = u'#';
constexpr QChar blank = u' ';

/// What people type between the numbers of a date, whatever the mask has there.
constexpr QStringView separators = u"/-.";

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

MaskedTextBox::MaskedTextBox(QWidget *parent) : TextBox(parent)
{
    // Before any slot of the window's, so that a selection made there stays.
    connect(this, &TextBox::GotFocus, this, &MaskedTextBox::enterWhileEmpty);
}

void MaskedTextBox::setMask(const QString &mask)
{
    m_mask = mask;
    setText(emptyText());
}

QString MaskedTextBox::emptyText() const
{
    return QString(m_mask).replace(place, blank);
}

TextBox::State MaskedTextBox::shaped(const State &before, const State &after) const
{
    if (m_mask.isEmpty())
        return TextBox::shaped(before, after);
    if (fits(after.text))
        return after;

    const qsizetype end = before.text.size() - (after.text.size() - after.caret);
    const qsizetype begin = editBegin(before, after);
    const QStringView typed = QStringView(after.text).sliced(begin, after.caret - begin);
    if (!typed.isEmpty() && !concerns(typed))
        return before;
    if (!fits(before.text))
        return laid(after);
    if (typed.isEmpty())
        return cleared(before, begin, end);

    // A separator alone moves the caret on and leaves a selection's digits alone.
    const bool digits = std::any_of(typed.begin(), typed.end(), isDigit);
    State result = digits ? cleared(before, begin, end) : before;
    result.caret = static_cast<int>(begin);
    fill(result, typed);
    return result;
}

void MaskedTextBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (!hasSelectedText())
        enterWhileEmpty();
    TextBox::mouseReleaseEvent(event);
}

bool MaskedTextBox::isPlace(qsizetype index) const
{
    return index >= 0 && index < m_mask.size() && m_mask[index] == place;
}

bool MaskedTextBox::fits(const QString &text) const
{
    return std::equal(text.begin(), text.end(), m_mask.begin(), m_mask.end(), [](QChar character, QChar expected) {
        return expected == place ? isDigit(character) || character == blank : character == expected;
    });
}

bool MaskedTextBox::concerns(QStringView typed) const
{
    return std::any_of(typed.begin(), typed.end(), [this](QChar character) {
        return isDigit(character) || separators.contains(character) || m_mask.contains(character);
    });
}

/// Puts digits into their places from the caret on. What stands between two groups of digits, the separators of the
/// mask or others, leads to the next group.
void MaskedTextBox::fill(State &state, QStringView typed) const
{
    qsizetype caret = state.caret;
    bool foreignGap = false;
    bool ownGap = false;
    const auto leaveGroup = [&] {
        if (foreignGap && !ownGap && isPlace(caret - 1))
            while (isPlace(caret))
                ++caret;
        foreignGap = ownGap = false;
    };
    for (const QChar character : typed) {
        if (isDigit(character)) {
            leaveGroup();
            const qsizetype next = m_mask.indexOf(place, caret);
            if (next < 0)
                break;
            state.text[next] = character;
            caret = next + 1;
        } else if (m_mask.contains(character) && character != place) {
            ownGap = true;
            if (const qsizetype separator = m_mask.indexOf(character, caret); separator >= 0)
                caret = separator + 1;
        } else if (!character.isLetter()) {
            foreignGap = true;
        }
    }
    leaveGroup();
    state.caret = static_cast<int>(caret);
}

TextBox::State MaskedTextBox::laid(const State &after) const
{
    State result{emptyText(), 0};
    fill(result, QStringView(after.text).first(after.caret));
    const int caret = result.caret;
    fill(result, QStringView(after.text).sliced(after.caret));
    result.caret = caret;
    return result;
}

TextBox::State MaskedTextBox::cleared(const State &before, qsizetype begin, qsizetype end) const
{
    qsizetype first = begin;
    // Backspace behind a separator and Delete before one mean the digit beyond it.
    if (end - begin == 1 && !isPlace(begin)) {
        first = before.caret == end ? m_mask.lastIndexOf(place, begin) : m_mask.indexOf(place, end);
        if (first < 0)
            return {before.text, static_cast<int>(begin)};
        end = first + 1;
    }
    State result{before.text, static_cast<int>(first)};
    for (qsizetype index = first; index < end; ++index)
        if (isPlace(index))
            result.text[index] = blank;
    return result;
}

void MaskedTextBox::enterWhileEmpty()
{
    if (text() == emptyText())
        setCursorPosition(0);
}
