#include "platform/window/LabelAccess.h"

#include "platform/window/Label.h"

void LabelAccess::install()
{
    static const bool installed = [] {
        QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
            auto *label = qobject_cast<Label *>(object);
            return label ? new LabelAccess(label) : nullptr;
        });
        return true;
    }();
    Q_UNUSED(installed)
}

void LabelAccess::announce(Label &label)
{
    QAccessibleEvent renamed(&label, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
    // Away from the keyboard, screen readers speak nothing but a notification that appears.
    QAccessibleEvent shown(&label, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

LabelAccess::LabelAccess(Label *label) : QAccessibleWidget(label) {}

QAccessible::Role LabelAccess::role() const
{
    return label().focusPolicy() == Qt::NoFocus ? QAccessible::Notification : QAccessible::Button;
}

QString LabelAccess::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    return (label().accessibleName() + ' ' + label().Caption()).trimmed();
}

QStringList LabelAccess::actionNames() const
{
    return label().focusPolicy() == Qt::NoFocus ? QStringList() : QStringList(pressAction());
}

void LabelAccess::doAction(const QString &name)
{
    if (actionNames().contains(name))
        emit label().Click();
}

Label &LabelAccess::label() const
{
    return *static_cast<Label *>(widget());
}
