#include "commerce/CartQueries.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace loom;

// Prints what a cart sends without anybody seeing whether it was understood, as {"documents": [{"name", "text",
// "variables"}]}.
int main()
{
    const QJsonDocument variables = QJsonDocument::fromJson(
        R"({"cartId": "a", "country": "DE", "language": "PT_BR", "attributes": [{"key": "source", "value": "app"}]})");
    const QJsonObject attribution{{QStringLiteral("name"), QStringLiteral("CartAppAttribution")},
                                  {QStringLiteral("text"), queries::cartAppAttribution()},
                                  {QStringLiteral("variables"), variables.object()}};
    const QJsonObject all{{QStringLiteral("documents"), QJsonArray{attribution}}};
    const QByteArray text = QJsonDocument(all).toJson(QJsonDocument::Compact);
    return std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout) > 0 ? 0 : 1;
}
