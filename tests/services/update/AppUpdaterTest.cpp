#include "AppUpdaterFixture.h"

#include <QFileInfo>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

using Code = InstallResult::Code;

class AppUpdaterTest : public AppUpdaterFixture
{
protected:
    void TearDown() override { quit(); }

    [[nodiscard]] std::string title() const { return updater->title().toStdString(); }
    [[nodiscard]] std::string text() const { return updater->text().toStdString(); }
    [[nodiscard]] std::string actionText() const { return updater->actionText().toStdString(); }
};

const std::string incomplete = "The download was incomplete or changed on the way. Try again.";
const std::string notSigned = "The download isn't signed by LOOMSTREET, so it wasn't opened.";
const std::string unreadable = "The downloaded file couldn't be read.";
const std::string notReplaced = "LOOMSTREET couldn't replace itself on this Mac. Install the new version from the disk "
                                "image instead. It takes a few seconds.";

TEST_F(AppUpdaterTest, AnUnaskedUpdateIsDownloadedAndInstalledAtTheNextQuit)
{
    put(file(QStringLiteral("loomstreet-1.4.9-1.squashfs")), "old");
    put(file(QStringLiteral("loomstreet-1.4.9-2.squashfs.part")), "older");
    startAndGetReady();
    EXPECT_EQ(server.requests().at(0).query, "publicKey=key-1");
    EXPECT_EQ(title(), "Ready to install");
    EXPECT_EQ(text(), "Downloaded. Relaunch to finish, or it installs the next time you quit.");
    EXPECT_EQ(updater->settingsText(), QStringLiteral("The update is downloaded. Relaunch LOOMSTREET to finish, or it "
                                                      "installs the next time you quit."));
    EXPECT_EQ(actionText(), "Relaunch to Update");
    EXPECT_EQ(updater->notes(), QStringLiteral("Neues"));
    EXPECT_TRUE(updater->isCalling() && updater->canSkip());
    EXPECT_EQ(QDir(working).entryList({QStringLiteral("*.squashfs*")}),
              QStringList{QStringLiteral("loomstreet-1.5.0-400.squashfs")});
    EXPECT_EQ(QFileInfo(working).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());

    put(file(QStringLiteral("install-result.json")), "of another time");
    EXPECT_FALSE(updater->shouldTerminate());
    EXPECT_FALSE(updater->shouldTerminate());
    EXPECT_TRUE(updater->terminateReplyPending());
    EXPECT_EQ(updater->phase(), Phase::Installing);
    settle();
    EXPECT_EQ(replies, 1);
    EXPECT_TRUE(updater->helperLaunched() && updater->shouldTerminate());
    EXPECT_EQ(started, QStringList{application + QStringLiteral("/libexec/loomstreet-updater ") + working});
    EXPECT_EQ(preferences->value(preferences::updatePendingInstall),
              json(R"({"version": "1.5.0", "build": 400})").toObject());
    const InstallJob expected{.version = QStringLiteral("1.5.0"),
                              .build = 400,
                              .relaunch = false,
                              .createdAt = clock.now(),
                              .processIdentifier = QCoreApplication::applicationPid(),
                              .image = imageFile(),
                              .sha256 = sha15,
                              .folder = application};
    EXPECT_EQ(readInstallJob(working), expected);
    EXPECT_FALSE(QFile::exists(file(QStringLiteral("install-result.json"))));
    EXPECT_EQ(quitRequests, 0);
}

TEST_F(AppUpdaterTest, TheShopperFindsDownloadsAndRelaunches)
{
    features.off.insert(Feature::AutoUpdate);
    start();
    EXPECT_EQ(title(), "");
    EXPECT_FALSE(updater->isCalling());
    ask(record(QStringLiteral("1.5.0"), {{QStringLiteral("rollout"), 0}}));
    EXPECT_EQ(updater->phase(), Phase::Idle);
    EXPECT_EQ(title(), "1.5.0 is ready to install");
    EXPECT_EQ(actionText(), "Download and Install");
    EXPECT_TRUE(updater->isCalling());

    server.expect("GET /1.5.0", Answer::body(image15).pauseAfter(9));
    server.expect("GET /1.5.0.minisig", Answer::body(signature15).pauseAfter(1));
    updater->act();
    server.waitForRequests(2);
    updater->checkByHand(); // not now
    EXPECT_FALSE(updater->canSkip());
    EXPECT_EQ(updater->action(), Action::None);
    server.proceed();
    server.waitForRequests(3);
    EXPECT_EQ(title(), "Checking the download…");
    updater->checkByHand();
    updater->downloadAndInstall();
    updater->relaunchToUpdate();
    server.proceed();
    await(Phase::Ready);
    EXPECT_EQ(updater->progress(), 1);
    updater->act();
    updater->checkByHand();
    EXPECT_FALSE(updater->shouldTerminate()); // quits while the relaunch is being prepared
    settle();
    EXPECT_EQ(replies, 1);
    EXPECT_EQ(quitRequests, 0);
    EXPECT_TRUE(updater->shouldTerminate());
    EXPECT_TRUE(readInstallJob(working)->relaunch);
    EXPECT_EQ(started.size(), 1);

    // The same without quitting by oneself, over the image that is there already: it is verified, not downloaded.
    quit();
    preferences.reset();
    QFile::remove(directory.filePath(QStringLiteral("lst_preferences.json")));
    start();
    ask(record());
    TestServer elsewhere; // where the store keeps what it serves
    server.expect("GET /1.5.0.minisig", Answer::redirect(elsewhere.url(QStringLiteral("/15"))));
    elsewhere.expect("GET /15", Answer::body(signature15));
    updater->act();
    await(Phase::Ready);
    updater->act();
    settle();
    EXPECT_EQ(quitRequests, 1);
    EXPECT_TRUE(updater->shouldTerminate());
}

TEST_F(AppUpdaterTest, EveryFlawOfADownloadHasItsSentenceAndCanBeTriedAgain)
{
    struct Case {
        const char* what;
        QJsonObject changes;
        Answer image = Answer::body(image15);
        std::optional<Answer> signature = Answer::body(signature15);
        std::string sentence;
        bool isKept = false; ///< the image, for the next attempt
    };
    const auto sha = [](const QString& text) {
        return QJsonObject{{QStringLiteral("sha256"), text}};
    };
    const std::vector<Case> cases{
        {.what = "no image",
         .image = Answer::body("", 404),
         .signature = {},
         .sentence = "The download failed (HTTP 404)."},
        {.what = "busy",
         .image = Answer::body("", 503),
         .signature = {},
         .sentence = "The download failed (HTTP 503)."},
        {.what = "more than said", .changes = {{QStringLiteral("size"), 17}}, .signature = {}, .sentence = incomplete},
        {.what = "less than said", .changes = {{QStringLiteral("size"), 19}}, .signature = {}, .sentence = incomplete},
        {.what = "another checksum", .changes = sha(QString(64, u'0')), .sentence = incomplete},
        {.what = "another checksum and no signature",
         .changes = sha(QString(64, u'0')),
         .signature = Answer::body("", 404),
         .sentence = incomplete},
        {.what = "no signature", .changes = sha(sha15), .signature = Answer::body("", 404), .sentence = notSigned},
        {.what = "none any more", .signature = Answer::body("", 410), .sentence = notSigned},
        {.what = "of another file", .signature = Answer::body(signature16), .sentence = notSigned},
        {.what = "endless", .signature = Answer::body(signature15 + QByteArray(5000, ' ')), .sentence = notSigned},
        {.what = "signature later",
         .changes = sha(sha15.toUpper()),
         .signature = Answer::body("", 502),
         .sentence = "The download failed (HTTP 502).",
         .isKept = true},
        {.what = "connection lost", .signature = Answer::drop(), .sentence = incomplete, .isKept = true},
    };
    features.off.insert(Feature::AutoUpdate);
    for (const Case& row : cases) {
        SCOPED_TRACE(row.what);
        start();
        ask(record(QStringLiteral("1.5.0"), row.changes));
        server.expect("GET /1.5.0", row.image);
        if (row.signature)
            server.expect("GET /1.5.0.minisig", *row.signature);
        if (row.what == std::string("connection lost")) // which may be sent once more
            server.allow("GET /1.5.0.minisig", [](const ReceivedRequest&) { return Answer::drop(); });
        updater->act();
        await(Phase::Failed);
        EXPECT_EQ(title(), "Couldn't download the update");
        EXPECT_EQ(text(), row.sentence);
        EXPECT_EQ(updater->action(), Action::Download);
        EXPECT_TRUE(updater->isCalling());
        EXPECT_TRUE(updater->shouldTerminate());
        EXPECT_EQ(QFile::exists(imageFile()), row.isKept);
        QFile::remove(imageFile());
    }
}

TEST_F(AppUpdaterTest, AnImageThatIsThereButNotAsItShouldBeIsDownloadedAnew)
{
    put(imageFile(), "something else of 1.5.0");
    announce(record(QStringLiteral("1.5.0"), {{QStringLiteral("sha256"), sha15}}));
    serveSignature();
    serveImage();
    serveSignature();
    start();
    await(Phase::Ready);

    // Where it cannot even be written, the shopper is told once he asks.
    quit();
    QFile::remove(imageFile());
    QDir().mkpath(imageFile() + QStringLiteral(".part/in-the-way"));
    QDir().mkpath(imageFile() + QStringLiteral("/in-the-way"));
    features.off.insert(Feature::AutoUpdate);
    start();
    ask(record());
    server.allow("GET /1.5.0", [](const ReceivedRequest&) { return Answer::body(image15); });
    updater->act();
    await(Phase::Failed);
    EXPECT_EQ(text(), unreadable);
}

TEST_F(AppUpdaterTest, AFlawInTheBackgroundLeavesTheOfferAndIsNotRepeatedUnasked)
{
    // A lost connection is no flaw: the next check tries again.
    announce(record());
    server.expect("GET /1.5.0", Answer::body(image15).cutAfter(5));
    start();
    server.waitForRequests(2);
    await(Phase::Idle);
    serveImage();
    server.expect("GET /1.5.0.minisig", Answer::body("", 404));
    tick(record());
    server.waitForRequests(5);
    await(Phase::Idle);
    EXPECT_EQ(updater->action(), Action::Download);
    EXPECT_EQ(text(), "");
    tick(record());
    EXPECT_EQ(updater->phase(), Phase::Idle);
}

TEST_F(AppUpdaterTest, TheLastInstallationIsReadAtTheStartAndToldOnce)
{
    struct Case {
        const char* what;
        std::optional<Code> code;
        int failures;
        bool isReady;
        bool isImpossible = false;
        bool isReverted = false;
    };
    const std::vector<Case> cases{
        {.what = "busy", .code = Code::Busy, .failures = 0, .isReady = true},
        {.what = "not writable", .code = Code::NotWritable, .failures = 1, .isReady = true, .isImpossible = true},
        {.what = "no space", .code = Code::NoSpace, .failures = 1, .isReady = true},
        {.what = "bad image", .code = Code::BadImage, .failures = 1, .isReady = false},
        {.what = "dies", .code = Code::DoesNotStart, .failures = 1, .isReady = false, .isReverted = true},
        {.what = "anything", .code = Code::Failed, .failures = 1, .isReady = true},
        {.what = "no word of it", .code = std::nullopt, .failures = 1, .isReady = true},
    };
    features.off.insert(Feature::AutoUpdate);
    for (const Case& row : cases) {
        SCOPED_TRACE(row.what);
        leavePending(row.code);
        notices = 0;
        start();
        EXPECT_EQ(notices, row.failures);
        EXPECT_EQ(failures(), row.failures);
        EXPECT_EQ(updater->selfUpdateFailed(), row.failures == 1);
        EXPECT_EQ(text() == notReplaced, row.failures == 1);
        EXPECT_EQ(updater->phase(), row.isReady ? Phase::Ready : Phase::Idle);
        EXPECT_EQ(updater->action(), !row.isReady        ? Action::Check
                                     : row.failures == 1 ? Action::OpenImage
                                                         : Action::Relaunch);
        EXPECT_TRUE(updater->isCalling());
        EXPECT_EQ(preferences->value(preferences::updateInPlaceImpossible), row.isImpossible ? application : QString());
        EXPECT_EQ(preferences->value(preferences::updateRevertedRelease),
                  row.isReverted ? QStringLiteral("1.5.0-400") : QString());
        EXPECT_FALSE(isPending());
        EXPECT_FALSE(readInstallJob(working) || readInstallResult(working));
        // In place it is tried again at the next quit, where that makes sense.
        EXPECT_EQ(updater->shouldTerminate(), !row.isReady || row.isImpossible);
        settle();
        start(); // without any result
        EXPECT_EQ(notices, row.isReady && !row.isImpossible ? row.failures + 1 : row.failures);
        quit();
        for (const QString& name : QDir(directory.path()).entryList({QStringLiteral("lst_*")}, QDir::Files))
            QFile::remove(directory.filePath(name));
        QFile::remove(imageFile());
    }
}

TEST_F(AppUpdaterTest, AfterThreeFailuresTheShopperInstallsFromTheImage)
{
    features.off.insert(Feature::AutoUpdate);
    for (int attempt = 1; attempt <= AppUpdater::maximumInPlaceFailures; ++attempt) {
        leavePending(Code::Failed);
        start();
        EXPECT_EQ(failures(), attempt);
        EXPECT_EQ(notices, attempt);
    }
    EXPECT_EQ(title(), "1.5.0 is ready to install");
    updater->relaunchToUpdate();
    EXPECT_TRUE(updater->shouldTerminate());
    EXPECT_TRUE(started.isEmpty());

    // From now on it is not even downloaded unasked.
    features.off.clear();
    announce(record());
    start();
    waitUntil([this] { return updater->release().has_value(); }, "it is offered");
    EXPECT_EQ(updater->action(), Action::Download);
    serveSignature();
    updater->act();
    await(Phase::Ready);
    EXPECT_EQ(opened, QList<QUrl>{QUrl::fromLocalFile(working)});
    EXPECT_EQ(title(), "Install the update");
    EXPECT_EQ(text(), "In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open "
                      "LOOMSTREET again.");
    updater->act();
    EXPECT_EQ(opened.size(), 2);
    EXPECT_TRUE(updater->shouldTerminate());
    // Another release has all its attempts before it.
    tick(record(QStringLiteral("1.4.9")));
    EXPECT_EQ(updater->phase(), Phase::Ready);
    server.expect("GET /1.6.0", Answer::body(image16));
    server.expect("GET /1.6.0.minisig", Answer::body(signature16));
    tick(record(QStringLiteral("1.6.0")));
    await(Phase::Ready);
    EXPECT_EQ(title(), "Ready to install");
    EXPECT_FALSE(QFile::exists(imageFile()));
}

TEST_F(AppUpdaterTest, WhatCannotBeReplacedInPlaceIsOfferedButNotDownloadedUnasked)
{
    const ApplicationFolder own = *folder;
    const ApplicationFolder moved{
        .path = QStringLiteral("/private/AppTranslocation/A-1/app"), .version = version, .build = 312};
    for (const auto& place : {std::optional<ApplicationFolder>(), std::optional(moved), std::optional(own)}) {
        folder = place;
        if (place == own) {
            launch();
            preferences->set(preferences::updateInPlaceImpossible, application);
        }
        announce(record());
        start();
        waitUntil([this] { return updater->release().has_value(); }, "it is offered");
        EXPECT_EQ(updater->phase(), Phase::Idle);
        EXPECT_EQ(title(), "1.5.0 is ready to install");
        EXPECT_EQ(text(), "");
    }
}

TEST_F(AppUpdaterTest, AHelperThatIsStillAtWorkIsWaitedFor)
{
    features.off.insert(Feature::AutoUpdate);
    for (const bool quits : {false, true}) {
        for (const Code code : {Code::Busy, Code::NotWritable}) {
            leavePending(std::nullopt);
            auto helper = InstallLock::take(working, InstallLock::Work::Helping);
            ASSERT_TRUE(helper);
            start();
            EXPECT_TRUE(isPending());
            // Whoever wants an update meanwhile has it as soon as that is possible.
            ask(record());
            serveSignature();
            updater->act();
            await(Phase::Ready);
            if (quits)
                EXPECT_FALSE(updater->shouldTerminate());
            else
                updater->act();
            clock.advance(AppUpdater::helperGlance);
            settle();
            EXPECT_EQ(updater->phase(), Phase::Installing);
            EXPECT_TRUE(isPending() && started.isEmpty());
            ASSERT_TRUE(write(InstallResult{.code = code, .path = application, .relaunch = false}, working));
            helper.reset();
            clock.advance(AppUpdater::helperGlance);
            settle();
            const bool isPossible = code == Code::Busy;
            updater->start(); // does not take what has just begun for what is to be concluded
            settle();
            EXPECT_EQ(started.size(), isPossible ? 1 : 0);
            EXPECT_EQ(isPending(), isPossible);
            EXPECT_EQ(replies, quits ? 1 : 0);
            EXPECT_EQ(quitRequests, isPossible && !quits ? 1 : 0);
            EXPECT_EQ(updater->phase(), isPossible ? Phase::Installing : Phase::Ready);
            EXPECT_TRUE(isPossible || updater->action() == Action::OpenImage);
            started.clear();
            replies = quitRequests = 0;
            preferences->remove(preferences::updateInPlaceImpossible);
        }
    }
}

TEST_F(AppUpdaterTest, AReleaseOnTrialIsPendingUntilItHasProvedItself)
{
    const QString previous = directory.filePath(stagingPrefix + QLatin1Char('x'));
    const auto onTrial = [this, previous] {
        trial.reset();
        ASSERT_TRUE(write(InstallTrial{.version = version, .build = build, .folder = application, .previous = previous},
                          working));
        trial.emplace(working, folder);
        ASSERT_EQ(trial->verdict(), TrialRun::Verdict::OnTrial);
    };
    leavePending(Code::Installed);
    features.off.insert(Feature::AutoUpdate);
    version = QStringLiteral("1.5.0");
    build = 400;
    put(application + QStringLiteral("/release.json"), R"({"version": "1.5.0", "build": 400})");
    folder = ApplicationFolder::read(application);
    QDir().mkpath(previous);
    onTrial();
    start();
    EXPECT_TRUE(isPending());
    clock.advance(TrialRun::proof - 1ms);
    updater->willTerminate();
    EXPECT_EQ(readInstallTrial(working)->starts, 0);
    EXPECT_TRUE(isPending() && QFile::exists(previous));
    quit();

    onTrial();
    start();
    clock.advance(TrialRun::proof);
    waitUntil([this] { return !isPending(); }, "the release has proved itself");
    updater->willTerminate();
    settle();
    EXPECT_FALSE(readInstallTrial(working) || QFile::exists(previous) || QFile::exists(imageFile()));
    EXPECT_FALSE(updater->isCalling());
    EXPECT_EQ(notices, 0);
}

TEST_F(AppUpdaterTest, WhatWasInstalledWhileTheOldVersionRanIsNoFailureYet)
{
    features.off.insert(Feature::AutoUpdate);
    leavePending(Code::Installed);
    start();
    EXPECT_TRUE(isPending());
    start(); // still the old one
    EXPECT_FALSE(isPending());
    EXPECT_EQ(notices, 1);

    leavePending(std::nullopt);
    version = QStringLiteral("1.6.0"); // installed by hand meanwhile
    start();
    EXPECT_FALSE(isPending());
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(updater->phase(), Phase::Idle);

    // Nothing of it is ours.
    launch();
    preferences->set(preferences::updatePendingInstall, json(R"({"version": ["1.9"], "build": "x"})").toObject());
    put(file(QStringLiteral("install-result.json")), R"({"code": "failed")");
    put(file(QStringLiteral("install-job.json")), "[]");
    start();
    EXPECT_FALSE(isPending() || QFile::exists(file(QStringLiteral("install-job.json"))));
    EXPECT_EQ(notices, 1);
}

TEST_F(AppUpdaterTest, AnImageThatWasExchangedSinceIsNotReadyAgain)
{
    features.off.insert(Feature::AutoUpdate);
    leavePending(Code::Busy);
    put(imageFile(), "the image of 1.5.O");
    start();
    EXPECT_EQ(updater->phase(), Phase::Idle);
    EXPECT_TRUE(updater->shouldTerminate());
}

TEST_F(AppUpdaterTest, QuittingGoesOnWithoutTheHelper)
{
    startAndGetReady();
    canStart = false;
    EXPECT_FALSE(updater->shouldTerminate());
    settle();
    EXPECT_EQ(replies, 1);
    EXPECT_TRUE(updater->shouldTerminate());
    EXPECT_FALSE(updater->helperLaunched());
    features.off.insert(Feature::AutoUpdate);
    start(); // and is noticed
    EXPECT_EQ(notices, 1);
    features.off.clear();

    // Who relaunches is told at once.
    quit();
    launch();
    preferences->remove(preferences::updateInPlaceFailures);
    announce(record());
    serveSignature();
    start();
    await(Phase::Ready);
    updater->relaunchToUpdate();
    settle();
    EXPECT_EQ(quitRequests, 0);
    EXPECT_EQ(notices, 2);
    EXPECT_EQ(failures(), 1);
    EXPECT_FALSE(isPending());
    EXPECT_EQ(text(), notReplaced);
    EXPECT_EQ(updater->action(), Action::OpenImage);
}

TEST_F(AppUpdaterTest, QuittingIsNotHeldLongerThanFiveSeconds)
{
    startAndGetReady();
    QSemaphore disk;
    QThreadPool::globalInstance()->setMaxThreadCount(1);
    QThreadPool::globalInstance()->start([&disk] { disk.acquire(); });
    EXPECT_FALSE(updater->shouldTerminate());
    clock.advance(5s - 1ms);
    drainEvents();
    EXPECT_EQ(replies, 0);
    clock.advance(1ms);
    drainEvents();
    EXPECT_EQ(replies, 1);
    EXPECT_TRUE(updater->shouldTerminate());
    disk.release();
    QThreadPool::globalInstance()->setMaxThreadCount(QThread::idealThreadCount());
    settle();
    EXPECT_TRUE(started.isEmpty());
    EXPECT_FALSE(isPending());
}

TEST_F(AppUpdaterTest, ManualChecksAnswerWhateverTheStoreSays)
{
    features.off.insert(Feature::AutoUpdate);
    start();
    EXPECT_FALSE(updater->lastChecked().isValid());
    for (const Answer& answer :
         {Answer::body("", 500), Answer::body("{"), Answer::json({{QStringLiteral("macos"), 4}})}) {
        server.expect("GET /api/support/widget/app-version", answer);
        updater->act();
        EXPECT_EQ(title(), "Checking for updates…");
        await(Phase::Failed);
        EXPECT_EQ(title(), "Couldn't check for updates");
        EXPECT_EQ(text(), "Couldn't check for updates. Check your connection and try again.");
        EXPECT_EQ(actionText(), "Check for Updates…");
        EXPECT_FALSE(updater->isCalling() || updater->lastChecked().isValid());
    }
    ask(record(version, {{QStringLiteral("build"), 312}}));
    EXPECT_EQ(title(), "You're up to date");
    EXPECT_EQ(updater->lastChecked(), clock.now());
    EXPECT_FALSE(updater->isCalling());

    // No answer within 15 s.
    server.expect("GET /api/support/widget/app-version", Answer::silence());
    updater->checkByHand();
    server.waitForRequests(5);
    clock.advance(15s);
    await(Phase::Failed);
}

TEST_F(AppUpdaterTest, ItAsksAtTheStartAndEverySixHoursAndSomeMinutes)
{
    features.off.insert(Feature::AutoUpdate);
    launch();
    updater->start();
    settle();
    EXPECT_EQ(clock.sleepers(), 0);
    updater->beginChecking();
    features.off.clear();
    updater->start();
    updater->beginChecking();
    EXPECT_EQ(clock.sleepers(), 1);
    const QJsonObject none = record(QStringLiteral("1.4.1"));
    // 0x00010203 ms of the half hour
    const auto pause = 6h + 66051ms;
    clock.advance(pause - 1ms);
    EXPECT_TRUE(server.requests().empty());
    announce(none);
    clock.setNow(clock.now().addYears(-40));
    clock.advance(1ms);
    waitUntil([this] { return updater->lastChecked().isValid(); }, "the store has answered");
    EXPECT_EQ(updater->phase(), Phase::Idle);

    // Without a network it does nothing, and makes up for it once there is one.
    network.setOffline(true);
    updater->checkForUpdates(Check::Automatic);
    EXPECT_EQ(server.requests().size(), 1U);
    announce(none);
    clock.advance(1ms);
    network.setOffline(false);
    waitUntil([this] { return updater->lastChecked() == clock.now(); }, "the store has answered");
    network.setOffline(true);
    network.setOffline(false);

    // What costs the shopper something is not downloaded unasked.
    network.setMetered(true);
    tick(record());
    EXPECT_EQ(updater->phase(), Phase::Idle);
    EXPECT_TRUE(updater->isCalling());
    // Withdrawn again.
    tick(none);
    EXPECT_FALSE(updater->isCalling() || updater->release());
    EXPECT_EQ(server.requests().size(), 4U);
}

TEST_F(AppUpdaterTest, WhatIsReadyStaysReadyUntilThereIsSomethingNewer)
{
    startAndGetReady();
    const auto isAsItWas = [this] {
        return updater->phase() == Phase::Ready && updater->image() == imageFile() &&
               updater->version() == QStringLiteral("1.5.0");
    };
    tick(record());
    EXPECT_TRUE(isAsItWas());
    server.expect("GET /api/support/widget/app-version", Answer::body("", 500));
    updater->checkByHand();
    await(Phase::Ready);
    EXPECT_TRUE(isAsItWas());
    ask(record(QStringLiteral("1.6.0"), {{QStringLiteral("min"), QStringLiteral("1.5")}}));
    EXPECT_EQ(updater->phase(), Phase::Idle);
    EXPECT_EQ(title(), "1.6.0 is ready to install");
    EXPECT_EQ(text(), "The version you have is no longer supported.");
    EXPECT_FALSE(updater->canSkip());
    EXPECT_TRUE(updater->image().isEmpty() && updater->shouldTerminate());
}

TEST_F(AppUpdaterTest, WhatIsWithdrawnIsInstalledOnlyForWhoAskedForIt)
{
    for (const QJsonObject& withdrawn :
         {record(QStringLiteral("1.5.0"), {{QStringLiteral("rollout"), 0}}), record(QStringLiteral("1.4.1")),
          record(version, {{QStringLiteral("build"), 312}}), QJsonObject()}) {
        startAndGetReady();
        tick(withdrawn);
        settle();
        EXPECT_EQ(updater->phase(), Phase::Idle);
        EXPECT_FALSE(updater->isCalling() || QFile::exists(imageFile()));
        EXPECT_TRUE(updater->shouldTerminate());

        ask(record());
        serveImage();
        serveSignature();
        updater->act();
        await(Phase::Ready);
        tick(withdrawn);
        EXPECT_EQ(updater->phase(), Phase::Ready);
        EXPECT_FALSE(updater->shouldTerminate());
        settle();
        quit();
        QFile::remove(imageFile());
        QFile::remove(file(QStringLiteral("install-job.json")));
        QFile::remove(directory.filePath(QStringLiteral("lst_preferences.json")));
    }
}

TEST_F(AppUpdaterTest, ASkippedVersionComesBackOnlyByHand)
{
    startAndGetReady();
    updater->skipThisVersion();
    settle();
    EXPECT_EQ(updater->phase(), Phase::Idle);
    EXPECT_FALSE(updater->isCalling() || QFile::exists(imageFile()));
    EXPECT_EQ(preferences->value(preferences::updateSkippedVersion), QStringLiteral("1.5.0"));
    tick(record());
    EXPECT_FALSE(updater->release());
    ask(record());
    EXPECT_TRUE(updater->release() && updater->canSkip());
    // And is not downloaded unasked for that.
    tick(record());
    EXPECT_TRUE(updater->release() && updater->phase() == Phase::Idle);
}

TEST_F(AppUpdaterTest, TheRolloutSeedIsMadeOnceAndKept)
{
    const QUuid seed = QUuid::createUuid();
    random.foretell(seed);
    launch();
    ask(record(QStringLiteral("1.5.0"), {{QStringLiteral("rollout"), 1}}));
    EXPECT_EQ(preferences->value(preferences::updateRolloutSeed), seed.toString(QUuid::WithoutBraces));
    launch();
    ask(record(version));
    EXPECT_EQ(preferences->value(preferences::updateRolloutSeed), seed.toString(QUuid::WithoutBraces));
}

TEST_F(AppUpdaterTest, WithoutAKeyItAnswersButDownloadsNothing)
{
    key.clear();
    start();
    EXPECT_EQ(updater->settingsText(), QString());
    ask(record());
    EXPECT_EQ(title(), "1.5.0 is ready to install");
    EXPECT_EQ(text(), "This copy of LOOMSTREET can't update itself.");
    EXPECT_EQ(updater->action(), Action::Check);
    updater->downloadAndInstall();
    EXPECT_EQ(updater->phase(), Phase::Idle);
    EXPECT_EQ(server.requests().size(), 1U);
}

TEST_F(AppUpdaterTest, ItMayGoAtAnyMoment)
{
    std::size_t before = 0;
    const std::vector<std::pair<const char*, std::function<void()>>> moments{
        {"reading the last installation",
         [this] {
             launch();
             updater->start();
         }},
        {"checking",
         [this, &before] {
             server.expect("GET /api/support/widget/app-version", Answer::silence());
             start();
             server.waitForRequests(before + 1);
         }},
        {"downloading",
         [this, &before] {
             announce(record());
             server.expect("GET /1.5.0", Answer::body(image15).pauseAfter(5));
             launch();
             updater->start();
             updater->beginChecking();
             server.waitForRequests(before + 2);
             EXPECT_EQ(updater->phase(), Phase::Downloading);
         }},
        {"fetching the signature",
         [this, &before] {
             announce(record());
             serveImage();
             server.expect("GET /1.5.0.minisig", Answer::silence());
             start();
             server.waitForRequests(before + 3);
             EXPECT_EQ(updater->phase(), Phase::Verifying);
         }},
        {"writing the job",
         [this] {
             QFile::remove(imageFile());
             startAndGetReady();
             EXPECT_FALSE(updater->shouldTerminate());
         }},
        {"waiting for the helper",
         [this] {
             leavePending(std::nullopt);
             const auto helper = InstallLock::take(working, InstallLock::Work::Helping);
             start();
             EXPECT_GE(clock.sleepers(), 1);
         }},
    };
    for (const auto& [what, lead] : moments) {
        SCOPED_TRACE(what);
        before = server.requests().size();
        lead();
        quit();
        EXPECT_EQ(clock.sleepers(), 0);
    }
}

} // namespace
