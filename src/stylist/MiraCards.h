#pragma once

#include "catalog/ProductListItem.h"
#include "net/Work.h"
#include "stylist/MiraAttachment.h"
#include "stylist/MiraCard.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <vector>

namespace loom
{

class Clock;
class MarketStore;
class MoneyFormat;
class StorefrontAPI;

/// The pieces beside messages, as the catalog knows them now. A piece is asked about when a message that has it is
/// looked at, together with the others of that moment. Main thread.
class MiraCards final : public QObject
{
    Q_OBJECT

public:
    /// What the catalog said is looked up again after this.
    static constexpr std::chrono::minutes freshness{10};
    /// No message shows more than this.
    static constexpr std::size_t maximumCards = 60;

    MiraCards(StorefrontAPI& storefront, const MarketStore& market, const MoneyFormat& money, Clock& clock,
              QObject* parent = nullptr);

    /// Of the attachments, then of the pieces that the text links to; each once. A piece that the catalog does not know
    /// has none. While the catalog has yet to answer, and where it cannot be asked, the message's own words stand.
    [[nodiscard]] std::vector<MiraCard> cards(const std::vector<MiraAttachment>& attachments,
                                              const QStringList& linked);
    /// Of a card of the catalog.
    [[nodiscard]] MiraCard cardOf(const ProductListItem& item) const;

    /// What could not be asked, or was answered long ago, is asked about again when somebody looks.
    void refresh();

Q_SIGNALS:
    /// The cards of these pieces are others now; of all of them where it is empty.
    void changed(const QSet<QString>& handles);

private:
    struct Known {
        std::optional<ProductListItem> item; ///< none: the catalog does not know it
        std::chrono::milliseconds since{0};
    };

    [[nodiscard]] std::optional<MiraCard> card(const QString& handle, const MiraAttachment* attachment);
    [[nodiscard]] MiraCard ownCard(const QString& handle, const MiraAttachment* attachment) const;
    void want(const QString& handle);
    [[nodiscard]] QCoro::Task<> ask();
    /// They are called otherwise in another language, and shown until there is an answer in it.
    void askAnew();
    void forget();

    StorefrontAPI& m_storefront;
    const MarketStore& m_market;
    const MoneyFormat& m_money;
    Clock& m_clock;
    QHash<QString, Known> m_known;
    QSet<QString> m_failed;
    QStringList m_wanted;  ///< the latest last
    QSet<QString> m_asked; ///< wanted or on its way
    Work m_asking;
};

} // namespace loom
