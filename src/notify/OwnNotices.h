#pragma once

#include "notify/AppNotification.h"

#include <QUuid>

namespace loom
{

/// The notices that the application makes itself. Every text is in the language of the window.
namespace ownNotices
{

/// `text` is empty for a reply that is nothing but an attachment.
[[nodiscard]] AppNotification supportReply(const QString& messageID, const QString& text);
/// `orderName` may be empty; `unique` then stands in its place.
[[nodiscard]] AppNotification orderPlaced(const QString& orderName, const QUuid& unique);
/// The store has paused the feature of this key.
[[nodiscard]] AppNotification unavailable(const QString& featureKey);
[[nodiscard]] AppNotification updateFailed();
[[nodiscard]] AppNotification preview(const QUuid& unique);

} // namespace ownNotices

} // namespace loom
