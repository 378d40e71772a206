#include "tests/support/ListDesk.h"

#include "configuration/Idiomas.h"
#include "data/Funcoes.h"

#include <QTest>

void ListDesk::open()
{
    Descarregar_Forms();
    Form &form = m_use();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

QString ListDesk::shown(const QString &name)
{
    const char *property = at(name).inherits("QComboBox")        ? "currentText"
                           : at(name).inherits("QPlainTextEdit") ? "plainText"
                                                                 : "text";
    return at(name).property(property).toString();
}

QString ListDesk::text(const QString &key) const
{
    return textoIdioma(m_window, key);
}

void ListDesk::expectNotice(const QString &key, const QString &titleKey)
{
    attendant.expectNotice(text(key), text(titleKey));
}

void ListDesk::expectQuestion(const QString &key, const QString &titleKey, int icon, int answer)
{
    attendant.expect(text(key), vbYesNo + icon, text(titleKey), answer);
}

QStringList ListDesk::stored(const QString &fields)
{
    QStringList rows;
    for (const QStringList &row : cafe.query("Select " + fields + " from " + m_table + " Order By Codigo"))
        rows += row.join('|');
    return rows;
}

QStringList ListDesk::listed(int column)
{
    QStringList texts;
    for (int row = 1; row < list().Rows(); ++row)
        texts += list().TextMatrix(row, column);
    return texts;
}
