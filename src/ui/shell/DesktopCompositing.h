#pragma once

#include <QObject>
#include <QQmlEngine>

namespace loom
{

/// Whether the desktop lays windows over one another, so that what a window leaves transparent shows what is behind it.
/// Without it, it would be black. Main thread.
class DesktopCompositing : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isOn READ isOn NOTIFY changed FINAL)

public:
    explicit DesktopCompositing(QObject* parent = nullptr);

    [[nodiscard]] bool isOn() const { return m_isOn; }
    /// Asks the desktop again: shoppers can switch it.
    Q_INVOKABLE void look();

Q_SIGNALS:
    void changed();

private:
    bool m_isOn = false;
};

} // namespace loom
