#pragma once

#include "configuration/Idiomas.h"
#include "platform/window/Forms.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

/// A window worked by hand and keyboard, in a café of a test's own. The till is open in period 7, and ANA LIMA of the
/// group VIP is customer 1.
class TestDesk
{
public:
    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;

    /// Makes a window, or takes the one that there is.
    template <typename Window>
    static Form &use()
    {
        return Forms::use<Window>();
    }

    /// Adds a plain product, customer or category, or a fixed, automatic rule on the sales of products to all;
    /// `changes` are the fields that differ, the number among them.
    void add(const QString &table, const QString &changes);
    void change(const QString &table, const QString &changes) { cafe.execute("Update " + table + " Set " + changes); }

    /// Opens the window anew.
    void open();
    bool isOpen() const;
    Form &window() { return loadedWindow(m_names.window); }
    FlexGrid &list() { return at<FlexGrid>(m_names.list); }
    template <typename Control = QWidget>
    Control &at(const QString &name)
    {
        return control<Control>(window(), name);
    }
    QString shown(const QString &name);
    void press(const QString &name) { click(window(), name); }
    void type(const QString &name, const QString &text) { replaceText(at(name), text); }
    void enter(const QString &name, const QString &text) { enterText(at(name), text); }
    void select(int first, int last);
    /// Picks a row of the list and begins to edit it.
    void edit(int row);

    QString text(const QString &key) const { return textoIdioma(m_names.window, key); }
    void expectNotice(const QString &key) { expectNoticeText(text(key)); }
    void expectNotice(const QString &key, const QString &titleKey)
    {
        attendant.expectNotice(text(key), text(titleKey));
    }
    void expectNoticeText(const QString &notice) { attendant.expectNotice(notice, text(m_names.noticeTitle)); }
    void expectQuestion(const QString &key, const QString &titleKey, int icon, int answer)
    {
        attendant.expect(text(key), vbYesNo + icon, text(titleKey), answer);
    }
    /// Presses a button and states that it refuses with that text and puts the focus there.
    void refuses(const QString &button, const QString &notice, const QString &focus = {});

    /// Fields of a table, by itself the window's, in the order of the numbers and with "|" between them.
    QStringList stored(const QString &fields, const QString &table = {});
    /// A row of the list, with "|" between its texts.
    QString row(int row);
    /// The rows of the list that are highlighted, such as "2-4".
    QString highlighted();
    /// A column of the list.
    QStringList listed(int column);

protected:
    struct Names
    {
        QString window;
        QString list;
        QString table;
        /// Key of the title of plain notices.
        QString noticeTitle = "MsgBox1_2";
    };
    /// `make` makes the window.
    TestDesk(const Names &names, Form &(*make)(), const QLocale &region = brazil, const CafeOptions &options = {});

private:
    Names m_names;
    Form &(*m_make)();
};
