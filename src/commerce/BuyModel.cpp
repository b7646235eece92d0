#include "commerce/BuyModel.h"

#include "base/Clock.h"
#include "catalog/ProductModel.h"
#include "commerce/CartStore.h"

#include <QCoreApplication>

namespace loom
{

using namespace std::chrono_literals;

namespace
{

constexpr std::chrono::seconds addedDuration = 4s;

} // namespace

BuyModel::BuyModel(ProductModel& product, CartStore& cart, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_product(product)
    , m_cart(cart)
    , m_clock(clock)
    , m_adding([this] { Q_EMIT changed(); })
    , m_buying([this] { Q_EMIT changed(); })
{
    connect(&product, &ProductModel::selectionChanged, this, [this] {
        m_telling.stop();
        m_wasAdded = false;
        setObstacle(Obstacle::None);
    });
    connect(&product, &ProductModel::productChanged, this, &BuyModel::changed);
}

bool BuyModel::canBuy() const
{
    return m_product.product() && !m_product.isSoldOut();
}

QString BuyModel::missingOption() const
{
    if (!m_product.product() || !variantID().isEmpty())
        return {};
    for (const ProductOption& option : m_product.product()->options) {
        if (!m_product.selection().contains(option.name))
            return option.name;
    }
    return {};
}

QString BuyModel::variantID() const
{
    if (!m_product.product())
        return {};
    const ProductVariant* const variant = selectedVariant(*m_product.product(), m_product.selection());
    return variant ? variant->id : QString();
}

QString BuyModel::message() const
{
    switch (m_obstacle) {
    case Obstacle::None:
        return {};
    case Obstacle::OptionMissing:
        return missingOption().isEmpty() ? QString() : optionMissingText(missingOption());
    case Obstacle::SoldOut:
        return QCoreApplication::translate("Loomstreet", "Sold out");
    case Obstacle::Failed:
        return m_failure ? errorDescription(*m_failure) : QString();
    }
    return {};
}

void BuyModel::setObstacle(Obstacle obstacle, std::optional<APIError> failure)
{
    m_obstacle = obstacle;
    m_failure = std::move(failure);
    Q_EMIT changed();
}

bool BuyModel::isChosen()
{
    if (!canBuy())
        return false;
    setObstacle(variantID().isEmpty() ? Obstacle::OptionMissing : Obstacle::None);
    return m_obstacle == Obstacle::None;
}

void BuyModel::add()
{
    if (!isAdding() && isChosen())
        static_cast<void>(addChosen());
}

void BuyModel::buyNow()
{
    if (!isBuying() && isChosen())
        static_cast<void>(buyChosen());
}

QCoro::Task<> BuyModel::addChosen()
{
    const Work::Run run = m_adding.begin();
    const auto outcome = co_await m_cart.add(variantID(), 1);
    if (run.isStopped())
        co_return;
    if (!outcome) {
        if (!outcome.error().isCancelled())
            setObstacle(Obstacle::Failed, outcome.error().error());
        co_return;
    }
    if (*outcome == AddOutcome::SoldOut) {
        setObstacle(Obstacle::SoldOut);
        co_return;
    }
    static_cast<void>(tellAdded()); // the end of the run tells of the change
    Q_EMIT added();
}

QCoro::Task<> BuyModel::tellAdded()
{
    const Work::Run run = m_telling.begin();
    m_wasAdded = true;
    co_await m_clock.sleep(addedDuration, run.stop());
    if (run.isStopped())
        co_return;
    m_wasAdded = false;
    Q_EMIT changed();
}

QCoro::Task<> BuyModel::buyChosen()
{
    const Work::Run run = m_buying.begin();
    const auto cart = co_await m_cart.createCart({{.merchandiseId = variantID(), .quantity = 1}});
    if (run.isStopped())
        co_return;
    if (!cart) {
        if (!cart.error().isCancelled())
            setObstacle(Obstacle::Failed, cart.error().error());
        co_return;
    }
    const bool isInStock = std::ranges::any_of(cart->lines, [](const CartLine& line) { return line.quantity > 0; });
    if (isInStock)
        Q_EMIT checkoutWanted(cart->checkoutURL);
    else
        setObstacle(Obstacle::SoldOut);
}

} // namespace loom
