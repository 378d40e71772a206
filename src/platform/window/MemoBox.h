#pragma once

#include "platform/window/FocusEntry.h"

#include <QPlainTextEdit>

/// A text box of several lines. Tab leaves it, Enter begins a new line.
class MemoBox : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(int characterLimit READ characterLimit WRITE setCharacterLimit)

public:
    explicit MemoBox(QWidget *parent = nullptr);

    QString text() const { return toPlainText(); }
    /// Fires `Change`, even where the text stays the same.
    void setText(const QString &text);

    // As those of TextBox.
    int characterLimit() const { return m_limit; }
    void setCharacterLimit(int limit) { m_limit = limit; }

signals:
    // As those of TextBox.
    void Change();
    void KeyPress(int &KeyAscii);
    void GotFocus();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    int room() const;

    int m_limit;
    FocusEntry m_entry;
};
