#pragma once

#include "notify/LauncherBadge.h"

#include <QString>

namespace loom
{

/// The badge by the signal that docks listen to (com.canonical.Unity.LauncherEntry). Main thread.
class LauncherEntryBadge final : public LauncherBadge
{
public:
    explicit LauncherEntryBadge(const QString& applicationID)
        : m_uri(QStringLiteral("application://") + applicationID + QStringLiteral(".desktop"))
    {
    }

    void show(int count) override;

private:
    QString m_uri;
};

} // namespace loom
