#include "navigation/Routes.h"

#include "support/Printing.h"

namespace loom
{

namespace
{

ProductListItem card()
{
    ProductListItem item;
    item.id = QStringLiteral("7");
    item.handle = QStringLiteral("silk");
    item.title = QString::fromUtf8("łódź 👗");
    item.price = {.amount = 248.5, .currencyCode = QStringLiteral("USD")};
    item.createdAt = QDateTime(QDate(2025, 3, 1), QTime(10, 0), Qt::UTC);
    return item;
}

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// Every case, with and without what is optional, as it is saved.
const char* const savedRoutes[] = {
    R"({"case":"product","handle":"silk","type":"shop"})",
    R"({"case":"collection","handle":"new-in","type":"shop"})",
    R"({"case":"collection","handle":"new-in","title":"New","type":"shop"})",
    R"({"case":"category","id":"women","type":"shop"})",
    R"({"case":"search","query":"łódź \"x\"","type":"shop"})",
    R"({"case":"rail","key":"y","kind":"k","title":"t","type":"shop"})",
    R"({"case":"compare","handles":["a","b"],"type":"shop"})",
    R"({"case":"compare","handles":[],"type":"shop"})",
    R"({"case":"brands","type":"shop"})",
    R"({"case":"starlook","type":"shop"})",
    R"({"case":"wishlist","type":"shop"})",
    R"({"case":"recentlyViewed","type":"shop"})",
    R"({"case":"priceDrops","type":"shop"})",
    R"({"case":"note","id":"1","type":"vessa"})",
    R"({"case":"topic","tag":"silk","type":"vessa"})",
    R"({"case":"search","query":"silk","type":"vessa"})",
    R"({"case":"user","code":"u","type":"vessaProfile"})",
    R"({"case":"follows","kind":"fans","type":"vessaProfile"})",
    R"({"case":"follows","code":"u","kind":"fans","type":"vessaProfile"})",
    R"({"case":"collection","id":"1","name":"Mine","type":"vessaProfile"})",
    R"({"case":"me","type":"vessaProfile"})",
    R"({"case":"chat","type":"mira"})",
    R"({"case":"membership","type":"account"})",
    R"({"case":"coupons","type":"account"})",
    R"({"case":"notifications","type":"account"})",
    R"({"case":"profile","type":"account"})",
    R"({"case":"alerts","type":"account"})",
    R"({"case":"list","type":"orders"})",
    R"({"case":"list","tab":"open","type":"orders"})",
    R"({"case":"order","id":"1","type":"orders"})",
    R"({"case":"package","number":"9","type":"orders"})",
    R"({"carrier":"DHL","case":"package","number":"9","type":"orders"})",
    R"({"case":"returnDetail","rmaNo":"R1","type":"orders"})",
    R"({"case":"tracking","type":"orders"})",
    R"({"case":"returns","type":"orders"})",
    R"({"case":"reviews","type":"orders"})",
    R"({"case":"search","image":"https://p.example/1","type":"lens"})",
    R"({"case":"start","type":"lens"})",
    R"({"case":"page","path":"/pages/a","title":"A","type":"storePage"})",
};

QByteArray saved(const Route& route)
{
    return QJsonDocument(toJson(route)).toJson(QJsonDocument::Compact);
}

} // namespace

TEST(RoutesTest, EveryRouteComesBackAsItWasSavedAndIsNoOther)
{
    std::vector<Route> routes;
    for (const char* const json : savedRoutes) {
        const auto route = decodeJson(json, decodeRoute);
        ASSERT_TRUE(route) << json;
        EXPECT_FALSE(std::holds_alternative<UnknownRoute>(*route)) << json;
        EXPECT_EQ(saved(*route), json);
        for (const Route& other : routes)
            EXPECT_FALSE(other == *route) << json;
        EXPECT_EQ(qHash(*route), qHash(*decodeJson(json, decodeRoute))) << json;
        routes.push_back(*route);
    }
    EXPECT_EQ(saved(UnknownRoute{}), "{}");

    const Route withCard = ShopRoute{ShopRoute::Product{text("silk"), card()}};
    EXPECT_TRUE(*decodeJson(saved(withCard), decodeRoute) == withCard);
    // The same moment, written on another clock.
    ProductListItem elsewhere = card();
    elsewhere.createdAt = elsewhere.createdAt->toOffsetFromUtc(3600);
    EXPECT_EQ(qHash(Route(ShopRoute{ShopRoute::Product{text("silk"), elsewhere}})), qHash(withCard));
}

TEST(RoutesTest, WhatCannotBeReadIsUnknownAndHarmsNothingElse)
{
    for (const char* const json :
         {"{}", "[]", "7", "null", R"({"type":"shop"})", R"({"case":"product","handle":"a"})",
          R"({"type":"shop","case":"teleport","handle":"a"})", R"({"type":"vessa","case":"product","handle":"a"})",
          R"({"type":"SHOP","case":"brands"})", R"({"type":7,"case":"brands"})", R"({"type":"shop","case":"product"})",
          R"({"type":"shop","case":"product","handle":7})", R"({"type":"shop","case":"rail","kind":"k","key":"y"})",
          R"({"type":"orders","case":"order","id":null})", R"({"type":"shop","case":"compare","handles":"a"})"}) {
        const auto route = decodeJson(json, decodeRoute);
        ASSERT_TRUE(route) << json;
        EXPECT_TRUE(std::holds_alternative<UnknownRoute>(*route)) << json;
    }

    // A card is only a help: without it the page loads all the same.
    for (const char* const item :
         {"null", "7", R"({"id":"1"})", R"({"id":"1","handle":"a","title":"A","price":"free"})"}) {
        const QByteArray json = QByteArray(R"({"type":"shop","case":"product","handle":"silk","item":)") + item + '}';
        const auto route = decodeJson(json, decodeRoute);
        ASSERT_TRUE(route) << item << ' ' << route.error().toStdString();
        EXPECT_TRUE(*route == Route(ShopRoute{ShopRoute::Product{text("silk"), std::nullopt}})) << item;
    }
    EXPECT_TRUE(*decodeJson(R"({"type":"shop","case":"collection","handle":"a","title":7,"new":[1]})", decodeRoute) ==
                Route(ShopRoute{ShopRoute::Collection{text("a"), std::nullopt}}));
}

} // namespace loom
