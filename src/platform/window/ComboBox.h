#pragma once

#include <QComboBox>

/// A combo box whose `Click` tells of the attendant's picks alone, as the program calls its own handlers by name.
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);

signals:
    /// The attendant picked an entry from the list, by mouse or by keyboard.
    void Click();
    /// Key on its way in; setting it to 0 cancels it.
    void KeyPress(int &KeyAscii);
    /// Code of a key that went down (38 up, 40 down), before and after the control itself acted on it.
    void KeyDown(int KeyCode);
    void KeyUp(int KeyCode);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
};
