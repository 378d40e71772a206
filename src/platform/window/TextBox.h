#pragma once

#include <QLineEdit>

/// A text box that tells of each key before it becomes a character. What is pasted comes in as it is.
class TextBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextBox(QWidget *parent = nullptr);

    /// Fires `Change`, even where the text stays the same.
    void setText(const QString &text);

    /// Puts the keyboard focus here with the caret behind the last character.
    void setCaretToEnd();

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
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool m_interrupted = false;
    bool m_enteredByMouse = false;
};
