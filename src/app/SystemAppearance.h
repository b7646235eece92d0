#pragma once

#include <QObject>

namespace loom
{

/// How the desktop wants applications to look. Main thread.
class SystemAppearance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY changed)
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft NOTIFY changed)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)

public:
    using QObject::QObject;

    [[nodiscard]] virtual bool isDark() const = 0;
    [[nodiscard]] virtual bool reducesMotion() const = 0;
    [[nodiscard]] virtual bool isRightToLeft() const = 0;
    /// 1.0 for text at its usual size.
    [[nodiscard]] virtual double textScale() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace loom
