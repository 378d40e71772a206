#pragma once

#include "tests/support/Desk.h"
#include "tour/Tour.h"

#include <QLabel>

/// The attendant at a window with a list that is counted and searched.
class ListDesk : public Desk
{
public:
    struct Names
    {
        QString window;
        QString list;
        QString count;
        QString search;
    };

    ListDesk(Tour &tour, const Names &names)
        : Desk(tour.attendant(), {names.window, names.list}), m_count(names.count), m_search(names.search)
    {
    }

    QString counted() { return shown(m_count); }
    /// The entry that the search selected.
    QString selected() { return list().TextMatrix(list().Row(), 1); }

    /// Types into the box that has the keyboard, or leaves it as it is, and goes on with Enter.
    void fill(const QString &entry = {})
    {
        QWidget &box = *window().focusWidget();
        if (!entry.isEmpty())
            replaceText(box, entry);
        pressKey(box, Qt::Key_Return);
    }
    void find(const QString &beginning) { enter(m_search, beginning); }

private:
    QString m_count;
    QString m_search;
};
