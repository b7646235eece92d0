#pragma once

#include <QString>
#include <QStringList>

namespace loom
{

/// What a piece is in the eyes of returns and service.
enum class ServiceClass { FinalSale, CustomMade, Luxury, Shoes, Standard };

/// The first class, in the order of the enumeration, that tags, collections or title speak for.
[[nodiscard]] ServiceClass serviceClass(const QStringList& tags, const QStringList& collectionHandles,
                                        const QString& title);

} // namespace loom
