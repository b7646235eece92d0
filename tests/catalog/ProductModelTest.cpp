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

    QJsonObject dress = productJson(QStringLiteral("silk"));
    ProductListItem card = *decodeJson(bytes(cardJson(QStringLiteral("silk"))), decodeListItem);
};

TEST_F(ProductModelTest, APageBeginsWithTheCardAndFillsUp)
{
    const auto model = make(card);
    EXPECT_EQ(model->price(), QStringLiteral("$248.50"));
    EXPECT_EQ(model->pictures().size(), 2);
    answer("Product", Answer::drop());
    model->load();
    EXPECT_EQ(model->phase(), Phase::Loading);
    model->load();
    settle(*model);
    EXPECT_EQ(model->phase(), Phase::Failed);
    EXPECT_TRUE(model->isOffline());
    EXPECT_EQ(model->price(), QStringLiteral("$248.50")); // the card stays

    answer("Product", found(dress));
    model->load();
    settle(*model);
    EXPECT_EQ(model->phase(), Phase::Loaded);
    EXPECT_EQ(model->errorText(), QString());
    EXPECT_EQ(model->pictures(), model->product()->images);
}

TEST_F(ProductModelTest, OnlyTheLastThreePiecesAreWorthAWord)
{
    const auto model = make();
    for (const auto& [left, text] :
         {std::pair("-1", ""), std::pair("0", ""), std::pair("1", "Only one left"), std::pair("2", "Only 2 left"),
          std::pair("3", "Only 3 left"), std::pair("4", ""), std::pair("null", "")}) {
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
