#include "app/AppConfig.h"

#include "support/Printing.h"

namespace loom
{

namespace
{

QByteArray entry(const QByteArray& key, const QByteArray& text)
{
    return "<key>" + key + "</key>\n<string>" + text + "</string>\n";
}

QByteArray propertyList(const QByteArray& entries)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n" + entries +
           "</dict>\n</plist>\n";
}

const QList<std::pair<QByteArray, QByteArray>> whole{{"ShopifyDomain", "shop.example"},
                                                     {"ShopifyStorefrontToken", "token-1"},
                                                     {"SupportBase", "https://support.example"},
                                                     {"SupportKey", "key-1"}};

/// The whole list with `other` in place of the entry of `key`, or after all of them.
QByteArray withEntry(const QByteArray& key, const QByteArray& other)
{
    QByteArray entries;
    bool isThere = false;
    for (const auto& [name, text] : whole) {
        entries += name == key ? other : entry(name, text);
        isThere = isThere || name == key;
    }
    return propertyList(isThere ? entries : entries + other);
}

} // namespace

TEST(AppConfigTest, TheValuesAreReadInTheFormTheyAreUsedIn)
{
    EXPECT_EQ(AppConfig::parse(withEntry("", "")),
              (AppConfig{.shopifyDomain = QStringLiteral("shop.example"),
                         .storefrontToken = QStringLiteral("token-1"),
                         .supportBase = QStringLiteral("https://support.example"),
                         .supportKey = QStringLiteral("key-1"),
                         .storeWebURL = QStringLiteral("https://www.loomstreet.example")}));
    struct Row {
        const char* key;
        const char* text;
        QString AppConfig::* value;
        const char* expected;
    };
    for (const Row& row : {
             Row{"ShopifyDomain", "  https://shop.example/ \n", &AppConfig::shopifyDomain, "shop.example"},
             Row{"ShopifyDomain", "http://shop.example//", &AppConfig::shopifyDomain, "shop.example"},
             Row{"ShopifyDomain", "https://http://shop.example", &AppConfig::shopifyDomain, "shop.example"},
             Row{"ShopifyStorefrontToken", "&lt;&amp;&#x142;", &AppConfig::storefrontToken, "<&\u0142"},
             Row{"SupportBase", "https://support.example//", &AppConfig::supportBase, "https://support.example/"},
             Row{"SupportBase", "https://support.example/api/", &AppConfig::supportBase, "https://support.example/api"},
             Row{"StoreWebURL", "https://www.store.example/", &AppConfig::storeWebURL, "https://www.store.example"},
             Row{"StoreWebURL", "www.store.example", &AppConfig::storeWebURL, "https://www.loomstreet.example"},
             // Nothing could be loaded from these.
             Row{"StoreWebURL", "http://www.store.example", &AppConfig::storeWebURL, "https://www.loomstreet.example"},
             Row{"StoreWebURL", "https://store.example:8443", &AppConfig::storeWebURL,
                 "https://www.loomstreet.example"},
             Row{"StoreWebURL", "https://a@store.example", &AppConfig::storeWebURL, "https://www.loomstreet.example"},
         }) {
        const auto config = AppConfig::parse(withEntry(row.key, entry(row.key, row.text)));
        ASSERT_TRUE(config) << row.text;
        EXPECT_EQ((*config).*row.value, QString::fromUtf8(row.expected)) << row.text;
    }
}

TEST(AppConfigTest, AnIncompleteListIsNone)
{
    for (const auto& [key, text] : whole) {
        for (const QByteArray& other :
             {QByteArray(), entry(key, ""), entry(key, " \n\t "), "<key>" + key + "</key>",
              "<key>" + key + "</key><integer>7</integer>", "<key>" + key + "</key><true/>",
              "<key>" + key + "</key><array><string>a</string></array>",
              "<key>" + key + "</key><string>a<string>b</string></string>", "<string>" + text + "</string>"})
            EXPECT_EQ(AppConfig::parse(withEntry(key, other)), std::nullopt) << other.constData();
    }
    for (const auto& [key, text] :
         {std::pair("ShopifyDomain", "https://"), std::pair("ShopifyDomain", "///"), std::pair("SupportBase", "/"),
          std::pair("SupportBase", "support.example"), std::pair("SupportBase", "https://"),
          std::pair("SupportBase", "https://support example"),
          std::pair("SupportBase", "https://support.example:port")})
        EXPECT_EQ(AppConfig::parse(withEntry(key, entry(key, text))), std::nullopt) << text;
    EXPECT_EQ(AppConfig::parse(withEntry("Other", "<key>Other</key><integer>7</integer>")), std::nullopt);
}

TEST(AppConfigTest, WhatIsNoPropertyListIsNone)
{
    const QByteArray list = withEntry("", "");
    for (qsizetype length = 0; length < list.trimmed().size(); ++length)
        EXPECT_EQ(AppConfig::parse(list.left(length)), std::nullopt) << length;
    for (const QByteArray& foreign :
         {QByteArray("{}"), QByteArray("bplist00\x01\x02\xff"), QByteArray(1000, '\0'), list + "more",
          QByteArray(list).replace("dict>", "array>"), QByteArray(list).replace("plist", "list"),
          QByteArray("<plist/>"), propertyList(""), propertyList("<dict/>")})
        EXPECT_EQ(AppConfig::parse(foreign), std::nullopt) << foreign.left(40).constData();
    EXPECT_EQ(AppConfig::load(), std::nullopt); // nothing in the resources of this program
}

} // namespace loom
