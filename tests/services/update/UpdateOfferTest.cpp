#include "services/update/UpdateOffer.h"

#include "services/update/DottedVersion.h"

#include <gtest/gtest.h>

#include <functional>

using namespace loom;

namespace
{

TEST(DottedVersionTest, ComponentsAreComparedAsIntegersHoweverLong)
{
    const QString nines(300, QLatin1Char('9'));
    struct Row {
        QString one;
        QString other;
        std::strong_ordering order;
    };
    for (const Row& row : {
             Row{QStringLiteral("1.2"), QStringLiteral("1.2"), std::strong_ordering::equal},
             Row{QStringLiteral("1.2"), QStringLiteral("1.10"), std::strong_ordering::less},
             Row{QStringLiteral("1.2"), QStringLiteral("1.2.0.0"), std::strong_ordering::equal},
             Row{QStringLiteral("1.2"), QStringLiteral("1.2.0.1"), std::strong_ordering::less},
             Row{QStringLiteral("1.02"), QStringLiteral("1.2"), std::strong_ordering::equal},
             Row{QStringLiteral("1.2.9"), QStringLiteral("1.3"), std::strong_ordering::less},
             Row{QStringLiteral("0.9.9"), QStringLiteral("1"), std::strong_ordering::less},
             Row{QStringLiteral("0.0"), QStringLiteral("000"), std::strong_ordering::equal},
             Row{QStringLiteral("1.4294967296"), QStringLiteral("1.1"), std::strong_ordering::greater},
             Row{QStringLiteral("18446744073709551617"), QStringLiteral("2"), std::strong_ordering::greater},
             Row{QStringLiteral("1.") + nines, QStringLiteral("1.1") + nines, std::strong_ordering::less},
         }) {
        const auto one = DottedVersion::parse(row.one);
        const auto other = DottedVersion::parse(row.other);
        ASSERT_TRUE(one && other) << row.one.toStdString();
        EXPECT_TRUE((*one <=> *other) == row.order) << row.one.toStdString() << ' ' << row.other.toStdString();
        EXPECT_TRUE((*other <=> *one) == (0 <=> row.order)) << row.one.toStdString() << ' ' << row.other.toStdString();
        EXPECT_EQ(*one == *other, row.order == 0);
    }
}

TEST(DottedVersionTest, WhatIsNotMadeOfFiguresIsNoVersion)
{
    for (const char* const text : {"", ".", "1.", ".1", "1..2", "1.x", "v1.2", "-1.2", "+1", "1.2 ", "1,2", "1.2\n",
                                   "0x10", "1e3", "1.2-beta", "١.٢", "１.２", "1.2\xe2\x80\xae"})
        EXPECT_FALSE(DottedVersion::parse(QString::fromUtf8(text))) << text;
}

// By the algorithm's definition, computed apart from this code.
TEST(UpdateOfferTest, TheBucketIsTheHashOfSeedAndVersion)
{
    const QString seed = QStringLiteral("3f2504e0-4f89-41d3-9a0c-0305e82c3301");
    EXPECT_EQ(rolloutBucket(seed, QStringLiteral("1.4.0")), 88);
    EXPECT_EQ(rolloutBucket(seed, QStringLiteral("1.4.1")), 99);
    EXPECT_EQ(rolloutBucket(QString(), QStringLiteral("1")), 32);
    EXPECT_EQ(rolloutBucket(QStringLiteral("łódź 🧵"), QStringLiteral("2.0")), 38);
    EXPECT_EQ(rolloutBucket(QStringLiteral("seed-65"), QStringLiteral("1.3")), 0);
}

/// Version 1.2, build 7, is offered 1.3, with one thing different in each row. Its bucket is 37.
struct OfferRow {
    const char* what;
    UpdateOffer offer;
    std::function<void(UpdateRelease& release, Installation& installation)> change;
};

void expectOffers(const std::vector<OfferRow>& rows)
{
    for (const OfferRow& row : rows) {
        UpdateRelease release{.latest = QStringLiteral("1.3"),
                              .build = 9,
                              .url = QUrl(QStringLiteral("https://loom.example/9.squashfs"))};
        Installation installation{
            .version = QStringLiteral("1.2"), .build = 7, .rolloutSeed = QStringLiteral("seed-154")};
        row.change(release, installation);
        EXPECT_EQ(updateOffer(release, installation), row.offer) << row.what;
    }
}

constexpr auto none = UpdateOffer::None;
constexpr auto offered = UpdateOffer::Offered;
constexpr auto mandatory = UpdateOffer::Mandatory;

TEST(UpdateOfferTest, OnlyWhatIsNewerIsOffered)
{
    using Release = UpdateRelease;
    expectOffers({
        {"as it is", offered,
         [](Release&, Installation&) {
         }},
        {"lower", none,
         [](Release& r, Installation&) {
             r.latest = QStringLiteral("1.1.9");
         }},
        {"lower, though mandatory and by hand", none,
         [](Release& r, Installation& i) {
             r.latest = QStringLiteral("1.1");
             r.min = QStringLiteral("1.9");
             i.manuallyCheckedVersion = r.latest;
         }},
        {"the same, with a greater build", offered,
         [](Release& r, Installation&) {
             r.latest = QStringLiteral("1.2");
         }},
        {"the same, written otherwise, with a greater build", offered,
         [](Release& r, Installation&) {
             r.latest = QStringLiteral("1.2.0");
         }},
        {"the same, with the same build", none,
         [](Release& r, Installation&) {
             r.latest = QStringLiteral("1.2");
             r.build = 7;
         }},
        {"the same without a build, by hand", none,
         [](Release& r, Installation& i) {
             r.latest = QStringLiteral("1.2");
             r.build.reset();
             i.manuallyCheckedVersion = r.latest;
         }},
        {"higher, with a lower build", offered,
         [](Release& r, Installation&) {
             r.build = 1;
         }},
        {"no version", none,
         [](Release& r, Installation&) {
             r.latest = QStringLiteral("1.x");
         }},
        {"nobody knows what runs", none,
         [](Release&, Installation& i) {
             i.version.clear();
         }},
    });
}

TEST(UpdateOfferTest, TheRolloutDecidesForWhomItDoesNotHurryOrAskByHand)
{
    using Release = UpdateRelease;
    std::vector<OfferRow> rows;
    for (const auto& [rollout, offer] : {std::pair(-5, none), {0, none}, {37, none}, {38, offered}, {100, offered}})
        rows.push_back({"a rollout", offer, [percent = rollout](Release& r, Installation&) {
                            r.rollout = percent;
                        }});
    for (const auto& [rollout, offer] : {std::pair(0, none), {99, none}, {100, offered}, {1000, offered}}) {
        rows.push_back({"the last bucket", offer, [percent = rollout](Release& r, Installation& i) {
                            r.rollout = percent;
                            i.rolloutSeed = QStringLiteral("seed-33");
                        }});
    }
    rows.push_back({"the first bucket", none, [](Release& r, Installation& i) {
                        r.rollout = 0;
                        i.rolloutSeed = QStringLiteral("seed-65");
                    }});
    rows.push_back({"by hand", offered, [](Release& r, Installation& i) {
                        r.rollout = 0;
                        i.manuallyCheckedVersion = QStringLiteral("1.3");
                    }});
    rows.push_back({"another by hand", none, [](Release& r, Installation& i) {
                        r.rollout = 0;
                        i.manuallyCheckedVersion = QStringLiteral("1.3.1");
                    }});
    rows.push_back({"mandatory", mandatory, [](Release& r, Installation&) {
                        r.rollout = 0;
                        r.min = QStringLiteral("1.2.1");
                    }});
    rows.push_back({"just supported", none, [](Release& r, Installation&) {
                        r.rollout = 0;
                        r.min = QStringLiteral("1.2");
                    }});
    rows.push_back({"a lowest version that is none", none, [](Release& r, Installation&) {
                        r.rollout = 0;
                        r.min = QStringLiteral("latest");
                    }});
    expectOffers(rows);
}

TEST(UpdateOfferTest, WhatWasSkippedOrRevertedComesBackByHandAlone)
{
    using Release = UpdateRelease;
    expectOffers({
        {"skipped", none,
         [](Release&, Installation& i) {
             i.skippedVersion = QStringLiteral("1.3");
         }},
        {"skipped, written otherwise", none,
         [](Release&, Installation& i) {
             i.skippedVersion = QStringLiteral("1.3.0");
         }},
        {"another skipped", offered,
         [](Release&, Installation& i) {
             i.skippedVersion = QStringLiteral("1.2.9");
         }},
        {"skipped, by hand", offered,
         [](Release&, Installation& i) {
             i.skippedVersion = QStringLiteral("1.3");
             i.manuallyCheckedVersion = QStringLiteral("1.3");
         }},
        {"skipped, mandatory", mandatory,
         [](Release& r, Installation& i) {
             i.skippedVersion = QStringLiteral("1.3");
             r.min = QStringLiteral("1.3");
         }},
        {"reverted, mandatory", none,
         [](Release& r, Installation& i) {
             i.revertedRelease = QStringLiteral("1.3-9");
             r.min = QStringLiteral("1.3");
         }},
        {"reverted, by hand", offered,
         [](Release&, Installation& i) {
             i.revertedRelease = QStringLiteral("1.3-9");
             i.manuallyCheckedVersion = QStringLiteral("1.3");
         }},
        {"another build reverted", offered,
         [](Release&, Installation& i) {
             i.revertedRelease = QStringLiteral("1.3-8");
         }},
    });
}

} // namespace
