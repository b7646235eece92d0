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
std::vector<std::pair<Route, const char*>> routes()
{
    return {
        {ShopRoute{ShopRoute::Product{text("silk"), std::nullopt}},
         R"({"case":"product","handle":"silk","type":"shop"})"},
        {ShopRoute{ShopRoute::Product{text("silk"), card()}}, nullptr},
        {ShopRoute{ShopRoute::Collection{text("new-in"), std::nullopt}},
         R"({"case":"collection","handle":"new-in","type":"shop"})"},
        {ShopRoute{ShopRoute::Collection{text("new-in"), text("New")}},
         R"({"case":"collection","handle":"new-in","title":"New","type":"shop"})"},
        {ShopRoute{ShopRoute::Category{text("women")}}, R"({"case":"category","id":"women","type":"shop"})"},
        {ShopRoute{ShopRoute::Search{text("łódź \"x\"")}}, R"({"case":"search","query":"łódź \"x\"","type":"shop"})"},
        {ShopRoute{ShopRoute::Rail{text("k"), text("y"), text("t")}},
         R"({"case":"rail","key":"y","kind":"k","title":"t","type":"shop"})"},
        {ShopRoute{ShopRoute::Compare{{text("a"), text("b")}}},
         R"({"case":"compare","handles":["a","b"],"type":"shop"})"},
        {ShopRoute{ShopRoute::Compare{}}, R"({"case":"compare","handles":[],"type":"shop"})"},
        {ShopRoute{ShopRoute::Brands{}}, R"({"case":"brands","type":"shop"})"},
        {ShopRoute{ShopRoute::Starlook{}}, R"({"case":"starlook","type":"shop"})"},
        {ShopRoute{ShopRoute::Wishlist{}}, R"({"case":"wishlist","type":"shop"})"},
        {ShopRoute{ShopRoute::RecentlyViewed{}}, R"({"case":"recentlyViewed","type":"shop"})"},
        {ShopRoute{ShopRoute::PriceDrops{}}, R"({"case":"priceDrops","type":"shop"})"},
        {VessaRoute{VessaRoute::Note{text("1")}}, R"({"case":"note","id":"1","type":"vessa"})"},
        {VessaRoute{VessaRoute::Topic{text("silk")}}, R"({"case":"topic","tag":"silk","type":"vessa"})"},
        {VessaRoute{VessaRoute::Search{text("silk")}}, R"({"case":"search","query":"silk","type":"vessa"})"},
        {VessaProfileRoute{VessaProfileRoute::User{text("u")}}, R"({"case":"user","code":"u","type":"vessaProfile"})"},
        {VessaProfileRoute{VessaProfileRoute::Follows{text("fans"), std::nullopt}},
         R"({"case":"follows","kind":"fans","type":"vessaProfile"})"},
        {VessaProfileRoute{VessaProfileRoute::Follows{text("fans"), text("u")}},
         R"({"case":"follows","code":"u","kind":"fans","type":"vessaProfile"})"},
        {VessaProfileRoute{VessaProfileRoute::Collection{text("1"), text("Mine")}},
         R"({"case":"collection","id":"1","name":"Mine","type":"vessaProfile"})"},
        {VessaProfileRoute{VessaProfileRoute::Me{}}, R"({"case":"me","type":"vessaProfile"})"},
        {MiraRoute{MiraRoute::Chat{}}, R"({"case":"chat","type":"mira"})"},
        {AccountRoute{AccountRoute::Membership{}}, R"({"case":"membership","type":"account"})"},
        {AccountRoute{AccountRoute::Coupons{}}, R"({"case":"coupons","type":"account"})"},
        {AccountRoute{AccountRoute::Notifications{}}, R"({"case":"notifications","type":"account"})"},
        {AccountRoute{AccountRoute::Profile{}}, R"({"case":"profile","type":"account"})"},
        {AccountRoute{AccountRoute::Alerts{}}, R"({"case":"alerts","type":"account"})"},
        {OrdersRoute{OrdersRoute::List{std::nullopt}}, R"({"case":"list","type":"orders"})"},
        {OrdersRoute{OrdersRoute::List{text("open")}}, R"({"case":"list","tab":"open","type":"orders"})"},
        {OrdersRoute{OrdersRoute::Order{text("1")}}, R"({"case":"order","id":"1","type":"orders"})"},
        {OrdersRoute{OrdersRoute::Package{text("9"), std::nullopt}},
         R"({"case":"package","number":"9","type":"orders"})"},
        {OrdersRoute{OrdersRoute::Package{text("9"), text("DHL")}},
         R"({"carrier":"DHL","case":"package","number":"9","type":"orders"})"},
        {OrdersRoute{OrdersRoute::ReturnDetail{text("R1")}}, R"({"case":"returnDetail","rmaNo":"R1","type":"orders"})"},
        {OrdersRoute{OrdersRoute::Tracking{}}, R"({"case":"tracking","type":"orders"})"},
        {OrdersRoute{OrdersRoute::Returns{}}, R"({"case":"returns","type":"orders"})"},
        {OrdersRoute{OrdersRoute::Reviews{}}, R"({"case":"reviews","type":"orders"})"},
        {LensRoute{LensRoute::Search{text("https://p.example/1")}},
         R"({"case":"search","image":"https://p.example/1","type":"lens"})"},
        {LensRoute{LensRoute::Start{}}, R"({"case":"start","type":"lens"})"},
        {StorePageRoute{StorePageRoute::Page{text("/pages/a"), text("A")}},
         R"({"case":"page","path":"/pages/a","title":"A","type":"storePage"})"},
        {UnknownRoute{}, "{}"},
    };
}

QByteArray saved(const Route& route)
{
    return QJsonDocument(toJson(route)).toJson(QJsonDocument::Compact);
}

} // namespace

TEST(RoutesTest, EveryRouteComesBackAsItWasSaved)
{
    for (const auto& [route, json] : routes()) {
        if (json)
            EXPECT_EQ(saved(route), json);
        const auto restored = decodeJson(saved(route), decodeRoute);
        ASSERT_TRUE(restored) << saved(route).constData();
        EXPECT_TRUE(*restored == route) << saved(route).constData();
    }
}

TEST(RoutesTest, EqualRoutesHaveEqualHashesAndNoTwoRoutesAreEqual)
{
    const auto all = routes();
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = 0; j < all.size(); ++j)
            EXPECT_EQ(all[i].first == all[j].first, i == j) << saved(all[i].first).constData();
        EXPECT_EQ(qHash(all[i].first), qHash(routes()[i].first));
        EXPECT_NE(qHash(all[i].first), qHash(all[(i + 1) % all.size()].first));
    }
    // The same moment, written on another clock.
    ProductListItem elsewhere = card();
    elsewhere.createdAt = elsewhere.createdAt->toOffsetFromUtc(3600);
    EXPECT_EQ(qHash(ShopRoute{ShopRoute::Product{text("silk"), elsewhere}}),
              qHash(ShopRoute{ShopRoute::Product{text("silk"), card()}}));
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
