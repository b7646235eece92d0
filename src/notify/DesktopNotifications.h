#pragma once

#include "notify/DesktopNotice.h"

#include <QObject>
#include <qcoro/qcorotask.h>

namespace loom
{

enum class DesktopPermission { NotDetermined, Denied, Authorised, Provisional };

/// The notification centre of the desktop. Nothing here waits for it. Outlives who uses it; main thread.
class DesktopNotifications : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] virtual QCoro::Task<DesktopPermission> permission() = 0;
    /// Asks for alerts, sounds and badges.
    [[nodiscard]] virtual QCoro::Task<DesktopPermission> requestPermission() = 0;
    virtual void post(const DesktopNotice& notice) = 0;
    /// Takes back what was posted; nothing happens when it is not there any more.
    virtual void withdraw(const QString& requestIdentifier) = 0;

Q_SIGNALS:
    /// The shopper clicked one. The token lets a window come to the front; it may be empty.
    void activated(const QMap<QString, QString>& userInfo, const QString& activationToken);
    void settingsRequested(const QString& activationToken);
};

} // namespace loom
