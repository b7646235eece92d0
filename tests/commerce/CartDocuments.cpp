#include "commerce/CartQueries.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace loom;

// Prints what a cart can send as {"documents": [{"name", "text", "variables"}]}.

namespace
{

void add(QJsonArray& list, const char* name, const QString& text, const QByteArray& variables)
{
    QJsonObject values = QJsonDocument::fromJson(variables).object();
    values.insert(QStringLiteral("country"), QStringLiteral("DE"));
    values.insert(QStringLiteral("language"), QStringLiteral("PT_BR"));
    list.append(QJsonObject{{QStringLiteral("name"), QLatin1String(name)},
                            {QStringLiteral("text"), text},
                            {QStringLiteral("variables"), values}});
}

QJsonArray documents()
{
    QJsonArray list;
    add(list, "GetCart", queries::getCart(), R"({"cartId": "a"})");
    const QByteArray attributes = R"([{"key": "source", "value": "app"}, {"key": "platform", "value": "macos"}])";
    const QByteArray made = R"("attributes": )" + attributes + R"(, "buyerIdentity": {"countryCode": "DE"})";
    add(list, "CartCreate", queries::cartCreate(), R"({"input": {)" + made + "}}");
    add(list, "CartCreate", queries::cartCreate(),
        R"({"input": {)" + made + R"(, "lines": [{"merchandiseId": "v", "quantity": 1}]}})");
    add(list, "CartLinesAdd", queries::cartLinesAdd(),
        R"({"cartId": "a", "lines": [{"merchandiseId": "v", "quantity": 1}]})");
    add(list, "CartLinesUpdate", queries::cartLinesUpdate(),
        R"({"cartId": "a", "lines": [{"id": "l", "quantity": 99}]})");
    add(list, "CartLinesRemove", queries::cartLinesRemove(), R"({"cartId": "a", "lineIds": ["l"]})");
    add(list, "ApplyDiscount", queries::applyDiscount(), R"({"cartId": "a", "codes": ["TEN"]})");
    add(list, "ApplyDiscount", queries::applyDiscount(), R"({"cartId": "a", "codes": []})");
    add(list, "CartAppAttribution", queries::cartAppAttribution(),
        R"({"cartId": "a", "attributes": )" + attributes + "}");
    add(list, "CartBuyerIdentity", queries::cartBuyerIdentity(),
        R"({"cartId": "a", "buyerIdentity": {"countryCode": "DE"}})");
    return list;
}

} // namespace

int main()
{
    const QByteArray text =
        QJsonDocument(QJsonObject{{QStringLiteral("documents"), documents()}}).toJson(QJsonDocument::Compact);
    return std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout) > 0 ? 0 : 1;
}
