#include "discovery/RecoSearch.h"

#include "base/Clock.h"
#include "catalog/DisplayText.h"
#include "catalog/MarketStore.h"
#include "discovery/RecoAPI.h"

namespace loom
{

namespace
{

constexpr qsizetype longestSummary = 400;
constexpr qsizetype longestTitle = 120;
constexpr std::chrono::seconds patience{8};

QCoro::Task<> losePatience(Clock* clock, std::stop_source search)
{
    co_await clock->sleep(patience, search.get_token());
    search.request_stop();
}

QCoro::Task<ApiResult<AiSearchPage>> search(RecoAPI* api, const MarketStore* market, Clock* clock,
                                            AiSearchRequest request, std::stop_token stop)
{
    std::stop_source searching;
    const std::stop_callback ended(stop, [searching]() mutable { searching.request_stop(); });
    if (request.offset == 0)
        static_cast<void>(losePatience(clock, searching));
    auto found = co_await api->search({.query = request.query, .limit = request.limit, .offset = request.offset},
                                      searching.get_token());
    searching.request_stop(); // and with it the waiting
    LOOM_CO_TRY(answer, std::move(found));
    AiSearchPage page{.summary = displayLine(answer.summary, longestSummary),
                      .total = answer.total,
                      .nextOffset = request.offset + std::min(answer.feed.received, static_cast<int>(maximumFeed))};
    page.hasMore = answer.total ? page.nextOffset < *answer.total && answer.feed.received > 0
                                : answer.feed.received >= request.limit;
    for (const RecoProduct& product : answer.feed.products) {
        if (product.priceUSD > 0)
            page.products.push_back(cardOf(product, market->context().language));
    }
    for (const RecoAPI::Coll& collection : answer.collections) {
        if (!collection.handle.isEmpty() && !collection.title.isEmpty())
            page.collections.push_back(
                {.handle = collection.handle, .title = displayLine(collection.title, longestTitle)});
    }
    co_return page;
}

} // namespace

AiSearchSource recoSearch(RecoAPI& api, const MarketStore& market, Clock& clock)
{
    return [&api, &market, &clock](AiSearchRequest request, std::stop_token stop) {
        return search(&api, &market, &clock, std::move(request), std::move(stop));
    };
}

} // namespace loom
