#pragma once

#include "discovery/RecoAPI.h"
#include "net/Work.h"

#include <QObject>

namespace loom
{

/// How many pieces of a designer the store has, and how many of them are new. Main thread; begins with load().
class BrandCounters final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY changed)
    Q_PROPERTY(qlonglong items READ items NOTIFY changed)
    Q_PROPERTY(qlonglong newItems READ newItems NOTIFY changed)

public:
    BrandCounters(QString vendor, RecoAPI& api, QObject* parent = nullptr);

    [[nodiscard]] bool isLoaded() const { return m_stats.has_value(); }
    /// 0 when it is not known.
    [[nodiscard]] qlonglong items() const { return m_stats ? m_stats->items : 0; }
    /// Of the last 30 days.
    [[nodiscard]] qlonglong newItems() const { return m_stats ? m_stats->new30d : 0; }

    /// Loads unless it is loaded or loading.
    Q_INVOKABLE void load();

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QCoro::Task<> fetch();

    QString m_vendor;
    RecoAPI& m_api;
    std::optional<RecoAPI::BrandStats> m_stats;
    Work m_loading;
};

} // namespace loom
