#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>

namespace loom
{

/// What assistive tools see of an item, and what they can do to it.
class AccessibleProbe : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE QString name(QObject* item) const;
    Q_INVOKABLE QString description(QObject* item) const;
    Q_INVOKABLE int role(QObject* item) const;
    Q_INVOKABLE bool focusable(QObject* item) const;
    Q_INVOKABLE bool checked(QObject* item) const;
    Q_INVOKABLE bool press(QObject* item) const;
    Q_INVOKABLE bool increase(QObject* item) const;
};

} // namespace loom
