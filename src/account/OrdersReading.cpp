#include "account/OrdersReading.h"

#include "base/JsonReader.h"
#include "catalog/DisplayText.h"

#include <QSet>
#include <QUrl>

#include <cmath>

namespace loom
{

namespace
{

constexpr std::size_t mostOrders = 500;
constexpr std::size_t mostLines = 100;
constexpr std::size_t mostPackages = 20;
constexpr std::size_t mostEvents = 100;
constexpr std::size_t mostAddressLines = 8;
constexpr qsizetype longestName = 64;
constexpr qsizetype longestLine = 240;
constexpr qsizetype longestIdentifier = 256;
constexpr qsizetype longestAddress = 2048;
constexpr qint64 greatestQuantity = 9999;
constexpr double greatestAmount = 1e12;

template <typename Value>
using Words = std::initializer_list<std::pair<QLatin1String, Value>>;

template <typename Value>
Value meaning(const JsonReader& json, std::string_view key, Words<Value> words)
{
    const QString text = json.optionalText(key).value_or(QString());
    for (const auto& [word, value] : words) {
        if (text == word)
            return value;
    }
    return Value::Unknown;
}

QString line(const JsonReader& json, std::string_view key, qsizetype limit = longestLine)
{
    return displayLine(json.optionalText(key).value_or(QString()), limit);
}

/// A text without which the record is none.
QString neededLine(const JsonReader& json, std::string_view key, qsizetype limit)
{
    const QString text = displayLine(json.text(key), limit);
    if (text.isEmpty())
        json.fail(QStringLiteral("expected a text that shows"));
    return text;
}

/// Goes into calls and routes as it came.
QString identifier(const JsonReader& json, std::string_view key)
{
    const QString id = json.optionalText(key).value_or(QString());
    return id.size() <= longestIdentifier ? id : QString();
}

QString neededIdentifier(const JsonReader& json, std::string_view key)
{
    QString id = identifier(json, key);
    if (id.isEmpty())
        json.fail(QStringLiteral("expected an identifier"));
    return id;
}

QString address(const JsonReader& json, std::string_view key)
{
    const QString text = json.optionalText(key).value_or(QString());
    if (text.size() > longestAddress)
        return {};
    const QUrl url(text, QUrl::StrictMode);
    const bool isGood = url.scheme() == QLatin1String("https") && !url.host().isEmpty() && url.userInfo().isEmpty();
    return isGood ? text : QString();
}

std::optional<Money> amount(const JsonReader& json, std::string_view key)
{
    const auto object = json.optionalObject(key);
    const auto number = object ? object->optionalDecimal("amount") : std::nullopt;
    const auto currency = object ? object->optionalText("currencyCode") : std::nullopt;
    if (!number || !std::isfinite(*number) || *number < 0 || *number > greatestAmount || !currency)
        return std::nullopt;
    return Money{.amount = *number, .currencyCode = displayLine(*currency, 8)};
}

Money neededAmount(const JsonReader& json, std::string_view key)
{
    const auto money = amount(json, key);
    if (!money)
        json.fail(QStringLiteral("expected an amount"));
    return money.value_or(Money());
}

/// The first of those that can be read.
template <typename Decode>
auto someOf(const JsonReader& json, std::string_view key, std::size_t limit, Decode decode)
{
    auto elements = json.optionalList(key);
    if (elements.size() > limit)
        elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(limit), elements.end());
    return JsonReader::decodeEach(elements, decode);
}

/// Those of the same moment keep their order. As servers send them in order already, little has to move.
template <typename Record>
void sortNewestFirst(std::vector<Record>& records, QDateTime Record::* date)
{
    for (auto next = records.begin(); next != records.end(); ++next)
        std::rotate(std::ranges::upper_bound(records.begin(), next, (*next).*date, std::ranges::greater(), date), next,
                    next + 1);
}

/// Each key once, the first; then the newest first.
template <typename Record>
void setInOrder(std::vector<Record>& records, QString Record::* key, QDateTime Record::* date)
{
    QSet<QString> known;
    std::erase_if(records, [&known, key](const Record& record) {
        const auto before = known.size();
        known.insert(record.*key);
        return known.size() == before;
    });
    sortNewestFirst(records, date);
}

OrderLine decodeLine(const JsonReader& json)
{
    const qint64 quantity = json.has("quantity") ? json.integer("quantity") : 1;
    if (quantity < 1 || quantity > greatestQuantity)
        json.fail(QStringLiteral("expected a quantity"));
    return {.title = neededLine(json, "title", longestLine),
            .variantTitle = line(json, "variantTitle"),
            .handle = identifier(json, "handle"),
            .imageURL = address(json, "imageURL"),
            .quantity = static_cast<int>(quantity),
            .price = amount(json, "price")};
}

PackageEvent decodeEvent(const JsonReader& json)
{
    return {.at = json.date("at"), .text = neededLine(json, "text", longestLine), .place = line(json, "place")};
}

Package decodePackage(const JsonReader& json)
{
    Package package{.number = neededLine(json, "number", longestName),
                    .carrier = line(json, "carrier", longestName),
                    .status = meaning<PackageStatus>(json, "status",
                                                     {{QLatin1String("label"), PackageStatus::Label},
                                                      {QLatin1String("transit"), PackageStatus::Transit},
                                                      {QLatin1String("out"), PackageStatus::Out},
                                                      {QLatin1String("delivered"), PackageStatus::Delivered},
                                                      {QLatin1String("problem"), PackageStatus::Problem}}),
                    .expectedAt = json.optionalDate("expectedAt"),
                    .url = address(json, "url"),
                    .events = someOf(json, "events", mostEvents, decodeEvent)};
    sortNewestFirst(package.events, &PackageEvent::at);
    return package;
}

Order decodeOrder(const JsonReader& json)
{
    Order order{.id = neededIdentifier(json, "id"),
                .name = neededLine(json, "name", longestName),
                .placedAt = json.date("placedAt"),
                .status = meaning<OrderStatus>(json, "status",
                                               {{QLatin1String("confirmed"), OrderStatus::Confirmed},
                                                {QLatin1String("packed"), OrderStatus::Packed},
                                                {QLatin1String("shipped"), OrderStatus::Shipped},
                                                {QLatin1String("delivered"), OrderStatus::Delivered},
                                                {QLatin1String("cancelled"), OrderStatus::Cancelled}}),
                .lines = someOf(json, "lines", mostLines, decodeLine),
                .packages = someOf(json, "packages", mostPackages, decodePackage),
                .subtotal = amount(json, "subtotal"),
                .shipping = amount(json, "shipping"),
                .discount = amount(json, "discount"),
                .tax = amount(json, "tax"),
                .total = neededAmount(json, "total"),
                .addressee = {},
                .addressLines = {},
                .canReturn = json.optionalBoolean("canReturn").value_or(false)};
    if (const auto address = json.optionalObject("address")) {
        order.addressee = line(*address, "name");
        for (const QString& text : address->textList("lines").mid(0, mostAddressLines))
            order.addressLines.append(displayLine(text, longestLine));
        order.addressLines.removeAll(QString());
    }
    return order;
}

Refund decodeRefund(const JsonReader& json)
{
    return {.id = neededIdentifier(json, "id"),
            .orderId = identifier(json, "orderId"),
            .orderName = line(json, "orderName", longestName),
            .createdAt = json.date("createdAt"),
            .status = meaning<RefundStatus>(json, "status",
                                            {{QLatin1String("requested"), RefundStatus::Requested},
                                             {QLatin1String("approved"), RefundStatus::Approved},
                                             {QLatin1String("refunded"), RefundStatus::Refunded},
                                             {QLatin1String("refused"), RefundStatus::Refused}}),
            .amount = neededAmount(json, "amount"),
            .rmaNo = line(json, "rmaNo", longestName),
            .reason = line(json, "reason")};
}

} // namespace

OrdersAnswer decodeOrders(const JsonReader& json)
{
    // What has no list is no answer, rather than that of somebody who never ordered.
    static_cast<void>(json.list("orders"));
    OrdersAnswer answer{.orders = someOf(json, "orders", mostOrders, decodeOrder),
                        .refunds = someOf(json, "refunds", mostOrders, decodeRefund)};
    setInOrder(answer.orders, &Order::id, &Order::placedAt);
    setInOrder(answer.refunds, &Refund::id, &Refund::createdAt);
    return answer;
}

TrackingAnswer decodeTracking(const JsonReader& json)
{
    static_cast<void>(json.list("packages"));
    return {.packages = someOf(json, "packages", mostPackages, decodePackage),
            .orderId = identifier(json, "orderId"),
            .orderName = line(json, "orderName", longestName)};
}

} // namespace loom
