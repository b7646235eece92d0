#include "ui/shell/HeldDirection.h"

#include <private/qquickitem_p.h>

#include <utility>

namespace loom
{

namespace
{

/// So many turn round in a fraction of a smooth turn of the event loop.
constexpr int partSize = 24;

/// Has a direction of its own, whatever the window's.
bool isOwn(const QQuickItemPrivate& item)
{
    return !item.isMirrorImplicit;
}

} // namespace

void HeldDirection::hold(QQuickItem& root)
{
    holdBelow(root);
}

int HeldDirection::holdBelow(QQuickItem& item)
{
    int count = 1;
    for (QQuickItem* const child : item.childItems()) {
        if (isOwn(*QQuickItemPrivate::get(child)))
            continue;
        const int below = holdBelow(*child);
        if (count + below > partSize)
            holdItem(*child);
        else
            count += below;
    }
    return count;
}

void HeldDirection::holdItem(QQuickItem& item)
{
    // What LayoutMirroring would do, without an object for each.
    QQuickItemPrivate* const held = QQuickItemPrivate::get(&item);
    held->isMirrorImplicit = false;
    held->inheritMirrorFromItem = true;
    m_held.insert(&item, &item);
}

void HeldDirection::letGo(QQuickItem& item)
{
    if (!m_held.take(&item))
        return;
    QQuickItemPrivate* const held = QQuickItemPrivate::get(&item);
    held->isMirrorImplicit = true;
    held->inheritMirrorFromItem = false;
    held->resolveLayoutMirror();
}

void HeldDirection::letAllGo()
{
    while (!m_held.isEmpty()) {
        if (QQuickItem* const item = *m_held.cbegin())
            letGo(*item);
        else
            m_held.erase(m_held.cbegin());
    }
}

} // namespace loom
