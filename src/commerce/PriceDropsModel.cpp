#include "commerce/PriceDropsModel.h"

#include "catalog/MarketStore.h"
#include "catalog/StorefrontAPI.h"
#include "commerce/KeptPieces.h"
#include "commerce/PriceDrop.h"

namespace loom
{

PriceDropsModel::PriceDropsModel(std::vector<const KeptPieces*> lists, KeptPiecesModel::Services services,
                                 QObject* parent)
    : QObject(parent)
    , m_lists(std::move(lists))
    , m_services(services)
    , m_pieces(services.money, services.clock)
    , m_loading([this] { Q_EMIT stateChanged(); })
{
    connect(&services.market, &MarketStore::languageChanged, this, [this] {
        if (phase() != Phase::Idle)
            reload();
    });
    connect(&services.market, &MarketStore::countryChanged, this, [this] {
        if (phase() == Phase::Idle)
            return;
        m_pieces.show({}); // prices of another market
        m_isLoaded = false;
        reload();
    });
    for (const KeptPieces* list : m_lists)
        connect(list, &KeptPieces::changed, this, &PriceDropsModel::followLists);
}

PriceDropsModel::Phase PriceDropsModel::phase() const
{
    if (m_pieces.count() > 0)
        return Phase::Loaded;
    if (isLoading() || m_isAwaited)
        return Phase::Loading;
    if (m_failure)
        return Phase::Failed;
    if (!m_isLoaded)
        return Phase::Idle;
    const bool isNothingKept =
        std::ranges::all_of(m_lists, [](const KeptPieces* list) { return list->items().empty(); });
    return isNothingKept ? Phase::NothingKept : Phase::Empty;
}

void PriceDropsModel::load()
{
    if (!isLoading() && (m_failure || !m_isLoaded))
        reload();
}

void PriceDropsModel::reload()
{
    // A long list is still being read when the application starts with this page.
    m_isAwaited = !std::ranges::all_of(m_lists, [](const KeptPieces* list) { return list->isLoaded(); });
    if (m_isAwaited)
        Q_EMIT stateChanged();
    else
        static_cast<void>(fetch());
}

std::vector<ProductListItem> PriceDropsModel::candidates() const
{
    std::vector<ProductListItem> items;
    for (const KeptPieces* list : m_lists) {
        for (const ProductListItem& item : list->items()) {
            if (item.seenPrice && item.seenCurrency && isProductID(item.id))
                items.push_back(item);
        }
    }
    return items;
}

QCoro::Task<> PriceDropsModel::fetch()
{
    const Work::Run run = m_loading.begin();
    const std::vector<ProductListItem> seen = candidates();
    QStringList ids;
    QSet<QString> known;
    for (const ProductListItem& item : seen) {
        if (!known.contains(item.id)) {
            known.insert(item.id);
            ids.append(item.id);
        }
    }
    // Live prices say little and are asked for quickly. Which currency they are in they do not say: what may have
    // become cheaper is looked at whole.
    const auto prices = co_await m_services.api.livePrices(ids, run.stop());
    if (run.isStopped())
        co_return;
    if (!prices) {
        m_failure = prices.error().error();
        co_return; // the end of the run tells of the change
    }
    QStringList cheaper;
    known.clear();
    for (const ProductListItem& item : seen) {
        const auto now = prices->constFind(item.handle);
        if (now == prices->cend() || now->amount >= *item.seenPrice || known.contains(item.id))
            continue;
        known.insert(item.id);
        cheaper.append(item.id);
    }
    auto answer = co_await m_services.api.productsByIDs(cheaper, run.stop());
    if (run.isStopped())
        co_return;
    if (!answer) {
        m_failure = answer.error().error();
        co_return;
    }
    m_failure.reset();
    QHash<QString, ProductListItem> items;
    for (const ProductListItem& item : *answer)
        items.insert(item.id, item);
    std::vector<PieceRow> rows;
    for (const ProductListItem& item : seen) {
        const auto now = items.constFind(item.id);
        if (now == items.cend())
            continue;
        const auto from = droppedFrom(item, now->price);
        if (!from)
            continue;
        rows.push_back(
            {.item = *now, .price = now->price, .former = from, .seenPrice = from, .state = PieceRow::State::Current});
        rows.back().item.handle = item.handle;
        items.erase(now);
    }
    m_isLoaded = true;
    m_pieces.show(std::move(rows));
}

void PriceDropsModel::followLists()
{
    if (m_isAwaited) {
        reload();
        return;
    }
    std::vector<PieceRow> rows = m_pieces.rows();
    const auto isGone = [this](const PieceRow& row) {
        return std::ranges::none_of(m_lists,
                                    [&row](const KeptPieces* list) { return list->contains(row.item.handle); });
    };
    if (std::erase_if(rows, isGone) > 0)
        m_pieces.show(std::move(rows));
    if (!isLoading())
        Q_EMIT stateChanged();
}

} // namespace loom
