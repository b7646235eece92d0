#include "services/DeviceFacts.h"

#include <QByteArrayList>
#include <QFile>
#include <QSysInfo>

namespace loom
{

namespace
{

constexpr qsizetype longestBrand = 120;

/// The first processor stands in front, and the kernel writes no more than is read.
constexpr qint64 readBytes = 2048;

} // namespace

DeviceFacts readDeviceFacts()
{
    QFile file(QStringLiteral("/proc/cpuinfo"));
    const QByteArray processors =
        file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? file.read(readBytes) : QByteArray();
    return {.processor = processorBrand(processors),
            .architecture = QSysInfo::currentCpuArchitecture(),
            .isTranslated = QSysInfo::currentCpuArchitecture() != QSysInfo::buildCpuArchitecture()};
}

QString processorBrand(const QByteArray& processors)
{
    // Of the words that kernels use, the one that says most.
    for (const char* const name : {"model name", "Model", "Hardware", "cpu"}) {
        for (const QByteArray& line : processors.split('\n')) {
            const qsizetype colon = line.indexOf(':');
            if (colon > 0 && line.first(colon).trimmed() == name)
                return QString::fromUtf8(line.mid(colon + 1)).simplified().left(longestBrand);
        }
    }
    return {};
}

QJsonObject toJson(const DeviceFacts& device)
{
    return {{QStringLiteral("processor"), device.processor},
            {QStringLiteral("architecture"), device.architecture},
            {QStringLiteral("translated"), device.isTranslated}};
}

} // namespace loom
