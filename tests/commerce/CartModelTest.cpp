#include "commerce/CartModel.h"

#include "CartFixture.h"

#include <QAbstractItemModelTester>

using namespace loom;
using namespace std::chrono_literals;
using Presentation = CartModel::Presentation;

namespace
{

const QString one = QStringLiteral("one");
const QString two = QStringLiteral("two");

class CartModelTest : public CartFixture
{
protected:
    CartModelTest()
    {
        QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [] { ADD_FAILURE() << "reset"; });
    }

    [[nodiscard]] QString get(const char* name) const { return model.property(name).toString(); }
    [[nodiscard]] QVariant at(int row, int role) const { return model.data(model.index(row), role); }
    [[nodiscard]] std::string rows() const
    {
        QStringList ids;
        for (int i = 0; i < model.rowCount(); ++i)
            ids.append(at(i, CartModel::LineIdRole).toString());
        return ids.join(QLatin1Char(' ')).toStdString();
    }
    /// Another cart comes from the platform.
    void become(const QJsonValue& cart)
    {
        answerRead(cart);
        model.refresh();
        settle(sent() + 1);
    }
    [[nodiscard]] static QJsonValue costing(const char* subtotal, const char* total, const char* currency = "USD")
    {
        QJsonValue cart = cartJson({{"one", "v1", 1}});
        cart = changed(cart, QStringLiteral("cost.subtotalAmount.amount"), QLatin1String(subtotal));
        cart = changed(cart, QStringLiteral("cost.totalAmount.amount"), QLatin1String(total));
        cart = changed(cart, QStringLiteral("cost.subtotalAmount.currencyCode"), QLatin1String(currency));
        return changed(cart, QStringLiteral("cost.totalAmount.currencyCode"), QLatin1String(currency));
    }

    CartModel model{*store, 99, market, money, time};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(CartModelTest, RowsComeGoAndMoveWithoutAReset)
{
    const auto inserted = emissions(model, &QAbstractItemModel::rowsInserted);
    const auto removed = emissions(model, &QAbstractItemModel::rowsRemoved);
    const auto moved = emissions(model, &QAbstractItemModel::rowsMoved);
    const auto altered = emissions(model, &QAbstractItemModel::dataChanged);
    show({{"one", "v1", 1}, {"two", "v2", 2}});
    EXPECT_EQ(rows(), "one two");
    EXPECT_EQ(*inserted, 2);
    struct Row {
        std::vector<Goods> goods;
        const char* rows;
        int inserted;
        int removed;
        int moved;
        int altered;
    };
    for (const Row& row : {
             Row{{{"one", "v1", 1}, {"two", "v2", 2}}, "one two", 0, 0, 0, 0},
             Row{{{"one", "v1", 3}, {"two", "v2", 2}}, "one two", 0, 0, 0, 1},
             Row{{{"new", "v3", 1}, {"one", "v1", 3}, {"two", "v2", 2}}, "new one two", 1, 0, 0, 0},
             Row{{{"two", "v2", 2}, {"new", "v3", 1}, {"one", "v1", 3}}, "two new one", 0, 0, 1, 0},
             Row{{{"one", "v1", 3}, {"last", "v4", 1}}, "one last", 1, 2, 0, 0},
             Row{{}, "", 0, 2, 0, 0},
         }) {
        *inserted = *removed = *moved = *altered = 0;
        become(cartJson(row.goods));
        EXPECT_EQ(rows(), row.rows);
        EXPECT_EQ(*inserted, row.inserted) << row.rows;
        EXPECT_EQ(*removed, row.removed) << row.rows;
        EXPECT_EQ(*moved, row.moved) << row.rows;
        EXPECT_EQ(*altered, row.altered) << row.rows;
    }
}

TEST_F(CartModelTest, ARowTellsAllOfItsLine)
{
    QJsonValue cart = cartJson({{"one", "v1", 2}, {"two", "v2", 1}, {"three", "v3", 0}});
    cart = changed(cart, QStringLiteral("lines.nodes[1].merchandise.selectedOptions"),
                   json(R"([{"name": "Title", "value": "Default Title"}])"));
    cart = changed(cart, QStringLiteral("lines.nodes[1].merchandise.image"), QJsonValue::Null);
    cart = changed(cart, QStringLiteral("lines.nodes[1].merchandise.availableForSale"), false);
    cart = changed(cart, QStringLiteral("lines.nodes[1].merchandise.compareAtPrice.amount"), QStringLiteral("19.0"));
    remember(cartA);
    become(cart);
    struct Row {
        int role;
        QVariant first;
        QVariant second;
    };
    for (const Row& row : {
             Row{CartModel::ChoiceRole, QStringLiteral("Ink / S"), QString()},
             Row{CartModel::PictureRole, QStringLiteral("https://pictures.example/ink.jpg"), QString()},
             Row{CartModel::PriceRole, QStringLiteral("$40.00"), QStringLiteral("$20.00")},
             Row{CartModel::FormerPriceRole, QStringLiteral("$50.00"), QString()},
             Row{CartModel::NoteRole, QString(), QStringLiteral("Sold out")},
         }) {
        EXPECT_EQ(at(0, row.role).toString(), row.first.toString()) << row.role;
        EXPECT_EQ(at(1, row.role).toString(), row.second.toString()) << row.role;
    }
    EXPECT_EQ(at(2, CartModel::NoteRole), QStringLiteral("Sold out"));
    EXPECT_EQ(at(2, CartModel::FormerPriceRole), QString());
}

TEST_F(CartModelTest, ARowFollowsWhatHappensToItsLine)
{
    show({{"one", "v1", 1}, {"two", "v2", 1}});
    model.setQuantity(one, 4);
    EXPECT_EQ(at(0, CartModel::QuantityRole).toInt(), 4);
    EXPECT_FALSE(at(0, CartModel::BusyRole).toBool());
    answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", 3}, {"two", "v2", 1}})));
    time.advance(300ms);
    EXPECT_TRUE(at(0, CartModel::BusyRole).toBool());
    settle(2);
    EXPECT_EQ(at(0, CartModel::QuantityRole).toInt(), 3);
    EXPECT_FALSE(at(0, CartModel::BusyRole).toBool());
    EXPECT_EQ(at(0, CartModel::NoteRole), QStringLiteral("Only 3 left"));
    EXPECT_EQ(at(1, CartModel::NoteRole), QString());

    answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", 1}, {"two", "v2", 1}})));
    model.setQuantity(one, 2);
    time.advance(300ms);
    settle(3);
    EXPECT_EQ(at(0, CartModel::NoteRole), QStringLiteral("Only one left"));

    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 1}, {"two", "v2", 2}})));
    EXPECT_TRUE(run(store->add(QStringLiteral("v2"), 1)));
    EXPECT_TRUE(at(1, CartModel::AddedRole).toBool());
    time.advance(4s);
    EXPECT_FALSE(at(1, CartModel::AddedRole).toBool());
}

TEST_F(CartModelTest, TheWayToFreeDeliveryIsSaid)
{
    remember(cartA);
    become(costing("99.0", "79.0"));
    EXPECT_TRUE(model.isShippingFree());
    EXPECT_EQ(model.shippingFraction(), 1.0);
    EXPECT_EQ(get("discount"), QStringLiteral("-$20.00"));
    EXPECT_EQ(get("total"), QStringLiteral("$79.00"));

    become(costing("49.0", "49.0", "EUR")); // a currency without a rate so far
    EXPECT_FALSE(model.hasShipping());
    EXPECT_EQ(get("shippingText"), QString());
    EXPECT_EQ(get("discount"), QString());
    const QString sample = QStringLiteral("products.nodes[0].priceRange.minVariantPrice");
    const QJsonValue products = json(R"({"products": {"nodes": [{"priceRange": {}}]}})");
    answer("RateSample DE", changed(products, sample, json(R"({"amount": "50.0", "currencyCode": "EUR"})")));
    answer("RateSample US", changed(products, sample, json(R"({"amount": "100.0", "currencyCode": "USD"})")));
    market.setCountry(QStringLiteral("DE"));
    waitUntil([this] { return market.rate().has_value(); }, "the rate is known");
    EXPECT_EQ(get("shippingText"), QStringLiteral("Add €0.50 more for FREE worldwide shipping"));
    settle(sent());
}

TEST_F(CartModelTest, ACodeThatIsNotTakenIsNamedUntilAnotherIsWritten)
{
    const QJsonObject cart = cartJson({{"one", "v1", 1}});
    const auto with = [&cart](const char* codes) {
        return changedTo(changed(cart, QStringLiteral("discountCodes"), json(codes)));
    };
    show({{"one", "v1", 1}});
    const auto apply = [this](const char* text, std::size_t requests) {
        model.applyCode(QString::fromUtf8(text));
        EXPECT_TRUE(model.isApplyingCode());
        model.applyCode(QStringLiteral("impatient"));
        settle(sent() + requests);
        EXPECT_FALSE(model.isApplyingCode());
    };
    answer("ApplyDiscount", with("[]"));
    answer("ApplyDiscount", with("[]"));
    apply(" Ten% \n", 2);
    EXPECT_EQ(get("codeMessage"), QStringLiteral("“Ten%” doesn't apply to the items in your cart."));
    answer("ApplyDiscount", with("[]"));
    answer("ApplyDiscount", with("[]"));
    apply("%1", 2);
    EXPECT_EQ(get("codeMessage"), QStringLiteral("“%1” doesn't apply to the items in your cart."));
    model.forgetCodeMessage();
    EXPECT_EQ(get("codeMessage"), QString());

    answer("ApplyDiscount", Answer::body("", 500));
    apply("TEN", 1);
    EXPECT_EQ(get("codeMessage"), QStringLiteral("Couldn't apply that code. Try again."));
    answer("ApplyDiscount", with(R"([{"code": "OLD", "applicable": false}, {"code": "TEN", "applicable": true}])"));
    apply("ten", 1);
    EXPECT_EQ(get("codeMessage"), QString());
    EXPECT_EQ(get("appliedCode"), QStringLiteral("TEN"));
}

TEST_F(CartModelTest, ARemovalCanBeUndoneForTenSeconds)
{
    show({{"one", "v1", 3}, {"two", "v2", 0}});
    model.setQuantity(one, 5); // what is shown is what comes back
    answer("CartLinesRemove", changedTo(cartJson({{"two", "v2", 0}})));
    model.remove(one);
    EXPECT_EQ(get("removedTitle"), QString()); // not gone yet
    settle(2);
    EXPECT_EQ(get("removedTitle"), QStringLiteral("Silk dress"));
    answer("CartLinesAdd", changedTo(cartJson({{"two", "v2", 0}, {"one", "v1", 5}})));
    model.undoRemoval();
    EXPECT_TRUE(model.isPuttingBack());
    EXPECT_EQ(get("removedTitle"), QString());
    model.undoRemoval();
    settle(3);
    EXPECT_FALSE(model.isPuttingBack());
    EXPECT_EQ(bytes(lastVariables().value(QStringLiteral("lines"))), R"([{"merchandiseId":"v1","quantity":5}])");
    time.advance(4s);

    answer("CartLinesRemove", changedTo(cartJson({{"two", "v2", 0}})));
    model.remove(one);
    settle(4);
    time.advance(9999ms);
    EXPECT_EQ(get("removedTitle"), QStringLiteral("Silk dress"));
    time.advance(1ms);
    EXPECT_EQ(get("removedTitle"), QString());
    model.undoRemoval();
    EXPECT_FALSE(model.isPuttingBack());

    answer("CartLinesRemove", changedTo(cartJson()));
    model.remove(two); // there is nothing of it to put back
    settle(5);
    EXPECT_EQ(get("removedTitle"), QString());
    EXPECT_EQ(model.presentation(), Presentation::Empty);
}

TEST_F(CartModelTest, ARemovalThatFailedIsNotOfferedToBeUndone)
{
    show({{"one", "v1", 3}});
    answer("CartLinesRemove", Answer::body("", 500));
    model.remove(one);
    settle(2);
    EXPECT_EQ(get("removedTitle"), QString());
    EXPECT_NE(get("errorText"), QString());
    model.undoRemoval();
    EXPECT_EQ(sent(), 2U);
}

} // namespace
