#include "catalog/ServiceClass.h"
#include "catalog/ServiceWording.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

struct ClassRow {
    QString why;
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
        {QStringLiteral("nothing speaks"), list("new"), list("tops"), shirt, ServiceClass::Standard},
        {QStringLiteral("nothing at all"), {}, {}, {}, ServiceClass::Standard},

        {QStringLiteral("capitals"), list("Final Sale"), {}, shirt, ServiceClass::FinalSale},
        {QStringLiteral("hyphen"), list("final-sale"), {}, shirt, ServiceClass::FinalSale},
        {QStringLiteral("joined, within a tag"), list("summer finalsale 24"), {}, shirt, ServiceClass::FinalSale},
        {QStringLiteral("two separators"), list("final  sale"), {}, shirt, ServiceClass::Standard},
        {QStringLiteral("a sale only"), list("sale"), list("final-sale"), shirt, ServiceClass::Standard},
        {QStringLiteral("final sale before the others, whatever the order of tags"),
         {QStringLiteral("Luxury"), QStringLiteral("custom"), QStringLiteral("shoes"), QStringLiteral("FINAL SALE")},
         list("luxury"),
         QStringLiteral("Boots"),
         ServiceClass::FinalSale},

        {QStringLiteral("made to order"), list("Made-to-Order"), {}, shirt, ServiceClass::CustomMade},
        {QStringLiteral("British spelling"), list("personalised"), {}, shirt, ServiceClass::CustomMade},
        {QStringLiteral("American spelling"), list("Personalized gift"), {}, shirt, ServiceClass::CustomMade},
        {QStringLiteral("only tags speak"), {}, list("custom"), QStringLiteral("Custom tee"), ServiceClass::Standard},
        {QStringLiteral("custom before luxury"),
         {QStringLiteral("luxury"), QStringLiteral("custom")},
         {},
         shirt,
         ServiceClass::CustomMade},

        {QStringLiteral("the tag is luxury"), list("LUXURY"), {}, shirt, ServiceClass::Luxury},
        {QStringLiteral("the tag only contains it"), list("luxury-feel"), {}, shirt, ServiceClass::Standard},
        {QStringLiteral("a collection contains it"), {}, list("all-luxury-bags"), shirt, ServiceClass::Luxury},
        {QStringLiteral("luxury before shoes"), list("luxury"), list("shoes"), shirt, ServiceClass::Luxury},

        {QStringLiteral("title"), {}, {}, QStringLiteral("SUEDE LOAFERS"), ServiceClass::Shoes},
        {QStringLiteral("title, within a word"), {}, {}, QStringLiteral("Overshoes"), ServiceClass::Shoes},
        {QStringLiteral("collection"), {}, list("shoes"), shirt, ServiceClass::Shoes},
        {QStringLiteral("another collection"), {}, list("shoes-care"), shirt, ServiceClass::Standard},
        {QStringLiteral("tag, singular"), list("Shoe"), {}, shirt, ServiceClass::Shoes},
        {QStringLiteral("tag, plural"), list("shoes"), {}, shirt, ServiceClass::Shoes},
        {QStringLiteral("the tag only contains it"), list("shoe care"), {}, shirt, ServiceClass::Standard},
    };
    for (const ClassRow& row : rows)
        EXPECT_EQ(serviceClass(row.tags, row.collections, row.title), row.expected) << row.why.toStdString();
}

TEST(ServiceClassTest, OnlyStandardPiecesGoBackWithoutMoreToSay)
{
    const ServiceWording standard = serviceWording(ServiceClass::Standard);
    EXPECT_EQ(standard.note, QStringLiteral("Within 30 days, unworn, tags on"));
    EXPECT_TRUE(standard.service.isEmpty());

    for (const auto other :
         {ServiceClass::FinalSale, ServiceClass::CustomMade, ServiceClass::Luxury, ServiceClass::Shoes}) {
        const ServiceWording wording = serviceWording(other);
        EXPECT_NE(wording.note, standard.note);
        EXPECT_FALSE(wording.returns.isEmpty() || wording.note.isEmpty() || wording.service.isEmpty());
    }
    EXPECT_EQ(serviceWording(ServiceClass::FinalSale).note, QStringLiteral("This piece cannot be returned"));
}

} // namespace loom
