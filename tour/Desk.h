#pragma once

#include "configuration/Idiomas.h"
#include "tests/support/Controls.h"
#include "tour/Tour.h"

#include <QLabel>

/// The attendant at a window with a list.
class Desk
{
public:
    /// The names of the window, its list, the label that counts it, and the box that searches it.
    struct Names
    {
        QString window;
        QString list;
        QString count;
        QString search;
    };

    Desk(Tour &tour, const Names &names) : m_tour(tour), m_names(names), m_window(loadedWindow(names.window)) {}

    Form &window() { return m_window; }
    FlexGrid &list() { return control<FlexGrid>(m_window, m_names.list); }
    QString counted() { return control<QLabel>(m_window, m_names.count).text(); }
    /// The entry that the search selected.
    QString selected() { return list().TextMatrix(list().Row(), 1); }

    /// Types into the box that has the keyboard, or leaves it as it is, and goes on with Enter.
    void fill(const QString &entry = {})
    {
        QWidget &box = *m_window.focusWidget();
        if (!entry.isEmpty())
            replaceText(box, entry);
        pressKey(box, Qt::Key_Return);
    }
    void find(const QString &beginning)
    {
        auto &box = control(m_window, m_names.search);
        replaceText(box, beginning);
        pressKey(box, Qt::Key_Return);
    }

    QString text(const QString &key) const { return textoIdioma(m_names.window, key); }
    void expectQuestion(const QString &key, const QString &titleKey, int icon = vbQuestion, int answer = vbYes)
    {
        m_tour.attendant().expect(text(key), vbYesNo + icon, text(titleKey), answer);
    }
    void expectNotice(const QString &key, const QString &titleKey)
    {
        m_tour.attendant().expectNotice(text(key), text(titleKey));
    }

private:
    Tour &m_tour;
    Names m_names;
    Form &m_window;
};
