#pragma once

#include <QLabel>

/// A label that tells of a change of its caption, to the program and to a screen reader, which speaks it behind the
/// label's `accessibleName`. One with a focus policy is pressed by Space or Enter, too.
class Label : public QLabel
{
    Q_OBJECT

public:
    explicit Label(QWidget *parent = nullptr);

    QString Caption() const { return text(); }
    /// Fires `Change`, even where the caption stays the same.
    void setCaption(const QString &caption);

signals:
    void Change();
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
