#pragma once

#include "base/Announcements.h"
#include "base/Dates.h"
#include "catalog/DateFormat.h"
#include "commerce/WishlistStore.h"
#include "net/WidgetClient.h"
#include "stylist/MiraAPI.h"
#include "stylist/MiraChatModel.h"
#include "stylist/MiraWeatherStore.h"

#include "commerce/CartFixture.h"
#include "support/FakeLocation.h"
#include "support/Running.h"

#include <QSet>

namespace loom
{

/// A stylist service that holds one conversation and replies to every message with the next of `replies`.
class MiraFixture : public CartFixture
{
protected:
    /// What the service does with the next message.
    enum class Next {
        Reply,
        Lose,      ///< takes it and falls silent
        NeverHear, ///< the connection ends before it was heard
        RateLimit,
    };

    MiraFixture()
    {
        on("/guide-get", [](auto&) {
            return Answer::json(
                {{QStringLiteral("guide"), QJsonObject{{QStringLiteral("name"), QStringLiteral("Mira")}}}});
        });
        on("/orders", [this](auto&) { return Answer::json({{QStringLiteral("orders"), orders}}); });
        on("/wishlist-sync", [](auto&) { return Answer::json({}); });
        on("/weather", [this](const ReceivedRequest& request) {
            return weatherAnswers.contains(request.json().value(QStringLiteral("city")).toString())
                       ? Answer::json(weatherAnswers.value(request.json().value(QStringLiteral("city")).toString()))
                       : Answer::json({{QStringLiteral("code"), QStringLiteral("NOT_FOUND")}}, 404);
        });
        on("/init", [this](const ReceivedRequest& request) { return openThread(request); });
        on("/message", [this](const ReceivedRequest& request) { return takeMessage(request); });
        preferences.set(preferences::weatherAsked, true);
        wishlist.load();
        begin();
    }
    ~MiraFixture() override { mira.reset(); }

    static QByteArray path(const char* call) { return QByteArray("/api/support/widget") + call; }
    void on(const char* call, const std::function<Answer(const ReceivedRequest&)>& answer)
    {
        server.allow("POST " + path(call), answer);
    }
    /// What the service was sent by this call, the first first.
    [[nodiscard]] std::vector<QJsonObject> sent(const char* call) const
    {
        std::vector<QJsonObject> bodies;
        for (const ReceivedRequest& request : server.requests()) {
            if (request.path == path(call))
                bodies.push_back(request.json());
        }
        return bodies;
    }

    /// As after a start.
    void begin() { mira = std::make_unique<MiraChatModel>(services()); }
    /// The process ends and is started again.
    void restart()
    {
        mira.reset();
        folder.waitUntilWritten();
        begin();
    }
    void open()
    {
        mira->open();
        settle();
    }
    void settle()
    {
        waitUntil([this] { return !mira->isLoading() && !mira->isReplying(); }, "the stylist's word");
        drainEvents();
    }
    void say(const QString& text)
    {
        mira->sendText(text);
        settle();
    }
    [[nodiscard]] MiraServices services()
    {
        return {.api = miraAPI,
                .storefront = api,
                .market = market,
                .money = money,
                .dates = dates,
                .cart = *store,
                .wishlist = wishlist,
                .weather = weather,
                .announcements = announcements,
                .folder = folder,
                .preferences = preferences,
                .clock = clock,
                .random = random};
    }

    QString note(bool isMine, const QString& body, const QJsonArray& attachments = {})
    {
        const QString id = QStringLiteral("m%1").arg(++noted);
        conversation.append(
            QJsonObject{{QStringLiteral("id"), id},
                        {QStringLiteral("direction"), isMine ? QStringLiteral("outbound") : QStringLiteral("inbound")},
                        {QStringLiteral("body"), body},
                        {QStringLiteral("attachments"), attachments},
                        {QStringLiteral("createdAt"), formatDate(clock.now())}});
        return id;
    }

    [[nodiscard]] QVariant told(int row, int role) { return mira->thread()->data(mira->thread()->index(row), role); }
    /// What the thread shows, the oldest first: "> " before what is the shopper's, "?" behind what is unconfirmed and
    /// "…" behind what is on its way.
    [[nodiscard]] std::string shownThread()
    {
        QStringList texts;
        for (int row = mira->thread()->count() - 1; row >= 0; --row) {
            const int state = told(row, MiraThreadModel::StateRole).toInt();
            texts.append((told(row, MiraThreadModel::IsMineRole).toBool() ? QStringLiteral("> ") : QString()) +
                         told(row, MiraThreadModel::TextRole).toString() +
                         (state == MiraThreadModel::Sending       ? QStringLiteral("…")
                          : state == MiraThreadModel::Unconfirmed ? QStringLiteral("?")
                                                                  : QString()));
        }
        return texts.join(QStringLiteral(" | ")).toStdString();
    }
    [[nodiscard]] std::string shownTopics()
    {
        QStringList titles;
        const auto* const topics = mira->topics();
        for (int row = 0; row < topics->count(); ++row) {
            titles.append(topics->data(topics->index(row), MiraTopicsModel::TitleRole).toString() +
                          (topics->data(topics->index(row), MiraTopicsModel::IsCurrentRole).toBool()
                               ? QStringLiteral("*")
                               : QString()));
        }
        return titles.join(QStringLiteral(" | ")).toStdString();
    }
    [[nodiscard]] QString topicAt(int row)
    {
        return mira->topics()->data(mira->topics()->index(row), MiraTopicsModel::IdRole).toString();
    }

    QJsonArray conversation;
    QJsonArray orders;
    QHash<QString, QJsonObject> weatherAnswers;
    QStringList replies{QStringLiteral("Gladly.")};
    std::deque<Next> next;
    QSet<QString> tokens;
    bool isStrict = false; ///< "/init" refuses a token it does not know rather than give another
    bool isHeld = false;   ///< answers wait for the server to proceed
    int noted = 0;

    CallerIdentity identity{.visitorId = QStringLiteral("v-1"), .customer = {}, .email = {}, .name = {}};
    Announcements announcements;
    DateFormat dates{AppLanguage::English};
    FakeLocation location;
    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    WishlistStore wishlist{folder, preferences, widget, session, time};
    MiraAPI miraAPI{widget, [this] {
                        return identity;
                    }};
    MiraWeatherStore weather{
        {.widget = widget, .location = location, .folder = folder, .preferences = preferences, .clock = clock}};
    std::unique_ptr<MiraChatModel> mira;

private:
    [[nodiscard]] Answer held(Answer answer) const { return isHeld ? answer.pauseAfter(0) : answer; }

    Answer openThread(const ReceivedRequest& request)
    {
        QString token = request.json().value(QStringLiteral("visitorToken")).toString();
        if (!token.isEmpty() && !tokens.contains(token) && isStrict)
            return Answer::json({{QStringLiteral("code"), QStringLiteral("NOT_FOUND")}}, 404);
        if (!tokens.contains(token)) {
            token = QStringLiteral("t-%1").arg(++m_given);
            tokens.insert(token);
        }
        return held(Answer::json({{QStringLiteral("visitorToken"), token},
                                  {QStringLiteral("hasConversation"), !conversation.isEmpty()},
                                  {QStringLiteral("messages"), conversation}}));
    }
    Answer takeMessage(const ReceivedRequest& request)
    {
        if (!tokens.contains(request.json().value(QStringLiteral("visitorToken")).toString()))
            return Answer::json({{QStringLiteral("code"), QStringLiteral("NOT_FOUND")}}, 404);
        const Next now = next.empty() ? Next::Reply : next.front();
        if (!next.empty())
            next.pop_front();
        if (now == Next::NeverHear)
            return Answer::drop();
        if (now == Next::RateLimit)
            return Answer::json({{QStringLiteral("code"), QStringLiteral("RATE_LIMITED")}}, 429);
        const auto before = conversation.size();
        note(true, request.json().value(QStringLiteral("body")).toString());
        note(false, replies.size() > 1 ? replies.takeFirst() : replies.first());
        if (now == Next::Lose)
            return Answer::drop();
        QJsonArray messages;
        for (qsizetype i = before; i < conversation.size(); ++i)
            messages.append(conversation.at(i));
        return held(Answer::json({{QStringLiteral("messages"), messages}}));
    }

    int m_given = 0;
};

} // namespace loom
