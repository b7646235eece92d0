#include "support/SupportThread.h"
#include "support/SupportReading.h"

#include "base/JsonReader.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace loom
{

namespace
{

const QDateTime morning(QDate(2025, 3, 9), QTime(8, 0), Qt::UTC);

SupportMessage said(const char* id, const char* body, SupportDirection direction = SupportDirection::Inbound)
{
    return {.id = QLatin1String(id), .direction = direction, .body = QLatin1String(body), .createdAt = morning};
}

SupportMessage wrote(const char* id, const char* body, const QString& clientID = {})
{
    SupportMessage message = said(id, body, SupportDirection::Outbound);
    message.clientID = clientID;
    return message;
}

QStringList keys(const SupportThread& thread)
{
    QStringList found;
    for (const SupportEntry& entry : thread.entries())
        found.append(entry.key);
    return found;
}

SupportThread threadWith(const char* clientID, const char* body)
{
    SupportThread thread;
    thread.begin({.clientID = QLatin1String(clientID),
                  .direction = SupportDirection::Outbound,
                  .body = QLatin1String(body),
                  .createdAt = morning},
                 std::nullopt);
    return thread;
}

TEST(SupportThreadTest, TheServicesWordTakesThePlaceOfAMessageUnderWay)
{
    struct Case {
        const char* what;
        SupportMessage message;
        bool isSame;
    };
    SupportMessage old = wrote("s1", "Hello");
    old.createdAt = morning.addDays(-7);
    SupportMessage withFile = wrote("s1", "Hello");
    withFile.attachments.push_back({.url = QStringLiteral("https://a.example/1")});
    const std::array cases{
        Case{.what = "its identifier", .message = wrote("s1", "Hello!", QStringLiteral("c1")), .isSame = true},
        Case{.what = "another identifier", .message = wrote("s1", "Hello", QStringLiteral("c2")), .isSame = false},
        Case{.what = "the same words", .message = wrote("s1", "Hello"), .isSame = true},
        Case{.what = "other words", .message = wrote("s1", "Hello?"), .isSame = false},
        Case{.what = "the same words of last week", .message = old, .isSame = false},
        Case{.what = "the same words with a file", .message = withFile, .isSame = false},
        Case{.what = "the words come back", .message = said("s1", "Hello"), .isSame = false},
    };
    for (const Case& given : cases) {
        SupportThread thread = threadWith("c1", "Hello");
        thread.merge({given.message}, {});
        EXPECT_EQ(thread.nextToSend() == nullptr, given.isSame) << given.what;
        EXPECT_EQ(thread.entries().size(), given.isSame ? 1U : 2U) << given.what;
        EXPECT_EQ(keys(thread).contains(QLatin1String("c1")), true) << given.what;
    }
}

TEST(SupportThreadTest, NothingThatWasWrittenIsLostWhateverTheServiceSays)
{
    SupportThread thread = threadWith("c1", "First");
    thread.merge({wrote("s1", "First", QStringLiteral("c1")), said("s2", "Yes?")}, 1);
    thread.begin(wrote("", "Second", QStringLiteral("c2")), std::nullopt);
    thread.fail(QStringLiteral("c2"), SupportFailure(APIError{APIError::Timeout{}}));
    thread.merge({said("s3", "Still there?")}, 2);
    EXPECT_EQ(keys(thread), (QStringList{QStringLiteral("c1"), QStringLiteral("s:s2"), QStringLiteral("s:s3"),
                                         QStringLiteral("c2")}));

    thread.replace({said("s9", "Welcome")}, 1);
    EXPECT_EQ(keys(thread), (QStringList{QStringLiteral("s:s9"), QStringLiteral("c2")}));
    thread.forgetSent();
    EXPECT_EQ(keys(thread), QStringList{QStringLiteral("c2")});
    thread.discard(QStringLiteral("c1"));
    thread.retry(QStringLiteral("c2"));
    thread.discard(QStringLiteral("c2")); // it is on its way again
    ASSERT_NE(thread.nextToSend(), nullptr);
    EXPECT_FALSE(thread.nextToSend()->failure);
}

TEST(SupportThreadTest, UnseenIsWhatCameAfterTheLastLookAndTheServiceDoesNotHoldForRead)
{
    SupportThread thread;
    const auto unseen = [&thread] {
        return thread.unseen().size();
    };
    thread.replace({said("s1", "a"), wrote("s2", "b"), said("s3", "c"), said("s4", "d")}, 1);
    EXPECT_EQ(unseen(), 1U) << "the others were read elsewhere";
    thread.markSeen();
    EXPECT_EQ(unseen(), 0U);
    thread.merge({wrote("s5", "e"), said("s6", "f"), said("s7", "g")}, {});
    EXPECT_EQ(unseen(), 2U);
    thread.merge({}, 0);
    EXPECT_EQ(unseen(), 0U);
    thread.merge({said("s6", "f, corrected")}, 2);
    EXPECT_EQ(thread.unseen().front().body, QLatin1String("f, corrected"));
}

TEST(SupportThreadTest, WhatIsKeptComesBackAndWhatWasUnderWayIsUnconfirmed)
{
    SupportThread thread = threadWith("c1", "First");
    thread.merge({wrote("s1", "First", QStringLiteral("c1")), said("s2", "Yes?")}, 1);
    thread.markSeen();
    thread.begin(wrote("", "Second", QStringLiteral("c2")),
                 SupportFile{.path = QStringLiteral("/a/b.png"), .name = QStringLiteral("b.png"), .bytes = "not kept"});
    const QByteArray bytes = QJsonDocument(thread.toJson()).toJson();
    EXPECT_FALSE(bytes.contains("not kept"));
    const auto read = decodeJson(bytes, SupportThread::fromJson);
    ASSERT_TRUE(read.hasValue());
    EXPECT_EQ(keys(*read), (QStringList{QStringLiteral("s:s1"), QStringLiteral("s:s2"), QStringLiteral("c2")}));
    EXPECT_EQ(read->seenID(), QLatin1String("s2"));
    EXPECT_EQ(read->entries().back().state, SupportEntry::State::Unconfirmed);
    EXPECT_EQ(read->entries().back().file->path, QLatin1String("/a/b.png"));

    for (const char* const broken :
         {"{}", R"({"messages":7,"pending":[{"body":"x"},null,{"clientID":"c"}],"seen":[]})"})
        EXPECT_TRUE(decodeJson(QByteArray(broken), SupportThread::fromJson)->entries().empty()) << broken;
}

TEST(SupportReadingTest, BrokenMessagesAndFilesAreLeftOutByThemselves)
{
    const auto read = decodeJson(QByteArray(R"({"visitorToken":"t","unreadCount":-4,"messages":[
        {"id":"s1","direction":"inbound","body":"<b>Hi</b>\u0000 \u202Ethere","createdAt":"9999-13-01","agent":["Noor"]},
        {"id":"s1","body":"twice"}, {"id":7,"body":"number"}, {"body":"no id"}, {"id":"s2","body":""}, null, "text",
        {"id":"s3","body":null,"attachments":[{"url":"javascript:1","name":"a\nb"},{"name":"no address"},9,
            {"url":"https://a.example/f","mimeType":"image/png","width":-3,"height":1e12}]}]})"),
                                 decodeSupportInit);
    ASSERT_TRUE(read.hasValue()) << read.error().toStdString();
    ASSERT_EQ(read->messages.size(), 2U);
    EXPECT_EQ(read->messages[0].body, QLatin1String("<b>Hi</b> there"));
    EXPECT_FALSE(read->messages[0].createdAt.isValid());
    EXPECT_EQ(read->unreadCount, 0);
    ASSERT_EQ(read->messages[1].attachments.size(), 2U);
    EXPECT_FALSE(read->messages[1].attachments[0].isOpenable());
    EXPECT_TRUE(read->messages[1].attachments[1].isOpenable());
    EXPECT_EQ(read->messages[1].attachments[1].width + read->messages[1].attachments[1].height, 0);
    for (const char* const wrong :
         {"[]", R"({"messages":[]})", R"({"visitorToken":"t"})", R"({"visitorToken":"t","messages":{}})"})
        EXPECT_FALSE(decodeJson(QByteArray(wrong), decodeSupportInit).hasValue()) << wrong;
}

TEST(SupportReadingTest, OfVeryManyMessagesTheNewestStay)
{
    QJsonArray many;
    for (int i = 0; i < 10000; ++i)
        many.append(
            QJsonObject{{QStringLiteral("id"), QString::number(i)}, {QStringLiteral("body"), QStringLiteral("x")}});
    const auto read =
        decodeJson(QJsonDocument(QJsonObject{{QStringLiteral("messages"), many}}).toJson(), decodeSupportReplies);
    ASSERT_TRUE(read.hasValue());
    EXPECT_EQ(read->messages.size(), mostSupportMessages);
    EXPECT_EQ(read->messages.back().id, QLatin1String("9999"));
}

} // namespace

} // namespace loom
