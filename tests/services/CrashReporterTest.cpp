#include "services/CrashReporter.h"

#include "net/WidgetClient.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include "support/FakeFeatures.h"
#include "support/Json.h"
#include "support/NetworkFixture.h"
#include "support/Running.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class CrashReporterTest : public NetworkFixture
{
protected:
    /// The application starts anew over what the run before left on the disk.
    void launch()
    {
        stop();
        folder.emplace(directory.path());
        preferences.emplace(*folder);
        reporter.emplace(widget, *preferences, *folder, features, clock,
                         CrashReporter::Application{.version = QStringLiteral("1.4.2"),
                                                    .build = 312,
                                                    .visitorID = [] { return QStringLiteral("visitor-1"); },
                                                    .hasConsent = [this] { return hasConsent; },
                                                    .isOffline =
                                                        [this] {
                                                            return network.isOffline();
                                                        }});
        reporter->start();
    }
    /// The process is killed.
    void stop()
    {
        reporter.reset();
        preferences.reset();
        folder.reset();
    }
    void quit()
    {
        reporter->markCleanExit();
        stop();
    }
    void answer(const Answer& answer) { server.expect("POST /api/support/widget/app-version/crash-reports", answer); }
    /// Sends what waits and waits for the last of so many requests of the test to be answered.
    void sendUntil(std::size_t requests)
    {
        reporter->sendWaiting();
        server.waitForRequests(requests);
        drainEvents();
    }
    [[nodiscard]] QByteArray kept()
    {
        folder->waitUntilWritten();
        QFile file(directory.filePath(QStringLiteral("lst_crash_reports.json")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] int attempts()
    {
        return json(kept().constData()).toArray().at(0)[QStringLiteral("attempts")].toInt();
    }

    QTemporaryDir directory;
    FakeFeatures features;
    bool hasConsent = true;
    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    std::optional<DataFolder> folder;
    std::optional<Preferences> preferences;
    std::optional<CrashReporter> reporter;
};

TEST_F(CrashReporterTest, AKilledRunIsReportedOnceAndOneThatQuitsNever)
{
    signIn();
    launch();
    EXPECT_EQ(preferences->value(preferences::runningSession),
              json(R"({"version": "1.4.2", "build": 312, "startedAt": "2025-03-09T08:07:06.000Z"})").toObject());
    reporter->setActive(true);
    clock.advance(150s);
    launch();
    EXPECT_NE(kept(), QByteArray());
    answer(Answer::json({}));
    sendUntil(1);
    waitUntil([this] { return kept().isEmpty(); }, "the report is forgotten");
    const QJsonObject body = server.onlyRequest().json();
    EXPECT_EQ(body.keys(),
              QStringList({QStringLiteral("appVersion"), QStringLiteral("build"), QStringLiteral("count"),
                           QStringLiteral("device"), QStringLiteral("kind"), QStringLiteral("os"),
                           QStringLiteral("payload"), QStringLiteral("platform"), QStringLiteral("publicKey"),
                           QStringLiteral("summary"), QStringLiteral("visitorId")}));
    EXPECT_EQ(body.value(QStringLiteral("payload")),
              json(R"({"previousVersion": "1.4.2", "previousBuild": 312, "startedAt": "2025-03-09T08:07:06.000Z",
                       "ranSeconds": 120})"));
    reporter->sendWaiting();
    quit();
    launch();
    reporter->sendWaiting();
    quit();
    EXPECT_EQ(server.requests().size(), 1U);
}

TEST_F(CrashReporterTest, WhatTheRunSaidLastIsReportedScrubbed)
{
    const auto say = [this](const QByteArray& words) {
        QFile file(directory.filePath(QStringLiteral("lst_last_words")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(words);
    };
    launch();
    stop();
    say("uncaught exception St13runtime_error\nno such file /home/jane/x of jane@mail.example");
    launch();
    EXPECT_EQ(preferences->value(preferences::lastException), QString());
    answer(Answer::json({}));
    sendUntil(1);
    EXPECT_EQ(server.onlyRequest().json()[QStringLiteral("payload")][QStringLiteral("exception")],
              QStringLiteral("uncaught exception std::runtime_error: no such file [path]"));
    quit();
    // Said while everything was taken down already: of no run that a later report could be about.
    say("ended by SIGSEGV");
    launch();
    launch();
    EXPECT_FALSE(kept().contains("SIGSEGV"));
    EXPECT_TRUE(kept().contains("abnormal_exit"));
}

TEST_F(CrashReporterTest, WithoutConsentNothingIsKeptOrSentButRunsAreMarked)
{
    hasConsent = false;
    launch();
    launch();
    EXPECT_TRUE(preferences->value(preferences::runningSession));
    reporter->sendWaiting();
    EXPECT_EQ(kept(), QByteArray());

    hasConsent = true;
    launch();
    EXPECT_NE(kept(), QByteArray());
    hasConsent = false; // withdrawn before anything was sent
    reporter->sendWaiting();
    EXPECT_EQ(kept(), QByteArray());

    hasConsent = true;
    launch();
    hasConsent = false; // and between two starts
    launch();
    EXPECT_EQ(kept(), QByteArray());
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(CrashReporterTest, TheStoreCanSwitchReportsOff)
{
    launch();
    launch();
    features.off.insert(Feature::CrashReports); // by what it said after the start
    reporter->sendWaiting();
    EXPECT_EQ(kept(), QByteArray());
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(CrashReporterTest, AReportThatFailsIsTriedAtThreeStartsAndNotTwiceInOne)
{
    launch();
    launch();
    const QByteArray startedAt = "2025-03-09T08:07:06.000Z";
    std::size_t requests = 0;
    for (const auto& failure :
         {Answer::drop(), Answer::json({{QStringLiteral("code"), QStringLiteral("X")}}, 503), Answer::body("", 400)}) {
        answer(failure);
        sendUntil(++requests);
        reporter->sendWaiting();
        EXPECT_TRUE(server.requests().back().body.contains(startedAt));
        if (requests < 3) {
            EXPECT_EQ(attempts(), int(requests));
            const QFileInfo file(directory.filePath(QStringLiteral("lst_crash_reports.json")));
            EXPECT_EQ(file.permissions() & (QFile::ReadOther | QFile::ReadGroup), QFile::Permissions());
            quit();
            launch();
        }
    }
    waitUntil([this] { return kept().isEmpty(); }, "the report is given up");

    // One that is on its way when the process ends counts as tried.
    launch();
    answer(Answer::silence());
    sendUntil(4);
    launch();
    EXPECT_EQ(attempts(), 1);
}

TEST_F(CrashReporterTest, WithoutANetworkItIsNoTryAndTheSameRunTriesAgain)
{
    launch();
    clock.advance(1s);
    launch();
    launch();
    network.setOffline(true);
    // More often than a report is tried at all, and of the two that wait only the first.
    for (std::size_t requests = 1; requests <= 4; ++requests) {
        answer(Answer::drop());
        sendUntil(requests);
        waitUntil([this] { return attempts() == 0; }, "it does not count");
    }
    network.setOffline(false);
    answer(Answer::json({}));
    answer(Answer::json({}));
    sendUntil(6);
    waitUntil([this] { return kept().isEmpty(); }, "both are told");
}

TEST_F(CrashReporterTest, ManyKilledRunsLeaveAFewReportsAndAForeignFileNone)
{
    for (int i = 0; i < 12; ++i) {
        launch();
        clock.advance(1s);
    }
    const QJsonArray waiting = json(kept().constData()).toArray();
    ASSERT_EQ(waiting.size(), 5);
    EXPECT_EQ(waiting.last()[QStringLiteral("payload")][QStringLiteral("startedAt")],
              QStringLiteral("2025-03-09T08:07:16.000Z"));

    // The process ended after it had kept the report and before its own mark was written.
    const auto before = kept();
    preferences->set(preferences::runningSession,
                     runningSession(QStringLiteral("1.4.2"), 312, clock.now().addSecs(-2)));
    launch();
    EXPECT_EQ(kept(), before);

    for (const QByteArray& foreign : {QByteArray("{"), QByteArray("[7]"), QByteArray(2 << 20, '[')}) {
        quit();
        QFile file(directory.filePath(QStringLiteral("lst_crash_reports.json")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(foreign);
        file.close();
        launch();
        reporter->sendWaiting();
    }
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(CrashReporterTest, ActivityIsNotedAtMostOnceAMinuteAndOnlyWhileThereIsSome)
{
    launch();
    const QFileInfo file(directory.filePath(QStringLiteral("lst_last_words")));
    const auto noted = [&file] {
        QFileInfo fresh(file.filePath());
        return fresh.lastModified().toUTC();
    };
    const QDateTime began = clock.now();
    for (int i = 0; i < 5; ++i) {
        reporter->setActive(i % 2 == 0);
        clock.advance(10s);
    }
    EXPECT_EQ(noted(), began);
    clock.advance(10s);
    EXPECT_EQ(noted(), began.addSecs(60));
    reporter->setActive(false);
    clock.advance(600s);
    EXPECT_EQ(noted(), began.addSecs(60));
    reporter->setActive(true);
    EXPECT_EQ(noted(), began.addSecs(660));
    quit();
    EXPECT_EQ(clock.sleepers(), 0);
}

} // namespace
