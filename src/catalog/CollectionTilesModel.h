#pragma once

#include "catalog/CollectionInfo.h"
#include "net/ApiResult.h"
#include "net/Work.h"

#include <QAbstractListModel>
#include <qcoro/qcorotask.h>

namespace loom
{

class MarketStore;
class StorefrontAPI;

/// Some collections as tiles, those that the shopper's market has. Main thread; begins with load().
class CollectionTilesModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY changed)

public:
    enum Role { HandleRole = Qt::UserRole + 1, TitleRole, PictureRole };
    Q_ENUM(Role)

    CollectionTilesModel(QStringList handles, StorefrontAPI& api, const MarketStore& market, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_tiles.size()); }
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }
    [[nodiscard]] QString errorText() const { return m_failure ? errorDescription(*m_failure) : QString(); }
    [[nodiscard]] bool isOffline() const { return m_failure && m_failure->as<APIError::Offline>(); }
    [[nodiscard]] const std::vector<CollectionTile>& tiles() const { return m_tiles; }

    /// Loads unless it is loaded or loading.
    Q_INVOKABLE void load();
    Q_INVOKABLE void reload();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QCoro::Task<> fetch();

    QStringList m_handles;
    StorefrontAPI& m_api;
    std::vector<CollectionTile> m_tiles;
    bool m_isLoaded = false;
    std::optional<APIError> m_failure;
    Work m_loading;
};

} // namespace loom
