#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace loom
{

/// What the letters of a text ask of its line. Every label asks this of every text, so that it is not left to QML.
class Scripts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Script { Plain, Arabic, Han };
    Q_ENUM(Script)

    using QObject::QObject;

    /// Arabic when any of its letters is (or Hebrew or another that runs from the right), else Han when any is, or
    /// Kana or Hangul, else Plain.
    Q_INVOKABLE loom::Scripts::Script of(const QString& text) const;
};

} // namespace loom
