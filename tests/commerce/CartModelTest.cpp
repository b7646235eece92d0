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

TEST_F(CartModelTest, ACartIsPresentedInFourWays)
{
    EXPECT_EQ(model.presentation(), Presentation::Empty);
    EXPECT_EQ(model.itemCount(), 0);
    EXPECT_EQ(get("itemCountText"), QStringLiteral("0 items in your cart"));
    EXPECT_FALSE(model.hasShipping());
    EXPECT_EQ(get("subtotal") + get("total") + get("discount") + get("shippingText") + get("errorText"), QString());
    EXPECT_EQ(model.checkoutURL(), QUrl());

    remember(cartA);
    answer("GetCart", graphQLError("no"));
    model.refresh();
    EXPECT_EQ(model.presentation(), Presentation::Loading);
    settle(1);
    EXPECT_EQ(model.presentation(), Presentation::Failed);

    become(cartJson());
    EXPECT_EQ(model.presentation(), Presentation::Empty);
    become(cartJson({{"one", "v1", 1}}));
    EXPECT_EQ(model.presentation(), Presentation::Lines);
    EXPECT_EQ(get("itemCountText"), QStringLiteral("1 item in your cart"));
    EXPECT_EQ(model.checkoutURL(), QUrl(QStringLiteral("https://shop.example/cart/c/a?key=1")));
    become(cartJson({{"one", "v1", 1}, {"two", "v2", 2}}));
    EXPECT_EQ(get("itemCountText"), QStringLiteral("3 items in your cart"));
    EXPECT_EQ(get("subtotal"), QStringLiteral("$60.00"));

    answer("GetCart", graphQLError("no"));
    model.refresh();
    EXPECT_EQ(model.presentation(), Presentation::Lines); // silently
    settle(sent() + 1);
    EXPECT_EQ(model.presentation(), Presentation::Lines);
    become(QJsonValue::Null);
    EXPECT_EQ(model.presentation(), Presentation::Empty);
    EXPECT_EQ(model.rowCount(), 0);
}

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

    std::vector<QByteArray> names;
    for (int i = 0; i < 100; ++i)
        names.push_back("line-" + QByteArray::number(i));
    std::vector<Goods> many;
    for (const QByteArray& name : names)
        many.push_back({name.constData(), name.constData(), 1});
    become(cartJson(many));
    EXPECT_EQ(model.rowCount(), 100);
    *altered = 0;
    answer("CartLinesUpdate", changedTo(cartJson(many)));
    model.setQuantity(QStringLiteral("line-50"), 2);
    EXPECT_EQ(*altered, 1); // one row, not a hundred
    time.advance(300ms);
    settle(sent() + 1);
    std::ranges::reverse(many);
    become(cartJson(many));
    EXPECT_EQ(at(0, CartModel::LineIdRole), QStringLiteral("line-99"));
    EXPECT_EQ(at(99, CartModel::LineIdRole), QStringLiteral("line-0"));
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
        const char* name;
        QVariant first;
        QVariant second;
    };
    for (const Row& row : {
             Row{CartModel::LineIdRole, "lineId", one, two},
             Row{CartModel::HandleRole, "handle", QStringLiteral("silk"), QStringLiteral("silk")},
             Row{CartModel::TitleRole, "title", QStringLiteral("Silk dress"), QStringLiteral("Silk dress")},
             Row{CartModel::DesignerRole, "designer", QStringLiteral("Ada Lin"), QStringLiteral("Ada Lin")},
             Row{CartModel::ChoiceRole, "choice", QStringLiteral("Ink / S"), QString()},
             Row{CartModel::PictureRole, "picture", QStringLiteral("https://pictures.example/ink.jpg"), QString()},
             Row{CartModel::QuantityRole, "quantity", 2, 1},
             Row{CartModel::PriceRole, "price", QStringLiteral("$40.00"), QStringLiteral("$20.00")},
             Row{CartModel::FormerPriceRole, "formerPrice", QStringLiteral("$50.00"), QString()},
             Row{CartModel::BusyRole, "busy", false, false},
             Row{CartModel::AddedRole, "justAdded", false, false},
             Row{CartModel::NoteRole, "note", QString(), QStringLiteral("Sold out")},
         }) {
        EXPECT_EQ(model.roleNames().value(row.role), row.name);
        EXPECT_EQ(at(0, row.role).toString(), row.first.toString()) << row.name;
        EXPECT_EQ(at(1, row.role).toString(), row.second.toString()) << row.name;
    }
    EXPECT_EQ(at(2, CartModel::NoteRole), QStringLiteral("Sold out"));
    EXPECT_EQ(at(2, CartModel::FormerPriceRole), QString());
    EXPECT_FALSE(at(0, Qt::DisplayRole).isValid());
    EXPECT_EQ(model.rowCount(model.index(0)), 0);
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

    answer("CartLinesUpdate", Answer::body("", 500));
    model.setQuantity(one, 5);
    time.advance(300ms);
    settle(5);
    EXPECT_EQ(at(0, CartModel::QuantityRole).toInt(), 1);
    EXPECT_EQ(get("errorText"), QStringLiteral("LOOMSTREET is having trouble right now. Try again shortly."));
}

TEST_F(CartModelTest, TheWayToFreeDeliveryIsSaid)
{
    remember(cartA);
    become(costing("98.5", "98.5"));
    EXPECT_EQ(get("shippingText"), QStringLiteral("Add $0.50 more for FREE worldwide shipping"));
    EXPECT_FALSE(model.isShippingFree());
    EXPECT_EQ(get("shippingThreshold"), QStringLiteral("$99.00"));
    become(costing("99.0", "79.0"));
    EXPECT_EQ(get("shippingText"), QStringLiteral("You've unlocked FREE worldwide shipping"));
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

    answer("ApplyDiscount", with("[]"));
    model.removeCode();
    settle(sent() + 1);
    EXPECT_EQ(get("appliedCode"), QString());
    model.applyCode(QStringLiteral("  "));
    EXPECT_FALSE(model.isApplyingCode());
    EXPECT_EQ(get("codeMessage"), QString());
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

    answer("CartLinesRemove", changedTo(cartJson()));
    model.remove(one);
    settle(3);
    answer("CartLinesAdd", Answer::body("", 500));
    model.undoRemoval();
    settle(4);
    EXPECT_EQ(get("errorText"), QStringLiteral("LOOMSTREET is having trouble right now. Try again shortly."));
}

TEST_F(CartModelTest, LostPiecesAreOfferedInOneStep)
{
    show({{"one", "v1", 3}, {"two", "v2", 2}});
    answer("CartLinesAdd", refused("no"));
    answer("CartCreate", changedTo(cartJson({{"three", "v3", 1}}, cartB)));
    EXPECT_TRUE(run(store->add(QStringLiteral("v3"), 1)));
    EXPECT_EQ(model.lostCount(), 5);
    EXPECT_EQ(rows(), "three");
    answer("CartLinesAdd", Answer::body("", 500));
    model.restoreLostLines();
    EXPECT_TRUE(model.isPuttingBack());
    settle(4);
    EXPECT_EQ(model.lostCount(), 5);
    EXPECT_NE(get("errorText"), QString());
    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 3}, {"two", "v2", 2}, {"three", "v3", 1}}, cartB)));
    model.restoreLostLines();
    settle(5);
    EXPECT_EQ(model.lostCount(), 0);
    EXPECT_EQ(get("errorText"), QString());
    EXPECT_EQ(rows(), "one two three");
    model.forgetLostLines();
    EXPECT_EQ(model.lostCount(), 0);
}

} // namespace
