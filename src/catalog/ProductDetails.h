#pragma once

#include "catalog/DescriptionSections.h"
#include "catalog/ProductMetafields.h"
#include "catalog/ServiceClass.h"
#include "catalog/SizeCell.h"

#include <QVariant>

namespace loom
{

struct Product;

/// What is worked out of a product once, for its page: no small work for a long description, so it is done on a
/// worker thread.
struct ProductDetails {
    QList<DescriptionSection> sections;
    ProductMetafields metafields;
    ServiceClass serviceClass = ServiceClass::Standard;

    bool operator==(const ProductDetails&) const = default;
};

/// Pure; any thread.
[[nodiscard]] ProductDetails productDetails(const Product& product);

// The same as lists and maps that pages can read.

/// {"title", "paragraphs", "isCollapsible"} each.
[[nodiscard]] QVariantList sectionList(const ProductDetails& details);
/// {"title", "columns", "rows"} each; the rows are lists of texts.
[[nodiscard]] QVariantList sizeTableList(const ProductDetails& details, SizeUnit unit);
/// {"key", "value"} each.
[[nodiscard]] QVariantList specList(const ProductDetails& details);
/// {"title", "paragraphs", "questions"} each; the questions are {"question", "answer"}.
[[nodiscard]] QVariantList storyList(const ProductDetails& details);
/// {"rating", "count", "tags", "reviews", "footer" …}; empty without ratings and reviews. A count of 0 is not known.
[[nodiscard]] QVariantMap reviewSummary(const ProductDetails& details);

} // namespace loom
