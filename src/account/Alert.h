#pragma once

#include "catalog/Money.h"

#include <QDateTime>

namespace loom
{

/// What the shopper wants to be told of.
enum class AlertKind {
    Restock, ///< that a sold-out piece is back
    Price,   ///< that a piece costs less
};

/// As it travels to the backend.
[[nodiscard]] constexpr QLatin1String rawValue(AlertKind kind)
{
    return kind == AlertKind::Restock ? QLatin1String("restock") : QLatin1String("price");
}

/// What an alert is about; the backend keeps one of each.
struct AlertSubject {
    AlertKind kind = AlertKind::Restock;
    QString handle;
    QString variantId; ///< empty for the piece as a whole

    bool operator==(const AlertSubject&) const = default;
};

/// Something the backend sends an e-mail about once it is so.
struct Alert {
    QString id; ///< empty while the backend has not answered
    AlertSubject subject;
    QString title;
    QString vendor;
    QString variantTitle;
    QString imageURL;
    Money price; ///< when it was set
    std::optional<Money> currentPrice;
    bool isMet = false;
    std::optional<QDateTime> createdAt;

    bool operator==(const Alert&) const = default;
};

[[nodiscard]] Alert decodeAlert(const JsonReader& json);

} // namespace loom
