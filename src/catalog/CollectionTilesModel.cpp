#include "catalog/CollectionTilesModel.h"

#include "catalog/MarketStore.h"
#include "catalog/StorefrontAPI.h"

#include <algorithm>

namespace loom
{

CollectionTilesModel::CollectionTilesModel(QStringList handles, StorefrontAPI& api, const MarketStore& market,
                                           QObject* parent)
    : QAbstractListModel(parent)
    , m_handles(std::move(handles))
    , m_api(api)
    , m_loading([this] { Q_EMIT changed(); })
{
    connect(&market, &MarketStore::revisionChanged, this, [this] {
        if (m_isLoaded || m_failure || isLoading())
            reload();
    });
}

void CollectionTilesModel::load()
{
    if (!m_isLoaded && !isLoading())
        reload();
}

void CollectionTilesModel::reload()
{
    static_cast<void>(fetch());
}

QCoro::Task<> CollectionTilesModel::fetch()
{
    const Work::Run run = m_loading.begin();
    auto tiles = co_await m_api.collectionProbe(m_handles, run.stop());
    if (run.isStopped())
        co_return;
    if (!tiles) {
        m_failure = tiles.error().error();
        co_return;
    }
    m_failure.reset();
    m_isLoaded = true;
    if (*tiles == m_tiles)
        co_return;
    // The same collections by other names keep their places, and their pictures.
    if (std::ranges::equal(*tiles, m_tiles, {}, &CollectionTile::handle, &CollectionTile::handle)) {
        m_tiles = *std::move(tiles);
        Q_EMIT dataChanged(index(0), index(count() - 1));
        co_return;
    }
    beginResetModel();
    m_tiles = *std::move(tiles);
    endResetModel();
}

int CollectionTilesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant CollectionTilesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const CollectionTile& tile = m_tiles[static_cast<std::size_t>(index.row())];
    switch (role) {
    case HandleRole:
        return tile.handle;
    case TitleRole:
        return tile.title;
    case PictureRole:
        return tile.imageURL.value_or(QString());
    default:
        return {};
    }
}

QHash<int, QByteArray> CollectionTilesModel::roleNames() const
{
    return {{HandleRole, "handle"}, {TitleRole, "title"}, {PictureRole, "picture"}};
}

} // namespace loom
