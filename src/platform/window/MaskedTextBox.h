#pragma once

#include "platform/window/TextBox.h"

/// A text box whose digits have fixed places between separators. Its text is the whole masked text, "  /  /    " while
/// it is empty. The program may set any text; the attendant's next edit lays what stands there into the mask.
class MaskedTextBox : public TextBox
{
    Q_OBJECT
    Q_PROPERTY(QString Mask READ Mask WRITE setMask)

public:
    explicit MaskedTextBox(QWidget *parent = nullptr);

    QString Mask() const { return m_mask; }
    /// "#" is a place for a digit, everything else a separator. Shows the empty mask; without one the box is a plain
    /// box.
    void setMask(const QString &mask);

    /// The text of the box with all places blank.
    QString emptyText() const;

protected:
    State shaped(const State &before, const State &after) const override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool isPlace(qsizetype index) const;
    bool fits(const QString &text) const;
    bool concerns(QStringView typed) const;
    void fill(State &state, QStringView typed) const;
    State laid(const State &after) const;
    State cleared(const State &before, qsizetype begin, qsizetype end) const;
    void enterWhileEmpty();

    QString m_mask;
};
