#pragma once

#include "net/Work.h"
#include "release/ApplicationFolder.h"
#include "release/InstallJob.h"
#include "services/update/UpdateOffer.h"
#include "services/update/UpdateRecords.h"
#include "services/update/UpdateRelease.h"

#include <QDateTime>
#include <QFuture>
#include <QObject>
#include <QUuid>
#include <qcoro/qcorotask.h>

#include <functional>
#include <optional>

namespace loom
{

class Clock;
class FeatureGates;
class NetworkStatus;
class Preferences;
class Random;
class TrialRun;
class WidgetClient;
struct LastInstallation;

/// What the updater needs of the system. Everything outlives it.
struct UpdatePlatform {
    /// Where images, jobs and results lie; only this user's.
    QString workingFolder;
    /// The program that runs, for the rule of what can be replaced in place.
    QString program;
    /// The release that the program belongs to; nothing for a distribution's package or a build.
    std::optional<ApplicationFolder> folder;
    /// Starts a program that outlives this one; false when it cannot be started.
    std::function<bool(const QString& program, const QStringList& arguments)> startDetached;
    std::function<void(const QUrl&)> openExternally;
    /// The trial of the release that runs; null in tests and where there is none.
    TrialRun* trial = nullptr;
};

/// Keeps the application current: asks the store for the newest release, offers it, downloads and verifies its image
/// and has it installed by the helper program when the application quits. Where it cannot be replaced in place, it
/// leads the shopper to the image. Without the publisher's key or a working folder it only answers who asks by hand.
/// One per process; main thread, which never waits for disk or network.
class AppUpdater final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString settingsText READ settingsText NOTIFY changed)
    Q_PROPERTY(QString version READ version NOTIFY changed)
    Q_PROPERTY(QString notes READ notes NOTIFY changed)
    Q_PROPERTY(Action action READ action NOTIFY changed)
    Q_PROPERTY(QString actionText READ actionText NOTIFY changed)
    Q_PROPERTY(bool canUpdate READ canUpdate CONSTANT)
    Q_PROPERTY(bool canSkip READ canSkip NOTIFY changed)
    Q_PROPERTY(bool isCalling READ isCalling NOTIFY changed)
    Q_PROPERTY(bool selfUpdateFailed READ selfUpdateFailed NOTIFY changed)
    Q_PROPERTY(QDateTime lastChecked READ lastChecked NOTIFY changed)

public:
    using Release = UpdateRelease;

    enum class Phase { Idle, Checking, UpToDate, Downloading, Verifying, Ready, Installing, Failed };
    Q_ENUM(Phase)
    enum class Check { Automatic, Manual };
    /// What the panel's button does now.
    enum class Action { None, Check, Download, Relaunch, OpenImage };
    Q_ENUM(Action)

    static constexpr std::chrono::hours interval{6};
    /// A further pause at random, so that not every installation asks at once.
    static constexpr std::chrono::minutes jitter{30};
    static constexpr std::chrono::seconds checkTimeout{15};
    static constexpr std::chrono::seconds signatureTimeout{30};
    /// Quitting is not held longer.
    static constexpr std::chrono::seconds longestHold{5};
    /// How often, and for how long, a helper program that is still at work at the start is waited for.
    static constexpr std::chrono::seconds helperGlance{2};
    static constexpr std::chrono::seconds helperPatience{120};
    /// A release that could not be installed in place so often is installed from its image.
    static constexpr int maximumInPlaceFailures = 3;

    /// What runs, and who signs what is to replace it.
    struct Identity {
        QString version;
        qint64 build = 0;
        QByteArray publicKey;
        std::function<QString()> languageCode; ///< of the shopper's language
    };

    struct Services {
        WidgetClient& widget;
        Preferences& preferences;
        const FeatureGates& features;
        NetworkStatus& network;
        Clock& clock;
        Random& random;
    };

    AppUpdater(Services services, Identity identity, UpdatePlatform platform, QObject* parent = nullptr);
    ~AppUpdater() override;

    [[nodiscard]] const std::optional<Release>& release() const { return m_release; }
    [[nodiscard]] Phase phase() const { return m_phase; }
    [[nodiscard]] double progress() const { return m_progress; }
    /// The verified image.
    [[nodiscard]] const QString& image() const { return m_image; }
    [[nodiscard]] QDateTime lastChecked() const { return m_lastChecked.value_or(QDateTime()); }
    [[nodiscard]] bool selfUpdateFailed() const { return m_selfUpdateFailed; }
    [[nodiscard]] bool helperLaunched() const { return m_helperLaunched; }
    [[nodiscard]] bool terminateReplyPending() const { return m_terminateReplyPending; }

    /// Whether images can be verified and kept at all.
    [[nodiscard]] bool canUpdate() const;

    // What the panel shows, in the shopper's language.

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString text() const;
    /// The same where there is room for more words.
    [[nodiscard]] QString settingsText() const;
    /// Of the release that is offered; empty when none is.
    [[nodiscard]] QString version() const;
    [[nodiscard]] QString notes() const;
    [[nodiscard]] Action action() const;
    [[nodiscard]] QString actionText() const;
    /// Whether the shopper may turn the release down: it is offered, not mandatory, and not on its way.
    [[nodiscard]] bool canSkip() const;
    /// Whether there is something for the shopper to do or to know, so that the window has a button for it.
    [[nodiscard]] bool isCalling() const;

    /// Reads how the last installation went, and lets a release on trial prove itself. Once: more calls do nothing.
    void start();
    /// Checks as soon as the last installation has been concluded, and from time to time: to be called once it is known
    /// whether the store wants that. More calls do nothing.
    void beginChecking();
    void checkForUpdates(Check check);
    Q_INVOKABLE void checkByHand() { checkForUpdates(Check::Manual); }
    Q_INVOKABLE void downloadAndInstall();
    Q_INVOKABLE void relaunchToUpdate();
    Q_INVOKABLE void skipThisVersion();
    /// Does what `action` says.
    Q_INVOKABLE void act();
    /// The language of the texts is another.
    void retranslate();

    /// Whether the application may quit now. When it may not, the installer is being prepared, and terminateReplied()
    /// follows within a moment.
    [[nodiscard]] bool shouldTerminate();
    /// The application ends as it should.
    void willTerminate();

Q_SIGNALS:
    void changed();
    /// The application is to quit, so that it can be replaced.
    void quitRequested();
    /// Quitting, which was held, may go on.
    void terminateReplied();
    /// An installation in place has failed; told once for each.
    void updateFailed();

private:
    /// Why the last thing that was asked for did not work.
    struct Trouble {
        enum class Kind {
            Check,
            Http,       ///< the server of the image or of its signature answered with `status`
            Changed,    ///< incomplete, or not what the store announced
            Unreadable, ///< the file
            NotSigned,
            Stopped,
        };
        Kind kind = Kind::Check;
        int status = 0;
        bool isFlaw = false; ///< the image came whole, and is not what it should be
    };
    using Verified = Result<QString, Trouble>; ///< the checksum of an image
    enum class Relaunch { No, Yes };

    void enter(Phase phase);
    void enterFailed(Trouble trouble);
    /// In the shopper's language.
    [[nodiscard]] static QString sentence(Trouble trouble);

    // Checking.

    [[nodiscard]] QCoro::Task<> checkFromTimeToTime();
    [[nodiscard]] QCoro::Task<> ask(Check check);
    void take(const std::optional<Release>& release, Check check);
    /// Whether what is ready is still what is to be installed.
    [[nodiscard]] bool staysReady(const std::optional<Release>& release, UpdateOffer offer) const;
    /// Whether the release is offered to who has not asked for it, too.
    [[nodiscard]] bool isMeantUnasked(const Release& release);
    [[nodiscard]] Installation installation();
    /// Whether `one` is a later release than `other`. What is no version is later than nothing.
    [[nodiscard]] static bool isLater(const Release& one, const Release& other);
    /// The version and build that run.
    [[nodiscard]] Release running() const;
    [[nodiscard]] bool canReplaceInPlace() const;
    /// Whether the shopper installs the release from its image.
    [[nodiscard]] bool isInstalledByHand() const;
    /// Whether quitting now installs what is ready.
    [[nodiscard]] bool isInstalledAtQuit() const;

    // Downloading.

    [[nodiscard]] QCoro::Task<> download(Release release);
    [[nodiscard]] QCoro::Task<Verified> fetch(Release release, QString file, QUuid token, std::stop_token stop);
    [[nodiscard]] QCoro::Task<Verified> verify(Release release, QString file, std::stop_token stop);
    /// The signature, empty where the image has none that could be read. The failure is one of getting it: another time
    /// it may be there.
    [[nodiscard]] static QCoro::Task<Result<QByteArray, Trouble>> fetchSignature(Release release, QString file,
                                                                                 std::stop_token stop);
    [[nodiscard]] bool isReady() const { return !m_image.isEmpty(); }
    void setReady(const QString& image, const QString& sha256);
    void forgetImage();
    void openImage();
    /// Removes, in its own time, the images that are of no use any more.
    void discardImages() const;

    // Installing.

    [[nodiscard]] QCoro::Task<> concludeInstallation();
    /// What the result of the last installation means. Whether its image may be installed once more.
    [[nodiscard]] bool conclude(const LastInstallation& last);
    [[nodiscard]] QCoro::Task<> readyAgain(InstallJob job, std::stop_token stop);
    void noteFailure(const Release& release);
    [[nodiscard]] QCoro::Task<> confirmTrial();
    /// Installs what is ready, once the last installation has been concluded.
    void beginInstalling(Relaunch relaunch);
    void installWhatWaits();
    [[nodiscard]] QCoro::Task<> install(Relaunch relaunch);
    [[nodiscard]] InstallJob job(Relaunch relaunch) const;
    [[nodiscard]] QCoro::Task<> holdQuitting();
    void replyToTerminate();

    Services m_services;
    Identity m_identity;
    UpdatePlatform m_platform;
    UpdateRecords m_records;
    std::optional<Release> m_release;
    UpdateOffer m_offer = UpdateOffer::None; ///< of the release
    Phase m_phase = Phase::Idle;
    double m_progress = 0;
    QString m_image;
    std::optional<QString> m_readySHA256;
    bool m_isImageOpened = false;
    std::optional<Trouble> m_trouble;
    std::optional<QDateTime> m_lastChecked;
    bool m_isCheckDue = false; ///< one was left out, because there was no network
    std::optional<QString> m_manuallyCheckedVersion;
    bool m_downloadIsBackground = false; ///< nobody has asked for what is being downloaded, or is ready
    std::optional<QUuid> m_downloadToken;
    QString m_flawedRelease; ///< key() of one whose image is not what it should be: not downloaded again unasked
    bool m_helperLaunched = false;
    bool m_terminateReplyPending = false;
    bool m_hasReplied = false;
    bool m_selfUpdateFailed = false;
    QString m_failedRelease; ///< key() of the one it failed for
    bool m_isOnTrial = false;
    bool m_isStarted = false;
    bool m_isConcluded = false;      ///< the last installation
    bool m_isCheckingWanted = false; ///< of itself, from time to time
    std::optional<Relaunch> m_next;  ///< an installation that waits for the last one to be concluded
    QFuture<void> m_confirming;
    Work m_timer;
    Work m_checking;
    Work m_download;
    Work m_concluding;
    Work m_proving;
    Work m_installing;
    Work m_holding;
};

} // namespace loom
