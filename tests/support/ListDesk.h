#pragma once

#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

/// A window with the list of a table, in a café of a test's own, worked by hand and keyboard.
class ListDesk
{
public:
    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;

    /// Opens the window anew.
    void open();
    Form &window() { return loadedWindow(m_window); }
    FlexGrid &list() { return at<FlexGrid>(m_list); }
    template <typename Control = QWidget>
    Control &at(const QString &name)
    {
        return control<Control>(window(), name);
    }
    QString shown(const QString &name);
    void press(const QString &name) { click(window(), name); }
    void type(const QString &name, const QString &text) { replaceText(at(name), text); }

    QString text(const QString &key) const;
    void expectNotice(const QString &key, const QString &titleKey = "MsgBox1_2");
    void expectNoticeText(const QString &text) { attendant.expectNotice(text, this->text("MsgBox1_2")); }
    void expectQuestion(const QString &key, const QString &titleKey, int icon, int answer);

    /// Fields of the table, row by row in the order of the codes, with "|" between them.
    QStringList stored(const QString &fields);
    /// A column of the list, row by row.
    QStringList listed(int column);

protected:
    using Opener = Form &(*)();
    /// The names of the window, its list and its table; `use` makes the window.
    ListDesk(const QString &window, const QString &list, const QString &table, Opener use)
        : m_window(window), m_list(list), m_table(table), m_use(use)
    {
    }

private:
    QString m_window;
    QString m_list;
    QString m_table;
    Opener m_use;
};
