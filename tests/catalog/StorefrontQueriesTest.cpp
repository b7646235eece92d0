#include "catalog/StorefrontQueries.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

const QString listItem =
    QStringLiteral("fragment ListItem on Product {\n  id\n  handle\n  title\n  vendor\n  tags\n  availableForSale\n"
                   "  featuredImage { url }\n  createdAt\n  priceRange { minVariantPrice { amount currencyCode } }\n"
                   "  compareAtPriceRange { minVariantPrice { amount currencyCode } }\n"
                   "  styleVariants: variants(first: 10) { nodes { image { url } } }\n"
                   "  cardImages: images(first: 4) { nodes { url } }\n}");

/// One blank for any white space, as GraphQL sees it.
std::string folded(const QString& text)
{
    return text.simplified().toStdString();
}

} // namespace

TEST(StorefrontQueriesTest, FragmentsStandAheadOfTheOperationThatUsesThem)
{
    for (const QString& text : {queries::productsByIDs(), queries::recommendations(), queries::products(),
                                queries::collectionProducts(), queries::product()})
        EXPECT_TRUE(text.startsWith(listItem + QLatin1Char('\n'))) << text.toStdString();
    for (const QString& text :
         {queries::livePrices(), queries::suggest(), queries::skuImage(), queries::collectionProductCount()})
        EXPECT_TRUE(text.startsWith(QLatin1String("query "))) << text.toStdString();
}

TEST(StorefrontQueriesTest, OperationsSelectWhatTheirRecordsNeed)
{
    struct Row {
        QString text;
        const char* part;
    };
    const char* const metafields =
        "metafields(identifiers: [ { namespace: \"custom\", key: \"specs\" } { namespace: \"custom\", key: "
        "\"highlights\" } { namespace: \"custom\", key: \"composition\" } { namespace: \"custom\", key: "
        "\"aeo_details\" } { namespace: \"custom\", key: \"presale\" } { namespace: \"custom\", key: \"reviews\" } { "
        "namespace: \"custom\", key: \"source_item_id\" } { namespace: \"pdp\", key: \"topcartsize\" } { namespace: "
        "\"reviews\", key: \"rating\" } { namespace: \"reviews\", key: \"rating_count\" } ]) { namespace key type "
        "value } } query Product(";
    for (const Row& row : {
             Row{queries::product(),
                 "fragment ProductDetail on Product { ...ListItem description descriptionHtml productType "
                 "collections(first: 10) { nodes { handle } } images(first: 30) { nodes { url } } "
                 "options { name optionValues { name } } variants(first: 100) { nodes { id title availableForSale "
                 "quantityAvailable price { amount currencyCode } compareAtPrice { amount currencyCode } "
                 "selectedOptions { name value } image { url } } } metafields("},
             Row{queries::product(), metafields},
             Row{queries::product(), "{ product(handle: $handle) { ...ProductDetail } }"},
             Row{queries::productsByIDs(), "{ nodes(ids: $ids) { ... on Product { ...ListItem } } }"},
             Row{queries::livePrices(), "{ nodes(ids: $ids) { ... on Product { handle availableForSale "
                                        "priceRange { minVariantPrice { amount } } } } }"},
             Row{queries::recommendations(), "{ productRecommendations(productId: $productId) { ...ListItem } }"},
             Row{queries::products(),
                 "{ products(first: $first, after: $after, query: $query, sortKey: $sortKey, "
                 "reverse: $reverse) { nodes { ...ListItem } pageInfo { hasNextPage endCursor } }"},
             Row{queries::suggest(), "{ predictiveSearch(query: $q, limit: 6, types: [PRODUCT, QUERY, COLLECTION]) { "
                                     "queries { text } products { id handle title vendor featuredImage { url } } "
                                     "collections { handle title } } }"},
             Row{queries::skuImage(), "query SkuImage($handle: String!) { product(handle: $handle) { featuredImage { "
                                      "url } variants(first: 100) { nodes { title image { url } } } } }"},
             Row{queries::collectionProducts(),
                 "{ collection(handle: $handle) { id handle title image { url } products(first: $first, after: $after, "
                 "filters: $filters, sortKey: $sortKey, reverse: $reverse) { nodes { ...ListItem } pageInfo { "
                 "hasNextPage endCursor } filters { id label type values { id label count input } } } } }"},
             Row{queries::collectionProductCount(),
                 "{ collection(handle: $handle) { products(first: 250, after: $after, filters: $filters) { nodes { id "
                 "} pageInfo { hasNextPage endCursor } } } }"},
         })
        EXPECT_NE(folded(row.text).find(row.part), std::string::npos) << row.part;
}

TEST(StorefrontQueriesTest, BatchesAndMarketQueriesAreWrittenExactly)
{
    EXPECT_EQ(queries::countries(),
              QStringLiteral("query Countries($language: LanguageCode) @inContext(language: $language) {\n"
                             "  localization { availableCountries { isoCode name currency { isoCode } } }\n}"));
    EXPECT_EQ(queries::rateSample(),
              QStringLiteral("query RateSample($country: CountryCode) @inContext(country: $country) {\n"
                             "  products(first: 10, sortKey: PRICE, reverse: true) {\n"
                             "    nodes { priceRange { minVariantPrice { amount currencyCode } } }\n  }\n}"));
    EXPECT_EQ(queries::cardAvailability(2),
              QStringLiteral("query CardAvailability($country: CountryCode, $h0: String!, $h1: String!) "
                             "@inContext(country: $country) {\n"
                             "  p0: product(handle: $h0) { handle availableForSale }\n"
                             "p1: product(handle: $h1) { handle availableForSale }\n}"));
    EXPECT_EQ(queries::searchCardImages(1),
              QStringLiteral("query SearchCardImages($country: CountryCode, $h0: String!) "
                             "@inContext(country: $country) {\n"
                             "  p0: product(handle: $h0) { handle images(first: 4) { nodes { url } } }\n}"));
    EXPECT_TRUE(queries::cardAvailability(100).contains(QLatin1String("$h99: String!) @in")));

    const QString selection = QStringLiteral(") { handle title image { url } firstProduct: products(first: 1) { nodes "
                                             "{ featuredImage { url } } } }\n");
    EXPECT_EQ(queries::collectionProbe({QStringLiteral("dresses"), QStringLiteral("new-in")}),
              QStringLiteral("query CollectionProbe($country: CountryCode, $language: LanguageCode) "
                             "@inContext(country: $country, language: $language) {\n"
                             "c0: collection(handle: \"dresses\"") +
                  selection + QStringLiteral("c1: collection(handle: \"new-in\"") + selection + QLatin1Char('}'));
}

TEST(StorefrontQueriesTest, AHandleInADocumentIsALiteralWhateverItHolds)
{
    struct Row {
        QString handle;
        QString literal;
    };
    for (const Row& row : {
             Row{QStringLiteral("a\"){x}#"), QStringLiteral(R"("a\"){x}#")")},
             Row{QStringLiteral("a\\"), QStringLiteral(R"("a\\")")},
             Row{QStringLiteral("a\n\t\u0001"), QStringLiteral(R"("a\n\t\u0001")")},
             Row{QString(QChar(u'\0')), QStringLiteral(R"("\u0000")")},
             Row{QString::fromUtf8("👗 łódź %1"), QString::fromUtf8("\"👗 łódź %1\"")},
             Row{{}, QStringLiteral("\"\"")},
             // Half a character cannot be written.
             Row{QStringLiteral("a") + QChar(0xd83d), QStringLiteral("\"\"")},
             Row{QString(QChar(0xdc57)), QStringLiteral("\"\"")},
         }) {
        const QString text = queries::collectionProbe({row.handle});
        EXPECT_TRUE(text.contains(QLatin1String("collection(handle: ") + row.literal + QLatin1String(") {")))
            << text.toStdString();
    }
}

} // namespace loom
