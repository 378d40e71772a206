#pragma once

#include "configuration/Idiomas.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"

/// The attendant at a window: what she does there with hand and keyboard, what she sees, and the boxes that she knows
/// will come.
class Desk
{
public:
    Form &window(const Place &where = Place::current()) { return loadedWindow(m_names.window, where); }
    FlexGrid &list() { return at<FlexGrid>(m_names.list); }
    template <typename Control = QWidget>
    Control &at(const QString &name, const Place &where = Place::current())
    {
        return control<Control>(window(where), name, where);
    }
    QString shown(const QString &name, const Place &where = Place::current());
    void press(const QString &name, const Place &where = Place::current()) { click(at(name, where)); }
    void type(const QString &name, const QString &text, const Place &where = Place::current())
    {
        replaceText(at(name, where), text);
    }
    void enter(const QString &name, const QString &text, const Place &where = Place::current())
    {
        enterText(at(name, where), text);
    }
    void select(int first, int last);
    /// Picks a row of the list and begins to edit it.
    void edit(int row);

    QString text(const QString &key) const { return textoIdioma(m_names.window, key); }
    void expectNotice(const QString &key, const Place &where = Place::current()) { expectNoticeText(text(key), where); }
    void expectNotice(const QString &key, const QString &titleKey, const Place &where = Place::current())
    {
        m_attendant.expectNotice(text(key), text(titleKey), {}, where);
    }
    void expectNoticeText(const QString &notice, const Place &where = Place::current())
    {
        m_attendant.expectNotice(notice, text(m_names.noticeTitle), {}, where);
    }
    void expectQuestion(const QString &key, const QString &titleKey, int icon = vbQuestion, int answer = vbYes,
                        const Place &where = Place::current())
    {
        m_attendant.expect(text(key), vbYesNo + icon, text(titleKey), answer, {}, where);
    }
    /// Presses a button and states that it refuses with that text and puts the focus there.
    void refuses(const QString &button, const QString &notice, const QString &focus = {},
                 const Place &where = Place::current());

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
        QString table = {};
        /// Key of the title of plain notices.
        QString noticeTitle = "MsgBox1_2";
    };
    Desk(Attendant &attendant, Names names) : m_attendant(attendant), m_names(std::move(names)) {}
    ~Desk() = default;

    Attendant &m_attendant;
    const Names m_names;
};
