#include "catalog/StorefrontQueries.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace loom::queries
{

namespace
{

const char* const listItemFragment = R"(fragment ListItem on Product {
  id
  handle
  title
  vendor
  tags
  availableForSale
  featuredImage { url }
  createdAt
  priceRange { minVariantPrice { amount currencyCode } }
  compareAtPriceRange { minVariantPrice { amount currencyCode } }
  styleVariants: variants(first: 10) { nodes { image { url } } }
  cardImages: images(first: 4) { nodes { url } }
})";

const char* const productDetailFragment = R"(fragment ProductDetail on Product {
  ...ListItem
  description
  descriptionHtml
  productType
  collections(first: 10) { nodes { handle } }
  images(first: 30) { nodes { url } }
  options { name optionValues { name } }
  variants(first: 100) {
    nodes {
      id
      title
      availableForSale
      quantityAvailable
      price { amount currencyCode }
      compareAtPrice { amount currencyCode }
      selectedOptions { name value }
      image { url }
    }
  }
  metafields(identifiers: [
    { namespace: "custom", key: "specs" }
    { namespace: "custom", key: "highlights" }
    { namespace: "custom", key: "composition" }
    { namespace: "custom", key: "aeo_details" }
    { namespace: "custom", key: "presale" }
    { namespace: "custom", key: "reviews" }
    { namespace: "custom", key: "source_item_id" }
    { namespace: "pdp", key: "topcartsize" }
    { namespace: "reviews", key: "rating" }
    { namespace: "reviews", key: "rating_count" }
  ]) { namespace key type value }
})";

QString document(std::initializer_list<const char*> pieces)
{
    QStringList texts;
    for (const char* const piece : pieces)
        texts.append(QString::fromLatin1(piece));
    return texts.join(QLatin1Char('\n'));
}

/// A JSON string literal, which is a GraphQL one too; an empty pair of quotes for what cannot be written: half of a
/// surrogate pair would be refused, and the whole document with it.
QString literal(const QString& text)
{
    if (!text.isValidUtf16())
        return QStringLiteral("\"\"");
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

QString productBatch(const QString& operation, qsizetype handleCount, const QString& selection)
{
    QStringList declarations;
    QStringList fields;
    for (qsizetype i = 0; i < handleCount; ++i) {
        declarations.append(QStringLiteral("$h%1: String!").arg(i));
        fields.append(QStringLiteral("p%1: product(handle: $h%1) ").arg(i) + selection);
    }
    return QStringLiteral("query ") + operation + QStringLiteral("($country: CountryCode, ") +
           declarations.join(QStringLiteral(", ")) + QStringLiteral(") @inContext(country: $country) {\n  ") +
           fields.join(QLatin1Char('\n')) + QStringLiteral("\n}");
}

} // namespace

QString product()
{
    return document({listItemFragment, productDetailFragment,
                     R"(query Product($handle: String!, $country: CountryCode, $language: LanguageCode)
@inContext(country: $country, language: $language) {
  product(handle: $handle) { ...ProductDetail }
})"});
}

QString productsByIDs()
{
    return document({listItemFragment,
                     R"(query ProductsByIDs($ids: [ID!]!, $country: CountryCode, $language: LanguageCode)
@inContext(country: $country, language: $language) {
  nodes(ids: $ids) { ... on Product { ...ListItem } }
})"});
}

QString livePrices()
{
    return document({R"(query LivePrices($ids: [ID!]!, $country: CountryCode, $language: LanguageCode)
@inContext(country: $country, language: $language) {
  nodes(ids: $ids) { ... on Product { handle availableForSale priceRange { minVariantPrice { amount } } } }
})"});
}

QString recommendations()
{
    return document({listItemFragment,
                     R"(query Recommendations($productId: ID!, $country: CountryCode, $language: LanguageCode)
@inContext(country: $country, language: $language) {
  productRecommendations(productId: $productId) { ...ListItem }
})"});
}

QString products()
{
    return document({listItemFragment,
                     R"(query Products($first: Int!, $after: String, $query: String, $sortKey: ProductSortKeys,
  $reverse: Boolean, $country: CountryCode, $language: LanguageCode)
@inContext(country: $country, language: $language) {
  products(first: $first, after: $after, query: $query, sortKey: $sortKey, reverse: $reverse) {
    nodes { ...ListItem }
    pageInfo { hasNextPage endCursor }
  }
})"});
}

QString suggest()
{
    return document({R"(query Suggest($q: String!, $country: CountryCode, $language: LanguageCode)
@inContext(country: $country, language: $language) {
  predictiveSearch(query: $q, limit: 6, types: [PRODUCT, QUERY, COLLECTION]) {
    queries { text }
    products { id handle title vendor featuredImage { url } }
    collections { handle title }
  }
})"});
}

QString search()
{
    // What is sold out comes last, in whatever order.
    return document({listItemFragment,
                     R"(query Search($query: String!, $first: Int!, $after: String, $filters: [ProductFilter!],
  $sortKey: SearchSortKeys, $reverse: Boolean, $country: CountryCode, $language: LanguageCode)
@inContext(country: $country, language: $language) {
  search(query: $query, first: $first, after: $after, types: PRODUCT, productFilters: $filters, sortKey: $sortKey,
    reverse: $reverse, unavailableProducts: LAST) {
    totalCount
    nodes { ... on Product { ...ListItem } }
    pageInfo { hasNextPage endCursor }
    productFilters { id label type values { id label count input } }
  }
})"});
}

QString skuImage()
{
    return document({R"(query SkuImage($handle: String!) {
  product(handle: $handle) { featuredImage { url } variants(first: 100) { nodes { title image { url } } } }
})"});
}

QString collectionProducts()
{
    return document({listItemFragment,
                     R"(query CollectionProducts($handle: String!, $first: Int!, $after: String,
  $filters: [ProductFilter!], $sortKey: ProductCollectionSortKeys, $reverse: Boolean,
  $country: CountryCode, $language: LanguageCode)
@inContext(country: $country, language: $language) {
  collection(handle: $handle) {
    id
    handle
    title
    image { url }
    products(first: $first, after: $after, filters: $filters, sortKey: $sortKey, reverse: $reverse) {
      nodes { ...ListItem }
      pageInfo { hasNextPage endCursor }
      filters { id label type values { id label count input } }
    }
  }
})"});
}

QString collectionProductCount()
{
    return document({R"(query CollectionProductCount($handle: String!, $after: String, $filters: [ProductFilter!],
  $country: CountryCode)
@inContext(country: $country) {
  collection(handle: $handle) {
    products(first: 250, after: $after, filters: $filters) { nodes { id } pageInfo { hasNextPage endCursor } }
  }
})"});
}

QString countries()
{
    return QStringLiteral("query Countries($language: LanguageCode) @inContext(language: $language) {\n"
                          "  localization { availableCountries { isoCode name currency { isoCode } } }\n}");
}

QString rateSample()
{
    return QStringLiteral("query RateSample($country: CountryCode) @inContext(country: $country) {\n"
                          "  products(first: 10, sortKey: PRICE, reverse: true) {\n"
                          "    nodes { priceRange { minVariantPrice { amount currencyCode } } }\n  }\n}");
}

QString cardAvailability(qsizetype handleCount)
{
    return productBatch(QStringLiteral("CardAvailability"), handleCount, QStringLiteral("{ handle availableForSale }"));
}

QString searchCardImages(qsizetype handleCount)
{
    return productBatch(QStringLiteral("SearchCardImages"), handleCount,
                        QStringLiteral("{ handle images(first: 4) { nodes { url } } }"));
}

QString productsByHandles(qsizetype handleCount)
{
    QStringList declarations;
    QStringList fields;
    for (qsizetype i = 0; i < handleCount; ++i) {
        declarations.append(QStringLiteral("$h%1: String!, ").arg(i));
        fields.append(QStringLiteral("  p%1: product(handle: $h%1) { ...ListItem }").arg(i));
    }
    return QString::fromLatin1(listItemFragment) + QStringLiteral("\nquery ProductsByHandles(") +
           declarations.join(QString()) +
           QStringLiteral("$country: CountryCode, $language: LanguageCode)\n"
                          "@inContext(country: $country, language: $language) {\n") +
           fields.join(QLatin1Char('\n')) + QStringLiteral("\n}");
}

QString collectionProbe(const QStringList& handles)
{
    QStringList fields;
    for (qsizetype i = 0; i < handles.size(); ++i) {
        fields.append(QStringLiteral("c%1: collection(handle: ").arg(i) + literal(handles.at(i)) +
                      QStringLiteral(") { handle title image { url } "
                                     "firstProduct: products(first: 1) { nodes { featuredImage { url } } } }"));
    }
    return QStringLiteral("query CollectionProbe($country: CountryCode, $language: LanguageCode) "
                          "@inContext(country: $country, language: $language) {\n") +
           fields.join(QLatin1Char('\n')) + QStringLiteral("\n}");
}

} // namespace loom::queries
