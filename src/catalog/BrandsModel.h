#pragma once

#include "catalog/BrandIndex.h"
#include "net/ApiResult.h"
#include "net/Work.h"

#include <QAbstractListModel>
#include <qcoro/qcorotask.h>

namespace loom
{

class Clock;
class DataFolder;
class MarketStore;
class StorefrontAPI;

/// The designers the shop carries, by letter. The store's own filter of all its pieces names and counts them; a store
/// without that filter is walked through piece by piece, which is then good for a day. Main thread; begins with load().
class BrandsModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY changed)
    Q_PROPERTY(int brandCount READ brandCount NOTIFY changed)
    Q_PROPERTY(QStringList letters READ letters NOTIFY changed)
    Q_PROPERTY(loom::BrandsModel::Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY changed)

public:
    enum class Phase { Loading, Loaded, Empty, Failed };
    Q_ENUM(Phase)
    enum Role { LetterRole = Qt::UserRole + 1, BrandsRole };
    Q_ENUM(Role)

    BrandsModel(StorefrontAPI& api, const MarketStore& market, DataFolder& folder, const Clock& clock,
                QObject* parent = nullptr);

    /// What a name has to contain to be listed.
    [[nodiscard]] const QString& filter() const { return m_filter; }
    void setFilter(const QString& filter);
    /// How many there are, whether they are listed or not.
    [[nodiscard]] int brandCount() const { return static_cast<int>(m_brands.size()); }
    /// The letters under which some are listed.
    [[nodiscard]] QStringList letters() const;
    [[nodiscard]] Phase phase() const;
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] QString errorText() const { return m_failure ? errorDescription(*m_failure) : QString(); }
    [[nodiscard]] bool isOffline() const { return m_failure && m_failure->as<APIError::Offline>(); }
    [[nodiscard]] const std::vector<BrandSection>& sections() const { return m_sections; }

    /// Loads unless it is loaded or loading.
    Q_INVOKABLE void load();
    Q_INVOKABLE void reload();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    using Brands = ApiResult<std::vector<Brand>>;

    [[nodiscard]] QCoro::Task<> fetch();
    [[nodiscard]] QCoro::Task<Brands> fromFilter(std::stop_token stop);
    [[nodiscard]] QCoro::Task<Brands> fromPieces(std::stop_token stop);
    [[nodiscard]] std::optional<std::vector<Brand>> remembered() const;
    void remember(const std::vector<Brand>& brands) const;
    void showSections();

    StorefrontAPI& m_api;
    const MarketStore& m_market;
    DataFolder& m_folder;
    const Clock& m_clock;
    QString m_filter;
    std::vector<Brand> m_brands;
    std::vector<BrandSection> m_sections;
    bool m_isLoaded = false;
    std::optional<APIError> m_failure;
    Work m_loading;
};

} // namespace loom
