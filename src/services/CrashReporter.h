#pragma once

#include "net/Work.h"
#include "services/CrashReport.h"
#include "services/LastWords.h"

#include <qcoro/qcorotask.h>

#include <chrono>
#include <functional>

namespace loom
{

class Clock;
class DataFolder;
class FeatureGates;
class Preferences;
class WidgetClient;

/// Tells the store when the application ended as it should not have. It marks every run, takes the mark away when the
/// run ends well, and at the next start reports the run whose mark is still there, if the shopper agreed to reports.
/// One per process, and only in the instance that shows windows; main thread.
class CrashReporter final
{
public:
    /// A report is tried at so many starts; without a network it is no try.
    static constexpr int maximumAttempts = 3;
    /// The reports that wait; the oldest makes way.
    static constexpr std::size_t maximumWaiting = 5;
    static constexpr std::chrono::seconds activityInterval{60};

    struct Application {
        QString version;
        qint64 build = 0;
        std::function<QString()> visitorID;
        std::function<bool()> hasConsent; ///< whether more than what is essential may be sent
        std::function<bool()> isOffline;  ///< whether the system is sure that there is no network
    };

    CrashReporter(WidgetClient& widget, Preferences& preferences, DataFolder& folder, const FeatureGates& features,
                  Clock& clock, Application application);

    /// Looks for the mark of the run before and leaves that of this one. Sends nothing yet.
    void start();
    /// The application quits as it should.
    void markCleanExit();
    /// Whether the shopper uses the application: only then is it noted from time to time that it is alive.
    void setActive(bool isActive);
    /// Sends what waits, once in a run that has a network: to be called whenever it is known what the store has
    /// switched off.
    void sendWaiting();

private:
    [[nodiscard]] bool isWanted() const;
    void take(const CrashReport& report);
    void save();
    [[nodiscard]] CrashSender sender() const;
    [[nodiscard]] QCoro::Task<> send();
    [[nodiscard]] QCoro::Task<> noteActivity();

    WidgetClient& m_widget;
    Preferences& m_preferences;
    DataFolder& m_folder;
    const FeatureGates& m_features;
    Clock& m_clock;
    Application m_application;
    LastWords m_lastWords;
    std::vector<CrashReport> m_waiting;
    std::chrono::milliseconds m_lastNoted{0};
    bool m_hasStarted = false;
    bool m_hasSent = false;
    Work m_activity;
    Work m_sending;
};

} // namespace loom
