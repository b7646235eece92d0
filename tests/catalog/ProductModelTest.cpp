#include "catalog/ProductModel.h"

#include "support/ShopFixture.h"

using namespace loom;
using namespace std::chrono_literals;
using Phase = ProductModel::Phase;

namespace
{

const QString colour = QStringLiteral("Colour");
const QString size = QStringLiteral("Size");

class ProductModelTest : public ShopFixture
{
protected:
    std::unique_ptr<ProductModel> make(std::optional<ProductListItem> item = {})
    {
        return std::make_unique<ProductModel>(QStringLiteral("silk"), std::move(item), 99, api, market, preferences,
                                              money, clock);
    }
    static QJsonValue found(const QJsonValue& product) { return QJsonObject{{QStringLiteral("product"), product}}; }
    static QJsonValue missing() { return found(QJsonValue::Null); }
    void settle(const ProductModel& of)
    {
        waitUntil([&of] { return !of.isLoading(); }, "the model has its answer");
    }
    void load(ProductModel& into, const QJsonValue& product)
    {
        answer("Product", found(product));
        into.reload();
        settle(into);
    }
    [[nodiscard]] static QVariant get(const ProductModel& from, const char* name) { return from.property(name); }

    QJsonObject dress = productJson(QStringLiteral("silk"));
    ProductListItem card = *decodeJson(bytes(cardJson(QStringLiteral("silk"))), decodeListItem);
};

TEST_F(ProductModelTest, APageBeginsWithTheCardAndFillsUp)
{
    const auto model = make(card);
    const auto states = emissions(*model, &ProductModel::stateChanged);
    const auto products = emissions(*model, &ProductModel::productChanged);
    EXPECT_EQ(model->title(), QStringLiteral("Silk dress"));
    EXPECT_EQ(model->price(), QStringLiteral("$248.50"));
    EXPECT_EQ(model->formerPriceText(), QStringLiteral("$310.00"));
    EXPECT_EQ(model->pictures().size(), 2);
    EXPECT_EQ(model->pictureIndex(), -1);
    EXPECT_FALSE(model->isSoldOut());
    EXPECT_TRUE(get(*model, "options").toList().isEmpty());

    answer("Product", Answer::drop());
    model->load();
    EXPECT_EQ(model->phase(), Phase::Loading);
    model->load();
    settle(*model);
    EXPECT_EQ(model->phase(), Phase::Failed);
    EXPECT_TRUE(model->isOffline());
    EXPECT_EQ(*states, 2);
    EXPECT_EQ(model->price(), QStringLiteral("$248.50")); // the card stays

    answer("Product", found(dress));
    model->load();
    settle(*model);
    EXPECT_EQ(model->phase(), Phase::Loaded);
    EXPECT_EQ(model->errorText(), QString());
    EXPECT_TRUE(model->isComplete());
    EXPECT_EQ(*products, 1);
    EXPECT_EQ(model->pictures(), model->product()->images);
    model->load();
    EXPECT_FALSE(model->isLoading());

    load(*model, changed(changed(dress, QStringLiteral("images.nodes"), QJsonArray()),
                         QStringLiteral("availableForSale"), false));
    EXPECT_EQ(model->pictures().size(), 2); // those of its card
}

TEST_F(ProductModelTest, WhatIsChosenDecidesWhatIsShown)
{
    const auto model = make();
    model->choose(colour, QStringLiteral("Red")); // there is nothing to choose from yet
    load(*model, dress);
    struct Row {
        const char* option; ///< chosen on top of what the row before left
        const char* value;
        const char* price;
        const char* former;
        bool isSoldOut;
        const char* stock;
        int picture;
    };
    const auto selections = emissions(*model, &ProductModel::selectionChanged);
    for (const Row& row : {
             Row{"Nothing", "Red", "$255.00", "", false, "", -1}, // Ink, the first colour that can be bought
             Row{"Colour", "Blue", "$255.00", "", false, "", -1},
             Row{"Size", "S", "$260.00", "$310.00", false, "Only one left", 1},
             Row{"Size", "M", "$255.00", "", false, "", -1},
             Row{"Size", "M", "$255.00", "", false, "", -1}, // taken back
             Row{"Colour", "Red", "$248.50", "", true, "", 0}, Row{"Size", "S", "$248.50", "", true, "", 0},
             Row{"Size", "M", "$248.50", "$310.00", true, "", -1}, // no such piece: the price of the card
             Row{"Colour", "Red", "$255.00", "", false, "", -1},
             Row{"Size", "M", "$255.00", "", false, "", -1}, // nothing is chosen any more
         }) {
        model->choose(QLatin1String(row.option), QLatin1String(row.value));
        const std::string what = std::string(row.option) + '=' + row.value;
        EXPECT_EQ(model->price(), QLatin1String(row.price)) << what;
        EXPECT_EQ(model->formerPriceText(), QLatin1String(row.former)) << what;
        EXPECT_EQ(model->isSoldOut(), row.isSoldOut) << what;
        EXPECT_EQ(model->stockText(), QLatin1String(row.stock)) << what;
        EXPECT_EQ(model->pictureIndex(), row.picture) << what;
    }
    EXPECT_EQ(*selections, 8);
    EXPECT_TRUE(model->selection().isEmpty());
    EXPECT_EQ(get(*model, "options").toList().size(), 2);
}

TEST_F(ProductModelTest, OnlyTheLastThreePiecesAreWorthAWord)
{
    const auto model = make();
    for (const auto& [left, text] : {std::pair("-1", ""), std::pair("0", ""), std::pair("1", "Only one left"),
                                     std::pair("2", "Only 2 left"), std::pair("3", "Only 3 left"), std::pair("4", ""),
                                     std::pair("9007199254740991", ""), std::pair("null", "")}) {
        load(*model, changed(dress, QStringLiteral("variants.nodes[2].quantityAvailable"), json(left)));
        if (!model->selection().contains(size))
            model->choose(size, QStringLiteral("M"));
        EXPECT_EQ(model->stockText(), QLatin1String(text)) << left;
    }
}

TEST_F(ProductModelTest, AReloadKeepsWhatWasChosenAsFarAsItStillExists)
{
    const auto model = make();
    load(*model, dress);
    model->choose(colour, QStringLiteral("Red"));
    model->choose(size, QStringLiteral("M"));
    load(*model, dress);
    EXPECT_EQ(model->selection(), (Selection{{colour, QStringLiteral("Red")}, {size, QStringLiteral("M")}}));

    load(*model,
         changed(dress, QStringLiteral("options[0].optionValues"), json(R"([{"name": "Ink"}, {"name": "Sky"}])")));
    EXPECT_EQ(model->selection(), (Selection{{colour, QStringLiteral("Ink")}, {size, QStringLiteral("M")}}));
    load(*model,
         changed(dress, QStringLiteral("options"), json(R"([{"name": "Size", "optionValues": [{"name": "M"}]}])")));
    EXPECT_EQ(model->selection(), (Selection{{size, QStringLiteral("M")}}));
    model->choose(size, QStringLiteral("M")); // the only one stays
    EXPECT_EQ(model->selection(), (Selection{{size, QStringLiteral("M")}}));
}

TEST_F(ProductModelTest, AReloadTellsOnlyOfWhatHasChanged)
{
    const auto model = make();
    load(*model, dress);
    const auto pictures = emissions(*model, &ProductModel::picturesChanged);
    const auto details = emissions(*model, &ProductModel::detailsChanged);
    const auto tables = emissions(*model, &ProductModel::sizeTablesChanged);
    load(*model, changed(dress, QStringLiteral("title"), QStringLiteral("Renamed")));
    EXPECT_EQ(model->title(), QStringLiteral("Renamed"));
    EXPECT_EQ(*pictures + *details + *tables, 0);
    load(*model, changed(dress, QStringLiteral("images.nodes[0].url"), QStringLiteral("https://img.example/new.jpg")));
    EXPECT_EQ(*pictures, 1);
    EXPECT_EQ(*details, 0);
    load(*model, changed(dress, QStringLiteral("descriptionHtml"), QStringLiteral("<p>New</p>")));
    EXPECT_EQ(*details, 1);
    EXPECT_EQ(*tables, 1);
}

TEST_F(ProductModelTest, AnotherMarketLoadsAnewWhateverThereWasBefore)
{
    const auto model = make();
    const auto turn = [&](AppLanguage language, const QJsonValue& then, Phase phase) {
        answer("Countries", Answer::body("", 404));
        answer("Product", then);
        market.setLanguage(language);
        EXPECT_TRUE(model->isLoading());
        settle(*model);
        waitUntil([this] { return clock.sleepers() == 0; }, "the countries have their answer too");
        EXPECT_EQ(model->phase(), phase);
    };
    answer("Product", missing());
    model->load();
    settle(*model);
    EXPECT_EQ(model->phase(), Phase::Missing);
    model->load(); // it would be missing again
    EXPECT_FALSE(model->isLoading());

    turn(AppLanguage::German, found(dress), Phase::Loaded);
    turn(AppLanguage::Greek, missing(), Phase::Missing);
    EXPECT_EQ(model->title(), QString()); // nothing is shown of what is not sold here
    turn(AppLanguage::Czech, json("[]"), Phase::Failed);
    EXPECT_NE(model->errorText(), QString());
    answer("Product", found(dress));
    model->load(); // the next attempt
    settle(*model);
    EXPECT_EQ(model->phase(), Phase::Loaded);
    turn(AppLanguage::Thai, found(dress), Phase::Loaded);
}

TEST_F(ProductModelTest, SizesFollowTheUnitOfTheSettings)
{
    const auto model = make();
    load(*model, changed(dress, QStringLiteral("metafields[0]"), json(R"({"namespace": "custom", "key": "specs",
        "value": "{\"sizeTables\":[{\"title\":\"Sizes\",\"rows\":[[\"Size\",\"Bust\"],[\"S\",\"84 cm / 33 in\"]]}]}"})")));
    const auto bust = [&] {
        const QVariantMap table = get(*model, "sizeTables").toList().value(0).toMap();
        return table.value(QStringLiteral("rows")).toList().value(0).toStringList().value(1);
    };
    const auto tables = emissions(*model, &ProductModel::sizeTablesChanged);
    EXPECT_EQ(get(*model, "hasSizeUnits"), true);
    EXPECT_EQ(bust(), QStringLiteral("84 cm"));
    model->setProperty("isMetric", false);
    EXPECT_EQ(bust(), QStringLiteral("33 in"));
    preferences.set(preferences::sizeUnit, QStringLiteral("metric")); // in another window
    EXPECT_EQ(bust(), QStringLiteral("84 cm"));
    EXPECT_EQ(*tables, 2);
}

TEST_F(ProductModelTest, ALoadThatIsOvertakenShowsNothingAndAModelMayGoAtAnyTime)
{
    auto model = make();
    answer("Product", envelope(found(changed(dress, QStringLiteral("title"), QStringLiteral("Old")))).pauseAfter(0));
    model->load();
    server.waitForRequests(1);
    load(*model, dress);
    server.proceed();
    drainEvents();
    EXPECT_EQ(model->title(), QStringLiteral("Silk dress"));

    // At every step of a load: sent, answered, decoded, worked out.
    for (int turns = 0; model; ++turns) {
        answer("Product", found(dress));
        model->reload();
        server.waitForRequests(3 + static_cast<std::size_t>(turns));
        for (int i = 0; i < turns && model->isLoading(); ++i)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const bool wasLoading = model->isLoading();
        model.reset();
        waitUntil([this] { return clock.sleepers() == 0; }, "the request has ended");
        QThreadPool::globalInstance()->waitForDone();
        drainEvents();
        if (wasLoading)
            model = make();
    }
}

} // namespace
