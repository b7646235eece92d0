#pragma once

#include "catalog/ProductListModel.h"
#include "discovery/RecoCards.h"
#include "net/ApiResult.h"
#include "net/Work.h"

#include <qcoro/qcorotask.h>

namespace loom
{

class StorefrontAPI;

/// What the store says of a piece beside the piece itself: what others looked at with it, what goes with it, and how
/// often it was sold. Where its recommendations have nothing, the catalog's own stand in. Main thread; begins with
/// load(), and the number sold with loadSold().
class ProductCompanions final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::RecoCards* alsoViewed READ alsoViewed CONSTANT)
    Q_PROPERTY(loom::RecoCards* outfit READ outfit CONSTANT)
    Q_PROPERTY(loom::ProductListModel* similar READ similar CONSTANT)
    Q_PROPERTY(qlonglong unitsSold READ unitsSold NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY changed)
    Q_PROPERTY(bool isAwaited READ isAwaited NOTIFY changed)

public:
    static constexpr int limit = 12;

    ProductCompanions(QString handle, const RecoServices& services, StorefrontAPI& catalog, QObject* parent = nullptr);

    [[nodiscard]] const QString& handle() const { return m_handle; }
    [[nodiscard]] RecoCards* alsoViewed() { return &m_alsoViewed; }
    /// Without what others looked at: no piece stands on the page twice.
    [[nodiscard]] RecoCards* outfit() { return &m_outfit; }
    /// The catalog's own recommendations; empty where there are others.
    [[nodiscard]] ProductListModel* similar() { return &m_similar; }
    /// 0 when it is not known, or not worth telling.
    [[nodiscard]] qlonglong unitsSold() const { return m_unitsSold.value_or(0); }
    /// The pieces are on their way: there may be some to leave room for.
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }
    /// Nobody knows yet whether there are any.
    [[nodiscard]] bool isAwaited() const { return m_isAwaited; }

    /// Loads unless it is loaded or loading.
    Q_INVOKABLE void load();
    Q_INVOKABLE void reload();
    /// Asks how often the piece was sold, unless that is known or asked already.
    Q_INVOKABLE void loadSold();

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QCoro::Task<> fetch();
    [[nodiscard]] QCoro::Task<ApiResult<std::vector<ProductListItem>>> fetchSimilar(std::stop_token stop);
    [[nodiscard]] QCoro::Task<> count();
    void exclude();
    [[nodiscard]] bool isShown(const ProductListItem& item) const;

    QString m_handle;
    RecoServices m_services;
    StorefrontAPI& m_catalog;
    RecoCards m_alsoViewed;
    RecoCards m_outfit;
    ProductListModel m_similar;
    AppLanguage m_language; ///< of what is shown
    std::optional<qint64> m_unitsSold;
    bool m_isLoaded = false;
    bool m_isAwaited = true;
    Work m_loading;
    Work m_counting;
};

} // namespace loom
