#include "base/JsonReader.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gmock/gmock.h>

using namespace loom;
using testing::ElementsAre;

namespace
{

/// The failure of decoding, or "" for none.
template <typename Decode>
QString failure(const QByteArray& bytes, Decode&& decode)
{
    const auto record = decodeJson(bytes, [&decode](const JsonReader& json) {
        static_cast<void>(decode(json));
        return true;
    });
    return record ? QString() : record.error();
}

QString failure(const QByteArray& bytes)
{
    return failure(bytes, [](const JsonReader&) { return true; });
}

/// Reads `{"v": <value>}` with one getter.
template <typename Get>
auto valueOf(const QByteArray& value, Get get)
{
    auto document = JsonDocument::parse("{\"v\": " + value + "}");
    if (!document)
        throw std::runtime_error("no JSON: " + value.toStdString());
    return get(document->root());
}

struct Order {
    QString number;
    bool isPaid = false;
    qint64 pieces = 0;
    double weight = 0;
    double total = 0;
    QDateTime placed;
    QStringList cities;
    std::vector<qint64> quantities;
};

Order decodeOrder(const JsonReader& json)
{
    Order order{.number = json.text("number"),
                .isPaid = json.boolean("paid"),
                .pieces = json.integer("pieces"),
                .weight = json.number("weight"),
                .total = json.decimal("total"),
                .placed = json.date("placed"),
                .cities = {},
                .quantities = {}};
    order.cities.append(json.object("ship").object("to").text("city"));
    for (const JsonReader& line : json.list("lines"))
        order.quantities.push_back(line.object("cost").integer("quantity"));
    return order;
}

const QByteArray validOrder = R"({"number": "W-7", "paid": true, "pieces": 2, "weight": 0.5, "total": "19.5",
    "placed": "2025-03-09", "ship": {"to": {"city": "Łódź"}},
    "lines": [{"cost": {"quantity": 1}}, {"cost": {"quantity": 2}}], "unknown": [{}, null]})";

TEST(JsonReader, TheFirstThingThatIsWrongIsNamedWithItsPath)
{
    const auto order = decodeJson(validOrder, decodeOrder);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->cities, QStringList(QStringLiteral("Łódź")));
    EXPECT_THAT(order->quantities, ElementsAre(1, 2));
    EXPECT_EQ(order->total, 19.5);

    struct Row {
        const char* from;
        const char* to;
        const char* failure;
    };
    for (const Row& row : {
             Row{"\"number\": \"W-7\",", "", "number: expected a text"},
             Row{"\"W-7\"", "null", "number: expected a text"},
             Row{"\"W-7\"", "7", "number: expected a text"},
             Row{"\"paid\": true", "\"paid\": 1", "paid: expected true or false"},
             Row{"\"pieces\": 2", "\"pieces\": 2.5", "pieces: expected a whole number"},
             Row{"\"pieces\": 2", "\"pieces\": \"2\"", "pieces: expected a whole number"},
             Row{"\"pieces\": 2", "\"pieces\": 9223372036854775808", "pieces: expected a whole number"},
             Row{"\"weight\": 0.5", "\"weight\": \"0.5\"", "weight: expected a number"},
             Row{"\"19.5\"", "\"much\"", "total: expected a decimal number"},
             Row{"\"19.5\"", "\"inf\"", "total: expected a decimal number"},
             Row{"\"2025-03-09\"", "\"soon\"", "bad date soon"},
             Row{"\"2025-03-09\"", "1741507626", "placed: expected a date"},
             Row{"{\"to\"", "{\"from\"", "ship.to: expected an object"},
             Row{"{\"city\": \"Łódź\"}", "[]", "ship.to: expected an object"},
             Row{"\"Łódź\"", "{}", "ship.to.city: expected a text"},
             Row{"\"lines\": [", "\"rows\": [", "lines: expected a list"},
             Row{"{\"cost\": {\"quantity\": 2}}", "{\"cost\": []}", "lines[1].cost: expected an object"},
             Row{"{\"cost\": {\"quantity\": 2}}", "null", "lines[1].cost: expected an object"},
             Row{"{\"quantity\": 2}", "{\"quantity\": false}", "lines[1].cost.quantity: expected a whole number"},
         }) {
        QByteArray mutated = validOrder;
        ASSERT_TRUE(mutated.contains(row.from)) << row.from;
        mutated.replace(row.from, row.to);
        EXPECT_EQ(failure(mutated, decodeOrder), QString::fromUtf8(row.failure)) << row.to;
    }
    EXPECT_EQ(failure("[1]", decodeOrder), QStringLiteral("number: expected a text"));
}

TEST(JsonReader, PathsLeadThroughListsOfListsAndOutliveTheKeysThatWereAskedFor)
{
    EXPECT_EQ(
        failure(R"([{"a": 1}, {"a": "x"}])", [](const JsonReader& json) { return json.elements().at(1).integer("a"); }),
        QStringLiteral("[1].a: expected a whole number"));
    EXPECT_EQ(failure(R"({"rows": [[{}], [{}, {"a": 1}]]})",
                      [](const JsonReader& json) { return json.list("rows").at(1).elements().at(1).text("a"); }),
              QStringLiteral("rows[1][1].a: expected a text"));
    EXPECT_EQ(failure(R"({"an alias long enough to be kept on the heap 7": {"a": 1}})",
                      [](const JsonReader& json) {
                          const JsonReader child =
                              json.object("an alias long enough to be kept on the heap " + std::to_string(7));
                          return child.text("a");
                      }),
              QStringLiteral("an alias long enough to be kept on the heap 7.a: expected a text"));
    EXPECT_EQ(failure(R"({"m": {"x": 1, "y": {"z": []}}})",
                      [](const JsonReader& json) {
                          json.object("m").members().at(1).second.fail(QStringLiteral("not this one"));
                          return true;
                      }),
              QStringLiteral("m.y: not this one"));
    EXPECT_EQ(failure("{}", [](const JsonReader& json) { return json.fail(QStringLiteral("is empty")), true; }),
              QStringLiteral("document: is empty"));
}

TEST(JsonReader, OneBrokenElementIsLeftOutAndNothingElse)
{
    const QByteArray bytes =
        R"({"list": [{"id": 1, "tags": ["a"]}, {"id": "2"}, null, 7, {"id": 3, "tags": [1, "b", null]},
        {"id": 4, "tags": "c"}]})";
    auto document = JsonDocument::parse(bytes);
    ASSERT_TRUE(document);
    const JsonReader root = document->root();
    const auto decode = [](const JsonReader& json) {
        return std::pair(json.integer("id"), json.textList("tags"));
    };
    const auto records = JsonReader::decodeEach(root.list("list"), decode);
    EXPECT_THAT(records, ElementsAre(std::pair(1, QStringList(QStringLiteral("a"))),
                                     std::pair(3, QStringList(QStringLiteral("b"))), std::pair(4, QStringList())));
    EXPECT_EQ(document->dropped(), 3);
    EXPECT_FALSE(document->error());

    // A failure outside the elements is neither hidden by them nor blamed on them.
    static_cast<void>(root.text("missing"));
    EXPECT_EQ(JsonReader::decodeEach(root.list("list"), decode).size(), 3U);
    EXPECT_EQ(document->error(), QStringLiteral("missing: expected a text"));
}

TEST(JsonReader, WhatIsOptionalIsNoneWhenItIsAbsentOrNullOrOfAnotherType)
{
    for (const char* const value : {"null", "{}", "[]", "\"\"", "true", "0", "\"2025-03-09\"", "\"1.5\""}) {
        auto document = JsonDocument::parse(QByteArray("{\"v\": ") + value + "}");
        ASSERT_TRUE(document);
        const JsonReader json = document->root();
        const QByteArray text(value);
        EXPECT_EQ(json.has("v"), text != "null") << value;
        EXPECT_EQ(json.optionalText("v").has_value(), text.startsWith('"')) << value;
        EXPECT_EQ(json.optionalBoolean("v").has_value(), text == "true") << value;
        EXPECT_EQ(json.optionalInteger("v").has_value(), text == "0") << value;
        EXPECT_EQ(json.optionalDecimal("v").has_value(), text == "0" || text == "\"1.5\"") << value;
        EXPECT_EQ(json.optionalDate("v").has_value(), text.contains('-')) << value;
        EXPECT_EQ(json.optionalObject("v").has_value(), text == "{}") << value;
        EXPECT_TRUE(json.optionalList("v").empty() && json.textList("v").isEmpty()) << value;
        EXPECT_FALSE(json.optionalText("absent") || json.optionalObject("absent") || json.has("absent"));
        EXPECT_FALSE(document->error()) << value;
    }
}

TEST(JsonReader, NumbersKeepTheirValue)
{
    const auto integer = [](const JsonReader& json) {
        return json.optionalInteger("v");
    };
    EXPECT_EQ(valueOf("9007199254740993", integer), 9007199254740993);
    EXPECT_EQ(valueOf("-9223372036854775808", integer), std::numeric_limits<qint64>::min());
    EXPECT_EQ(valueOf("18446744073709551615", integer), std::nullopt);
    // RFC 8259 knows one kind of number: these are whole.
    EXPECT_EQ(valueOf("3.0", integer), 3);
    EXPECT_EQ(valueOf("-12e2", integer), -1200);
    EXPECT_EQ(valueOf("1e300", integer), std::nullopt);

    const auto decimal = [](const JsonReader& json) {
        return json.optionalDecimal("v");
    };
    EXPECT_EQ(valueOf("18446744073709551615", decimal), 18446744073709551615.0);
    EXPECT_EQ(valueOf("\" 48000.0 \"", decimal), 48000.0);
    for (const char* const value :
         {"\"\"", "\"1,5\"", "\"1 000\"", "\"0x10\"", "\"nan\"", "\"-inf\"", "\"1e999\"", "true"})
        EXPECT_EQ(valueOf(value, decimal), std::nullopt) << value;

    const QJsonValue json = valueOf("[9007199254740993, 0.5, true, null]",
                                    [](const JsonReader& reader) { return reader.value("v").asJson(); });
    EXPECT_EQ(json, QJsonValue(QJsonArray{qint64(9007199254740993), 0.5, true, QJsonValue::Null}));
}

TEST(JsonReader, TextsAndKeysAreUnescaped)
{
    const auto text = [](const JsonReader& json) {
        return json.text("v");
    };
    EXPECT_EQ(valueOf(R"("\u00e9 \ud83d\ude00 \"\\\/\b\f\n\r\t")", text),
              QString::fromUtf8("é \U0001F600 \"\\/\b\f\n\r\t"));
    EXPECT_EQ(valueOf(R"("a\u0000b")", text), QString::fromLatin1("a\0b", 3));
    // Half of a character, as a text has it that was cut by its length, does not spoil the rest.
    EXPECT_EQ(valueOf(R"("\ud83d")", text), QStringLiteral("\uFFFD"));
    EXPECT_EQ(valueOf(R"("\\ud83d \ude00\ud83d\ud83d\ude00\ud83d\u0041")", text),
              QString::fromUtf8("\\ud83d \uFFFD\uFFFD\U0001F600\uFFFDA"));
    EXPECT_EQ(failure(R"({"\u0061": 1})", [](const JsonReader& json) { return json.integer("a"); }), QString());
}

TEST(JsonReader, WhatIsNoJsonIsRefusedWithoutBeingRead)
{
    const QByteArray deep(64, '[');
    EXPECT_EQ(failure(deep + QByteArray(64, ']')), QString());
    const QByteArray broken =
        "| \n|<html>|{\"a\": 1|{\"a\": \"tex|{\"a\": 1}}|{\"a\": 1} {}|{'a': 1}|{\"a\": 1,}|[1, // one\n2]|[NaN]|"
        "[01]|[1e999]|\"a\nb\"|\"\\x\"|\"\\ud83\"|\"\\ud83d\\x\"|\"\\ud83d|\"\xC3\x28\"|"
        "\"\xED\xA0\x80\"";
    QByteArrayList none = broken.split('|');
    none += {QByteArray("\"a\0b\"", 5), QByteArray("{}\0", 3), QByteArray(512, '\0'),
             '[' + deep + QByteArray(64, ']') + ']', QByteArray(1'000'000, '[')};
    for (const QByteArray& bytes : none)
        EXPECT_TRUE(failure(bytes).startsWith(QStringLiteral("not valid JSON: "))) << bytes.left(80).constData();
}

} // namespace
