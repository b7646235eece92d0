#include "stylist/voice/MiraVoiceEvent.h"

#include "base/Overloaded.h"
#include "support/Json.h"
#include "support/Printing.h"

#include <QtEndian>

#include <cmath>
#include <limits>

using namespace loom;

namespace
{

/// An event in a line: its type and what it says, "-" for none.
std::string described(const QByteArray& frame)
{
    const auto event = MiraVoiceEvent::read(frame);
    if (!event)
        return "-";
    const QString text = std::visit(
        Overloaded{
            [](const MiraVoiceEvent::Ready&) { return QStringLiteral("ready"); },
            [](const MiraVoiceEvent::Recognised& asr) {
                return (asr.isFinal ? QStringLiteral("asr!") : QStringLiteral("asr ")) + asr.text;
            },
            [](const MiraVoiceEvent::Speech& tts) { return QStringLiteral("tts %1").arg(tts.samples.size()); },
            [](const MiraVoiceEvent::Line& chat) {
                return (chat.isFinal ? QStringLiteral("chat!") : QStringLiteral("chat ")) + chat.text;
            },
            [](const MiraVoiceEvent::Products& shown) {
                QStringList pieces;
                for (const MiraVoiceProduct& piece : shown.products)
                    pieces.append(piece.handle + u'=' + piece.title + u'@' + piece.price + u'&' + piece.imageURL);
                return QStringLiteral("products ") + pieces.join(u' ');
            },
            [](const MiraVoiceEvent::Cart& cart) {
                return QStringLiteral("cart ") + cart.variantID + u' ' + cart.title;
            },
            [](const MiraVoiceEvent::Navigation& nav) {
                return QStringLiteral("nav ") + QStringList{nav.kind, nav.handle, nav.path}.join(u'|');
            },
            [](const MiraVoiceEvent::Session& session) { return QStringLiteral("session ") + session.guideName; },
            [](const MiraVoiceEvent::Ended&) { return QStringLiteral("ended"); },
            [](const MiraVoiceEvent::Error& error) {
                return QStringLiteral("error ") + error.code;
            }},
        event->content);
    return text.toStdString();
}

QByteArray speechFrame(const std::vector<float>& samples, const QByteArray& rest = {})
{
    QByteArray bytes(static_cast<qsizetype>(samples.size() * sizeof(float)), '\0');
    if (!samples.empty())
        qToLittleEndian<float>(samples.data(), static_cast<qsizetype>(samples.size()), bytes.data());
    return R"({"type": "tts", "b64": ")" + (bytes + rest).toBase64() + R"("})";
}

} // namespace

TEST(MiraVoiceEventTest, AFrameIsReadForWhatItSaysAndIgnoredWhereItSaysNothing)
{
    const std::pair<const char*, const char*> rows[] = {
        {R"({"type": "ready", "more": {}})", "ready"},
        {R"({"type": "asr", "text": " a red\n dress ", "final": true})", "asr!a red\ndress"},
        {R"({"type": "asr", "text": "a red"})", "asr a red"},
        {R"({"type": "asr", "text": "a red", "final": "true"})", "asr a red"},
        {R"({"type": "asr", "text": " \n\t ", "final": true})", "-"},
        {R"({"type": "asr", "text": 7, "final": true})", "-"},
        {R"({"type": "asr", "text": "<b>\u202eevil\u0007</b>"})", "asr <b>evil</b>"},
        {R"({"type": "chat_partial", "text": "Here"})", "chat Here"},
        {R"({"type": "chat_partial", "text": ""})", "-"},
        {R"({"type": "chat", "text": "Here is one."})", "chat!Here is one."},
        {R"({"type": "chat"})", "chat!"},
        {R"({"type": "products", "products": [
            {"handle": "silk", "title": " Silk\n top", "image": "https://c.example/a.jpg", "price": 120.5},
            {"handle": "silk", "title": "Again"}, {"handle": "a/b", "title": "No"}, {"title": "None"}, 7, null,
            {"handle": "linen", "title": [], "image": 4, "price": "From 80"}]})",
         "products silk=Silk top@120.5&https://c.example/a.jpg linen=@From 80&"},
        {R"({"type": "products", "products": [{"handle": ""}]})", "-"},
        {R"({"type": "products", "products": {"handle": "silk"}})", "-"},
        {R"({"type": "cart", "variantId": "gid://shopify/ProductVariant/42", "title": "Silk \u202etop"})",
         "cart gid://shopify/ProductVariant/42 Silk top"},
        {R"({"type": "cart", "variantId": " 42 "})", "cart gid://shopify/ProductVariant/42 "},
        {R"({"type": "cart", "variantId": 9007199254740993})", "cart gid://shopify/ProductVariant/9007199254740993 "},
        {R"({"type": "cart", "variantId": 42.0})", "cart gid://shopify/ProductVariant/42 "},
        {R"({"type": "cart", "variantId": -42, "title": "Silk"})", "cart  Silk"},
        {R"({"type": "cart", "variantId": 4.5})", "cart  "},
        {R"({"type": "cart", "variantId": "gid://shopify/Product/42"})", "cart  "},
        {R"({"type": "cart", "variantId": "gid://shopify/ProductVariant/42?key=1"})", "cart  "},
        {R"({"type": "cart", "variantId": "gid://evil/gid://shopify/ProductVariant/42"})", "cart  "},
        {R"({"type": "cart", "variantId": "٤٢"})", "cart  "},
        {R"({"type": "cart", "variantId": ["42"]})", "cart  "},
        {R"({"type": "nav", "kind": "product", "handle": "silk", "path": 5})", "nav product|silk|"},
        {R"({"type": "nav", "path": "/cart"})", "nav ||/cart"},
        {R"({"type": "nav", "kind": 1, "handle": null})", "-"},
        {R"({"type": "session", "guideName": "Mira\n"})", "session Mira"},
        {R"({"type": "session", "guideName": {}})", "session "},
        {R"({"type": "ended"})", "ended"},
        {R"({"type": "error", "code": "busy", "message": "later"})", "error busy"},
        {R"({"type": "error", "code": 503})", "error "},
        {R"({"type": "Ready"})", "-"},
        {R"({"type": "refund"})", "-"},
        {R"({"type": ["ready"]})", "-"},
        {R"({"text": "no type"})", "-"},
        {R"("ready")", "-"},
        {R"([{"type": "ready"}])", "-"},
        {R"({"type": "ready")", "-"},
        {"ready", "-"},
        {"", "-"},
    };
    for (const auto& [frame, event] : rows)
        EXPECT_EQ(described(frame), event) << frame;
}

TEST(MiraVoiceEventTest, SpeechIsLittleEndianAndSoundsLikeSound)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const auto event = MiraVoiceEvent::read(speechFrame({0.25F, -1, 3, -1e30F, std::nanf(""), infinity, -infinity}));
    ASSERT_TRUE(event);
    EXPECT_EQ(std::get<MiraVoiceEvent::Speech>(event->content).samples,
              (std::vector<float>{0.25F, -1, 1, -1, 0, 0, 0}));
    EXPECT_EQ(
        std::get<MiraVoiceEvent::Speech>(MiraVoiceEvent::read(R"({"type": "tts", "b64": "AAAAPwAAgL4="})")->content)
            .samples,
        (std::vector<float>{0.5F, -0.25F}));

    const std::pair<QByteArray, const char*> rows[] = {
        {speechFrame({0, 1}, "ab"), "tts 2"}, // a last sample of which a part is missing
        {speechFrame({}, "abc"), "-"},
        {speechFrame({}), "-"},
        {R"({"type": "tts", "b64": "AAAA*AAA"})", "-"},
        {R"({"type": "tts", "b64": "AAAAAAA="})", "tts 1"},
        {R"({"type": "tts", "b64": "AAAAAAAĀ"})", "-"},
        {R"({"type": "tts", "b64": 5})", "-"},
        {R"({"type": "tts"})", "-"},
    };
    for (const auto& [frame, expected] : rows)
        EXPECT_EQ(described(frame), expected) << frame.constData();
}

TEST(MiraVoiceEventTest, NothingIsTakenOverBeyondItsMeasure)
{
    const auto frame = [](const char* type, const char* key, qsizetype size) {
        return QByteArray(R"({"type": ")") + type + R"(", ")" + key + R"(": ")" + QByteArray(size, 'A') + R"("})";
    };
    constexpr qsizetype megabyte = 1 << 20;
    EXPECT_EQ(described(frame("tts", "b64", 10 * megabyte)), "tts 1440000");
    EXPECT_EQ(described(frame("asr", "text", 10 * megabyte)).size(), 4 + MiraVoiceEvent::longestText - 2);
    EXPECT_EQ(described(frame("error", "code", megabyte)), "error ");
    EXPECT_EQ(described(frame("nav", "path", megabyte)), "-");
    EXPECT_EQ(described(frame("cart", "variantId", megabyte)), "cart  ");

    QJsonArray pieces;
    for (int i = 0; i < 1000; ++i)
        pieces.append(QJsonObject{{"handle", QString::number(i)}});
    const auto shown = MiraVoiceEvent::read(bytes(QJsonObject{{"type", "products"}, {"products", pieces}}));
    ASSERT_TRUE(shown);
    EXPECT_EQ(std::get<MiraVoiceEvent::Products>(shown->content).products.size(), MiraVoiceEvent::mostProducts);
    EXPECT_EQ(described(R"({"type":)" + QByteArray(megabyte, '[')), "-");
}
