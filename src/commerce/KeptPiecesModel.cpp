#include "commerce/KeptPiecesModel.h"

#include "catalog/MarketStore.h"
#include "catalog/StorefrontAPI.h"
#include "commerce/KeptPieces.h"
#include "commerce/PriceDrop.h"

namespace loom
{

namespace
{

/// Rows beyond the screen that are asked for with those on it.
constexpr int ahead = 24;
constexpr qsizetype batch = 100;

/// Pieces without a price come last; equal ones stay as they stood.
void sortByPrice(std::vector<PieceRow>& rows, bool isRising)
{
    std::vector<std::size_t> order(rows.size());
    std::ranges::iota_view places(std::size_t{0}, rows.size());
    std::ranges::copy(places, order.begin());
    std::ranges::sort(order, [&](std::size_t a, std::size_t b) {
        const std::optional<Money>& first = rows[a].price;
        const std::optional<Money>& second = rows[b].price;
        if (!first || !second || first->amount == second->amount)
            return first.has_value() != second.has_value() ? first.has_value() : a < b;
        return (first->amount < second->amount) == isRising;
    });
    std::vector<PieceRow> sorted;
    sorted.reserve(rows.size());
    for (const std::size_t place : order)
        sorted.push_back(std::move(rows[place]));
    rows = std::move(sorted);
}

} // namespace

bool isProductID(const QString& id)
{
    const QString prefix = QStringLiteral("gid://shopify/Product/");
    return id.startsWith(prefix) && id.size() > prefix.size() && id.size() < prefix.size() + 20 &&
           std::all_of(id.begin() + prefix.size(), id.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

PieceRow pieceRow(const ProductListItem& kept, const std::optional<MarketAnswer>& answer, const QString& currency)
{
    if (!answer) {
        PieceRow row{.item = kept, .price = {}, .former = {}, .seenPrice = {}};
        if (kept.price.currencyCode == currency) {
            row.price = kept.price;
            row.former = formerPrice(kept.price, kept.compareAtPrice);
        }
        return row;
    }
    if (!*answer)
        return {.item = kept, .price = {}, .former = {}, .seenPrice = {}, .state = PieceRow::State::Unavailable};
    PieceRow row{.item = **answer, .price = {}, .former = {}, .seenPrice = {}, .state = PieceRow::State::Current};
    row.item.handle = kept.handle; // the list knows it by this
    row.price = row.item.price;
    row.former = formerPrice(row.item.price, row.item.compareAtPrice);
    row.seenPrice = droppedFrom(kept, row.item.price);
    return row;
}

KeptPiecesModel::KeptPiecesModel(const KeptPieces& kept, Services services, QObject* parent)
    : QObject(parent)
    , m_kept(&kept)
    , m_services(services)
    , m_pieces(services.money, services.clock)
    , m_fetching([this] { Q_EMIT stateChanged(); })
{
    connect(&kept, &KeptPieces::changed, this, &KeptPiecesModel::compose);
    connect(&services.market, &MarketStore::countryChanged, this, &KeptPiecesModel::forgetAnswers);
    connect(&services.market, &MarketStore::languageChanged, this, &KeptPiecesModel::reload);
    connect(&services.market, &MarketStore::currencyChanged, this, &KeptPiecesModel::compose);
    compose();
}

PieceRow KeptPiecesModel::row(const ProductListItem& item) const
{
    const auto answer = m_answers.constFind(item.id);
    return pieceRow(item, answer == m_answers.cend() ? std::nullopt : std::optional<MarketAnswer>(*answer),
                    m_services.market.currency());
}

void KeptPiecesModel::compose()
{
    if (!m_kept)
        return;
    std::vector<PieceRow> rows;
    rows.reserve(m_kept->items().size());
    for (const ProductListItem& item : m_kept->items())
        rows.push_back(row(item));
    if (m_sort != Sort::Newest)
        sortByPrice(rows, m_sort == Sort::PriceLowToHigh);
    m_pieces.show(std::move(rows));
    ask();
}

void KeptPiecesModel::forgetAnswers()
{
    m_fetching.stop();
    m_answers.clear();
    m_stale.clear();
    m_failure.reset();
    compose();
    Q_EMIT stateChanged();
}

void KeptPiecesModel::setSort(int sort)
{
    if (sort == this->sort() || sort < 0 || sort > static_cast<int>(Sort::PriceHighToLow))
        return;
    m_sort = static_cast<Sort>(sort);
    Q_EMIT sortChanged();
    compose();
}

void KeptPiecesModel::look(int first, int last)
{
    m_first = first;
    m_last = last;
    ask();
}

void KeptPiecesModel::reload()
{
    m_fetching.stop();
    m_failure.reset();
    m_stale = QSet<QString>(m_answers.keyBegin(), m_answers.keyEnd()); // shown until there is something newer
    ask();
    Q_EMIT stateChanged();
}

QStringList KeptPiecesModel::unknown() const
{
    QStringList ids;
    const auto want = [&](const PieceRow& row) {
        const QString& id = row.item.id;
        if (ids.size() < batch && isProductID(id) && (!m_answers.contains(id) || m_stale.contains(id)) &&
            !ids.contains(id))
            ids.append(id);
    };
    const auto& rows = m_pieces.rows();
    for (int i = std::max(0, m_first); i <= m_last + ahead && i < static_cast<int>(rows.size()); ++i)
        want(rows[static_cast<std::size_t>(i)]);
    // An order by price needs all of them.
    if (m_sort != Sort::Newest && m_last >= 0)
        std::ranges::for_each(rows, want);
    return ids;
}

void KeptPiecesModel::ask()
{
    if (m_last >= 0 && !m_failure && !m_fetching.isRunning() && !unknown().isEmpty())
        static_cast<void>(fetch());
}

QCoro::Task<> KeptPiecesModel::fetch()
{
    const Work::Run run = m_fetching.begin();
    bool isFirst = true;
    for (QStringList ids = unknown(); !ids.isEmpty();) {
        auto answer = co_await m_services.api.productsByIDs(ids, run.stop());
        if (run.isStopped())
            co_return;
        if (!answer) {
            m_failure = answer.error().error();
            compose();
            co_return; // the end of the run tells of the change
        }
        for (const QString& id : ids) {
            m_answers.insert(id, std::nullopt);
            m_stale.remove(id);
        }
        for (const ProductListItem& item : *answer)
            m_answers.insert(item.id, item);
        ids = unknown();
        // In an order by price rows move: once for what is looked at, and once when all is known.
        if (m_sort == Sort::Newest || std::exchange(isFirst, false) || ids.isEmpty())
            compose();
    }
}

} // namespace loom
