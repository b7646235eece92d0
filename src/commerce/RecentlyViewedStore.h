#pragma once

#include "commerce/KeptPieces.h"

namespace loom
{

/// The pieces whose pages were opened, the latest first. One per process; main thread.
class RecentlyViewedStore final : public loom::KeptPieces // in full, as QML knows it
{
    Q_OBJECT

public:
    static constexpr std::size_t maximum = 20;

    RecentlyViewedStore(DataFolder& folder, Clock& clock, QObject* parent = nullptr)
        : KeptPieces(QStringLiteral("lst_recently_viewed"), maximum, folder, clock, parent)
    {
    }

    /// A piece seen again moves to the front.
    void record(const ProductListItem& item)
    {
        if (!item.handle.isEmpty())
            putFirst(item);
    }
};

} // namespace loom
