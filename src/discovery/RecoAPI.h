#pragma once

#include "discovery/RecoProduct.h"
#include "net/ApiResult.h"
#include "net/CallerIdentity.h"

#include <QHash>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <functional>
#include <stop_token>

namespace loom
{

class MarketStore;
class WidgetClient;

/// The recommendations of the store's backend: each call is a read, made for the shopper's department, language and
/// identity. Answers are decoded on a worker thread. Holds no state; main thread.
class RecoAPI
{
public:
    enum class Kind { ForYou, NewArrivals, Collection };

    struct FeedRequest {
        Kind kind = Kind::ForYou;
        int limit = 0;
        int offset = 0;
        QString handle;        ///< of a collection or a piece; empty for none
        QString excludeHandle; ///< empty for none
    };
    /// One answer of a feed.
    struct Feed {
        std::vector<RecoProduct> products;
        int received = 0; ///< how many cards came, whatever became of them
    };
    /// A collection worth a rail.
    struct Rail {
        QString handle;
        QString title;
        QString label; ///< a word or two
        qint64 count = 0;
        QString imageURL;

        bool operator==(const Rail&) const = default;
    };
    /// What goes with a piece on its page.
    struct PdpReco {
        std::vector<RecoProduct> alsoViewed;
        std::vector<RecoProduct> outfit;
    };
    struct SearchRequest {
        QString query;
        int limit = 0;
        int offset = 0;
        bool isInstant = false; ///< while one types
    };
    struct Coll {
        QString handle;
        QString title;

        bool operator==(const Coll&) const = default;
    };
    struct SearchAnswer {
        Feed feed;
        std::vector<Coll> collections;
        QString summary;
        std::optional<qint64> total;
    };
    struct Stat {
        qint64 sold = 0;

        bool operator==(const Stat&) const = default;
    };
    struct BrandStats {
        qint64 items = 0;
        qint64 new30d = 0;

        bool operator==(const BrandStats&) const = default;
    };

    static constexpr std::chrono::seconds searchTimeout{30};
    /// The most handles that are asked about, and told of, at once.
    static constexpr qsizetype maximumHandles = 100;
    static constexpr qsizetype maximumViewed = 20;

    /// `sessionViewed` gives the handles the shopper looked at, the latest first.
    RecoAPI(WidgetClient& widget, const MarketStore& market, std::function<CallerIdentity()> identity,
            std::function<QStringList()> sessionViewed);

    [[nodiscard]] CallerIdentity identity() const { return m_identity(); }

    [[nodiscard]] QCoro::Task<ApiResult<Feed>> feed(const FeedRequest& request, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<PdpReco>> companions(QString handle, int limit, std::stop_token stop);
    /// In the order answered, each collection once.
    [[nodiscard]] QCoro::Task<ApiResult<std::vector<Rail>>> rails(int limit, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<SearchAnswer>> search(SearchRequest request, std::stop_token stop);
    /// By handle; what the backend does not count is left out.
    [[nodiscard]] QCoro::Task<ApiResult<QHash<QString, Stat>>> productStats(const QStringList& handles,
                                                                            std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<BrandStats>> brandStats(QString vendor, std::stop_token stop);

private:
    using Query = QList<std::pair<QString, QString>>;

    template <typename Decode>
    [[nodiscard]] auto get(QString path, Query query, std::chrono::milliseconds timeout, Decode decode,
                           std::stop_token stop)
        -> QCoro::Task<ApiResult<decltype(decode(std::declval<const JsonReader&>()))>>;
    [[nodiscard]] QString viewed() const;
    [[nodiscard]] QString locale() const;

    WidgetClient& m_widget;
    const MarketStore& m_market;
    std::function<CallerIdentity()> m_identity;
    std::function<QStringList()> m_sessionViewed;
};

/// The kind as the backend and links write it.
[[nodiscard]] QString recoKindName(RecoAPI::Kind kind);
[[nodiscard]] std::optional<RecoAPI::Kind> recoKindFrom(const QString& name);

} // namespace loom
