#include "navigation/CheckoutRequest.h"

#include "support/Printing.h"

namespace loom
{

TEST(CheckoutRequestTest, ARequestIsSavedUnderExactlyTwoKeysAndComesBackAsItWas)
{
    for (const char* const address :
         {"https://shop.example/cart/c/abc?key=0%2B1%20%26x", "https://shop.example/checkouts/ab/%C5%82#top"}) {
        for (const bool fromCart : {false, true}) {
            const CheckoutRequest request{.url = QUrl(QString::fromUtf8(address)), .fromCart = fromCart};
            const QByteArray json = QJsonDocument(toJson(request)).toJson(QJsonDocument::Compact);
            EXPECT_EQ(json,
                      QByteArray("{\"fromCart\":") + (fromCart ? "true" : "false") + ",\"url\":\"" + address + "\"}");
            const auto restored = decodeJson(json, decodeCheckoutRequest);
            ASSERT_TRUE(restored);
            EXPECT_EQ(*restored, request);
            EXPECT_EQ(qHash(*restored), qHash(request));
            EXPECT_NE(qHash(request), qHash(CheckoutRequest{.url = request.url, .fromCart = !fromCart}));
        }
    }
    for (const char* const broken :
         {"{}", "[]", R"({"url":"https://a.example"})", R"({"fromCart":true})", R"({"url":"","fromCart":true})",
          R"({"url":"https://[","fromCart":true})", R"({"url":"https://a.example","fromCart":1})"})
        EXPECT_FALSE(decodeJson(broken, decodeCheckoutRequest)) << broken;
}

} // namespace loom
