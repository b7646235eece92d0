#include "catalog/CollectionPage.h"
#include "catalog/SearchPage.h"
#include "catalog/StorefrontLanguage.h"
#include "catalog/StorefrontQueries.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace loom;

// Prints what the application can send as {"documents": [{"name", "text", "variables"}], "countries": […]}.

namespace
{

QStringList handles(qsizetype count)
{
    QStringList list{QStringLiteral("silk \"qipao\""), QStringLiteral("back\\slash\ttab\r\n\u0001"),
                     QString::fromUtf8("👗 łódź"),     QString(),
                     QString(QChar(0xd83d)),           QStringLiteral("){__typename} #")};
    while (list.size() < count)
        list.append(QStringLiteral("handle-%1").arg(list.size()));
    return list.mid(0, count);
}

QJsonArray documents()
{
    QJsonArray list;
    const auto add = [&list](const char* name, const QString& text, const QJsonObject& variables = {}) {
        list.append(QJsonObject{{QStringLiteral("name"), QLatin1String(name)},
                                {QStringLiteral("text"), text},
                                {QStringLiteral("variables"), variables}});
    };
    add("Products", queries::products(),
        {{QStringLiteral("first"), 250}, {QStringLiteral("sortKey"), QStringLiteral("CREATED_AT")}});
    for (const SearchOrder& order : searchOrders) {
        add("Search", queries::search(),
            {{QStringLiteral("query"), QStringLiteral("silk")},
             {QStringLiteral("first"), 24},
             {QStringLiteral("filters"), QJsonArray{QJsonObject{{QStringLiteral("available"), true}}}},
             {QStringLiteral("sortKey"), QLatin1String(order.sortKey)},
             {QStringLiteral("reverse"), order.reverse}});
    }
    add("SkuImage", queries::skuImage(), {{QStringLiteral("handle"), QStringLiteral("a")}});
    for (const CollectionSortOrder& order : collectionSortOrders) {
        add("CollectionProducts", queries::collectionProducts(),
            {{QStringLiteral("handle"), QStringLiteral("a")},
             {QStringLiteral("first"), 48},
             {QStringLiteral("after"), QJsonValue::Null},
             {QStringLiteral("filters"), QJsonArray()},
             {QStringLiteral("sortKey"), QLatin1String(order.sortKey)},
             {QStringLiteral("reverse"), order.reverse}});
    }
    add("Recommendations", queries::recommendations(), {{QStringLiteral("productId"), QStringLiteral("a")}});
    add("CollectionProductCount", queries::collectionProductCount(), {{QStringLiteral("handle"), QStringLiteral("a")}});
    for (std::size_t i = 0; i < appLanguageCodes.size(); ++i) {
        for (const char* const region : {"US", "BR", "PT"}) {
            add("Countries", queries::countries(),
                {{QStringLiteral("language"),
                  storefrontLanguageCode(static_cast<AppLanguage>(i), QLatin1String(region))}});
        }
    }
    for (const qsizetype count : {1, 2, 6, 100}) {
        QJsonObject variables;
        for (qsizetype i = 0; i < count; ++i)
            variables.insert(QStringLiteral("h%1").arg(i), QStringLiteral("a"));
        add("CardAvailability", queries::cardAvailability(count), variables);
        add("SearchCardImages", queries::searchCardImages(count), variables);
        add("CollectionProbe", queries::collectionProbe(handles(count)));
        add("ProductsByHandles", queries::productsByHandles(count), variables);
    }
    return list;
}

QJsonArray countries()
{
    QJsonArray list;
    for (char first = 'A'; first <= 'Z'; ++first) {
        for (char second = 'A'; second <= 'Z'; ++second) {
            if (const QString code = QLatin1Char(first) + QString(QLatin1Char(second)); isStorefrontCountry(code))
                list.append(code);
        }
    }
    return list;
}

} // namespace

int main()
{
    const QByteArray text = QJsonDocument(QJsonObject{{QStringLiteral("documents"), documents()},
                                                      {QStringLiteral("countries"), countries()}})
                                .toJson(QJsonDocument::Compact);
    return std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout) > 0 ? 0 : 1;
}
