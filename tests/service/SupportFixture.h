#pragma once

#include "catalog/DateFormat.h"
#include "net/WidgetClient.h"
#include "storage/DataFolder.h"
#include "support/Json.h"
#include "support/NetworkFixture.h"
#include "support/Running.h"
#include "support/SupportAPI.h"
#include "support/SupportChatModel.h"

#include <QTemporaryDir>

namespace loom
{

/// What the chat with customer service is made of, with a service that says what the test foretold.
class SupportFixture : public NetworkFixture
{
protected:
    static QByteArray path(const char* call) { return QByteArrayLiteral("POST /api/support/widget/support-") + call; }
    static QJsonObject message(const char* id, const char* direction, const char* body,
                               const QString& clientID = QString())
    {
        return {{QStringLiteral("id"), QLatin1String(id)},
                {QStringLiteral("direction"), QLatin1String(direction)},
                {QStringLiteral("body"), QString::fromUtf8(body)},
                {QStringLiteral("attachments"), QJsonArray()},
                {QStringLiteral("createdAt"), QStringLiteral("2025-03-09T08:07:06Z")},
                {QStringLiteral("clientID"), clientID}};
    }
    static Answer opened(const QJsonArray& messages, int unread = 0, const char* token = "token-1")
    {
        return Answer::json({{QStringLiteral("visitorToken"), QLatin1String(token)},
                             {QStringLiteral("messages"), messages},
                             {QStringLiteral("unreadCount"), unread}});
    }
    static Answer replies(const QJsonArray& messages, int unread = 0)
    {
        return Answer::json({{QStringLiteral("messages"), messages}, {QStringLiteral("unreadCount"), unread}});
    }
    static Answer failed(int status, const char* code)
    {
        return Answer::json({{QStringLiteral("code"), QLatin1String(code)}}, status);
    }
    static QString firstUuid() { return QStringLiteral("00000000-0000-4000-8000-000000000001"); }

    [[nodiscard]] std::unique_ptr<SupportChatModel> made()
    {
        return std::make_unique<SupportChatModel>(SupportServices{.api = api,
                                                                  .dates = dates,
                                                                  .folder = folder,
                                                                  .clock = clock,
                                                                  .random = random,
                                                                  .language = [] { return QStringLiteral("fr"); },
                                                                  .openExternally =
                                                                      [this](const QUrl& url) {
                                                                          browsed.append(url);
                                                                      }});
    }
    /// Opens the conversation with what the service is foretold to answer.
    void open(SupportChatModel& chat, Answer answer, SupportChatModel::Viewing viewing = SupportChatModel::Watching)
    {
        server.expect(path("init"), std::move(answer));
        chat.view(&viewer, viewing);
        settle(chat);
    }
    static void settle(const SupportChatModel& chat)
    {
        waitUntil([&chat] { return !chat.isLoading(); }, "the conversation has come");
        drainEvents();
    }
    /// What the rows say, the newest first: "mine: text (state)".
    static QStringList rows(SupportChatModel& chat)
    {
        QStringList texts;
        const SupportThreadModel& thread = *chat.thread();
        for (int row = 0; row < thread.count(); ++row) {
            const auto value = [&](int role) {
                return thread.data(thread.index(row), role);
            };
            const QString state = QStringList{{}, QStringLiteral(" …"), QStringLiteral(" ?")}.at(
                value(SupportThreadModel::StateRole).toInt());
            texts.append(
                (value(SupportThreadModel::IsMineRole).toBool() ? QStringLiteral("I: ") : QStringLiteral("They: ")) +
                value(SupportThreadModel::TextRole).toString() + state);
        }
        return texts;
    }
    static QString roleOf(SupportChatModel& chat, int row, int role)
    {
        return chat.thread()->data(chat.thread()->index(row), role).toString();
    }

    QTemporaryDir directory;
    DataFolder folder{directory.path()};
    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    SupportAPI api{widget, [] {
                       return CallerIdentity{.visitorId = QStringLiteral("visitor-1"),
                                             .customer = {},
                                             .email = QStringLiteral("jane@mail.example"),
                                             .name = {}};
                   }};
    DateFormat dates{AppLanguage::English};
    QList<QUrl> browsed;
    QObject viewer;
};

} // namespace loom
