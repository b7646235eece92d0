#include "stylist/WardrobeSlots.h"

#include "support/Printing.h"

namespace loom
{

TEST(WardrobeSlotsTest, APieceIsWornAsItsNounSays)
{
    struct Row {
        const char* type;
        const char* title;
        QStringList tags;
        WardrobeSlot slot;
    };
    using enum WardrobeSlot;
    const Row rows[] = {
        {"Coats", "Anything", {}, Outerwear},
        {"Apparel > Women's Dresses", "Coat dress", {}, Dress},
        {"", "Silk Shirt Dress with Belt", {}, Dress},
        {"", "Dress shirt", {}, Top},
        {"", "Boot-cut jeans in dark denim", {}, Bottom},
        {"", "Leather Ankle BOOTS", {}, Shoes},
        {"", "Glassés d'été", {}, Extra},
        {"", "Robe d’été", {"new", "Dresses"}, Dress},
        {"", "Belt bag", {}, Bag},
        {"", "Bag charm", {}, Extra},
        {"", "Top-handle tote", {}, Bag},
        {"", "T-shirt for tennis shoes", {}, Top},
        {"", "With love: cashmere knit", {}, Top},
        {"", "Oyster scarf", {"shoes"}, Extra},
        {"New", "Aurelia", {"Knitwear", "shoes"}, Top},
        {"", "Trainers", {}, Shoes},
        {"", "Clutches", {}, Bag},
        {"", "", {}, Extra},
        {"", "Topaz", {}, Extra},
    };
    for (const Row& row : rows)
        EXPECT_EQ(guessedSlot(QString::fromUtf8(row.type), QString::fromUtf8(row.title), row.tags), row.slot)
            << row.type << " / " << row.title;
    EXPECT_EQ(guessedSlot({}, QString(100'000, u'x'), {}), Extra);
}

} // namespace loom
