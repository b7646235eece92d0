#pragma once

#include <QString>

#include <optional>

namespace loom
{

/// A piece that the stylist shows with a reply.
struct MiraAttachment {
    QString handle;
    QString title;
    QString vendor;
    QString price;    ///< as the service wrote it: a sum in US dollars, or words
    QString imageURL; ///< empty where there is none
    std::optional<QString> reason;

    bool operator==(const MiraAttachment&) const = default;
};

} // namespace loom
