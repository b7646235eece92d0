#pragma once

#include "catalog/ServiceClass.h"

#include <QString>

namespace loom
{

/// What the buy box says of returns and service, in the language of the window.
struct ServiceWording {
    QString returns; ///< the heading of the row
    QString note;    ///< the line below it: whether and how the piece goes back
    QString service; ///< advice before one orders; empty where there is none

    bool operator==(const ServiceWording&) const = default;
};

[[nodiscard]] ServiceWording serviceWording(ServiceClass serviceClass);

} // namespace loom
