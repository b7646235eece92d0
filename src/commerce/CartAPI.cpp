#include "commerce/CartAPI.h"

#include "commerce/CartQueries.h"

#include <QJsonArray>

namespace loom
{

namespace
{

/// What a change answers: the cart, or why there is none.
struct CartPayload {
    std::optional<Cart> cart;
    QStringList userErrors;
};

/// Only null says that something is not there; what is neither that nor an object says nothing.
bool isThere(const JsonReader& json)
{
    if (!json.isObject() && !json.asJson().isNull())
        json.fail(QStringLiteral("expected an object or null"));
    return json.isObject();
}

std::optional<Cart> readCart(const JsonReader& json)
{
    for (const auto& [key, value] : json.members()) {
        if (key == QLatin1String("cart"))
            return isThere(value) ? std::optional(decodeCart(value)) : std::nullopt;
    }
    json.fail(QStringLiteral("expected a cart or null"));
    return std::nullopt;
}

/// The answer of a document with one root field, whatever its name.
CartPayload readPayload(const JsonReader& data)
{
    CartPayload payload;
    const auto fields = data.members();
    if (fields.empty())
        data.fail(QStringLiteral("expected an answer"));
    for (const auto& [field, answer] : fields) {
        if (!isThere(answer))
            continue;
        payload.cart = readCart(answer);
        for (const JsonReader& error : answer.optionalList("userErrors")) {
            if (const auto message = error.optionalText("message"))
                payload.userErrors.append(*message);
        }
    }
    return payload;
}

QJsonObject onCart(const QString& id, const QString& key, const QJsonValue& value)
{
    return {{QStringLiteral("cartId"), id}, {key, value}};
}

QJsonArray toJson(const std::vector<CartLineInput>& lines)
{
    QJsonArray list;
    for (const CartLineInput& line : lines)
        list.append(QJsonObject{{QStringLiteral("merchandiseId"), line.merchandiseId},
                                {QStringLiteral("quantity"), line.quantity}});
    return list;
}

QJsonArray attribution()
{
    QJsonArray list;
    for (const CartAttribute& attribute : appAttribution())
        list.append(QJsonObject{{QStringLiteral("key"), attribute.key}, {QStringLiteral("value"), attribute.value}});
    return list;
}

} // namespace

QJsonObject CartAPI::buyerIdentity() const
{
    return {{QStringLiteral("countryCode"), m_client.country()}};
}

QCoro::Task<ApiResult<Cart>> CartAPI::change(QString document, QJsonObject variables, std::stop_token stop)
{
    LOOM_CO_TRY(payload, co_await m_client.send(document, variables, Retry::Never, readPayload, stop));
    if (!payload.cart)
        co_return apiFailure(APIError::GraphQL{payload.userErrors.mid(0, 1)});
    co_return *std::move(payload.cart);
}

QCoro::Task<ApiResult<std::optional<Cart>>> CartAPI::cart(QString id, std::stop_token stop)
{
    co_return co_await m_client.send(queries::getCart(), {{QStringLiteral("cartId"), id}}, Retry::Transient, readCart,
                                     stop);
}

QCoro::Task<ApiResult<Cart>> CartAPI::create(const std::vector<CartLineInput>& lines, std::stop_token stop)
{
    QJsonObject input{{QStringLiteral("attributes"), attribution()},
                      {QStringLiteral("buyerIdentity"), buyerIdentity()}};
    if (!lines.empty())
        input.insert(QStringLiteral("lines"), toJson(lines));
    return change(queries::cartCreate(), {{QStringLiteral("input"), input}}, stop);
}

QCoro::Task<ApiResult<Cart>> CartAPI::addLines(const QString& id, const std::vector<CartLineInput>& lines,
                                               std::stop_token stop)
{
    return change(queries::cartLinesAdd(), onCart(id, QStringLiteral("lines"), toJson(lines)), stop);
}

QCoro::Task<ApiResult<Cart>> CartAPI::updateLine(const QString& id, const QString& lineID, qint64 quantity,
                                                 std::stop_token stop)
{
    const QJsonObject line{{QStringLiteral("id"), lineID}, {QStringLiteral("quantity"), quantity}};
    return change(queries::cartLinesUpdate(), onCart(id, QStringLiteral("lines"), QJsonArray{line}), stop);
}

QCoro::Task<ApiResult<Cart>> CartAPI::removeLine(const QString& id, const QString& lineID, std::stop_token stop)
{
    return change(queries::cartLinesRemove(), onCart(id, QStringLiteral("lineIds"), QJsonArray{lineID}), stop);
}

QCoro::Task<ApiResult<Cart>> CartAPI::applyDiscount(const QString& id, const QStringList& codes, std::stop_token stop)
{
    return change(queries::applyDiscount(), onCart(id, QStringLiteral("codes"), QJsonArray::fromStringList(codes)),
                  stop);
}

QCoro::Task<ApiResult<Cart>> CartAPI::addAttribution(const QString& id, std::stop_token stop)
{
    return change(queries::cartAppAttribution(), onCart(id, QStringLiteral("attributes"), attribution()), stop);
}

QCoro::Task<ApiResult<Cart>> CartAPI::updateBuyerIdentity(const QString& id, std::stop_token stop)
{
    return change(queries::cartBuyerIdentity(), onCart(id, QStringLiteral("buyerIdentity"), buyerIdentity()), stop);
}

bool isCartRefused(const Failure& failure)
{
    if (failure.isCancelled())
        return false;
    const auto* const refusal = failure.error().as<APIError::GraphQL>();
    return refusal && !isThrottled(*refusal);
}

} // namespace loom
