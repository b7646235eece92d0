#include "discovery/HomeModel.h"

#include "base/Announcements.h"
#include "base/Clock.h"
#include "catalog/MarketStore.h"
#include "catalog/RowMerge.h"
#include "discovery/HomeRails.h"
#include "storage/DataFolder.h"

namespace loom
{

namespace
{

/// So many cards of a rail are kept for the next time.
constexpr std::size_t keptCards = 24;

/// What makes it the same rail when it comes again.
QString keyOf(const RecoRail* rail)
{
    return rail->kind() + u'/' + rail->handle();
}

} // namespace

HomeModel::HomeModel(const RecoServices& services, Announcements& announcements, DataFolder& folder, QObject* parent)
    : QAbstractListModel(parent)
    , m_services(services)
    , m_folder(folder)
    , m_department(services.market.department())
    , m_listing([this] { arrange(); })
{
    for (const RecoAPI::Kind kind : {RecoAPI::Kind::ForYou, RecoAPI::Kind::NewArrivals})
        m_rails.push_back(makeRail({.kind = kind, .handle = {}, .title = {}, .label = {}}));
    restore();
    const auto begunAnew = [this] {
        if (m_isBegun)
            reload();
    };
    connect(&services.market, &MarketStore::revisionChanged, this, begunAnew);
    connect(&services.market, &MarketStore::genderChanged, this, begunAnew);
    connect(&announcements, &Announcements::posted, this, [this](Announcement announcement) {
        if (announcement == Announcement::AuthChanged)
            enterAccount();
    });
}

RecoRail* HomeModel::makeRail(RecoRail::Source source)
{
    auto* const rail = new RecoRail(std::move(source), m_services, this);
    connect(rail, &RecoRail::stateChanged, this, &HomeModel::arrange);
    return rail;
}

RecoRail* HomeModel::rail(RecoAPI::Kind kind, const QString& handle) const
{
    const auto found = std::ranges::find_if(m_rails, [&](const RecoRail* candidate) {
        return candidate->source().kind == kind && candidate->handle() == handle;
    });
    return found == m_rails.end() ? nullptr : *found;
}

void HomeModel::restore()
{
    const auto saved = m_folder.loadSnapshot(snapshot, decodeHomeRails);
    if (!saved || saved->value.department != m_services.market.department())
        return;
    m_isArranging = true;
    int collections = 0;
    for (const HomeRails::Rail& kept : saved->value.rails) {
        RecoRail* known = rail(kept.source.kind, kept.source.handle);
        if (!known && kept.source.kind == RecoAPI::Kind::Collection && ++collections <= maximumCollections)
            known = m_rails.emplace_back(makeRail(kept.source));
        if (known)
            known->restore(kept.products);
    }
    m_isArranging = false;
    arrange();
}

void HomeModel::save()
{
    HomeRails kept{.department = m_services.market.department(), .rails = {}};
    const bool isSameDepartment = std::exchange(m_department, kept.department) == kept.department;
    for (const RecoRail* const rail : m_rails) {
        const auto& products = rail->products();
        const bool isOfDepartment = isSameDepartment || (rail->isLoaded() && !rail->failure());
        if (products.empty() || !isOfDepartment)
            continue;
        const auto end = products.begin() + static_cast<std::ptrdiff_t>(std::min(keptCards, products.size()));
        kept.rails.push_back({.source = rail->source(), .products = {products.begin(), end}});
    }
    if (!kept.rails.empty()) {
        m_folder.save(snapshot, [kept = std::move(kept), savedAt = m_services.clock.now()] {
            return homeRailsFile(kept, savedAt);
        });
    }
}

void HomeModel::load()
{
    if (!m_isBegun)
        reload();
}

void HomeModel::reload()
{
    m_isBegun = true;
    m_mustSave = true;
    m_customer = m_services.api.identity().customer;
    for (RecoRail* const fixed : {rail(RecoAPI::Kind::ForYou), rail(RecoAPI::Kind::NewArrivals)})
        fixed->reload();
    static_cast<void>(fetchCollections());
}

QCoro::Task<> HomeModel::fetchCollections()
{
    const Work::Run run = m_listing.begin();
    auto rails = co_await m_services.api.rails(maximumCollections, run.stop());
    if (run.isStopped())
        co_return;
    m_failure = rails ? std::nullopt : std::optional(rails.error().error());
    if (rails && !rails->empty())
        placeCollections(*rails);
    for (RecoRail* const listed : m_rails) {
        if (listed->source().kind == RecoAPI::Kind::Collection)
            listed->reload();
    }
}

/// One that is there keeps its place; newcomers take those of the others, and then the end.
void HomeModel::placeCollections(const std::vector<RecoAPI::Rail>& wanted)
{
    QSet<QString> handles;
    std::vector<const RecoAPI::Rail*> newcomers;
    for (const RecoAPI::Rail& collection : wanted) {
        handles.insert(collection.handle);
        if (RecoRail* const known = rail(RecoAPI::Kind::Collection, collection.handle))
            known->setWords(collection.title, collection.label);
        else
            newcomers.push_back(&collection);
    }
    std::vector<RecoRail*> rails;
    std::vector<RecoRail*> gone;
    auto next = newcomers.begin();
    const auto takeNext = [&] {
        rails.push_back(makeRail({.kind = RecoAPI::Kind::Collection,
                                  .handle = (*next)->handle,
                                  .title = (*next)->title,
                                  .label = (*next)->label}));
        ++next;
    };
    for (RecoRail* const rail : m_rails) {
        if (rail->source().kind != RecoAPI::Kind::Collection || handles.contains(rail->handle())) {
            rails.push_back(rail);
            continue;
        }
        gone.push_back(rail);
        if (next != newcomers.end())
            takeNext();
    }
    while (next != newcomers.end())
        takeNext();
    m_rails = std::move(rails);
    arrange();
    for (RecoRail* const rail : gone) {
        rail->disconnect(this);
        rail->deleteLater();
    }
}

void HomeModel::enterAccount()
{
    // What was recommended to somebody is nobody else's business.
    const QString customer = m_services.api.identity().customer;
    if (customer.isEmpty() || (!m_customer.isEmpty() && customer != m_customer)) {
        m_isArranging = true;
        for (RecoRail* const rail : m_rails)
            rail->forget();
        m_isArranging = false;
        arrange();
    }
    if (m_isBegun)
        reload();
}

void HomeModel::arrange()
{
    if (m_isArranging)
        return;
    m_isArranging = true;
    QSet<QString> shown;
    for (RecoRail* const rail : m_rails) {
        rail->setExcluded(shown);
        for (const QString& handle : rail->handles())
            shown.insert(handle);
    }
    m_isArranging = false;
    showRows();
    if (m_isBegun && !isLoading() && std::exchange(m_mustSave, false) &&
        std::ranges::any_of(m_rails, &RecoRail::isLoaded))
        save();
    Q_EMIT changed();
}

void HomeModel::showRows()
{
    std::vector<RecoRail*> wanted;
    std::ranges::copy_if(m_rails, std::back_inserter(wanted), [](const RecoRail* rail) {
        return rail->count() > 0 ||
               (rail->phase() == RecoRail::Phase::Loading && !rail->isLoaded() && !rail->failure());
    });
    QStringList before;
    QStringList after;
    for (const RecoRail* const rail : m_shown)
        before.append(keyOf(rail));
    for (const RecoRail* const rail : wanted)
        after.append(keyOf(rail));
    mergeRows(
        before, after,
        [this](int row) {
            beginRemoveRows({}, row, row);
            m_shown.erase(m_shown.begin() + row);
            endRemoveRows();
        },
        [this](int from, int to) {
            beginMoveRows({}, from, from, {}, to);
            RecoRail* const rail = m_shown[static_cast<std::size_t>(from)];
            m_shown.erase(m_shown.begin() + from);
            m_shown.insert(m_shown.begin() + to, rail);
            endMoveRows();
        },
        [this, &wanted](int row, std::size_t place) {
            beginInsertRows({}, row, row);
            m_shown.insert(m_shown.begin() + row, wanted[place]);
            endInsertRows();
        });
}

HomeModel::Phase HomeModel::phase() const
{
    if (std::ranges::any_of(m_shown, [](const RecoRail* rail) { return rail->count() > 0; }))
        return Phase::Loaded;
    if (isLoading())
        return Phase::Loading;
    if (failure())
        return Phase::Failed;
    return m_isBegun ? Phase::Empty : Phase::Idle;
}

bool HomeModel::isLoading() const
{
    return m_listing.isRunning() || std::ranges::any_of(m_rails, [](const RecoRail* rail) {
               return rail->isLoading() || rail->isLoadingMore();
           });
}

const APIError* HomeModel::failure() const
{
    for (const RecoRail* const rail : m_rails) {
        if (rail->failure())
            return &*rail->failure();
    }
    return m_failure ? &*m_failure : nullptr;
}

QString HomeModel::errorText() const
{
    return phase() == Phase::Failed ? errorDescription(*failure()) : QString();
}

bool HomeModel::isOffline() const
{
    const APIError* const error = failure();
    return error && error->as<APIError::Offline>();
}

int HomeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant HomeModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    RecoRail* const rail = m_shown[static_cast<std::size_t>(index.row())];
    switch (role) {
    case RailRole:
        return QVariant::fromValue(rail);
    case KindRole:
        return rail->kind();
    case HandleRole:
        return rail->handle();
    default:
        return {};
    }
}

QHash<int, QByteArray> HomeModel::roleNames() const
{
    return {{RailRole, "rail"}, {KindRole, "kind"}, {HandleRole, "handle"}};
}

} // namespace loom
