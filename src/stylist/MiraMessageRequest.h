#pragma once

#include "stylist/MiraAttachment.h"

#include <vector>

namespace loom
{

/// A message on its way to the stylist.
struct MiraMessageRequest {
    QString visitorToken; ///< empty before the service gave one
    QString body;         ///< as MiraContext::body() composed it
    QString language;     ///< the code of the language to reply in
    QString guideName;    ///< empty before it is known
    std::vector<MiraAttachment> attachments;

    bool operator==(const MiraMessageRequest&) const = default;
};

} // namespace loom
