#pragma once

#include "base/JsonReader.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace loom
{

/// How many buyers said a thing in a word.
struct ReviewTag {
    QString tag;
    int count = 0;

    bool operator==(const ReviewTag&) const = default;
};

struct BuyerReview {
    QString id;
    QString user;
    QString date; ///< as the store writes it
    QString sku;
    QString content;
    bool isDefaultGood = false; ///< given by the store for a buyer who wrote nothing
    QStringList images;         ///< https addresses
    double rating = 0;          ///< 0 to 5, 0 for none
    QStringList tags;
    int likeCount = 0;
    int replyCount = 0;
    QString appendReview; ///< what the buyer added later
    QStringList appendImages;
    int appendDays = 0;
    QString country;
    QString iso2;
    QStringList replies;

    bool operator==(const BuyerReview&) const = default;
};

/// The summary of a product's reviews that the store attaches to it.
struct BuyerReviewData {
    int total = 0;
    QString totalLabel;
    QString goodRateLabel;
    QString badge;
    QString footer;
    int mediaCount = 0;
    int appendCount = 0;
    QList<ReviewTag> tagSummary;
    QList<BuyerReview> reviews;

    bool operator==(const BuyerReviewData&) const = default;
};

/// Reads the record under its field names. Every field may be absent; a tag without text and a review that says
/// nothing (no text, picture, tag or rating) are left out.
[[nodiscard]] BuyerReviewData decodeBuyerReviewData(const JsonReader& json);

} // namespace loom
