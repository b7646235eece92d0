#include "discovery/BrandCounters.h"

namespace loom
{

BrandCounters::BrandCounters(QString vendor, RecoAPI& api, QObject* parent)
    : QObject(parent)
    , m_vendor(std::move(vendor))
    , m_api(api)
{
}

void BrandCounters::load()
{
    if (!m_stats && !m_loading.isRunning() && !m_vendor.isEmpty())
        static_cast<void>(fetch());
}

QCoro::Task<> BrandCounters::fetch()
{
    const Work::Run run = m_loading.begin();
    const auto stats = co_await m_api.brandStats(m_vendor, run.stop());
    if (run.isStopped() || !stats)
        co_return; // the page does without
    m_stats = *stats;
    Q_EMIT changed();
}

} // namespace loom
