#include "catalog/BuyerReviewData.h"

#include "catalog/MetafieldReading.h"

#include <QUrl>

#include <algorithm>

namespace loom
{

namespace
{

constexpr std::size_t maximumReviews = 500;
constexpr std::size_t maximumTags = 50;
constexpr std::size_t maximumPictures = 30;
constexpr std::size_t maximumReplies = 50;
constexpr double stars = 5;

/// Pictures come over https alone; an address without a scheme takes it.
QStringList readPictures(const JsonReader& json, std::string_view key)
{
    QStringList pictures;
    for (const JsonReader& element : readElements(json, key, maximumPictures)) {
        QString address = element.asText().value_or(QString()).trimmed();
        if (address.startsWith(QLatin1String("//")))
            address.prepend(QLatin1String("https:"));
        const QUrl url(address, QUrl::StrictMode);
        if (url.scheme() == QLatin1String("https") && !url.host().isEmpty())
            pictures.append(address);
    }
    return pictures;
}

ReviewTag decodeTag(const JsonReader& json)
{
    ReviewTag tag{.tag = readLine(json, "tag"), .count = readCount(json, "count")};
    if (tag.tag.isEmpty())
        json.fail(QStringLiteral("expected a tag"));
    return tag;
}

BuyerReview decodeReview(const JsonReader& json)
{
    BuyerReview review;
    review.id = readLine(json, "id");
    review.user = readLine(json, "user");
    review.date = readLine(json, "date");
    review.sku = readLine(json, "sku");
    review.content = readText(json, "content");
    review.isDefaultGood = json.optionalBoolean("isDefaultGood").value_or(false);
    review.images = readPictures(json, "images");
    review.rating = std::clamp(json.optionalDecimal("rating").value_or(0), 0.0, stars);
    review.tags = toLines(readElements(json, "tags", maximumTags));
    review.likeCount = readCount(json, "likeCount");
    review.replyCount = readCount(json, "replyCount");
    review.appendReview = readText(json, "appendReview");
    review.appendImages = readPictures(json, "appendImages");
    review.appendDays = readCount(json, "appendDays");
    review.country = readLine(json, "country");
    review.iso2 = readLine(json, "iso2");
    review.replies = readTexts(json, "replies", maximumReplies);

    const bool saysSomething = !review.content.isEmpty() || !review.appendReview.isEmpty() ||
                               !review.images.isEmpty() || !review.tags.isEmpty() || review.rating > 0 ||
                               review.isDefaultGood;
    if (!saysSomething)
        json.fail(QStringLiteral("expected a review"));
    return review;
}

} // namespace

BuyerReviewData decodeBuyerReviewData(const JsonReader& json)
{
    BuyerReviewData data;
    data.total = readCount(json, "total");
    data.totalLabel = readLine(json, "totalLabel");
    data.goodRateLabel = readLine(json, "goodRateLabel");
    data.badge = readLine(json, "badge");
    data.footer = readLine(json, "footer");
    data.mediaCount = readCount(json, "mediaCount");
    data.appendCount = readCount(json, "appendCount");
    const auto tags = JsonReader::decodeEach(readElements(json, "tagSummary", maximumTags), decodeTag);
    data.tagSummary = {tags.cbegin(), tags.cend()};
    const auto reviews = JsonReader::decodeEach(readElements(json, "reviews", maximumReviews), decodeReview);
    data.reviews = {reviews.cbegin(), reviews.cend()};
    return data;
}

} // namespace loom
