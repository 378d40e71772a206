#pragma once

#include <QAccessibleWidget>

class Label;

/// What a screen reader learns of a Label.
class LabelAccess : public QAccessibleWidget
{
public:
    static void install();
    /// Has a changed caption spoken.
    static void announce(Label &label);

    explicit LabelAccess(Label *label);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    Label &label() const;
};
