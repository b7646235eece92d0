#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace loom
{

/// The collection of all that the shop sells.
inline constexpr QLatin1String allPiecesCollection{"all-fashion-clothing-for-women"};

/// A part of the shop that every store of this kind has. One that is backed by a collection opens it; the others
/// show the collections they are made of, as far as the shopper's market has them.
struct Department {
    QString id;
    const char* title; ///< English; translate it where it is shown
    std::optional<QString> collectionHandle;
    QStringList collections;
};

[[nodiscard]] const std::vector<Department>& departments();

/// The department with this id; null when there is none.
[[nodiscard]] const Department* findDepartment(const QString& id);

} // namespace loom
