#pragma once

#include "notify/AppNotification.h"

#include <vector>

namespace loom
{

/// One for each category of `notifications`, in the order of the categories, that stands for all of its.
[[nodiscard]] std::vector<AppNotification> digestsOf(const std::vector<AppNotification>& notifications,
                                                     const QString& accountID);

} // namespace loom
