#include "stylist/voice/MiraVoiceShelf.h"

#include <algorithm>

namespace loom
{

MiraVoiceShelf::MiraVoiceShelf(StorefrontAPI& storefront, const MarketStore& market, const MoneyFormat& money,
                               Clock& clock, QObject* parent)
    : QObject(parent)
    , m_cards(storefront, market, money, clock)
{
    connect(&m_cards, &MiraCards::changed, this, [this](const QSet<QString>& handles) {
        const auto isShown = [&handles](const MiraAttachment& piece) {
            return handles.isEmpty() || handles.contains(piece.handle);
        };
        if (std::ranges::any_of(m_pieces, isShown))
            Q_EMIT changed();
    });
}

void MiraVoiceShelf::show(const std::vector<MiraVoiceProduct>& products)
{
    std::vector<MiraAttachment> pieces;
    const auto add = [&pieces](const MiraAttachment& piece) {
        if (pieces.size() < mostProducts &&
            std::ranges::find(pieces, piece.handle, &MiraAttachment::handle) == pieces.end())
            pieces.push_back(piece);
    };
    for (const MiraVoiceProduct& product : products)
        add({.handle = product.handle, .title = product.title, .price = product.price, .imageURL = product.imageURL});
    for (const MiraAttachment& piece : m_pieces)
        add(piece);
    if (std::exchange(m_pieces, pieces) != pieces)
        Q_EMIT changed();
}

void MiraVoiceShelf::clear()
{
    if (!std::exchange(m_pieces, {}).empty())
        Q_EMIT changed();
}

QVariantList MiraVoiceShelf::cards()
{
    QVariantList cards;
    for (const MiraCard& card : m_cards.cards(m_pieces, {}))
        cards.append(QVariant::fromValue(card));
    return cards;
}

} // namespace loom
