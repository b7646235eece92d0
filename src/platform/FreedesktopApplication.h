#pragma once

#include "platform/SingleInstance.h"

#include <QDBusAbstractAdaptor>

namespace loom
{

/// What desktops call to activate a running application. Owned by the instance it stands for.
class FreedesktopApplication final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit FreedesktopApplication(SingleInstance& instance)
        : QDBusAbstractAdaptor(&instance)
        , m_instance(instance)
    {
    }

public Q_SLOTS:
    void Activate(const QVariantMap&) { m_instance.receive({}); }
    void Open(const QStringList& links, const QVariantMap&) { m_instance.receive(links); }
    void ActivateAction(const QString&, const QVariantList&, const QVariantMap&) { m_instance.receive({}); }

private:
    SingleInstance& m_instance;
};

} // namespace loom
