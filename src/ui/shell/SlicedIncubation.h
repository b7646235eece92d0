#pragma once

#include <QBasicTimer>
#include <QJSValue>
#include <QObject>
#include <QQmlIncubationController>
#include <QtQml/qqmlregistration.h>

#include <functional>

class QQmlEngine;

namespace loom
{

/// Has something large made a few milliseconds in each turn of the event loop. Everything else is made at once as ever:
/// the engine knows of it only while `make` runs and while a slice of what that began does. Main thread.
class SlicedIncubation : public QObject, public QQmlIncubationController
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    /// Calls a function that sets an asynchronous loader to work.
    Q_INVOKABLE void begin(const QJSValue& make);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void runIn(QQmlEngine& engine, const std::function<void()>& work);

    QBasicTimer m_next;
};

} // namespace loom
