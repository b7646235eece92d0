#include "navigation/Routes.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace loom
{

namespace
{

/// Writes each field a case names; a field that is absent is left out.
struct FieldWriter {
    QJsonObject& json;

    void operator()(const char* key, const QString& value) const { json.insert(QLatin1String(key), value); }
    void operator()(const char* key, const QStringList& value) const
    {
        json.insert(QLatin1String(key), QJsonArray::fromStringList(value));
    }
    void operator()(const char* key, const std::optional<QString>& value) const
    {
        if (value)
            json.insert(QLatin1String(key), *value);
    }
    void operator()(const char* key, const std::optional<ProductListItem>& value) const
    {
        if (value)
            json.insert(QLatin1String(key), toJson(*value));
    }
};

/// Reads each field a case names. One that is missing leaves the case unread; of those that may be absent a broken one
/// is.
struct FieldReader {
    const JsonReader& json;
    bool& isWhole;

    void operator()(const char* key, QString& value) const
    {
        const auto text = json.optionalText(key);
        isWhole = isWhole && text;
        value = text.value_or(QString());
    }
    void operator()(const char* key, QStringList& value) const
    {
        isWhole = isWhole && json.has(key) && json.value(key).isList();
        value = json.textList(key);
    }
    void operator()(const char* key, std::optional<QString>& value) const { value = json.optionalText(key); }
    void operator()(const char* key, std::optional<ProductListItem>& value) const
    {
        if (!json.has(key))
            return;
        const auto items = JsonReader::decodeEach({json.value(key)}, decodeStoredItem);
        if (!items.empty())
            value = items.front();
    }
};

/// Fills `route` when the saved type and case are one of its own.
template <typename RouteType, std::size_t Index = 0>
bool readCase(const JsonReader& json, const QString& type, const QString& caseName, Route& route)
{
    using Pages = decltype(RouteType::page);
    if constexpr (Index == std::variant_size_v<Pages>) {
        return false;
    } else {
        using Case = std::variant_alternative_t<Index, Pages>;
        if (type != QLatin1String(RouteType::type) || caseName != QLatin1String(Case::name))
            return readCase<RouteType, Index + 1>(json, type, caseName, route);
        Case page;
        bool isWhole = true;
        Case::fields(page, FieldReader{json, isWhole});
        if (isWhole)
            route = RouteType{page};
        return true;
    }
}

template <std::size_t Index = 0>
bool readRoute(const JsonReader& json, const QString& type, const QString& caseName, Route& route)
{
    using RouteType = std::variant_alternative_t<Index, Route>;
    if constexpr (std::is_same_v<RouteType, UnknownRoute>)
        return false;
    else
        return readCase<RouteType>(json, type, caseName, route) || readRoute<Index + 1>(json, type, caseName, route);
}

} // namespace

QJsonObject toJson(const Route& route)
{
    QJsonObject json;
    const auto write = [&json]<typename RouteType>(const RouteType& value) {
        if constexpr (!std::is_same_v<RouteType, UnknownRoute>) {
            json.insert(QStringLiteral("type"), QLatin1String(RouteType::type));
            std::visit(
                [&json]<typename Case>(const Case& page) {
                    json.insert(QStringLiteral("case"), QLatin1String(Case::name));
                    Case::fields(page, FieldWriter{json});
                },
                value.page);
        }
    };
    std::visit(write, route);
    return json;
}

Route decodeRoute(const JsonReader& json)
{
    Route route = UnknownRoute{};
    readRoute(json, json.optionalText("type").value_or(QString()), json.optionalText("case").value_or(QString()),
              route);
    return route;
}

Route productRoute(const ProductPreview& request)
{
    return ShopRoute{ShopRoute::Product{.handle = request.handle, .item = request.item}};
}

std::size_t qHash(const Route& route, std::size_t seed)
{
    return ::qHash(QJsonDocument(toJson(route)).toJson(QJsonDocument::Compact), seed);
}

} // namespace loom
