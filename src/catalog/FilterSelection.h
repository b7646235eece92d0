#pragma once

#include "catalog/CollectionFilter.h"

#include <QJsonArray>

#include <map>
#include <set>

namespace loom
{

/// What a shopper has chosen of the filters of a list.
struct FilterSelection {
    std::map<QString, std::set<QString>> selected; ///< ids of values by the id of their filter
    std::optional<double> priceMin;
    std::optional<double> priceMax;

    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    /// How many choices there are; both bounds of the price are one.
    [[nodiscard]] int count() const;
    [[nodiscard]] bool contains(const QString& filterID, const QString& valueID) const;
    void toggle(const QString& filterID, const QString& valueID);
    /// Bounds that bound nothing are none, and reversed ones are turned around.
    void setPrice(std::optional<double> min, std::optional<double> max);
    /// The same text for the same choices.
    [[nodiscard]] QString key() const;

    bool operator==(const FilterSelection&) const = default;
};

/// The list of ProductFilter inputs to send: that of every chosen value, then the price.
[[nodiscard]] QJsonArray inputs(const std::vector<CollectionFilter>& filters, const FilterSelection& selection);

/// What a list offers now, with the values that are chosen and no longer offered: they are still in force, and have
/// to be seen to be removed.
[[nodiscard]] std::vector<CollectionFilter> withSelected(std::vector<CollectionFilter> offered,
                                                         const std::vector<CollectionFilter>& former,
                                                         const FilterSelection& selection);

/// The bounds that a price filter offers.
struct PriceBounds {
    std::optional<double> min;
    std::optional<double> max;

    bool operator==(const PriceBounds&) const = default;
};
[[nodiscard]] PriceBounds priceBounds(const CollectionFilter& filter);

} // namespace loom
