#pragma once

#include "base/FeatureGates.h"
#include "net/Work.h"
#include "services/RemoteConfigValues.h"
#include "services/ShownPromo.h"

#include <QObject>
#include <QVariant>
#include <qcoro/qcorotask.h>

namespace loom
{

class Clock;
class DataFolder;
class WidgetClient;

/// What the store changes of the application without a release: features it switches off, texts, the home's dashboard
/// and promotion, hidden tools. Begins with what it said last and asks again from time to time; whatever fails leaves
/// everything as it was. One per process; main thread.
class RemoteConfig final : public QObject, public FeatureGates
{
    Q_OBJECT
    Q_PROPERTY(QStringList dashboard READ dashboardKeys NOTIFY dashboardChanged)
    Q_PROPERTY(QVariant promo READ promoVariant NOTIFY promoChanged)
    Q_PROPERTY(bool prefetchesImages READ prefetchesImages NOTIFY featuresChanged)
    Q_PROPERTY(bool updatesAutomatically READ updatesAutomatically NOTIFY featuresChanged)

public:
    using Values = RemoteConfigValues;
    using Promo = RemotePromo;
    using DashboardCard = loom::DashboardCard;

    /// What configures the application: the store, or nobody but who built it.
    enum class Source { Store, BuiltIn };

    static constexpr std::chrono::seconds interval{1800};
    /// An attempt this long ago is not repeated because the application comes to the front.
    static constexpr std::chrono::seconds leastAge{60};

    /// Applies what the store said last, as it is kept on this machine; asks nobody yet.
    RemoteConfig(WidgetClient& widget, DataFolder& folder, Clock& clock, Source source = Source::Store,
                 QObject* parent = nullptr);

    [[nodiscard]] const Values& values() const { return m_values; }
    /// Whether the store is being asked.
    [[nodiscard]] bool fetching() const { return m_fetching.isRunning(); }
    /// When it was last asked, with success or not.
    [[nodiscard]] const std::optional<QDateTime>& lastFetched() const { return m_lastFetched; }

    [[nodiscard]] bool isEnabled(Feature feature) const override;
    [[nodiscard]] bool prefetchesImages() const { return isEnabled(Feature::PrefetchImages); }
    [[nodiscard]] bool updatesAutomatically() const { return isEnabled(Feature::AutoUpdate); }
    /// What stands in the place of a text, if anything does.
    [[nodiscard]] std::optional<QString> copy(const QString& key, AppLanguage language,
                                              BuiltInText builtIn = BuiltInText::English) const
    {
        return m_values.copyText(key, language, builtIn);
    }
    [[nodiscard]] std::vector<DashboardCard> dashboard() const;
    /// By the keys they have on the wire.
    [[nodiscard]] QStringList dashboardKeys() const;
    /// The promotion that is on now, in the shopper's language.
    [[nodiscard]] const std::optional<ShownPromo>& promo() const { return m_promo; }
    [[nodiscard]] const QStringList& hiddenTools() const { return m_values.hiddenTools; }

    [[nodiscard]] AppLanguage language() const { return m_language; }
    /// The shopper's, in which texts are given out.
    void setLanguage(AppLanguage language);

    /// Asks now and from now on.
    void start();
    /// Asks, unless it is doing so or the store has no say.
    Q_INVOKABLE void refresh();
    /// The application came to the front.
    void becameActive();

Q_SIGNALS:
    void featuresChanged();
    /// The texts, or the language they are looked up in.
    void copyChanged();
    void dashboardChanged();
    void promoChanged();
    void toolsChanged();
    void fetchingChanged();

private:
    [[nodiscard]] QCoro::Task<> fetchFromTimeToTime();
    [[nodiscard]] QCoro::Task<> fetch();
    void take(const Values& values);
    void apply(Values values);
    void updatePromo();
    [[nodiscard]] QCoro::Task<> awaitBound(std::chrono::milliseconds duration);
    [[nodiscard]] QVariant promoVariant() const { return m_promo ? QVariant::fromValue(*m_promo) : QVariant(); }

    WidgetClient& m_widget;
    DataFolder& m_folder;
    Clock& m_clock;
    const Source m_source;
    AppLanguage m_language = AppLanguage::English;
    Values m_values;
    std::optional<ShownPromo> m_promo;
    std::optional<QDateTime> m_lastFetched;
    Work m_timer;
    Work m_awaitingBound;
    Work m_fetching;
};

} // namespace loom
