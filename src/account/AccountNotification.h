#pragma once

#include <QDateTime>
#include <QJsonObject>

#include <optional>

namespace loom
{

class JsonReader;

/// Something that a customer was told.
struct AccountNotification {
    QString id;
    QString type;  ///< as the server names it
    QString title; ///< may be empty
    QString body;  ///< may be empty; cut to a length that anybody would read
    QString link;  ///< empty for nowhere
    QString image; ///< an address; empty for none
    std::optional<QDateTime> date;
    bool isUnread = true;

    bool operator==(const AccountNotification&) const = default;
};

[[nodiscard]] AccountNotification decodeAccountNotification(const JsonReader& json);
/// As the server writes it.
[[nodiscard]] QJsonObject toJson(const AccountNotification& notification);

} // namespace loom
