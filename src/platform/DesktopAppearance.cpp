#include "platform/DesktopAppearance.h"

#include "base/Log.h"
#include "platform/PortalRequest.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace loom
{

namespace
{

const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colourSchemeKey = QStringLiteral("color-scheme");
const QString interfaceGroup = QStringLiteral("org.gnome.desktop.interface");
const QString animationsKey = QStringLiteral("enable-animations");
const QString textScaleKey = QStringLiteral("text-scaling-factor");

constexpr uint prefersDark = 1;

bool paletteIsDark()
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Read answers a variant in a variant.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopAppearance::DesktopAppearance(QObject* parent)
    : SystemAppearance(parent)
    , m_isDark(paletteIsDark())
{
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &SystemAppearance::changed);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // The slot is found by the names of its types, and this one's is not known by itself.
    qRegisterMetaType<QDBusVariant>();
    if (!bus.connect(PortalRequest::service, PortalRequest::root, interface, QStringLiteral("SettingChanged"), this,
                     SLOT(settingChanged(QString, QString, QDBusVariant))))
        qCWarning(logPlatform) << "cannot follow the desktop's settings";
    read(appearanceGroup, colourSchemeKey);
    read(interfaceGroup, animationsKey);
    read(interfaceGroup, textScaleKey);
}

bool DesktopAppearance::isRightToLeft() const
{
    return QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

void DesktopAppearance::read(const QString& group, const QString& key)
{
    QDBusMessage call = PortalRequest::call(interface, "Read");
    call << group << key;
    auto* const watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            apply(group, key, reply.value().variant());
        watcher->deleteLater();
    });
}

void DesktopAppearance::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    apply(group, key, value.variant());
}

void DesktopAppearance::apply(const QString& group, const QString& key, QVariant value)
{
    value = unwrapped(std::move(value));
    if (group == appearanceGroup && key == colourSchemeKey)
        m_isDark = value.toUInt() == prefersDark;
    else if (group == interfaceGroup && key == animationsKey)
        m_reducesMotion = !value.toBool();
    else if (group == interfaceGroup && key == textScaleKey)
        m_textScale = std::clamp(value.toDouble(), 1.0, 2.0);
    else
        return;
    Q_EMIT changed();
}

} // namespace loom
