#include "discovery/RecoAPI.h"

#include "catalog/MarketStore.h"
#include "net/DecodedAnswer.h"
#include "net/WidgetClient.h"

#include <QSet>

#include <array>

namespace loom
{

namespace
{

constexpr std::array kindNames{"for-you", "new-arrivals", "collection"};
/// Under which a feed of each kind comes; any of them will do for any kind.
constexpr std::array<std::array<const char*, 3>, 3> feedKeys{{{"forYou", "products", "newArrivals"},
                                                              {"newArrivals", "products", "forYou"},
                                                              {"products", "forYou", "newArrivals"}}};

void requireObject(const JsonReader& json)
{
    if (!json.isObject())
        json.fail(QStringLiteral("expected an object"));
}

RecoAPI::Feed readFeed(const JsonReader& json, const std::array<const char*, 3>& keys)
{
    requireObject(json);
    const auto isThere = [&json](const char* key) {
        return json.has(key) && !json.value(key).asJson().isNull();
    };
    const auto* const key = std::ranges::find_if(keys, isThere);
    if (key == keys.end())
        return {};
    const std::vector<JsonReader> cards = json.list(*key);
    return {.products = decodeRecoProducts(cards), .received = static_cast<int>(cards.size())};
}

RecoAPI::PdpReco readCompanions(const JsonReader& json)
{
    requireObject(json);
    return {.alsoViewed = decodeRecoProducts(json.optionalList("alsoViewed")),
            .outfit = decodeRecoProducts(json.optionalList("outfit"))};
}

RecoAPI::Rail readRail(const JsonReader& json)
{
    RecoAPI::Rail rail{.handle = json.text("handle"),
                       .title = json.text("title"),
                       .label = json.optionalText("label").value_or(QString()),
                       .count = json.optionalInteger("count").value_or(0),
                       .imageURL = json.optionalText("image").value_or(QString())};
    if (rail.handle.isEmpty() || rail.title.isEmpty())
        json.fail(QStringLiteral("a rail without a handle or a title"));
    return rail;
}

std::vector<RecoAPI::Rail> readRails(const JsonReader& json)
{
    std::vector<RecoAPI::Rail> rails = JsonReader::decodeEach(json.list("rails"), readRail);
    QSet<QString> handles;
    std::erase_if(rails, [&handles](const RecoAPI::Rail& rail) {
        return std::exchange(handles, handles + QSet<QString>{rail.handle}).contains(rail.handle);
    });
    return rails;
}

RecoAPI::Coll readCollection(const JsonReader& json)
{
    return {.handle = json.text("handle"), .title = json.text("title")};
}

RecoAPI::SearchAnswer readSearch(const JsonReader& json)
{
    return {.feed = readFeed(json, feedKeys.back()),
            .collections = JsonReader::decodeEach(json.optionalList("collections"), readCollection),
            .summary = json.optionalText("summary").value_or(QString()),
            .total = json.optionalInteger("total")};
}

QHash<QString, RecoAPI::Stat> readStats(const JsonReader& json)
{
    QHash<QString, RecoAPI::Stat> stats;
    for (const auto& [handle, stat] : json.object("stats").members()) {
        if (const auto sold = stat.optionalInteger("sold"); sold && *sold >= 0)
            stats.insert(handle, {.sold = *sold});
    }
    return stats;
}

RecoAPI::BrandStats readBrandStats(const JsonReader& json)
{
    requireObject(json);
    return {.items = json.optionalInteger("items").value_or(0), .new30d = json.optionalInteger("new30d").value_or(0)};
}

} // namespace

QString recoKindName(RecoAPI::Kind kind)
{
    return QString::fromLatin1(kindNames.at(static_cast<std::size_t>(kind)));
}

std::optional<RecoAPI::Kind> recoKindFrom(const QString& name)
{
    for (std::size_t i = 0; i < kindNames.size(); ++i) {
        if (name == QLatin1String(kindNames.at(i)))
            return static_cast<RecoAPI::Kind>(i);
    }
    return std::nullopt;
}

RecoAPI::RecoAPI(WidgetClient& widget, const MarketStore& market, std::function<CallerIdentity()> identity,
                 std::function<QStringList()> sessionViewed)
    : m_widget(widget)
    , m_market(market)
    , m_identity(std::move(identity))
    , m_sessionViewed(std::move(sessionViewed))
{
}

template <typename Decode>
auto RecoAPI::get(QString path, Query query, std::chrono::milliseconds timeout, Decode decode, std::stop_token stop)
    -> QCoro::Task<ApiResult<decltype(decode(std::declval<const JsonReader&>()))>>
{
    const CallerIdentity identity = m_identity();
    const std::array<std::pair<const char*, QString>, 4> known{{{"visitorId", identity.visitorId},
                                                                {"customer", identity.customer},
                                                                {"email", identity.email},
                                                                {"name", identity.name}}};
    for (const auto& [key, value] : known) {
        if (!value.isEmpty())
            query.append({QLatin1String(key), value});
    }
    LOOM_CO_TRY(body, co_await m_widget.get(path, std::move(query), {.timeout = timeout}, stop));
    co_return co_await decodedElsewhere(body, decode, stop);
}

QString RecoAPI::viewed() const
{
    return m_sessionViewed().mid(0, maximumViewed).join(u',');
}

QString RecoAPI::locale() const
{
    return appLanguageCode(m_market.context().language);
}

QCoro::Task<ApiResult<RecoAPI::Feed>> RecoAPI::feed(const FeedRequest& request, std::stop_token stop)
{
    Query query{{QStringLiteral("kind"), recoKindName(request.kind)},
                {QStringLiteral("limit"), QString::number(request.limit)},
                {QStringLiteral("offset"), QString::number(request.offset)},
                {QStringLiteral("gender"), m_market.department()},
                {QStringLiteral("sessionViewed"), viewed()},
                {QStringLiteral("locale"), locale()}};
    if (!request.handle.isEmpty())
        query.append({QStringLiteral("handle"), request.handle});
    if (!request.excludeHandle.isEmpty())
        query.append({QStringLiteral("excludeHandle"), request.excludeHandle});
    const auto keys = feedKeys.at(static_cast<std::size_t>(request.kind));
    return get(
        QStringLiteral("/reco"), std::move(query), WidgetClient::standardTimeout,
        [keys](const JsonReader& json) { return readFeed(json, keys); }, stop);
}

QCoro::Task<ApiResult<RecoAPI::PdpReco>> RecoAPI::companions(QString handle, int limit, std::stop_token stop)
{
    return get(QStringLiteral("/pdp-reco"),
               {{QStringLiteral("handle"), handle},
                {QStringLiteral("limit"), QString::number(limit)},
                {QStringLiteral("locale"), locale()},
                {QStringLiteral("gender"), m_market.department()},
                {QStringLiteral("sessionViewed"), viewed()}},
               WidgetClient::standardTimeout, readCompanions, stop);
}

QCoro::Task<ApiResult<std::vector<RecoAPI::Rail>>> RecoAPI::rails(int limit, std::stop_token stop)
{
    return get(
        QStringLiteral("/vessa/reco-rails"),
        {{QStringLiteral("gender"), m_market.department()}, {QStringLiteral("limit"), QString::number(limit)}},
        WidgetClient::standardTimeout,
        [limit](const JsonReader& json) {
            std::vector<Rail> rails = readRails(json);
            if (rails.size() > static_cast<std::size_t>(limit))
                rails.resize(static_cast<std::size_t>(limit));
            return rails;
        },
        stop);
}

QCoro::Task<ApiResult<RecoAPI::SearchAnswer>> RecoAPI::search(SearchRequest request, std::stop_token stop)
{
    return get(QStringLiteral("/search-ai"),
               {{QStringLiteral("q"), request.query},
                {QStringLiteral("locale"), locale()},
                {QStringLiteral("limit"), QString::number(request.limit)},
                {QStringLiteral("offset"), QString::number(request.offset)},
                {QStringLiteral("instant"), request.isInstant ? QStringLiteral("true") : QStringLiteral("false")}},
               searchTimeout, readSearch, stop);
}

QCoro::Task<ApiResult<QHash<QString, RecoAPI::Stat>>> RecoAPI::productStats(const QStringList& handles,
                                                                            std::stop_token stop)
{
    return get(QStringLiteral("/vessa/product-stats"),
               {{QStringLiteral("handles"), handles.mid(0, maximumHandles).join(u',')}}, WidgetClient::standardTimeout,
               readStats, stop);
}

QCoro::Task<ApiResult<RecoAPI::BrandStats>> RecoAPI::brandStats(QString vendor, std::stop_token stop)
{
    return get(QStringLiteral("/brand-stats"), {{QStringLiteral("vendor"), vendor}}, WidgetClient::standardTimeout,
               readBrandStats, stop);
}

} // namespace loom
