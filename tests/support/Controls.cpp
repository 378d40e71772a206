#include "tests/support/Controls.h"

#include "platform/window/Forms.h"

#include <QAbstractButton>
#include <QAbstractItemView>

namespace {
void takeFocus(QWidget &control)
{
    control.window()->activateWindow();
    control.setFocus();
}

void typeCharacter(QWidget &control, QChar character)
{
    // Qt's own keyClicks knows Latin letters without accents only.
    QTest::sendKeyEvent(QTest::Click, &control, Qt::Key(character.toUpper().unicode()), QString(character),
                        Qt::NoModifier);
}
} // namespace

Form &loadedWindow(const QString &name, const Place &where)
{
    for (Form *form : Forms::loaded())
        if (form->Name() == name)
            return *form;
    endStory("No window is loaded that is called " + name, where);
}

void click(QWidget &control)
{
    // Tick boxes and options take a click on their mark and their text, which may end before the middle.
    const QPoint place = qobject_cast<QAbstractButton *>(&control) != nullptr
                             ? QPoint(std::min(8, control.width() / 2), control.height() / 2)
                             : control.rect().center();
    QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier, place);
}

void pressKey(QWidget &control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // With Ctrl a keyboard gives no character; QTest would make one up, which boxes that filter keys refuse.
    if (modifiers & Qt::ControlModifier)
        QTest::sendKeyEvent(QTest::Click, &control, key, QString(), modifiers);
    else
        QTest::keyClick(&control, key, modifiers);
}

void typeText(QWidget &control, const QString &text)
{
    takeFocus(control);
    for (const QChar character : text)
        typeCharacter(control, character);
}

void replaceText(QWidget &control, const QString &text)
{
    takeFocus(control);
    pressKey(control, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        pressKey(control, Qt::Key_Backspace);
    typeText(control, text);
}

void enterText(QWidget &control, const QString &text)
{
    replaceText(control, text);
    pressKey(control, Qt::Key_Return);
}

void putIntoCart(const QWidget &sale, const QString &product, const QString &quantity)
{
    enterText(control(sale, "cmbprodutos"), product);
    enterText(control(sale, "txtquantidade"), quantity);
}

void pickEntry(QComboBox &combo, const QString &entry, const Place &where)
{
    const int index = combo.findText(entry);
    require(index >= 0, combo.objectName() + " has no such entry: " + entry, where);
    combo.showPopup();
    combo.view()->setCurrentIndex(combo.model()->index(index, combo.modelColumn(), combo.rootModelIndex()));
    pressKey(*combo.view(), Qt::Key_Return);
}

void clickCell(FlexGrid &grid, int row, int col, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex cell = grid.model()->index(row - 1, col);
    grid.scrollTo(cell);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, modifiers, grid.visualRect(cell).center());
}
