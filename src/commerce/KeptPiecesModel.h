#pragma once

#include "commerce/PieceListModel.h"
#include "net/ApiResult.h"
#include "net/Work.h"

#include <QPointer>
#include <qcoro/qcorotask.h>

namespace loom
{

class KeptPieces;
class MarketStore;
class StorefrontAPI;

/// What a market says of a piece; nothing when it does not have it.
using MarketAnswer = std::optional<ProductListItem>;

/// A kept list as its page or panel shows it: what is stored at once, then, for what is looked at, what it costs in the
/// shopper's market now. A price of another market is never shown. Main thread.
class KeptPiecesModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::PieceListModel* pieces READ pieces CONSTANT)
    Q_PROPERTY(int sort READ sort WRITE setSort NOTIFY sortChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY stateChanged)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY stateChanged)

public:
    enum class Sort { Newest, PriceLowToHigh, PriceHighToLow };
    Q_ENUM(Sort)

    struct Services {
        StorefrontAPI& api;
        const MarketStore& market;
        const MoneyFormat& money;
        const Clock& clock;
    };

    KeptPiecesModel(const KeptPieces& kept, Services services, QObject* parent = nullptr);

    [[nodiscard]] PieceListModel* pieces() { return &m_pieces; }
    [[nodiscard]] int sort() const { return static_cast<int>(m_sort); }
    void setSort(int sort);
    /// Why prices could not be asked for.
    [[nodiscard]] QString errorText() const { return m_failure ? errorDescription(*m_failure) : QString(); }
    [[nodiscard]] bool isOffline() const { return m_failure && m_failure->as<APIError::Offline>(); }

    /// These rows are on the screen.
    Q_INVOKABLE void look(int first, int last);
    /// Asks anew for what is on the screen.
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void sortChanged();
    void stateChanged();

private:
    void compose();
    void forgetAnswers();
    [[nodiscard]] PieceRow row(const ProductListItem& item) const;
    [[nodiscard]] QStringList unknown() const;
    void ask();
    [[nodiscard]] QCoro::Task<> fetch();

    QPointer<const KeptPieces> m_kept;
    Services m_services;
    PieceListModel m_pieces;
    Sort m_sort = Sort::Newest;
    QHash<QString, MarketAnswer> m_answers; ///< by ID
    QSet<QString> m_stale;                  ///< of those, the ones to be asked for anew
    int m_first = 0;
    int m_last = -1;
    std::optional<APIError> m_failure;
    Work m_fetching;
};

/// Whether the Storefront can be asked for it: one malformed ID makes it refuse all that are asked for with it.
[[nodiscard]] bool isProductID(const QString& id);

/// The row of a kept piece; `answer` is what the market said of it, if it was asked.
[[nodiscard]] PieceRow pieceRow(const ProductListItem& kept, const std::optional<MarketAnswer>& answer,
                                const QString& currency);

} // namespace loom
