#include "catalog/ServiceClass.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

struct ClassRow {
    const char* why;
    QStringList tags;
    QStringList collections;
    QString title;
    ServiceClass expected;
};

QStringList list(const char* item)
{
    return {QString::fromUtf8(item)};
}

} // namespace

TEST(ServiceClassTest, TheFirstClassThatAnythingSpeaksForIsTaken)
{
    const QString shirt = QStringLiteral("Poplin shirt");
    const ClassRow rows[] = {
        {"nothing speaks", list("new"), list("tops"), shirt, ServiceClass::Standard},

        {"hyphen", list("final-sale"), {}, shirt, ServiceClass::FinalSale},
        {"joined, within a tag", list("summer finalsale 24"), {}, shirt, ServiceClass::FinalSale},
        {"a sale only", list("sale"), list("final-sale"), shirt, ServiceClass::Standard},
        {"final sale before the others, whatever the order of tags",
         {"Luxury", QStringLiteral("custom"), QStringLiteral("shoes"), QStringLiteral("FINAL SALE")},
         list("luxury"),
         QStringLiteral("Boots"),
         ServiceClass::FinalSale},

        {"made to order", list("Made-to-Order"), {}, shirt, ServiceClass::CustomMade},
        {"British spelling", list("personalised"), {}, shirt, ServiceClass::CustomMade},
        {"only tags speak", {}, list("custom"), QStringLiteral("Custom tee"), ServiceClass::Standard},
        {"custom before luxury", {"luxury", QStringLiteral("custom")}, {}, shirt, ServiceClass::CustomMade},

        {"the tag is luxury", list("LUXURY"), {}, shirt, ServiceClass::Luxury},
        {"the tag only contains it", list("luxury-feel"), {}, shirt, ServiceClass::Standard},
        {"a collection contains it", {}, list("all-luxury-bags"), shirt, ServiceClass::Luxury},

        {"title", {}, {}, QStringLiteral("SUEDE LOAFERS"), ServiceClass::Shoes},
        {"collection", {}, list("shoes"), shirt, ServiceClass::Shoes},
        {"another collection", {}, list("shoes-care"), shirt, ServiceClass::Standard},
        {"tag, singular", list("Shoe"), {}, shirt, ServiceClass::Shoes},
        {"the tag only contains it", list("shoe care"), {}, shirt, ServiceClass::Standard},
    };
    for (const ClassRow& row : rows)
        EXPECT_EQ(serviceClass(row.tags, row.collections, row.title), row.expected) << row.why;
}

} // namespace loom
