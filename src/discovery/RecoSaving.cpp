#include "discovery/RecoSaving.h"

#include "catalog/StorefrontAPI.h"
#include "commerce/WishlistStore.h"

namespace loom
{

RecoSaving::RecoSaving(WishlistStore& wishlist, StorefrontAPI& api, QObject* parent)
    : QObject(parent)
    , m_wishlist(wishlist)
    , m_api(api)
{
    connect(&wishlist, &KeptPieces::edited, this, &RecoSaving::complete);
    connect(&wishlist, &KeptPieces::loaded, this, &RecoSaving::complete);
}

void RecoSaving::complete()
{
    // What runs takes in what has been added meanwhile.
    if (m_wishlist.isLoaded() && !m_completing.isRunning() && !next().isEmpty())
        static_cast<void>(fetch());
}

QString RecoSaving::next() const
{
    const auto found = std::ranges::find_if(m_wishlist.items(), [this](const ProductListItem& item) {
        return item.id.isEmpty() && !m_missing.contains(item.handle);
    });
    return found == m_wishlist.items().end() ? QString() : found->handle;
}

QCoro::Task<> RecoSaving::fetch()
{
    const Work::Run run = m_completing.begin();
    for (QString handle = next(); !handle.isEmpty(); handle = next()) {
        auto product = co_await m_api.product(handle, run.stop());
        if (run.isStopped() || !product)
            co_return; // another time
        if (!*product || !m_wishlist.complete(handle, (*product)->item))
            m_missing.insert(handle);
    }
}

} // namespace loom
