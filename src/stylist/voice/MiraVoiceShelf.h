#pragma once

#include "stylist/MiraCards.h"
#include "stylist/voice/MiraVoiceProduct.h"

#include <QObject>
#include <QVariantList>

#include <vector>

namespace loom
{

/// The pieces that Mira shows during a call, the latest first, as live cards. Main thread.
class MiraVoiceShelf final : public QObject
{
    Q_OBJECT

public:
    /// The oldest go when there are more.
    static constexpr std::size_t mostProducts = 24;

    MiraVoiceShelf(StorefrontAPI& storefront, const MarketStore& market, const MoneyFormat& money, Clock& clock,
                   QObject* parent = nullptr);

    /// A piece that is there already comes to the front.
    void show(const std::vector<MiraVoiceProduct>& products);
    void clear();
    /// What could not be asked of the catalog is asked again.
    void refresh() { m_cards.refresh(); }
    /// MiraCards.
    [[nodiscard]] QVariantList cards();

Q_SIGNALS:
    void changed();

private:
    MiraCards m_cards;
    std::vector<MiraAttachment> m_pieces;
};

} // namespace loom
