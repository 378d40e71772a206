#pragma once

#include <QComboBox>

/// A combo box whose `Click` tells of the attendant's picks alone, as the program calls its own handlers by name.
/// Nothing is completed while typing, and nothing typed is added to the list.
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);

    void setEditable(bool editable);
    /// Shows a note beside an entry while the list is open.
    void setNote(int index, const QString &note);
    void showPopup() override;

    QString Text() const;
    /// A list that can't be typed into shows any text that the program sets, too.
    void setText(const QString &text);

signals:
    /// The attendant picked an entry, by mouse, keyboard or wheel.
    void Click();
    /// Key on its way in; setting it to 0 cancels it.
    void KeyPress(int &KeyAscii);
    /// Code of a key (38 up, 40 down, 8 Backspace, 46 Delete) that goes down, before the control acts on it; setting it
    /// to 0 cancels it.
    void KeyDown(int &KeyCode);
    /// Code of a key that went up, after the control acted on it.
    void KeyUp(int KeyCode);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool m_leaving = false;
};
