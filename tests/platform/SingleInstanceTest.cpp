#include "platform/SingleInstance.h"

#include "Session.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QLocalSocket>

using namespace loom;

namespace
{

const QString applicationID = QStringLiteral("com.loomstreet.Test");
const QString path = QStringLiteral("/com/loomstreet/Test");
const QString first = QStringLiteral("first");
const QString second = QStringLiteral("second");
const QString activated = QStringLiteral("activated");

/// The same on the bus, where there is none, and where it has no name to give.
class SingleInstanceTest : public testing::TestWithParam<Session::Bus>
{
protected:
    [[nodiscard]] std::unique_ptr<Child> startApplication(const QStringList& links = {}) const
    {
        return session.probe(QStringList({QStringLiteral("instance"), applicationID}) + links);
    }

    Session session{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, SingleInstanceTest,
                         testing::Values(Session::Bus::Present, Session::Bus::Absent, Session::Bus::Refusing),
                         [](const auto& bus) {
                             return bus.param == Session::Bus::Present  ? "OnABus"
                                    : bus.param == Session::Bus::Absent ? "WithoutABus"
                                                                        : "OnABusThatRefuses";
                         });

TEST_P(SingleInstanceTest, AnotherStartReachesTheOneThatRunsWithItsLinksItsActionAndItsLaunch)
{
    const auto running = startApplication({QStringLiteral("/products/own")});
    EXPECT_EQ(running->line(), first); // its own links are its own affair
    EXPECT_EQ(startApplication({QString()})->line(), second);
    EXPECT_EQ(running->line(), QStringLiteral(R"(opened [""])"));
    session.environment.insert(QStringLiteral("DESKTOP_STARTUP_ID"), QStringLiteral("launcher-1_TIME77"));
    session.environment.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), QStringLiteral("token-1"));
    EXPECT_EQ(
        startApplication({QStringLiteral("/a b"), QStringLiteral("--help"), QStringLiteral("\u0142\"\n")})->line(),
        second);
    EXPECT_EQ(running->line(), QStringLiteral(R"(opened ["/a b","--help","ł\"\n"] launcher-1_TIME77 token-1)"));
    session.environment.insert(QStringLiteral("LOOMSTREET_ACTION"), QStringLiteral("bag"));
    EXPECT_EQ(startApplication()->line(), second);
    EXPECT_EQ(running->line(), QStringLiteral("activated bag launcher-1_TIME77 token-1"));
    EXPECT_EQ(startApplication({QStringLiteral("/a"), QStringLiteral("/b")})->line(), second);
    EXPECT_EQ(running->line(), QStringLiteral(R"(opened ["/a","/b"] bag launcher-1_TIME77 token-1)"));
}

TEST_P(SingleInstanceTest, WhoOnlyTellsReachesTheOneThatRunsAndTakesNobodysPlace)
{
    session.environment.insert(QStringLiteral("LOOMSTREET_ACTION"), QStringLiteral("quit"));
    const auto tell = [this] {
        return session.probe({QStringLiteral("tell"), applicationID})->line();
    };
    EXPECT_EQ(tell(), QStringLiteral("nobody"));
    const auto running = startApplication();
    EXPECT_EQ(running->line(), first);
    EXPECT_EQ(tell(), QStringLiteral("told"));
    EXPECT_EQ(running->line(), QStringLiteral("activated quit"));
    running->crash();
    EXPECT_EQ(tell(), QStringLiteral("nobody"));
    EXPECT_EQ(startApplication()->line(), first);
}

TEST_P(SingleInstanceTest, StartsThatComeTogetherAreAllHeard)
{
    const auto running = startApplication();
    EXPECT_EQ(running->line(), first);
    std::vector<std::unique_ptr<Child>> starts;
    starts.reserve(4);
    for (int i = 0; i < 4; ++i)
        starts.push_back(startApplication({QString::number(i)}));
    for (const auto& start : starts)
        EXPECT_EQ(start->line(), second);
    QStringList heard;
    for (int i = 0; i < 4; ++i)
        heard.append(running->line());
    heard.sort();
    EXPECT_EQ(heard, QStringList({QStringLiteral(R"(opened ["0"])"), QStringLiteral(R"(opened ["1"])"),
                                  QStringLiteral(R"(opened ["2"])"), QStringLiteral(R"(opened ["3"])")}));
}

TEST_P(SingleInstanceTest, AfterAnEndOrACrashTheNextStartIsTheFirst)
{
    EXPECT_EQ(startApplication()->line(), first); // and ends at once
    const auto crashing = startApplication();
    EXPECT_EQ(crashing->line(), first);
    crashing->crash();
    const auto running = startApplication();
    EXPECT_EQ(running->line(), first);
    EXPECT_EQ(startApplication()->line(), second);
    EXPECT_EQ(running->line(), activated);
}

TEST(SingleInstanceOnABusTest, TheDesktopActivatesItAndOpensLinksInIt)
{
    const Session session(Session::Bus::Present);
    const auto running = session.probe({QStringLiteral("instance"), applicationID});
    EXPECT_EQ(running->line(), first);
    const auto call = [&](const QString& method, const QVariantList& arguments) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(applicationID, path, QStringLiteral("org.freedesktop.Application"), method);
        message.setArguments(arguments);
        return session.connection().call(message, QDBus::BlockWithGui).type();
    };
    const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("1")}};
    EXPECT_EQ(call(QStringLiteral("Activate"), {data}), QDBusMessage::ReplyMessage);
    EXPECT_EQ(running->line(), activated + QStringLiteral(" 1"));
    EXPECT_EQ(call(QStringLiteral("Open"), {QStringList(QStringLiteral("loomstreet://cart")), data}),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(running->line(), QStringLiteral(R"(opened ["loomstreet://cart"] 1)"));
    EXPECT_EQ(call(QStringLiteral("ActivateAction"), {QStringLiteral("new-window"), QVariantList(), data}),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(running->line(), activated + QStringLiteral(" new-window 1"));
    EXPECT_EQ(
        call(QStringLiteral("ActivateAction"), {QStringLiteral("a"), QVariantList{7, QStringLiteral("/b")}, data}),
        QDBusMessage::ReplyMessage);
    EXPECT_EQ(running->line(), QStringLiteral(R"(opened ["/b"] a 1)"));
    EXPECT_EQ(call(QStringLiteral("Quit"), {}), QDBusMessage::ErrorMessage);
}

TEST(SingleInstanceOnABusTest, AnInstanceThatDoesNotAnswerIsStillTheOnlyOne)
{
    const Session session(Session::Bus::Present);
    ASSERT_TRUE(session.connection().registerService(applicationID)); // and nobody behind the name
    EXPECT_EQ(session.probe({QStringLiteral("instance"), applicationID})->line(), second);
    EXPECT_EQ(session.probe({QStringLiteral("tell"), applicationID})->line(), QStringLiteral("no answer"));
}

TEST(SingleInstanceWithoutABusTest, WhatIsNoRequestOnlyActivates)
{
    const Session session(Session::Bus::Absent);
    const auto running = session.probe({QStringLiteral("instance"), applicationID});
    EXPECT_EQ(running->line(), first);
    const QString socketPath = session.home.path() + QStringLiteral("/run/") + applicationID;
    EXPECT_EQ(QFile::permissions(socketPath) &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());
    for (const QByteArray& garbage :
         {QByteArray(), QByteArray("[\"a\""), QByteArray("{\"a\":1}"), QByteArray(2'000'000, '[')}) {
        QLocalSocket socket;
        socket.connectToServer(socketPath);
        ASSERT_TRUE(socket.waitForConnected());
        socket.write(garbage);
        socket.disconnectFromServer();
        EXPECT_EQ(running->line(), activated) << garbage.left(20).constData();
    }
}

TEST(SingleInstanceWithoutABusTest, WhereNoLockCanBeTakenTheApplicationStartsAllTheSame)
{
    const Session session(Session::Bus::Absent);
    EXPECT_EQ(session.probe({QStringLiteral("instance"), QStringLiteral("no/such/folder")})->line(), first);
}

} // namespace
