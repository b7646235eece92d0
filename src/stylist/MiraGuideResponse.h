#pragma once

#include <QString>

namespace loom
{

/// Who the stylist is.
struct MiraGuideResponse {
    QString guideName;      ///< empty where the service gave none
    QString conversationId; ///< empty where there is none

    bool operator==(const MiraGuideResponse&) const = default;
};

} // namespace loom
