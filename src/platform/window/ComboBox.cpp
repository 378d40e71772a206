#include "platform/window/ComboBox.h"

#include "platform/window/KeyCodes.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace {
constexpr int entryPadding = 8;

/// Shows what an entry says to those who hear it: its text, and more where there is more to tell.
class EntryDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (const QString whole = index.data(Qt::AccessibleTextRole).toString(); !whole.isEmpty())
            option->text = whole;
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, entryPadding);
    }
};
} // namespace

ComboBox::ComboBox(QWidget *parent) : QComboBox(parent)
{
    setInsertPolicy(NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, [this] {
        // QComboBox looks the typed text up when the focus leaves, which nobody picked.
        if (!m_leaving)
            emit Click();
    });
}

void ComboBox::setEditable(bool editable)
{
    QComboBox::setEditable(editable);
    if (editable) {
        setCompleter(nullptr);
        lineEdit()->installEventFilter(this);
    }
}

void ComboBox::setNote(int index, const QString &note)
{
    if (!dynamic_cast<EntryDelegate *>(view()->itemDelegate()))
        view()->setItemDelegate(new EntryDelegate(this));
    setItemData(index, itemText(index) + "  " + note, Qt::AccessibleTextRole);
}

void ComboBox::showPopup()
{
    view()->installEventFilter(this);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    QComboBox::showPopup();
}

QString ComboBox::Text() const
{
    return isEditable() || currentIndex() >= 0 ? currentText() : placeholderText();
}

void ComboBox::setText(const QString &text)
{
    setCurrentIndex(findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    if (isEditable())
        setEditText(text);
    else
        setPlaceholderText(currentIndex() < 0 ? text : QString());
}

bool ComboBox::eventFilter(QObject *watched, QEvent *event)
{
    // The open list looks for what is typed, too; its other keys stay its own.
    if (watched != lineEdit() && event->type() == QEvent::KeyPress) {
        int code = keyAscii(*static_cast<QKeyEvent *>(event));
        if (code >= ' ') {
            emit KeyPress(code);
            return code == 0;
        }
    }
    if (watched == lineEdit() && event->type() == QEvent::KeyPress) {
        keyPressEvent(static_cast<QKeyEvent *>(event));
        return true;
    }
    if (watched == lineEdit() && event->type() == QEvent::KeyRelease) {
        keyReleaseEvent(static_cast<QKeyEvent *>(event));
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

void ComboBox::keyPressEvent(QKeyEvent *event)
{
    if (int code = keyCode(*event); code != 0) {
        emit KeyDown(code);
        if (code == 0) {
            event->accept();
            return;
        }
    }
    filterKey(
        event, [this](int &ascii) { emit KeyPress(ascii); },
        [this](QKeyEvent *key) {
            // Enter belongs to the window; QComboBox would take it for a pick of the typed text.
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
                key->ignore();
            else
                QComboBox::keyPressEvent(key);
        });
}

void ComboBox::keyReleaseEvent(QKeyEvent *event)
{
    QComboBox::keyReleaseEvent(event);
    const int code = keyCode(*event);
    if (code != 0 && !event->isAutoRepeat())
        emit KeyUp(code);
}

void ComboBox::inputMethodEvent(QInputMethodEvent *event)
{
    filterCommit(event, [this](int &code) { emit KeyPress(code); });
    QComboBox::inputMethodEvent(event);
}

void ComboBox::focusInEvent(QFocusEvent *event)
{
    QComboBox::focusInEvent(event);
    // Whoever comes from the box before types a new text over the old one.
    if (isEditable() && event->reason() == Qt::OtherFocusReason)
        lineEdit()->selectAll();
}

void ComboBox::focusOutEvent(QFocusEvent *event)
{
    const QScopedValueRollback leaving(m_leaving, true);
    QComboBox::focusOutEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent *event)
{
    // A wheel that scrolls past must not change what was chosen.
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
