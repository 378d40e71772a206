#include "tests/support/Desk.h"

#include <QItemSelectionModel>

QString Desk::shown(const QString &name, const Place &where)
{
    const QWidget &box = at(name, where);
    const char *property = box.inherits("QComboBox")        ? "currentText"
                           : box.inherits("QPlainTextEdit") ? "plainText"
                                                            : "text";
    return box.property(property).toString();
}

void Desk::select(int first, int last)
{
    clickCell(list(), first, 1);
    clickCell(list(), last, 1, Qt::ShiftModifier);
}

void Desk::edit(int row)
{
    clickCell(list(), row, 1);
    press("cmdeditar");
}

void Desk::refuses(const QString &button, const QString &notice, const QString &focus, const Place &where)
{
    expectNoticeText(notice, where);
    press(button, where);
    require(focus.isEmpty() || at(focus, where).hasFocus(), "The focus is not at " + focus + ": " + notice, where);
}

QString Desk::row(int row)
{
    QStringList texts;
    for (int column = 0; column < list().Cols(); ++column)
        texts += list().TextMatrix(row, column);
    return texts.join('|');
}

QString Desk::highlighted()
{
    const QItemSelection rows = list().selectionModel()->selection();
    return rows.isEmpty() ? QString() : QString("%1-%2").arg(rows.first().top() + 1).arg(rows.first().bottom() + 1);
}

QStringList Desk::listed(int column)
{
    QStringList texts;
    for (int row = 1; row < list().Rows(); ++row)
        texts += list().TextMatrix(row, column);
    return texts;
}
