#include "account/OrdersReading.h"

#include "base/JsonReader.h"

#include <gtest/gtest.h>

using namespace loom;

namespace
{

const QByteArray goodOrder = R"({"id": "o1", "name": "LST10484", "placedAt": "2026-11-08T09:00:00Z",
    "status": "shipped", "total": {"amount": "1065.00", "currencyCode": "USD"},
    "lines": [{"title": "Coat", "handle": "coat", "quantity": 2, "price": {"amount": "595.00", "currencyCode": "USD"}}],
    "packages": [{"number": "1Z1", "carrier": "Northline", "status": "out", "url": "https://carrier.example/1Z1",
                  "events": [{"at": "2026-11-09T09:00:00Z", "text": "Sorted"},
                             {"at": "2026-11-10T09:00:00Z", "text": "Out", "place": "Brooklyn"}]}]})";

Result<OrdersAnswer, QString> read(const QByteArray& orders, const QByteArray& refunds = "[]")
{
    return decodeJson("{\"orders\": " + orders + ", \"refunds\": " + refunds + "}", decodeOrders);
}

/// The good order with one thing about it changed.
Order changed(const QByteArray& from, const QByteArray& to)
{
    QByteArray json = goodOrder;
    EXPECT_TRUE(json.contains(from)) << from.constData();
    const auto answer = read('[' + json.replace(from, to) + ']');
    return answer && answer->orders.size() == 1 ? answer->orders.front() : Order();
}

} // namespace

TEST(OrdersReadingTest, AnOrderWithoutWhatItNeedsIsLeftOutByItself)
{
    struct Row {
        const char* from;
        const char* to;
    };
    for (const Row& row : {Row{"\"id\": \"o1\"", "\"id\": \"\""},
                           {"\"LST10484\"", "\"\\u202e \""},
                           {"\"2026-11-08T09:00:00Z\"", "\"yesterday\""},
                           {"\"1065.00\"", "\"inf\""},
                           {"\"1065.00\"", "\"-1\""},
                           {"\"1065.00\"", "\"1e300\""},
                           {"\"total\"", "\"sum\""}}) {
        QByteArray broken = goodOrder;
        broken.replace(row.from, row.to);
        const auto answer = read('[' + broken + ", " + goodOrder + ", 7]");
        ASSERT_TRUE(answer) << row.to;
        EXPECT_EQ(answer->orders.size(), 1U) << row.to;
    }
    EXPECT_FALSE(decodeJson("{\"refunds\": []}", decodeOrders)); // no answer, rather than nobody's orders
    EXPECT_FALSE(read("7"));
}

TEST(OrdersReadingTest, PartsThatCannotBeReadGoAndTheOrderStays)
{
    EXPECT_TRUE(changed("\"quantity\": 2", "\"quantity\": -2").lines.empty());
    EXPECT_TRUE(changed("\"quantity\": 2", "\"quantity\": 2.5").lines.empty());
    EXPECT_EQ(changed("\"quantity\": 2", "\"count\": 2").lines.at(0).quantity, 1);
    EXPECT_EQ(changed("\"595.00\"", "\"nan\"").lines.at(0).price, std::nullopt);
    EXPECT_EQ(changed("\"shipped\"", "\"teleported\"").status, OrderStatus::Unknown);
    EXPECT_EQ(changed("\"out\"", "7").packages.at(0).status, PackageStatus::Unknown);
    EXPECT_TRUE(changed("\"1Z1\"", "null").packages.empty());
    EXPECT_EQ(changed("\"2026-11-09T09:00:00Z\"", "\"?\"").packages.at(0).events.size(), 1U);
    EXPECT_EQ(changed("\"Coat\"", "\"Co\\u202eat\\n\\u0007two\"").lines.at(0).title, QStringLiteral("Coat two"));
    for (const char* url :
         {"http://carrier.example/", "https://me@carrier.example/", "javascript:alert(1)", "https://"})
        EXPECT_EQ(changed("https://carrier.example/1Z1", url).packages.at(0).url, QString()) << url;
}

TEST(OrdersReadingTest, ListsAreBoundedEachKeyOnceAndTheNewestFirst)
{
    QByteArray many = "[" + goodOrder;
    for (int i = 0; i < 3000; ++i) {
        QByteArray order = goodOrder;
        order.replace("\"o1\"", "\"n" + QByteArray::number(i % 400) + '"').replace("11-08", "11-20");
        many += ", " + order;
    }
    const auto answer = read(many + "]");
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->orders.size(), 401U);
    EXPECT_EQ(answer->orders.front().id, QStringLiteral("n0"));
    EXPECT_EQ(answer->orders.back().id, QStringLiteral("o1"));
    EXPECT_EQ(answer->orders.back().packages.at(0).events.at(0).text, QStringLiteral("Out"));
}
