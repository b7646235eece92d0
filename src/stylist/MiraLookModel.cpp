#include "stylist/MiraLookModel.h"

#include "catalog/MarketStore.h"
#include "catalog/MoneyFormat.h"
#include "catalog/ProductListModel.h"
#include "catalog/StorefrontAPI.h"
#include "commerce/CartStore.h"
#include "commerce/CheckoutStarter.h"
#include "stylist/MiraSizeAPI.h"

#include <QCoreApplication>

namespace loom
{

MiraLookModel::MiraLookModel(const QStringList& handles, const Services& services, QObject* parent)
    : QAbstractListModel(parent)
    , m_services(services)
    , m_adding([this] { Q_EMIT changed(); })
{
    connect(&services.market, &MarketStore::revisionChanged, this, &MiraLookModel::reload);
    connect(&services.cart, &CartStore::changed, this, &MiraLookModel::followCart);
    connect(&services.checkout, &CheckoutStarter::changed, this, &MiraLookModel::followCheckout);
    connect(&services.checkout, &CheckoutStarter::ready, this,
            [this](const CheckoutModel* checkout) { noteCheckout(*checkout); });
    QStringList taken;
    for (const QString& handle : handles) {
        if (handle.isEmpty() || taken.contains(handle) || taken.size() >= maximumPieces)
            continue;
        taken.append(handle);
        m_places.push_back(std::make_unique<Place>());
        m_places.back()->piece.handle = handle;
    }
    for (const auto& place : m_places)
        load(*place);
}

MiraLookModel::~MiraLookModel() = default;

MiraLookModel::Place* MiraLookModel::placeAt(int row) const
{
    return row >= 0 && row < count() ? m_places[static_cast<std::size_t>(row)].get() : nullptr;
}

std::vector<MiraLookModel::Place*> MiraLookModel::wanted() const
{
    std::vector<Place*> places;
    for (const auto& place : m_places) {
        if (place->piece.isWanted())
            places.push_back(place.get());
    }
    return places;
}

void MiraLookModel::tell(const Place& place)
{
    const auto found = std::ranges::find(m_places, &place, [](const std::unique_ptr<Place>& one) { return one.get(); });
    const QModelIndex row = index(static_cast<int>(found - m_places.begin()));
    m_asksSizes = m_asksSizes && !piecesWithoutSize().isEmpty();
    Q_EMIT dataChanged(row, row);
    Q_EMIT changed();
}

void MiraLookModel::tellAll()
{
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1));
    Q_EMIT changed();
}

// The pieces.

QCoro::Task<> MiraLookModel::fetch(Place* place)
{
    const Work::Run run = place->loading.begin();
    LookPiece& piece = place->piece;
    piece.failure.reset();
    auto answer = co_await m_services.catalog.product(piece.handle, run.stop());
    if (run.isStopped())
        co_return;
    piece.isMissing = answer && !*answer;
    if (!answer && !answer.error().isCancelled())
        piece.failure = answer.error().error();
    if (answer && *answer)
        piece.adopt(**std::move(answer));
    else
        piece.lose();
    tell(*place);
    if (run.isStopped() || !piece.isReady() || piece.sizes().empty() || !piece.advice.isEmpty())
        co_return;
    const auto advice =
        co_await m_services.sizes.recommendedSize(piece.handle, m_services.market.languageCode(), run.stop());
    if (run.isStopped() || !advice || !*advice)
        co_return;
    piece.advise(**advice);
    tell(*place);
}

void MiraLookModel::reload()
{
    for (const auto& place : m_places) {
        LookPiece& piece = place->piece;
        // Prices are of another market now.
        place->seeking.stop();
        piece.alternatives.clear();
        piece.wasSought = false;
        load(*place);
    }
    tellAll();
}

void MiraLookModel::retry()
{
    for (const auto& place : m_places) {
        if (place->piece.failure && !place->piece.isLeftOut)
            load(*place);
    }
    tellAll();
}

void MiraLookModel::chooseSize(int row, const QString& size)
{
    Place* const place = placeAt(row);
    if (!place)
        return;
    place->piece.chooseSize(size);
    tell(*place);
}

void MiraLookModel::setLeftOut(int row, bool isLeftOut)
{
    Place* const place = placeAt(row);
    if (!place || place->piece.isLeftOut == isLeftOut)
        return;
    place->piece.isLeftOut = isLeftOut;
    tell(*place);
}

QStringList MiraLookModel::otherHandles(const Place& place) const
{
    QStringList handles;
    for (const auto& other : m_places) {
        if (other.get() != &place)
            handles.append(other->piece.handle);
    }
    return handles;
}

QVariantList MiraLookModel::alternatives(const Place& place) const
{
    QVariantList list;
    QStringList taken = otherHandles(place) + QStringList{place.piece.handle};
    const auto add = [&](const ProductListItem& item, bool isOriginal) {
        if (taken.contains(item.handle) || list.size() >= maximumAlternatives)
            return;
        taken.append(item.handle);
        list.append(QVariantMap{{QStringLiteral("handle"), item.handle},
                                {QStringLiteral("title"), item.title},
                                {QStringLiteral("designer"), item.vendor},
                                {QStringLiteral("price"), m_services.money.text(item.price)},
                                {QStringLiteral("picture"), cardPictures(item).value(0)},
                                {QStringLiteral("isOriginal"), isOriginal}});
    };
    if (place.piece.original)
        add(*place.piece.original, true);
    for (const ProductListItem& item : place.piece.alternatives)
        add(item, false);
    return list;
}

void MiraLookModel::seekAlternatives(int row)
{
    Place* const place = placeAt(row);
    if (place && place->piece.product && !place->piece.wasSought && !place->seeking.isRunning())
        static_cast<void>(seek(place));
}

QCoro::Task<> MiraLookModel::seek(Place* place)
{
    const Work::Run run = place->seeking.begin();
    place->piece.seekFailure.reset();
    tell(*place);
    auto answer = co_await m_services.catalog.recommendations(place->piece.product->item.id, run.stop());
    if (run.isStopped())
        co_return;
    if (answer) {
        std::erase_if(*answer, [](const ProductListItem& item) { return item.availableForSale == false; });
        place->piece.alternatives = *std::move(answer);
        place->piece.wasSought = true;
    } else if (!answer.error().isCancelled()) {
        place->piece.seekFailure = answer.error().error();
    }
    place->seeking.stop(); // before it is told of
    tell(*place);
}

void MiraLookModel::swap(int row, const QString& handle)
{
    Place* const place = placeAt(row);
    if (!place || otherHandles(*place).contains(handle))
        return;
    std::vector<ProductListItem> offered = place->piece.alternatives;
    if (place->piece.original)
        offered.push_back(*place->piece.original);
    const auto found = std::ranges::find(offered, handle, &ProductListItem::handle);
    if (found == offered.end())
        return;
    place->piece.swapFor(*found);
    load(*place);
    tell(*place);
}

// What it comes to, and the way to buy it.

bool MiraLookModel::isLoading() const
{
    return std::ranges::any_of(m_places, [](const auto& place) {
        return !place->piece.isLeftOut && place->piece.phase() == LookPiece::Phase::Loading;
    });
}

bool MiraLookModel::hasFailed() const
{
    return std::ranges::any_of(m_places, [](const auto& place) {
        return !place->piece.isLeftOut && place->piece.phase() == LookPiece::Phase::Failed;
    });
}

QString MiraLookModel::moneyText(const std::optional<Money>& money) const
{
    return money ? m_services.money.text(*money) : QString();
}

QString MiraLookModel::total() const
{
    return moneyText(sum(&LookPiece::price));
}

QString MiraLookModel::formerTotal() const
{
    const auto former = sum(&LookPiece::priceBefore);
    return former == sum(&LookPiece::price) ? QString() : moneyText(former);
}

std::optional<Money> MiraLookModel::sum(std::optional<Money> (LookPiece::*price)() const) const
{
    std::optional<Money> sum;
    for (const Place* const place : wanted()) {
        const auto summand = (place->piece.*price)();
        // While the market changes, pieces may be priced in two currencies.
        if (!summand || (sum && sum->currencyCode != summand->currencyCode))
            return std::nullopt;
        sum = Money{.amount = summand->amount + (sum ? sum->amount : 0), .currencyCode = summand->currencyCode};
    }
    return sum;
}

bool MiraLookModel::isInCart(const LookPiece& piece) const
{
    const ProductVariant* const variant = piece.chosenVariant();
    return variant && m_added.value(piece.handle) == variant->id;
}

bool MiraLookModel::isInCart() const
{
    const std::vector<Place*> places = wanted();
    return !places.empty() && !isLoading() &&
           std::ranges::all_of(places, [this](const Place* place) { return isInCart(place->piece); });
}

bool MiraLookModel::canAdd() const
{
    return pieces() > 0 && !isLoading() && !isInCart();
}

QStringList MiraLookModel::piecesWithoutSize() const
{
    QStringList titles;
    for (const Place* const place : wanted()) {
        if (place->piece.lacksSize())
            titles.append(place->piece.item()->title);
    }
    return titles;
}

QString MiraLookModel::sizesText() const
{
    const QStringList titles = m_asksSizes ? piecesWithoutSize() : QStringList();
    return titles.isEmpty() ? QString()
                            : QCoreApplication::translate("Loomstreet", "Choose sizes for %1")
                                  .arg(titles.join(QStringLiteral(", ")));
}

QString MiraLookModel::soldOutText() const
{
    return m_soldOut.isEmpty() ? QString()
                               : QCoreApplication::translate("Loomstreet", "Sold out meanwhile and not added: %1")
                                     .arg(m_soldOut.join(QStringLiteral(", ")));
}

QString MiraLookModel::failure() const
{
    if (m_hasCheckoutFailed)
        return QCoreApplication::translate("Loomstreet",
                                           "Couldn't start checkout. Check your connection and try again.");
    return m_addFailure ? errorDescription(*m_addFailure) : QString();
}

void MiraLookModel::add()
{
    if (isAdding() || !canAdd())
        return;
    m_hasCheckoutFailed = false;
    m_addFailure.reset();
    m_soldOut.clear();
    m_asksSizes = !piecesWithoutSize().isEmpty();
    tellAll();
    if (!m_asksSizes)
        static_cast<void>(addWanted());
}

QCoro::Task<> MiraLookModel::addWanted()
{
    const Work::Run run = m_adding.begin();
    std::vector<CartLineInput> lines;
    std::vector<std::pair<QString, QString>> sent; // handle and variant: a place may be swapped meanwhile
    for (const Place* const place : wanted()) {
        if (isInCart(place->piece))
            continue;
        const QString variant = place->piece.chosenVariant()->id;
        lines.push_back({.merchandiseId = variant, .quantity = 1});
        sent.emplace_back(place->piece.handle, variant);
    }
    const auto soldOut = co_await m_services.cart.addAll(lines);
    if (run.isStopped())
        co_return;
    if (!soldOut) {
        if (!soldOut.error().isCancelled())
            m_addFailure = soldOut.error().error();
        co_return; // the end of the run tells of the change
    }
    QStringList handles;
    for (const auto& [handle, variant] : sent) {
        if (soldOut->contains(variant)) {
            markSoldOut(handle, variant);
            continue;
        }
        handles.append(handle);
        m_added.insert(handle, variant);
        m_seenInCart.remove(variant);
    }
    followCart();
    tellAll();
    if (!handles.isEmpty())
        Q_EMIT added(handles);
}

void MiraLookModel::markSoldOut(const QString& handle, const QString& variantID)
{
    for (const auto& place : m_places) {
        if (place->piece.handle != handle)
            continue;
        m_soldOut.append(place->piece.item()->title);
        place->piece.markSoldOut(variantID);
    }
}

/// What the shopper takes out of the cart can be added again. The cart may be read a moment late.
void MiraLookModel::followCart()
{
    const std::optional<Cart>& cart = m_services.cart.cart();
    const auto isGone = [&](const auto& added) {
        if (cart && cart->lineOfVariant(added.value())) {
            m_seenInCart.insert(added.value());
            return false;
        }
        return m_seenInCart.remove(added.value());
    };
    if (m_added.removeIf(isGone) > 0)
        tellAll();
}

void MiraLookModel::startCheckout()
{
    const std::optional<Cart>& cart = m_services.cart.cart();
    if (!cart || isStartingCheckout())
        return;
    m_hasCheckoutFailed = false;
    m_wantsCheckout = true;
    Q_EMIT changed();
    m_services.checkout.start({.url = cart->checkoutURL, .fromCart = true});
}

bool MiraLookModel::isStartingCheckout() const
{
    return m_wantsCheckout && m_services.checkout.isStarting();
}

void MiraLookModel::followCheckout()
{
    if (!m_wantsCheckout)
        return;
    if (!m_services.checkout.isStarting() && !m_services.checkout.cartErrorText().isEmpty()) {
        m_wantsCheckout = false;
        m_hasCheckoutFailed = true;
        m_services.checkout.forgetError(); // it is told of here, and in other words
    }
    Q_EMIT changed();
}

void MiraLookModel::noteCheckout(const CheckoutModel& checkout)
{
    if (!checkout.request().fromCart || !std::exchange(m_wantsCheckout, false))
        return;
    Q_EMIT changed();
    Q_EMIT checkoutShown();
}

} // namespace loom
