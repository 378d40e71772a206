#pragma once

#include "platform/window/FocusEntry.h"

#include <QLineEdit>

#include <optional>

/// A text box that tells of each key before it becomes a character. What is pasted comes in as it is, but for
/// line breaks and tabs, which become blanks.
class TextBox : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(int characterLimit READ characterLimit WRITE setCharacterLimit)

public:
    explicit TextBox(QWidget *parent = nullptr);

    /// Fires `Change`, even where the text stays the same.
    void setText(const QString &text);

    /// The limit binds the attendant alone: a text that the program sets stays whole. It counts characters, not their
    /// code units, so that 50 emoji fit where 50 letters do.
    int characterLimit() const { return m_limit; }
    void setCharacterLimit(int limit) { m_limit = limit; }

    /// Puts the keyboard focus here with the caret behind the last character.
    void focusAtEnd();

signals:
    /// Any change of the text, typed or set by the program.
    void Change();
    /// A key on its way in: the character's code, 13 for Enter, 8 for Backspace. A slot that sets it to 0 cancels it;
    /// another code is typed instead.
    void KeyPress(int &KeyAscii);
    /// The attendant or the program entered the box; coming back from another window or from a menu is no entry.
    /// Entered by mouse, it tells when the button is up, so that a selection made by a slot stays.
    void GotFocus();

protected:
    struct State
    {
        QString text;
        int caret = 0;
        bool operator==(const State &) const = default;
    };

    /// What becomes of an edit of the attendant's that would lead from one state to another: typed, pasted, dropped,
    /// composed or deleted.
    virtual State shaped(const State &before, const State &after) const;
    /// Where an edit begins that ends at the caret.
    static qsizetype editBegin(const State &before, const State &after);

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    class Shaper;
    bool admits(const State &after);
    void settleSoon();
    void settle();

    int m_limit;
    State m_before;
    std::optional<State> m_wanted;
    bool m_settling = false;
    bool m_reshaped = false;
    bool m_undone = false;
    FocusEntry m_entry;
};
