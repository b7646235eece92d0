#include "stylist/MiraReading.h"

#include "base/JsonReader.h"

#include "support/Json.h"
#include "support/Printing.h"

#include <QTimeZone>

namespace loom
{

namespace
{

/// The texts of the messages that are read of a list.
std::string bodiesOf(const char* list)
{
    const auto answer = decodeJson(QByteArray(R"({"messages": )") + list + '}', decodeMiraSend);
    QStringList bodies;
    for (const MiraMessage& message : answer ? answer->messages : std::vector<MiraMessage>())
        bodies.append(message.serverID + u'=' + message.body);
    return answer ? bodies.join(u' ').toStdString() : answer.error().toStdString();
}

} // namespace

TEST(MiraReadingTest, AMessageIsReadWhole)
{
    const auto message = decodeJson(R"({"id": 7, "direction": "outbound", "body": "Hi\n", "attachments": [
        {"handle": "a", "title": " A\n1 ", "vendor": "V", "price": 120.5, "image": "https://c.example/a.jpg", "reason": "R"},
        {"handle": "b"}, {"handle": "a", "title": "A again"}, {"title": "C", "price": "From 80"}, 7],
        "createdAt": "2026-03-01T10:00:00.250Z", "more": {}})",
                                    decodeMiraMessage);
    ASSERT_TRUE(message) << message.error().toStdString();
    const MiraMessage expected{.serverID = "7",
                               .direction = MiraDirection::Outbound,
                               .body = "Hi\n",
                               .attachments = {{.handle = "a",
                                                .title = "A 1",
                                                .vendor = "V",
                                                .price = "120.5",
                                                .imageURL = "https://c.example/a.jpg",
                                                .reason = "R"},
                                               {.title = "C", .price = "From 80"}},
                               .createdAt = QDateTime({2026, 3, 1}, {10, 0, 0, 250}, Qt::UTC)};
    EXPECT_EQ(*message, expected);
    // What is kept of it on this machine says the same.
    EXPECT_EQ(*decodeJson(bytes(miraMessageJson(*message)), decodeMiraMessage), expected);
}

TEST(MiraReadingTest, WhatIsBrokenInAReplyCostsOnlyItself)
{
    const std::pair<const char*, const char*> rows[] = {
        {R"([{"id": "a", "body": "1"}, {"body": "no id"}, 7, null, {"id": null, "serverID": 3, "body": "2"}])",
         "a=1 3=2"},
        {R"([{"id": "", "serverID": "s"}, {"id": [], "serverID": "t"}, {"id": 1.5}, {"id": 2.0}])", "s= t= 2="},
        {R"([{"id": "a", "body": "1"}, {"id": "a", "body": "2"}, {"id": "b", "body": 3}])", "a=1 b="},
        {R"([{"id": "a", "body": "1", "attachments": {}, "direction": 4, "createdAt": "soon"}])", "a=1"},
        {"{}", "messages: expected a list"},
        {"null", "messages: expected a list"},
    };
    for (const auto& [list, bodies] : rows)
        EXPECT_EQ(bodiesOf(list), bodies);

    const auto broken = [](const char* document) {
        return decodeJson(document, decodeMiraMessage).error().toStdString();
    };
    EXPECT_EQ(broken(R"({"body": "x"})"), "document: message without id");
    const auto stranger =
        decodeJson(R"({"id": 1, "direction": "agent", "attachments": [{"title": " "}]})", decodeMiraMessage);
    ASSERT_TRUE(stranger);
    EXPECT_EQ(stranger->direction, MiraDirection::Inbound);
    EXPECT_TRUE(stranger->attachments.empty());
    EXPECT_FALSE(stranger->createdAt.isValid());
}

TEST(MiraReadingTest, AConversationIsNotReplacedByAnAnswerThatHasNone)
{
    const auto init = [](const char* document) {
        return decodeJson(document, decodeMiraInit);
    };
    EXPECT_FALSE(init("{}"));
    EXPECT_FALSE(init("[]"));
    EXPECT_FALSE(init(R"({"hasConversation": true, "visitorToken": "t"})"));
    EXPECT_FALSE(init(R"({"messages": {}})"));
    EXPECT_EQ(*init(R"({"visitorToken": "t", "hasConversation": false})"), (MiraInitResponse{.visitorToken = "t"}));
    EXPECT_EQ(*init(R"({"visitorToken": 5, "failureCode": "RATE_LIMITED"})"),
              (MiraInitResponse{.failureCode = "RATE_LIMITED"}));
    const auto whole = init(R"({"hasConversation": true, "failureCode": "", "messages": [{"id": 1}, {"id": 1}]})");
    ASSERT_TRUE(whole);
    EXPECT_EQ(*whole, (MiraInitResponse{.hasConversation = true, .messages = {{.serverID = "1"}}}));
}

TEST(MiraReadingTest, TheGuideAndTheOrdersAreReadLeniently)
{
    const auto guide = [](const char* document) {
        return decodeJson(document, decodeMiraGuide);
    };
    EXPECT_EQ(*guide(R"({"guide": {"name": " Mira\n", "age": 3}, "conversationId": 12})"),
              (MiraGuideResponse{.guideName = "Mira", .conversationId = "12"}));
    EXPECT_EQ(*guide(R"({"guide": "Mira"})"), MiraGuideResponse{});
    EXPECT_FALSE(guide("7"));

    const auto orders = decodeJson(
        R"({"orders": [{"id": 9, "name": "LST9", "status": "shipped"}, {"id": "x"}, {"name": "LST8"}, 4],
            "refunds": [{"id": "r", "orderName": "LST9", "status": 5}, {}]})",
        decodeMiraOrders);
    ASSERT_TRUE(orders);
    EXPECT_EQ(*orders, (MiraOrdersResponse{.orders = {{.id = "9", .name = "LST9", .status = "shipped"}},
                                           .refunds = {{.id = "r", .orderName = "LST9"}}}));
    EXPECT_FALSE(decodeJson("{}", decodeMiraOrders));
}

} // namespace loom
