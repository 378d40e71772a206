#pragma once

#include <QLineEdit>

/// A text box that tells of each key before it becomes a character.
class TextBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextBox(QWidget *parent = nullptr);

    /// Puts the keyboard focus here with the caret behind the last character.
    void setCaretToEnd();

signals:
    /// Any change of the text, typed or set by the program.
    void Change();
    /// A key on its way in: the character's code, 13 for Enter, 8 for Backspace. A slot that sets it to 0 cancels it;
    /// another code is typed instead.
    void KeyPress(int &KeyAscii);
    void GotFocus();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
};
