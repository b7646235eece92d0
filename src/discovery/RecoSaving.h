#pragma once

#include "net/Work.h"

#include <QObject>
#include <QSet>
#include <qcoro/qcorotask.h>

namespace loom
{

class StorefrontAPI;
class WishlistStore;

/// Completes the pieces that were saved from a recommendation, which knows neither the catalog's number of a piece nor
/// its price in the market: at once, or once the Storefront can be reached. One per process; main thread.
class RecoSaving final : public QObject
{
    Q_OBJECT

public:
    RecoSaving(WishlistStore& wishlist, StorefrontAPI& api, QObject* parent = nullptr);

    /// Tries what is incomplete, as when the network has come back.
    void complete();

private:
    [[nodiscard]] QString next() const;
    [[nodiscard]] QCoro::Task<> fetch();

    WishlistStore& m_wishlist;
    StorefrontAPI& m_api;
    QSet<QString> m_missing; ///< the store of this market does not have them
    Work m_completing;
};

} // namespace loom
