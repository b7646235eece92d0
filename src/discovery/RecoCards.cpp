#include "discovery/RecoCards.h"

#include "base/TextChanges.h"
#include "catalog/MarketStore.h"
#include "commerce/CartStore.h"
#include "discovery/NotInterested.h"

namespace loom
{

RecoCards::RecoCards(const RecoServices& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_pieces(services.money, services.clock)
{
    connect(&services.hidden, &NotInterested::changed, this, &RecoCards::compose);
    connect(&services.cart, &CartStore::changed, this, &RecoCards::takeCart);
    connect(&services.market, &MarketStore::rateChanged, this, &RecoCards::compose);
    connect(&services.market, &MarketStore::revisionChanged, this, &RecoCards::compose);
    connect(&services.texts, &TextChanges::changed, this, &RecoCards::compose);
    takeCart();
}

QStringList RecoCards::handles() const
{
    QStringList handles;
    handles.reserve(count());
    for (const PieceRow& row : m_pieces.rows())
        handles.append(row.item.handle);
    return handles;
}

void RecoCards::replace(std::vector<RecoProduct> products)
{
    m_products = std::move(products);
    compose();
}

std::size_t RecoCards::append(std::vector<RecoProduct> products)
{
    QSet<QString> known;
    for (const RecoProduct& product : m_products)
        known.insert(product.handle);
    const std::size_t before = m_products.size();
    for (RecoProduct& product : products) {
        if (!known.contains(product.handle))
            m_products.push_back(std::move(product));
    }
    compose();
    return m_products.size() - before;
}

void RecoCards::setExcluded(QSet<QString> handles)
{
    if (handles == m_excluded)
        return;
    m_excluded = std::move(handles);
    compose();
}

void RecoCards::takeCart()
{
    QSet<QString> inCart;
    if (const auto& cart = m_services.cart.cart()) {
        for (const CartLine& line : cart->lines)
            inCart.insert(line.productHandle);
    }
    if (inCart == m_inCart) // carts tell of much else
        return;
    m_inCart = std::move(inCart);
    compose();
}

bool RecoCards::isShown(const QString& handle) const
{
    return !m_excluded.contains(handle) && !m_inCart.contains(handle) && !m_services.hidden.contains(handle);
}

PieceRow RecoCards::row(const RecoProduct& product) const
{
    PieceRow row{.item = cardOf(product, m_services.market.context().language),
                 .price = {},
                 .former = {},
                 .seenPrice = {},
                 .state = PieceRow::State::Current};
    row.reason = row.item.recoReason.value_or(QString());
    if (product.priceUSD > 0)
        row.price = m_services.market.convertUSDollars(product.priceUSD).money();
    return row;
}

void RecoCards::compose()
{
    const QStringList before = handles();
    std::vector<PieceRow> rows;
    rows.reserve(m_products.size());
    for (const RecoProduct& product : m_products) {
        if (isShown(product.handle))
            rows.push_back(row(product));
    }
    m_pieces.show(std::move(rows));
    if (handles() != before)
        Q_EMIT shownChanged();
}

} // namespace loom
