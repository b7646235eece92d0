#include "catalog/ProductDetails.h"

#include "catalog/Product.h"
#include "catalog/SizeTable.h"

namespace loom
{

ProductDetails productDetails(const Product& product)
{
    return {.sections = descriptionSections(product.descriptionHTML.isEmpty() ? product.description.toHtmlEscaped()
                                                                              : product.descriptionHTML),
            .metafields = productMetafields(product.metafields),
            .serviceClass = serviceClass(product.item.tags, product.collectionHandles, product.item.title)};
}

QVariantList sectionList(const ProductDetails& details)
{
    QVariantList list;
    for (const DescriptionSection& section : details.sections) {
        list.append(QVariantMap{{QStringLiteral("title"), section.title},
                                {QStringLiteral("paragraphs"), section.paragraphs},
                                {QStringLiteral("isCollapsible"), section.isCollapsible}});
    }
    return list;
}

QVariantList sizeTableList(const ProductDetails& details, SizeUnit unit)
{
    QVariantList list;
    for (const TableSection& section : details.metafields.sizeSections) {
        const TableSection shown = sizeTable(section, unit);
        if (shown.rows.isEmpty())
            continue;
        QVariantList rows;
        for (const QStringList& row : shown.rows.mid(1))
            rows.append(QVariant(row));
        list.append(QVariantMap{{QStringLiteral("title"), shown.title},
                                {QStringLiteral("columns"), shown.rows.first()},
                                {QStringLiteral("rows"), rows}});
    }
    return list;
}

QVariantList specList(const ProductDetails& details)
{
    QVariantList list;
    for (const SpecRow& row : details.metafields.specs)
        list.append(QVariantMap{{QStringLiteral("key"), row.key}, {QStringLiteral("value"), row.value}});
    return list;
}

QVariantList storyList(const ProductDetails& details)
{
    QVariantList list;
    for (const AeoSection& section : details.metafields.aeoSections) {
        QVariantList questions;
        for (const AeoFaq& faq : section.faqs) {
            questions.append(
                QVariantMap{{QStringLiteral("question"), faq.question}, {QStringLiteral("answer"), faq.answer}});
        }
        list.append(QVariantMap{{QStringLiteral("title"), section.title},
                                {QStringLiteral("paragraphs"), section.paragraphs},
                                {QStringLiteral("questions"), questions}});
    }
    return list;
}

QVariantMap reviewSummary(const ProductDetails& details)
{
    const ProductMetafields& fields = details.metafields;
    if (!fields.rating && !fields.reviews)
        return {};
    const BuyerReviewData data = fields.reviews.value_or(BuyerReviewData());
    QVariantList tags;
    for (const ReviewTag& tag : data.tagSummary)
        tags.append(QVariantMap{{QStringLiteral("tag"), tag.tag}, {QStringLiteral("count"), tag.count}});
    QVariantList reviews;
    for (const BuyerReview& review : data.reviews) {
        reviews.append(QVariantMap{{QStringLiteral("user"), review.user},
                                   {QStringLiteral("date"), review.date},
                                   {QStringLiteral("sku"), review.sku},
                                   {QStringLiteral("content"), review.content},
                                   {QStringLiteral("rating"), review.rating},
                                   {QStringLiteral("country"), review.country},
                                   {QStringLiteral("images"), review.images},
                                   {QStringLiteral("likeCount"), review.likeCount},
                                   {QStringLiteral("appendReview"), review.appendReview},
                                   {QStringLiteral("appendImages"), review.appendImages},
                                   {QStringLiteral("appendDays"), review.appendDays},
                                   {QStringLiteral("replies"), review.replies}});
    }
    return {{QStringLiteral("rating"), fields.rating.value_or(0)},
            {QStringLiteral("count"), fields.ratingCount.value_or(data.total)},
            {QStringLiteral("totalLabel"), data.totalLabel},
            {QStringLiteral("goodRateLabel"), data.goodRateLabel},
            {QStringLiteral("badge"), data.badge},
            {QStringLiteral("footer"), data.footer},
            {QStringLiteral("tags"), tags},
            {QStringLiteral("reviews"), reviews}};
}

} // namespace loom
