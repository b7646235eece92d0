#include "service/SupportFixture.h"

#include "support/TestServer.h"

#include <QFile>

namespace loom
{

namespace
{

class SupportSendingTest : public SupportFixture
{
protected:
    void send(const char* text)
    {
        chat->setDraft(QLatin1String(text));
        chat->send();
    }
    void attach(const QByteArray& bytes)
    {
        QFile file(directory.filePath(QStringLiteral("bill.pdf")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        chat->attach(QUrl::fromLocalFile(file.fileName()));
        waitUntil([this] { return !chat->isAttaching(); }, "the file is read");
    }
    void waitForRow(const char* row)
    {
        waitUntil([&] { return rows(*chat).contains(QLatin1String(row)); }, row);
        drainEvents();
    }

    std::unique_ptr<SupportChatModel> chat = made();
};

TEST_F(SupportSendingTest, AMessageGoesOutAsItIsAndComesBackConfirmed)
{
    signIn();
    open(*chat, opened({}));
    server.expect(path("message"),
                  replies({message("s1", "outbound", "Where is it?", firstUuid()), message("s2", "inbound", "Here")}));
    server.allow(path("read"), [](const ReceivedRequest&) { return Answer::json({}); });
    send("  Where is it?\n");
    EXPECT_EQ(chat->draft(), QString());
    EXPECT_EQ(rows(*chat), QStringList{QStringLiteral("I: Where is it? …")});
    const QString key = roleOf(*chat, 0, SupportThreadModel::KeyRole);
    waitForRow("They: Here");
    EXPECT_EQ(rows(*chat), (QStringList{QStringLiteral("They: Here"), QStringLiteral("I: Where is it?")}));
    EXPECT_EQ(roleOf(*chat, 1, SupportThreadModel::KeyRole), key);
    EXPECT_EQ(server.requests()[1].json(), (QJsonObject{{QStringLiteral("visitorToken"), QStringLiteral("token-1")},
                                                        {QStringLiteral("body"), QStringLiteral("Where is it?")},
                                                        {QStringLiteral("lang"), QStringLiteral("fr")},
                                                        {QStringLiteral("clientID"), firstUuid()},
                                                        {QStringLiteral("visitorId"), QStringLiteral("visitor-1")},
                                                        {QStringLiteral("email"), QStringLiteral("jane@mail.example")},
                                                        {QStringLiteral("publicKey"), QStringLiteral("key-1")},
                                                        {QStringLiteral("appToken"), QStringLiteral("app-1")}}));
}

TEST_F(SupportSendingTest, MessagesArriveInTheirOrderAndOneThatFailsHoldsUpNone)
{
    open(*chat, opened({}));
    server.expect(path("message"), failed(500, ""));
    server.expect(path("message"), replies({message("s1", "outbound", "Two")}));
    send("One");
    send("Two");
    send("");
    waitForRow("I: Two");
    EXPECT_EQ(rows(*chat), (QStringList{QStringLiteral("I: One ?"), QStringLiteral("I: Two")}));
    EXPECT_EQ(roleOf(*chat, 0, SupportThreadModel::ProblemRole),
              QLatin1String("LOOMSTREET is having trouble right now. Try again shortly."));
    const QString key = roleOf(*chat, 0, SupportThreadModel::KeyRole);
    server.expect(path("message"), replies({message("s2", "outbound", "One", key)}));
    chat->retryMessage(key);
    waitForRow("I: One");
    EXPECT_EQ(server.requests()[1].json().value(QStringLiteral("clientID")), key);
    EXPECT_EQ(server.requests()[3].json().value(QStringLiteral("clientID")), key) << "a retry is the same message";
}

TEST_F(SupportSendingTest, TheFirstMessageOpensOneConversation)
{
    server.expect(path("init"), opened({}).pauseAfter(1));
    chat->view(&viewer, SupportChatModel::Open);
    send("Early"); // waits for it
    server.waitForRequests(1);
    server.expect(path("message"), replies({message("s1", "outbound", "Early")}));
    server.proceed();
    waitForRow("I: Early");

    server.expect(path("message"), failed(404, "NOT_FOUND")); // it is gone meanwhile
    server.expect(path("init"), opened({}, 0, "token-2"));
    server.expect(path("message"), replies({message("s1", "outbound", "Late")}));
    send("Late");
    waitForRow("I: Late");
    EXPECT_EQ(server.requests().back().json().value(QStringLiteral("visitorToken")), QLatin1String("token-2"));

    server.expect(path("message"), failed(404, "NOT_FOUND"));
    server.expect(path("init"), failed(500, ""));
    send("Lost");
    waitForRow("I: Lost ?");
}

TEST_F(SupportSendingTest, AConversationThatIsUnknownToTwoAtOnceIsBegunOnce)
{
    for (const bool waitsForTheSecond : {false, true}) {
        SCOPED_TRACE(waitsForTheSecond);
        chat.reset();
        chat = made();
        chat->forget({QLatin1String(SupportChatModel::tokenFile)});
        folder.save(QLatin1String(SupportChatModel::tokenFile), QStringLiteral("token-0"));
        chat = made();
        const std::size_t before = server.requests().size();
        Answer unknown = failed(404, "NOT_FOUND");
        Answer anew = opened({});
        (waitsForTheSecond ? anew : unknown).pauseAfter(1);
        server.expect(path("init"), unknown);
        server.expect(path("init"), anew);
        server.expect(path("message"), failed(404, "NOT_FOUND"));
        server.expect(path("message"), replies({message("s1", "outbound", "Early")}));
        chat->view(&viewer, SupportChatModel::Open);
        send("Early");
        server.waitForRequests(before + (waitsForTheSecond ? 3 : 2));
        drainEvents();
        server.proceed();
        waitForRow("I: Early"); // another that begins one would fail the test
        EXPECT_EQ(server.requests().size(), before + 4);
        EXPECT_EQ(server.requests().back().json().value(QStringLiteral("visitorToken")), QLatin1String("token-1"));
        chat->view(&viewer, SupportChatModel::Away);
    }
}

TEST_F(SupportSendingTest, AFileTravelsAsAFormWithItsWords)
{
    open(*chat, opened({}));
    attach("%PDF-1.7\nThe bill");
    EXPECT_TRUE(chat->canSend()) << "a file needs no words";
    EXPECT_EQ(chat->attachment().value<SupportAttachment>().name, QLatin1String("bill.pdf"));
    QJsonObject echo = message("s1", "outbound", "The bill", firstUuid());
    echo.insert(QStringLiteral("attachments"),
                QJsonArray{QJsonObject{{QStringLiteral("url"), QStringLiteral("https://files.example/1")}}});
    server.expect(path("upload"), replies({echo}));
    send("The bill");
    EXPECT_FALSE(chat->attachment().isValid());
    waitForRow("I: The bill");
    const ReceivedRequest& sent = server.requests().back();
    const QByteArray boundary = sent.header("Content-Type").split('=').last();
    QByteArray fields;
    for (const auto& [name, value] : {std::pair{"visitorToken", QStringLiteral("token-1")},
                                      {"visitorId", QStringLiteral("visitor-1")},
                                      {"clientID", firstUuid()},
                                      {"body", QStringLiteral("The bill")}}) {
        fields += "--" + boundary + "\r\nContent-Disposition: form-data; name=\"" + name + "\"\r\n\r\n" +
                  value.toUtf8() + "\r\n";
    }
    EXPECT_EQ(sent.body,
              fields + "--" + boundary +
                  "\r\nContent-Disposition: form-data; name=\"file\"; filename=\"bill.pdf\"\r\nContent-Type: "
                  "application/pdf\r\n\r\n%PDF-1.7\nThe bill\r\n--" +
                  boundary + "--\r\n");
}

TEST_F(SupportSendingTest, AFileThatCannotBeSentSaysWhyAndTheOneBeforeStays)
{
    open(*chat, opened({}));
    attach("%PDF-1.7");
    attach("no picture");
    EXPECT_EQ(chat->attachmentFailure(), QLatin1String("Only pictures and PDF files can be sent."));
    EXPECT_TRUE(chat->attachment().isValid());
    server.expect(path("upload"), failed(413, "TOO_LARGE"));
    chat->send();
    EXPECT_EQ(chat->attachmentFailure(), QString());
    waitForRow("I:  ?");
    EXPECT_EQ(roleOf(*chat, 0, SupportThreadModel::ProblemRole),
              QLatin1String("This file is larger than 10 MB. Choose a smaller one."));
    chat->discardMessage(roleOf(*chat, 0, SupportThreadModel::KeyRole));
    EXPECT_EQ(chat->thread()->count(), 0);
    chat->attach(QUrl(QStringLiteral("https://elsewhere.example/a.png")));
    waitUntil([this] { return !chat->isAttaching(); }, "it is looked at");
    EXPECT_EQ(chat->attachmentFailure(), QLatin1String("This file is not there any more."));
}

TEST_F(SupportSendingTest, NothingThatWasWrittenIsLostWithTheApplication)
{
    open(*chat, opened({message("s1", "inbound", "Hello")}));
    attach("%PDF-1.7");
    server.expect(path("upload"), Answer::drop());
    send("On its way");
    waitForRow("I: On its way ?");
    chat->setDraft(QStringLiteral("Half a sen"));
    chat.reset();
    folder.waitUntilWritten();

    chat = made();
    server.expect(path("init"), opened({message("s1", "inbound", "Hello")}).pauseAfter(1));
    chat->view(&viewer, SupportChatModel::Open);
    EXPECT_EQ(rows(*chat), (QStringList{QStringLiteral("I: On its way ?"), QStringLiteral("They: Hello")}))
        << "at once";
    server.waitForRequests(3);
    EXPECT_EQ(chat->draft(), QLatin1String("Half a sen"));
    server.proceed();
    settle(*chat);
    server.expect(path("upload"),
                  replies({message("s2", "outbound", "On its way", roleOf(*chat, 0, SupportThreadModel::KeyRole))}));
    chat->retryMessage(roleOf(*chat, 0, SupportThreadModel::KeyRole));
    waitForRow("I: On its way");
    EXPECT_TRUE(server.requests().back().body.contains("%PDF-1.7")) << "the file was read again";
}

} // namespace

} // namespace loom
