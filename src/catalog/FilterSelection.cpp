#include "catalog/FilterSelection.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace loom
{

namespace
{

const QString priceKey = QStringLiteral("price");
const QString minKey = QStringLiteral("min");
const QString maxKey = QStringLiteral("max");

QJsonObject object(const QString& text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

std::optional<double> bound(std::optional<double> amount)
{
    return amount && std::isfinite(*amount) && *amount > 0 ? amount : std::nullopt;
}

QJsonObject range(const std::optional<double>& min, const std::optional<double>& max)
{
    QJsonObject bounds;
    if (min)
        bounds.insert(minKey, *min);
    if (max)
        bounds.insert(maxKey, *max);
    return bounds;
}

} // namespace

int FilterSelection::count() const
{
    std::size_t count = priceMin || priceMax ? 1 : 0;
    for (const auto& [filter, values] : selected)
        count += values.size();
    return static_cast<int>(count);
}

bool FilterSelection::contains(const QString& filterID, const QString& valueID) const
{
    const auto found = selected.find(filterID);
    return found != selected.end() && found->second.contains(valueID);
}

void FilterSelection::toggle(const QString& filterID, const QString& valueID)
{
    std::set<QString>& values = selected[filterID];
    if (values.erase(valueID) == 0)
        values.insert(valueID);
    if (values.empty())
        selected.erase(filterID);
}

void FilterSelection::setPrice(std::optional<double> min, std::optional<double> max)
{
    priceMin = bound(min);
    priceMax = bound(max);
    if (priceMin && priceMax && *priceMin > *priceMax)
        std::swap(priceMin, priceMax);
}

QString FilterSelection::key() const
{
    QJsonObject choices;
    for (const auto& [filter, values] : selected) {
        QJsonArray list;
        for (const QString& value : values)
            list.append(value);
        choices.insert(filter, list);
    }
    return QString::fromUtf8(
        QJsonDocument(QJsonArray{choices, range(priceMin, priceMax)}).toJson(QJsonDocument::Compact));
}

QJsonArray inputs(const std::vector<CollectionFilter>& filters, const FilterSelection& selection)
{
    QJsonArray list;
    for (const CollectionFilter& filter : filters) {
        for (const CollectionFilter::Value& value : filter.values) {
            if (!selection.contains(filter.id, value.id))
                continue;
            if (const QJsonObject input = object(value.input); !input.isEmpty())
                list.append(input);
        }
    }
    if (selection.priceMin || selection.priceMax)
        list.append(QJsonObject{{priceKey, range(selection.priceMin, selection.priceMax)}});
    return list;
}

std::vector<CollectionFilter> withSelected(std::vector<CollectionFilter> offered,
                                           const std::vector<CollectionFilter>& former,
                                           const FilterSelection& selection)
{
    for (const CollectionFilter& filter : former) {
        for (CollectionFilter::Value value : filter.values) {
            if (!selection.contains(filter.id, value.id))
                continue;
            auto known = std::ranges::find(offered, filter.id, &CollectionFilter::id);
            if (known == offered.end()) {
                offered.push_back({.id = filter.id, .label = filter.label, .kind = filter.kind, .values = {}});
                known = std::prev(offered.end());
            }
            if (std::ranges::find(known->values, value.id, &CollectionFilter::Value::id) != known->values.end())
                continue;
            value.count = 0;
            known->values.push_back(std::move(value));
        }
    }
    return offered;
}

PriceBounds priceBounds(const CollectionFilter& filter)
{
    if (filter.values.empty())
        return {};
    const QJsonObject price = object(filter.values.front().input).value(priceKey).toObject();
    const auto read = [&price](const QString& key) {
        return price.value(key).isDouble() ? std::optional(price.value(key).toDouble()) : std::nullopt;
    };
    return {.min = read(minKey), .max = read(maxKey)};
}

} // namespace loom
