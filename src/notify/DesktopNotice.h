#pragma once

#include <QMap>
#include <QString>

namespace loom
{

/// A notification on its way to the desktop.
struct DesktopNotice {
    QString requestIdentifier; ///< another of the same takes the place of this one
    QString title;
    QString body; ///< plain text
    bool playsSound = false;
    QMap<QString, QString> userInfo; ///< comes back with a click

    bool operator==(const DesktopNotice&) const = default;
};

} // namespace loom
