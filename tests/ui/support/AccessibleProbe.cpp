#include "AccessibleProbe.h"

namespace loom
{

namespace
{

QString text(QObject* item, QAccessible::Text kind)
{
    const QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(item);
    return seen ? seen->text(kind) : QString();
}

QAccessible::State state(QObject* item)
{
    const QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(item);
    return seen ? seen->state() : QAccessible::State();
}

bool act(QObject* item, const QString& action)
{
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(item);
    QAccessibleActionInterface* actions = seen ? seen->actionInterface() : nullptr;
    if (!actions || !actions->actionNames().contains(action))
        return false;
    actions->doAction(action);
    return true;
}

} // namespace

QString AccessibleProbe::name(QObject* item) const
{
    return text(item, QAccessible::Name);
}

QString AccessibleProbe::description(QObject* item) const
{
    return text(item, QAccessible::Description);
}

int AccessibleProbe::role(QObject* item) const
{
    const QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(item);
    return seen ? seen->role() : QAccessible::NoRole;
}

bool AccessibleProbe::focusable(QObject* item) const
{
    return state(item).focusable;
}

bool AccessibleProbe::checked(QObject* item) const
{
    return state(item).checked;
}

bool AccessibleProbe::press(QObject* item) const
{
    return act(item, QAccessibleActionInterface::pressAction());
}

bool AccessibleProbe::increase(QObject* item) const
{
    return act(item, QAccessibleActionInterface::increaseAction());
}

} // namespace loom
