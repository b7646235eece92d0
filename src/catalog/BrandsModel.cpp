#include "catalog/BrandsModel.h"

#include "base/Clock.h"
#include "catalog/Department.h"
#include "catalog/MarketStore.h"
#include "catalog/RowMerge.h"
#include "catalog/StorefrontAPI.h"
#include "storage/DataFolder.h"

#include <QJsonArray>

namespace loom
{

namespace
{

/// The filter in which a collection counts its designers.
const QString vendorFilter = QStringLiteral("filter.p.vendor");

const QString file = QStringLiteral("snap-brands");
constexpr std::chrono::hours walkIsGoodFor{24};
constexpr int walkStep = 250;

/// What a walk through all pieces found, and for which market.
struct WalkedBrands {
    QString country;
    std::vector<Brand> brands;
};

WalkedBrands decodeWalkedBrands(const JsonReader& json)
{
    return {.country = json.text("country"), .brands = JsonReader::decodeEach(json.list("brands"), decodeBrand)};
}

} // namespace

BrandsModel::BrandsModel(StorefrontAPI& api, const MarketStore& market, DataFolder& folder, const Clock& clock,
                         QObject* parent)
    : QAbstractListModel(parent)
    , m_api(api)
    , m_market(market)
    , m_folder(folder)
    , m_clock(clock)
    , m_loading([this] { Q_EMIT changed(); })
{
    connect(&market, &MarketStore::revisionChanged, this, [this] {
        if (m_isLoaded || m_failure || m_loading.isRunning())
            reload();
    });
}

BrandsModel::Phase BrandsModel::phase() const
{
    if (!m_brands.empty())
        return Phase::Loaded;
    if (m_failure && !m_loading.isRunning())
        return Phase::Failed;
    return m_isLoaded ? Phase::Empty : Phase::Loading;
}

QStringList BrandsModel::letters() const
{
    QStringList letters;
    for (const BrandSection& section : m_sections)
        letters.append(section.letter);
    return letters;
}

void BrandsModel::setFilter(const QString& filter)
{
    if (std::exchange(m_filter, filter) == filter)
        return;
    showSections();
    Q_EMIT changed();
}

void BrandsModel::load()
{
    if (!m_isLoaded && !m_loading.isRunning())
        reload();
}

void BrandsModel::reload()
{
    static_cast<void>(fetch());
}

QCoro::Task<> BrandsModel::fetch()
{
    const Work::Run run = m_loading.begin();
    auto brands = co_await fromFilter(run.stop());
    if (run.isStopped())
        co_return;
    if (brands && brands->empty()) {
        brands = co_await fromPieces(run.stop());
        if (run.isStopped())
            co_return;
    }
    if (!brands) {
        m_failure = brands.error().error();
        co_return; // the end of the run tells of the change
    }
    m_failure.reset();
    m_isLoaded = true;
    m_brands = *std::move(brands);
    showSections();
}

QCoro::Task<BrandsModel::Brands> BrandsModel::fromFilter(std::stop_token stop)
{
    LOOM_CO_TRY(page, co_await m_api.collectionProducts(
                          {.handle = allPiecesCollection, .first = 1, .after = {}, .filters = {}, .sort = {}}, stop));
    std::vector<Brand> brands;
    const auto filter = std::ranges::find(page.filters, vendorFilter, &CollectionFilter::id);
    if (filter != page.filters.end()) {
        for (const CollectionFilter::Value& value : filter->values) {
            if (value.count > 0 && !value.label.trimmed().isEmpty())
                brands.push_back({.name = value.label, .count = value.count});
        }
    }
    co_return brands;
}

QCoro::Task<BrandsModel::Brands> BrandsModel::fromPieces(std::stop_token stop)
{
    if (auto known = remembered())
        co_return *std::move(known);
    QHash<QString, qint64> counts;
    std::optional<QString> cursor;
    for (bool hasMore = true; hasMore;) {
        LOOM_CO_TRY(page,
                    co_await m_api.products(
                        {.first = walkStep, .after = cursor, .query = {}, .sortKey = {}, .reverse = false}, stop));
        if (stop.stop_requested())
            co_return std::vector<Brand>(); // the owner may be gone
        for (const ProductListItem& piece : page.products)
            ++counts[piece.vendor];
        hasMore = page.hasNextPage && page.endCursor != cursor; // one that does not move leads nowhere
        cursor = page.endCursor;
    }
    std::vector<Brand> brands;
    for (const auto& [name, count] : counts.asKeyValueRange()) {
        if (!name.trimmed().isEmpty())
            brands.push_back({.name = name, .count = count});
    }
    remember(brands);
    co_return brands;
}

std::optional<std::vector<Brand>> BrandsModel::remembered() const
{
    auto walked = m_folder.loadSnapshot(file, decodeWalkedBrands);
    const QDateTime now = m_clock.now();
    // The clock may have been set back since.
    if (!walked || walked->value.country != m_market.country() || walked->savedAt > now ||
        walked->savedAt.msecsTo(now) > std::chrono::milliseconds(walkIsGoodFor).count())
        return std::nullopt;
    return std::move(walked->value.brands);
}

void BrandsModel::remember(const std::vector<Brand>& brands) const
{
    QJsonArray list;
    for (const Brand& brand : brands)
        list.append(toJson(brand));
    m_folder.saveSnapshot(
        file, QJsonObject{{QStringLiteral("country"), m_market.country()}, {QStringLiteral("brands"), list}},
        m_clock.now());
}

void BrandsModel::showSections()
{
    std::vector<BrandSection> wanted = indexOf(m_brands, m_filter);
    QStringList wantedLetters;
    for (const BrandSection& section : wanted)
        wantedLetters.append(section.letter);
    // Sections stand in the order of their letters: none ever moves.
    mergeRows(
        letters(), wantedLetters,
        [this](int row) {
            beginRemoveRows({}, row, row);
            m_sections.erase(m_sections.begin() + row);
            endRemoveRows();
        },
        [](int, int) {},
        [this, &wanted](int row, std::size_t place) {
            beginInsertRows({}, row, row);
            m_sections.insert(m_sections.begin() + row, wanted[place]);
            endInsertRows();
        });
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (m_sections[i] == wanted[i])
            continue;
        m_sections[i] = std::move(wanted[i]);
        const QModelIndex changedRow = index(static_cast<int>(i));
        Q_EMIT dataChanged(changedRow, changedRow, {BrandsRole});
    }
}

int BrandsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_sections.size());
}

QVariant BrandsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const BrandSection& section = m_sections[static_cast<std::size_t>(index.row())];
    if (role == LetterRole)
        return section.letter;
    if (role != BrandsRole)
        return {};
    QVariantList brands;
    for (const Brand& brand : section.brands)
        brands.append(QVariantMap{{QStringLiteral("name"), brand.name}, {QStringLiteral("count"), brand.count}});
    return brands;
}

QHash<int, QByteArray> BrandsModel::roleNames() const
{
    return {{LetterRole, "letter"}, {BrandsRole, "brands"}};
}

} // namespace loom
