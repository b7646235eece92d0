#pragma once

#include <QJsonObject>
#include <QString>

namespace loom
{

/// What a report tells of the machine.
struct DeviceFacts {
    QString processor;         ///< its brand; empty when the system does not tell
    QString architecture;      ///< of the hardware, such as "x86_64" or "arm64"
    bool isTranslated = false; ///< the application was built for another architecture than the hardware's

    bool operator==(const DeviceFacts&) const = default;
};

[[nodiscard]] DeviceFacts readDeviceFacts();

/// The brand in what /proc/cpuinfo holds.
[[nodiscard]] QString processorBrand(const QByteArray& processors);

[[nodiscard]] QJsonObject toJson(const DeviceFacts& device);

} // namespace loom
