#include "catalog/StorefrontQueries.h"

#include <gtest/gtest.h>

namespace loom
{

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
