#pragma once

#include "net/ApiResult.h"
#include "net/Work.h"

#include <QObject>
#include <QUrl>
#include <qcoro/qcorotask.h>

namespace loom
{

class CartStore;
class Clock;
class ProductModel;

/// The two ways to buy what is chosen on a product's page: into the cart, or at once by itself. Main thread; belongs
/// to the page.
class BuyModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool canBuy READ canBuy NOTIFY changed)
    Q_PROPERTY(QString missingOption READ missingOption NOTIFY changed)
    Q_PROPERTY(bool isAdding READ isAdding NOTIFY changed)
    Q_PROPERTY(bool wasAdded READ wasAdded NOTIFY changed)
    Q_PROPERTY(bool isBuying READ isBuying NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)

public:
    BuyModel(ProductModel& product, CartStore& cart, Clock& clock, QObject* parent = nullptr);

    /// Whether something of what is chosen can be bought.
    [[nodiscard]] bool canBuy() const;
    /// The first option without a chosen value; empty when a variant is chosen.
    [[nodiscard]] QString missingOption() const;
    [[nodiscard]] bool isAdding() const { return m_adding.isRunning(); }
    /// It was put into the cart a moment ago.
    [[nodiscard]] bool wasAdded() const { return m_wasAdded; }
    [[nodiscard]] bool isBuying() const { return m_buying.isRunning(); }
    /// What is in the way; empty when nothing is.
    [[nodiscard]] QString message() const;

    Q_INVOKABLE void add();
    Q_INVOKABLE void buyNow();

Q_SIGNALS:
    void changed();
    void added();
    /// A cart for this alone is ready to be paid for.
    void checkoutWanted(const QUrl& url);

private:
    enum class Obstacle { None, OptionMissing, SoldOut, Failed };

    [[nodiscard]] QString variantID() const;
    [[nodiscard]] bool isChosen();
    void setObstacle(Obstacle obstacle, std::optional<APIError> failure = {});
    [[nodiscard]] QCoro::Task<> addChosen();
    [[nodiscard]] QCoro::Task<> tellAdded();
    [[nodiscard]] QCoro::Task<> buyChosen();

    ProductModel& m_product;
    CartStore& m_cart;
    Clock& m_clock;
    Obstacle m_obstacle = Obstacle::None;
    std::optional<APIError> m_failure;
    bool m_wasAdded = false;
    Work m_adding;
    Work m_buying;
    Work m_telling;
};

} // namespace loom
