#pragma once

#include <QHash>
#include <QPointer>
#include <QQuickItem>

namespace loom
{

/// Keeps parts of windows in the direction they are read in while that of their windows changes, so that they can turn
/// round one by one: a whole page at once takes longer than a turn of the event loop may. Main thread.
class HeldDirection final
{
public:
    /// Holds parts of what is in the item, of a size that turns round quickly, until they are let go.
    void hold(QQuickItem& root);
    /// Turns the item and what is in it round, up to the next part that is held, if it is held.
    void letGo(QQuickItem& item);
    /// The same for all that are held still.
    void letAllGo();

private:
    /// Returns how many items turn round with this one.
    int holdBelow(QQuickItem& item);
    void holdItem(QQuickItem& item);

    /// By what is never looked into: an item may be gone, and another in its place.
    QHash<const QQuickItem*, QPointer<QQuickItem>> m_held;
};

} // namespace loom
