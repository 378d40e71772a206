#pragma once

#include <QLabel>

/// A label that tells of a change of its caption.
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
};
