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

    /// How a launch travels beside each call.
    [[nodiscard]] static QVariantMap platformData(const Activation& activation)
    {
        QVariantMap data;
        if (!activation.startupId.isEmpty())
            data.insert(QStringLiteral("desktop-startup-id"), activation.startupId);
        if (!activation.activationToken.isEmpty())
            data.insert(QStringLiteral("activation-token"), activation.activationToken);
        return data;
    }

public Q_SLOTS:
    void Activate(const QVariantMap& data) { pass({}, {}, data); }
    void Open(const QStringList& links, const QVariantMap& data) { pass(links, {}, data); }
    /// The parameters are links that the action is about.
    void ActivateAction(const QString& action, const QVariantList& parameters, const QVariantMap& data)
    {
        QStringList links;
        for (const QVariant& parameter : parameters) {
            if (parameter.typeId() == QMetaType::QString)
                links.append(parameter.toString());
        }
        pass(links, action, data);
    }

private:
    void pass(const QStringList& links, const QString& action, const QVariantMap& data)
    {
        Q_EMIT m_instance.activated({.links = links,
                                     .action = action,
                                     .startupId = data.value(QStringLiteral("desktop-startup-id")).toString(),
                                     .activationToken = data.value(QStringLiteral("activation-token")).toString()});
    }

    SingleInstance& m_instance;
};

} // namespace loom
