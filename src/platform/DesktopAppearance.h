#pragma once

#include "app/SystemAppearance.h"

#include <QDBusVariant>

namespace loom
{

/// Follows the settings portal of the desktop (org.freedesktop.portal.Settings): colour scheme, animations, text
/// size. Asks without waiting; until an answer comes, and where no portal runs, the system's palette decides.
class DesktopAppearance final : public SystemAppearance
{
    Q_OBJECT

public:
    explicit DesktopAppearance(QObject* parent = nullptr);

    [[nodiscard]] bool isDark() const override { return m_isDark; }
    [[nodiscard]] bool reducesMotion() const override { return m_reducesMotion; }
    [[nodiscard]] bool isRightToLeft() const override;
    [[nodiscard]] double textScale() const override { return m_textScale; }

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void read(const QString& group, const QString& key);
    void apply(const QString& group, const QString& key, QVariant value);

    bool m_isDark = false;
    bool m_reducesMotion = false;
    double m_textScale = 1;
};

} // namespace loom
