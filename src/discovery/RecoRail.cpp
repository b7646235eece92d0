#include "discovery/RecoRail.h"

#include "catalog/DisplayText.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

/// How many pages of which nothing can be shown are passed over in one go.
constexpr int maximumPassedOver = 10;
constexpr qsizetype longestTitle = 120;

} // namespace

RecoRail::RecoRail(Source source, const RecoServices& services, QObject* parent)
    : RecoCards(services, parent)
    , m_source(std::move(source))
    , m_loading([this] { Q_EMIT stateChanged(); })
    , m_loadingMore([this] { Q_EMIT stateChanged(); })
{
    connect(this, &RecoCards::shownChanged, this, &RecoRail::stateChanged);
    setWords(m_source.title, m_source.label);
}

QString RecoRail::title() const
{
    if (!m_source.title.isEmpty())
        return m_source.title;
    switch (m_source.kind) {
    case RecoAPI::Kind::ForYou:
        return QCoreApplication::translate("Loomstreet", "For you");
    case RecoAPI::Kind::NewArrivals:
        return QCoreApplication::translate("Loomstreet", "New arrivals");
    case RecoAPI::Kind::Collection:
        break;
    }
    return {};
}

QString RecoRail::note() const
{
    switch (m_source.kind) {
    case RecoAPI::Kind::ForYou:
        return QCoreApplication::translate("Loomstreet", "Based on what you love");
    case RecoAPI::Kind::NewArrivals:
        return QCoreApplication::translate("Loomstreet", "New this week");
    case RecoAPI::Kind::Collection:
        break;
    }
    return m_source.label;
}

void RecoRail::setWords(const QString& title, const QString& label)
{
    m_source.title = displayLine(title, longestTitle);
    m_source.label = displayLine(label, longestTitle);
    Q_EMIT stateChanged();
}

RecoRail::Phase RecoRail::phase() const
{
    if (count() > 0)
        return Phase::Loaded;
    if (isLoading() || isLoadingMore())
        return Phase::Loading;
    if (m_failure)
        return Phase::Failed;
    return m_isLoaded ? Phase::Empty : Phase::Idle;
}

void RecoRail::load()
{
    if (!m_isLoaded && !isLoading())
        reload();
}

void RecoRail::reload()
{
    static_cast<void>(fetch());
}

void RecoRail::loadMore()
{
    if (m_hasNextPage && !isLoadingMore() && !isLoading())
        static_cast<void>(fetchMore());
}

void RecoRail::restore(std::vector<RecoProduct> products)
{
    if (!m_isLoaded)
        replace(std::move(products));
}

void RecoRail::forget()
{
    m_loading.stop();
    m_loadingMore.stop();
    m_isLoaded = false;
    m_hasNextPage = false;
    m_failure.reset();
    m_loadMoreFailure.reset();
    replace({});
    Q_EMIT stateChanged();
}

RecoAPI::FeedRequest RecoRail::request(int offset) const
{
    return {.kind = m_source.kind, .limit = pageSize, .offset = offset, .handle = m_source.handle, .excludeHandle = {}};
}

void RecoRail::moveOn(const RecoAPI::Feed& feed)
{
    m_offset += std::min(feed.received, static_cast<int>(maximumFeed));
    m_hasNextPage = feed.received >= pageSize;
}

QCoro::Task<> RecoRail::fetch()
{
    const Work::Run run = m_loading.begin();
    m_loadingMore.stop();
    auto feed = co_await services().api.feed(request(0), run.stop());
    if (run.isStopped())
        co_return;
    if (!feed) {
        m_failure = feed.error().error();
        co_return; // the end of the run tells of the change
    }
    m_failure.reset();
    m_loadMoreFailure.reset();
    m_offset = 0;
    moveOn(*feed);
    const bool isFirst = !std::exchange(m_isLoaded, true);
    // A store that has nothing to say does not take back what it said last time.
    if (!isFirst || !feed->products.empty())
        replace(std::move(feed->products));
    if (count() == 0 && m_hasNextPage)
        static_cast<void>(fetchMore());
}

QCoro::Task<> RecoRail::fetchMore()
{
    m_loadMoreFailure.reset(); // first: who is told of the beginning must not see it
    const Work::Run run = m_loadingMore.begin();
    const int before = count();
    for (int pages = 0; m_hasNextPage && count() == before && pages < maximumPassedOver; ++pages) {
        auto feed = co_await services().api.feed(request(m_offset), run.stop());
        if (run.isStopped())
            co_return;
        if (!feed) {
            m_loadMoreFailure = feed.error().error();
            co_return;
        }
        moveOn(*feed);
        if (append(std::move(feed->products)) == 0)
            m_hasNextPage = false; // the same again: it leads nowhere
    }
}

} // namespace loom
