#pragma once

#include "ui/shell/HeldDirection.h"

#include <QBasicTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>

#include <vector>

class QQuickWindow;

namespace loom
{

/// Has windows say anew what they show, a few milliseconds in each turn of the event loop, what can be seen first. It
/// evaluates the bindings that may hold a text: many show one that a model has looked up for them, of which the
/// engine's own way knows nothing, and the engine does all windows and pages in one turn. Main thread.
class Retranslation final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// What is in the windows stays as it is when their direction changes, until its texts are looked up.
    void holdDirection(const QList<QQuickWindow*>& windows);
    /// In this order. What an earlier beginning has left to do is done with this.
    void begin(const QList<QQuickWindow*>& windows);
    [[nodiscard]] bool isRunning() const { return m_next.isActive(); }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    using Waiting = std::vector<QPointer<QObject>>;

    void visit(QObject& object);
    void enqueue(QObject* object, bool isSeen);
    void askAgain(QObject* model);

    void end();

    QBasicTimer m_next;
    HeldDirection m_direction;
    Waiting m_seen; ///< the last is next
    Waiting m_unseen;
    QSet<const QObject*> m_asked; ///< lists that have told their items
    QSet<const QObject*> m_met;   ///< never looked into: an object may be gone, and another in its place
};

} // namespace loom
