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
    /// Those whose letters another family draws, each a bit. Kana and Hangul count as Han.
    /// The invisible marks of direction, as in prices, those that isolate a run, and the space that French has before
    /// a question mark come from other families, too.
    enum Script {
        Plain = 0,
        Hebrew = 1,
        Arabic = 2,
        Devanagari = 4,
        Thai = 8,
        Han = 16,
        Marks = 32,
        Isolates = 64,
        NarrowSpace = 128
    };
    Q_ENUM(Script)

    using QObject::QObject;

    /// All that a text has letters of.
    Q_INVOKABLE int of(const QString& text) const;
    /// Whether a text looks the same when a part of it is set in another weight: joined letters and marks would come
    /// apart.
    Q_INVOKABLE bool canBeParted(const QString& text) const;
    /// A text in the capitals of its language, where those that a font makes of letter after letter are wrong: a
    /// Turkish "i", a German "ß", Greek accents. Any other text as it is.
    Q_INVOKABLE QString inCapitals(const QString& text, const QString& language) const;
};

} // namespace loom
