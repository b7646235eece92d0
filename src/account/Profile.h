#pragma once

#include "base/JsonReader.h"

#include <QDate>
#include <QJsonObject>

namespace loom
{

/// What the store may send beside what an order needs.
struct Newsletters {
    bool email = false;
    bool sms = false;

    bool operator==(const Newsletters&) const = default;
};

/// What the store knows of a customer.
struct Profile {
    QString email;
    QString name;
    QString phone;
    QDate birthday;  ///< not valid where it is not known
    QString country; ///< ISO 3166-1 alpha-2; may be empty
    Newsletters newsletters;
    std::optional<QDateTime> memberSince;

    bool operator==(const Profile&) const = default;
};

[[nodiscard]] Profile decodeProfile(const JsonReader& json);
/// As it came.
[[nodiscard]] QJsonObject toJson(const Profile& profile);
[[nodiscard]] QJsonObject toJson(const Newsletters& newsletters);

} // namespace loom
