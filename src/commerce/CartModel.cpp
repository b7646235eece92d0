#include "commerce/CartModel.h"

#include "base/Clock.h"
#include "catalog/MarketStore.h"
#include "catalog/MoneyFormat.h"
#include "catalog/VariantSelection.h"

#include <QCoreApplication>

namespace loom
{

using namespace std::chrono_literals;

namespace
{

/// How long a removal can be undone.
constexpr std::chrono::seconds undoDuration = 10s;

QString choice(const CartLine& line)
{
    QStringList values;
    for (const SelectedOption& option : line.selectedOptions) {
        if (option.value != QLatin1String("Default Title"))
            values.append(option.value);
    }
    return values.join(QStringLiteral(" / "));
}

} // namespace

CartModel::CartModel(CartStore& store, double freeShippingThreshold, const MarketStore& market,
                     const MoneyFormat& money, Clock& clock, QObject* parent)
    : QAbstractListModel(parent)
    , m_store(store)
    , m_freeShippingThreshold(freeShippingThreshold)
    , m_market(market)
    , m_money(money)
    , m_clock(clock)
    , m_puttingBack([this] { Q_EMIT changed(); })
{
    connect(&m_store, &CartStore::changed, this, &CartModel::update);
    connect(&market, &MarketStore::rateChanged, this, &CartModel::update);
    update();
}

void CartModel::update()
{
    std::vector<Row> rows;
    m_shipping.reset();
    if (const std::optional<Cart>& cart = m_store.cart()) {
        const QSet<QString> busy = m_store.busyLines();
        for (const CartLine& line : cart->lines)
            rows.push_back({.line = line,
                            .shownQuantity = m_store.shownQuantity(line),
                            .isBusy = busy.contains(line.id),
                            .isAdded = m_store.justAdded() == line.id,
                            .isClamped = m_store.isClamped(line)});
        m_shipping = shippingProgress(cart->subtotal, m_freeShippingThreshold, m_market.rate());
    } else {
        m_codeFailed = false;
        m_refusedCode.reset();
    }
    showRows(std::move(rows));
    offerWhenGone();
    Q_EMIT changed();
}

/// Brings the rows into their new state without taking away those that stay.
void CartModel::showRows(std::vector<Row> rows)
{
    const auto idOf = [](const Row& row) -> const QString& {
        return row.line.id;
    };
    for (int i = static_cast<int>(m_rows.size()) - 1; i >= 0; --i) {
        if (std::ranges::find(rows, idOf(m_rows[static_cast<std::size_t>(i)]), idOf) != rows.end())
            continue;
        beginRemoveRows({}, i, i);
        m_rows.erase(m_rows.begin() + i);
        endRemoveRows();
    }
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        Row& row = rows[static_cast<std::size_t>(i)];
        const auto place = m_rows.begin() + i;
        const auto found = std::ranges::find(place, m_rows.end(), idOf(row), idOf);
        if (found == m_rows.end()) {
            beginInsertRows({}, i, i);
            m_rows.insert(place, std::move(row));
            endInsertRows();
            continue;
        }
        if (found != place) {
            const int from = static_cast<int>(found - m_rows.begin());
            beginMoveRows({}, from, from, {}, i);
            std::rotate(place, found, found + 1);
            endMoveRows();
        }
        if (Row& shown = m_rows[static_cast<std::size_t>(i)]; shown != row) {
            shown = std::move(row);
            Q_EMIT dataChanged(index(i), index(i));
        }
    }
}

CartModel::Presentation CartModel::presentation() const
{
    if (m_store.isLoading())
        return Presentation::Loading;
    if (m_store.loadError())
        return Presentation::Failed;
    return m_rows.empty() ? Presentation::Empty : Presentation::Lines;
}

int CartModel::itemCount() const
{
    return m_store.cart() ? static_cast<int>(m_store.cart()->totalQuantity) : 0;
}

QString CartModel::itemCountText() const
{
    return QCoreApplication::translate("Loomstreet", "%Ln items in your cart", nullptr, itemCount());
}

QUrl CartModel::checkoutURL() const
{
    return m_store.cart() ? m_store.cart()->checkoutURL : QUrl();
}

QString CartModel::subtotal() const
{
    return m_store.cart() ? m_money.text(m_store.cart()->subtotal) : QString();
}

QString CartModel::total() const
{
    return m_store.cart() ? m_money.text(m_store.cart()->total) : QString();
}

QString CartModel::discount() const
{
    const std::optional<Cart>& cart = m_store.cart();
    if (!cart || cart->subtotal.currencyCode != cart->total.currencyCode || cart->subtotal.amount <= cart->total.amount)
        return {};
    return m_money.text(
        {.amount = cart->total.amount - cart->subtotal.amount, .currencyCode = cart->total.currencyCode});
}

QString CartModel::appliedCode() const
{
    if (m_store.cart()) {
        for (const CartDiscountCode& code : m_store.cart()->discountCodes) {
            if (code.applicable)
                return code.code;
        }
    }
    return {};
}

QString CartModel::codeMessage() const
{
    if (m_codeFailed)
        return QCoreApplication::translate("Loomstreet", "Couldn't apply that code. Try again.");
    if (m_refusedCode)
        return QCoreApplication::translate("Loomstreet", "“%1” doesn't apply to the items in your cart.")
            .arg(*m_refusedCode);
    return {};
}

QString CartModel::shippingText() const
{
    if (!m_shipping)
        return {};
    if (m_shipping->isFree())
        return QCoreApplication::translate("Loomstreet", "You've unlocked FREE worldwide shipping");
    return QCoreApplication::translate("Loomstreet", "Add %1 more for FREE worldwide shipping")
        .arg(m_money.text(m_shipping->remaining));
}

QString CartModel::shippingThreshold() const
{
    return m_shipping ? m_money.text(m_shipping->threshold) : QString();
}

QString CartModel::errorText() const
{
    return m_failure ? errorDescription(*m_failure) : m_store.errorMessage();
}

QString CartModel::removedTitle() const
{
    const bool isGone = m_removed && !(m_store.cart() && m_store.cart()->line(m_removed->lineID));
    return isGone ? m_removed->title : QString();
}

int CartModel::lostCount() const
{
    qint64 pieces = 0;
    for (const CartLineInput& line : m_store.lostLines())
        pieces += line.quantity;
    return static_cast<int>(pieces);
}

int CartModel::addedRow() const
{
    const auto added = std::ranges::find(m_rows, true, &Row::isAdded);
    return added == m_rows.end() ? -1 : static_cast<int>(added - m_rows.begin());
}

void CartModel::refresh()
{
    m_failure.reset();
    m_store.refresh();
}

void CartModel::setQuantity(const QString& lineID, int quantity)
{
    m_failure.reset();
    m_store.setQuantity(lineID, quantity);
}

void CartModel::removeCode()
{
    m_failure.reset();
    m_store.removeCode();
}

void CartModel::remove(const QString& lineID)
{
    const CartLine* const line = m_store.cart() ? m_store.cart()->line(lineID) : nullptr;
    if (!line)
        return;
    m_failure.reset();
    if (const qint64 quantity = m_store.shownQuantity(*line); quantity > 0) {
        m_offering.stop();
        m_removed = Removed{.line = {.merchandiseId = line->variantID, .quantity = quantity},
                            .lineID = lineID,
                            .title = line->productTitle};
    }
    m_store.remove(lineID);
}

void CartModel::offerWhenGone()
{
    if (m_removed && !m_removed->isOffered && !removedTitle().isEmpty())
        static_cast<void>(offerUndo());
}

QCoro::Task<> CartModel::offerUndo()
{
    const Work::Run run = m_offering.begin();
    m_removed->isOffered = true;
    co_await m_clock.sleep(undoDuration, run.stop());
    if (run.isStopped())
        co_return;
    m_removed.reset();
    Q_EMIT changed();
}

void CartModel::undoRemoval()
{
    if (removedTitle().isEmpty())
        return;
    Removed removed = *std::exchange(m_removed, std::nullopt);
    m_offering.stop();
    static_cast<void>(putBack(std::move(removed)));
    Q_EMIT changed();
}

QCoro::Task<> CartModel::putBack(Removed removed)
{
    const Work::Run run = m_puttingBack.begin();
    m_failure.reset();
    const auto result = co_await m_store.add(removed.line.merchandiseId, removed.line.quantity);
    if (run.isStopped() || result || result.error().isCancelled())
        co_return;
    m_failure = result.error().error();
    if (m_removed)
        co_return;
    removed.isOffered = false;
    m_removed = std::move(removed);
    offerWhenGone();
}

void CartModel::restoreLostLines()
{
    static_cast<void>(restore());
}

QCoro::Task<> CartModel::restore()
{
    const Work::Run run = m_puttingBack.begin();
    m_failure.reset();
    const auto result = co_await m_store.restoreLostLines();
    if (!run.isStopped() && !result && !result.error().isCancelled())
        m_failure = result.error().error();
}

void CartModel::applyCode(const QString& text)
{
    if (!isApplyingCode())
        static_cast<void>(apply(text));
}

QCoro::Task<> CartModel::apply(QString text)
{
    const Work::Run run = m_applying.begin();
    m_failure.reset();
    forgetCodeMessage();
    const auto outcome = co_await m_store.applyCode(text);
    if (run.isStopped())
        co_return;
    m_codeFailed = !outcome && !outcome.error().isCancelled();
    if (outcome && *outcome == CodeOutcome::NotApplicable)
        m_refusedCode = text.trimmed();
    Q_EMIT changed();
}

void CartModel::forgetCodeMessage()
{
    m_codeFailed = false;
    m_refusedCode.reset();
    Q_EMIT changed();
}

QString CartModel::note(const Row& row) const
{
    if (row.line.quantity <= 0 || !row.line.availableForSale)
        return QCoreApplication::translate("Loomstreet", "Sold out");
    if (!row.isClamped)
        return {};
    const int left = static_cast<int>(row.line.quantity);
    return left == 1 ? QCoreApplication::translate("Loomstreet", "Only one left")
                     : QCoreApplication::translate("Loomstreet", "Only %Ln left", nullptr, left);
}

int CartModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CartModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    const CartLine& line = row.line;
    switch (role) {
    case LineIdRole:
        return line.id;
    case HandleRole:
        return line.productHandle;
    case TitleRole:
        return line.productTitle;
    case DesignerRole:
        return line.vendor;
    case ChoiceRole:
        return choice(line);
    case PictureRole:
        return line.imageURL.value_or(QString());
    case QuantityRole:
        return row.shownQuantity;
    case PriceRole:
        return m_money.text(line.lineTotal);
    case FormerPriceRole: {
        const auto former = formerPrice(line.unitPrice, line.compareAtPrice);
        return former && line.quantity > 0
                   ? m_money.text({.amount = former->amount * static_cast<double>(line.quantity),
                                   .currencyCode = former->currencyCode})
                   : QString();
    }
    case BusyRole:
        return row.isBusy;
    case AddedRole:
        return row.isAdded;
    case NoteRole:
        return note(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> CartModel::roleNames() const
{
    return {{LineIdRole, "lineId"},     {HandleRole, "handle"},   {TitleRole, "title"},
            {DesignerRole, "designer"}, {ChoiceRole, "choice"},   {PictureRole, "picture"},
            {QuantityRole, "quantity"}, {PriceRole, "price"},     {FormerPriceRole, "formerPrice"},
            {BusyRole, "busy"},         {AddedRole, "justAdded"}, {NoteRole, "note"}};
}

} // namespace loom
