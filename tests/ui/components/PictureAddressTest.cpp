#include "ui/components/PictureAddress.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

TEST(PictureAddressTest, OnlyAPlainHttpsAddressIsLoadedFrom)
{
    for (const char* text :
         {"", "https://", "https:///path.jpg", "http://cdn.example/a.jpg", "HTTP://cdn.example/a.jpg",
          "//cdn.example/a.jpg", "/a.jpg", "a.jpg", "file:///a.jpg", "qrc:/a.png", "data:image/png;base64,AA",
          "image://icon/house/000000", "javascript:alert(1)", "ftp://cdn.example/a.jpg",
          "https://me:pw@cdn.example/a.jpg", "https://me@cdn.example/a.jpg", "https://cdn.example:port/a.jpg"})
        EXPECT_EQ(pictureAddress(QString::fromUtf8(text), 300).toStdString(), "") << text;
    EXPECT_EQ(pictureAddress(QStringLiteral("https://cdn.example/a.jpg"), 0), QString());
    EXPECT_EQ(pictureAddress(QStringLiteral("https://cdn.example/a.jpg"), -5), QString());
}

TEST(PictureAddressTest, TheWidthIsSetOrReplacedAndAllElseIsKeptAsItWas)
{
    struct Row {
        const char* text;
        const char* address;
    };
    for (const Row& row : {
             Row{"https://cdn.example/a.jpg", "https://cdn.example/a.jpg?width=320"},
             Row{"HTTPS://CDN.Example/a.jpg", "https://cdn.example/a.jpg?width=320"},
             Row{"https://cdn.example:8443/a.jpg", "https://cdn.example:8443/a.jpg?width=320"},
             Row{"https://cdn.example/a.jpg?v=17", "https://cdn.example/a.jpg?v=17&width=320"},
             Row{"https://cdn.example/a.jpg?width=4000&v=17", "https://cdn.example/a.jpg?width=320&v=17"},
             Row{"https://cdn.example/a.jpg?v=1&width=1&width=2&c=3", "https://cdn.example/a.jpg?v=1&width=320&c=3"},
             Row{"https://cdn.example/a.jpg?widths=9&max_width=8",
                 "https://cdn.example/a.jpg?widths=9&max_width=8&width=320"},
             Row{"https://cdn.example/a.jpg?sig=a+b%2Bc%3D&x", "https://cdn.example/a.jpg?sig=a+b%2Bc%3D&x&width=320"},
             Row{"https://cdn.example/a.jpg?&v=1&&", "https://cdn.example/a.jpg?v=1&width=320"},
             Row{"https://cdn.example/a b.jpg#top", "https://cdn.example/a%20b.jpg?width=320"},
         })
        EXPECT_EQ(pictureAddress(QString::fromUtf8(row.text), 300).toStdString(), row.address) << row.text;
}

TEST(PictureAddressTest, WidthsGoUpInStepsAndNeverBelowWhatIsShown)
{
    struct Row {
        int shown, asked;
    };
    for (const Row& row :
         {Row{1, 64}, Row{64, 64}, Row{65, 128}, Row{184, 192}, Row{192, 192}, Row{193, 256}, Row{250, 256},
          Row{640, 640}, Row{641, 800}, Row{801, 960}, Row{2560, 2560}, Row{9000, 2560}})
        EXPECT_EQ(pictureWidthStep(row.shown), row.asked) << row.shown;
    for (int shown = 1; shown <= 2560; ++shown) {
        const int asked = pictureWidthStep(shown);
        ASSERT_GE(asked, shown);
        // A step is its own step: what was asked for once is asked for again.
        ASSERT_EQ(pictureWidthStep(asked), asked);
    }
}

} // namespace

} // namespace loom
