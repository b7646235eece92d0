#include "TestEngine.h"
#include "catalog/CollectionModel.h"
#include "catalog/ProductModel.h"

#include "support/Printing.h"
#include "support/Running.h"
#include "support/ShopFixture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace loom
{

namespace
{

/// Parts of pages in a window, with the models of the shop behind them.
class PagesTest : public ShopFixture
{
protected:
    PagesTest() { prepareTestEngine(engine); }

    /// Shows `part`, whose property `model` is `model`.
    void show(const char* part, QObject* model = nullptr)
    {
        QQmlComponent component(&engine);
        component.setData(QByteArrayLiteral("import QtQuick\nimport Loomstreet.Components\nimport Loomstreet.Pages\n") +
                              part,
                          QUrl());
        root.reset(qobject_cast<QQuickItem*>(
            component.createWithInitialProperties({{QStringLiteral("model"), QVariant::fromValue(model)}})));
        if (!root)
            throw std::runtime_error(component.errorString().toStdString());
        window.resize(1000, 600);
        root->setParentItem(window.contentItem());
        root->setSize(window.size());
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            throw std::runtime_error("the window does not show");
    }
    static void collect(QQuickItem* item, const QString& prefix, QList<QQuickItem*>& found)
    {
        if (item->isVisible() && item->objectName().startsWith(prefix))
            found.append(item);
        for (QQuickItem* const child : item->childItems())
            collect(child, prefix, found);
    }
    /// What can be seen, or could after scrolling, and whose name begins so.
    [[nodiscard]] QList<QQuickItem*> all(const char* prefix) const
    {
        QList<QQuickItem*> found;
        collect(root.get(), QLatin1String(prefix), found);
        return found;
    }
    [[nodiscard]] QQuickItem* one(const char* name) const
    {
        for (QQuickItem* const item : all(name)) {
            if (item->objectName() == QLatin1String(name))
                return item;
        }
        throw std::runtime_error(std::string(name) + " is not there");
    }
    void load(CollectionModel& into, int from, int count, const char* cursor = nullptr)
    {
        answer("CollectionProducts", page(from, count, cursor));
        into.load();
        waitUntil([&] { return !into.isLoading(); }, "the collection is there");
    }
    [[nodiscard]] static QJsonValue page(int from, int count, const char* cursor)
    {
        QStringList handles;
        for (int i = 0; i < count; ++i)
            handles.append(QStringLiteral("piece-%1").arg(from + i));
        QJsonValue data =
            json(R"({"collection": {"id": "1", "handle": "dresses", "title": "Dresses", "products": {}}})");
        data = changed(data, QStringLiteral("collection.products.pageInfo"),
                       QJsonObject{{QStringLiteral("hasNextPage"), cursor != nullptr},
                                   {QStringLiteral("endCursor"), QLatin1String(cursor)}});
        return changed(data, QStringLiteral("collection.products.nodes"), cards(handles));
    }
    void load(ProductModel& into, const QJsonValue& found)
    {
        answer("Product", QJsonValue(QJsonObject{{QStringLiteral("product"), found}}));
        into.reload();
        waitUntil([&] { return !into.isLoading(); }, "the product is there");
    }
    /// The dress, with these pictures.
    [[nodiscard]] static QJsonValue pictured(std::initializer_list<const char*> names)
    {
        QJsonArray nodes;
        for (const char* const name : names)
            nodes.append(QJsonObject{{QStringLiteral("url"), address(name)}});
        const QJsonValue dress = changed(productJson(QStringLiteral("silk")), QStringLiteral("images.nodes"), nodes);
        return changed(dress, QStringLiteral("variants.nodes[2].image"),
                       QJsonObject{{QStringLiteral("url"), address("ink")}});
    }
    [[nodiscard]] static QString address(const char* name)
    {
        return QStringLiteral("https://pictures.example/%1.jpg").arg(QLatin1String(name));
    }

    CollectionModel collection{QStringLiteral("dresses"), {}, api, market, money, clock};
    ProductModel product{QStringLiteral("silk"), {}, 99, api, market, preferences, money, clock};
    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> root;
};

TEST_F(PagesTest, ARailIsFullOfCardsWhenItsListArrives)
{
    show("ProductRail { property QtObject model; collection: model }");
    root->setProperty("model", QVariant::fromValue<QObject*>(&collection));
    load(collection, 0, 24);
    const auto fit = static_cast<qsizetype>(root->property("perView").toInt());
    ASSERT_GT(fit, 2);
    waitUntil([&] { return all("card.").size() == fit; }, "the rail is full");
    EXPECT_EQ(all("card.").first()->objectName(), QStringLiteral("card.piece-0"));
    QMetaObject::invokeMethod(one("next"), "clicked");
    waitUntil([&] { return all("card.").value(0)->objectName() == QStringLiteral("card.piece-%1").arg(fit); },
              "the next cards have come");
}

TEST_F(PagesTest, APlaceIsComeBackToAsTheListArrives)
{
    answer("CollectionProductCount", Answer::body("", 404));
    show(R"(
        Item {
            id: page

            property QtObject model

            ProductGrid {
                id: grid

                objectName: "grid"
                anchors.fill: parent
                products: page.model?.products ?? null
                onNearEnd: page.model.loadMore()
            }
            AwaitedPlace {
                id: place

                objectName: "place"
                flickable: grid
            }
        })",
         &collection);
    QQuickItem* const place = one("place");
    const QQuickItem* const grid = one("grid");
    QMetaObject::invokeMethod(place, "goTo", Q_ARG(double, 5000));
    EXPECT_EQ(place->property("scrollY"), 5000); // to whoever remembers it, it is there
    answer("CollectionProducts", page(0, 24, "c1"));
    answer("CollectionProducts", page(24, 48, "c2"));
    collection.load();
    waitUntil([&] { return place->property("awaited") == -1; }, "the place is reached");
    EXPECT_EQ(grid->property("scrollY").toDouble(), 5000);
    EXPECT_EQ(collection.products()->count(), 72);

    // Further down than there is anything: until the shopper does something.
    answer("CollectionProducts", Answer::body("", 404));
    QMetaObject::invokeMethod(place, "goTo", Q_ARG(double, 50000));
    waitUntil([&] { return collection.hasLoadMoreFailed(); }, "there is no more");
    EXPECT_LT(grid->property("scrollY").toDouble(), 50000);
    EXPECT_GT(grid->property("scrollY").toDouble(), 5000);
    QTest::keyClick(&window, Qt::Key_Home);
    EXPECT_EQ(place->property("awaited"), -1);
    EXPECT_EQ(place->property("scrollY"), grid->property("scrollY"));
}

TEST_F(PagesTest, TheGalleryStaysAtAPictureUntilAnotherOneIsChosen)
{
    load(product, pictured({"red", "ink", "front", "back"}));
    show("ProductGallery { property QtObject model; product: model }", &product);
    const QQuickItem* const gallery = one("main");
    const auto shown = [&] {
        return product.pictures().value(gallery->property("currentIndex").toInt());
    };
    const QString size = QStringLiteral("Size");
    product.choose(size, QStringLiteral("S"));
    EXPECT_EQ(shown(), address("ink"));
    QMetaObject::invokeMethod(root.get(), "show", Q_ARG(int, 3));
    EXPECT_EQ(shown(), address("back"));
    product.choose(size, QStringLiteral("M")); // of the same colour
    EXPECT_EQ(shown(), address("back"));

    QPointer<QQuickItem> picture = one("picture3");
    load(product, pictured({"red", "ink", "front", "back"}));
    EXPECT_EQ(shown(), address("back"));
    EXPECT_TRUE(picture);
    load(product, pictured({"red", "ink", "new", "front", "back"}));
    EXPECT_EQ(shown(), address("back"));

    product.choose(QStringLiteral("Colour"), QStringLiteral("Red"));
    product.choose(size, QStringLiteral("S"));
    EXPECT_EQ(shown(), address("red"));
}

TEST_F(PagesTest, WhatIsOpenOfAStoryStaysOpenAcrossAReload)
{
    const QJsonValue told = changed(productJson(QStringLiteral("silk")), QStringLiteral("descriptionHtml"),
                                    QStringLiteral("<h3>Fit</h3><p>Close</p><h3>Care</h3><p>By hand</p>"));
    load(product, told);
    show("ProductStory { property QtObject model; product: model }", &product);
    QPointer<QQuickItem> section = one("section1");
    section->setProperty("expanded", true);
    load(product, changed(told, QStringLiteral("title"), QStringLiteral("Renamed")));
    ASSERT_TRUE(section);
    EXPECT_TRUE(section->property("expanded").toBool());
}

TEST_F(PagesTest, ReviewsComeInTensAndNoneIsMadeTwice)
{
    show(R"(
        ProductReviews {
            property QtObject model

            function reviewed(count: int): void {
                const list = []
                for (let i = 0; i < count; ++i)
                    list.push({ content: "Review " + i, rating: 5 })
                summary = { rating: 4.7, count: 0, reviews: list }
            }
        })");
    QMetaObject::invokeMethod(root.get(), "reviewed", Q_ARG(int, 30));
    EXPECT_EQ(all("review").size(), 3);
    EXPECT_EQ(one("note")->property("text"), QStringLiteral("4.7")); // of how many is not known
    const QPointer<QQuickItem> first = one("review0");
    for (const int count : {13, 23, 30}) {
        QMetaObject::invokeMethod(one("more"), "clicked");
        EXPECT_EQ(all("review").size(), count);
    }
    EXPECT_TRUE(first);
    EXPECT_TRUE(all("more").isEmpty());
    QMetaObject::invokeMethod(root.get(), "reviewed", Q_ARG(int, 5));
    EXPECT_EQ(all("review").size(), 5);
}

TEST_F(PagesTest, TheOrderThatIsChosenAgainKeepsItsMark)
{
    show("SortButton { property QtObject model; listing: model }", &collection);
    QObject* menu = nullptr;
    for (QObject* const child : one("sort")->findChildren<QObject*>()) {
        if (child->inherits("QQuickMenu"))
            menu = child;
    }
    ASSERT_TRUE(menu);
    const auto entry = [&](int index) {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, index));
        return found;
    };
    ASSERT_TRUE(entry(2));
    QMetaObject::invokeMethod(entry(0), "press");
    EXPECT_TRUE(entry(0)->property("checked").toBool());
    answer("CollectionProducts", page(0, 1, nullptr));
    QMetaObject::invokeMethod(entry(2), "press");
    EXPECT_EQ(collection.sort(), CollectionSort::PriceLow);
    EXPECT_TRUE(entry(2)->property("checked").toBool());
    EXPECT_FALSE(entry(0)->property("checked").toBool());
    waitUntil([&] { return !collection.isLoading(); }, "the other order is there");
}

} // namespace

} // namespace loom
