#pragma once

#include <QObject>

namespace loom
{

/// One key that reaches the application whatever window has the keyboard; where the desktop has no such thing it does
/// nothing. Main thread.
class GlobalKey : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asks the desktop for the key, or gives it back. `purpose` is what a desktop shows that asks the shopper.
    virtual void setBound(bool isBound, const QString& purpose) = 0;
    /// The key works now.
    [[nodiscard]] virtual bool isBound() const = 0;
    /// As shoppers write it, "Ctrl+Alt+M".
    [[nodiscard]] virtual QString keyText() const = 0;

Q_SIGNALS:
    void pressed();
    void isBoundChanged();
};

} // namespace loom
