#include "account/AlertsStore.h"

#include "AccountFixture.h"
#include "catalog/MoneyFormat.h"

#include <QJsonArray>

using namespace loom;

namespace
{

const QString jane = QStringLiteral("jane@mail.example");
const QString mary = QStringLiteral("mary@mail.example");

QJsonObject alertJson(const QString& handle, const char* kind = "restock", const QString& variantId = {})
{
    QJsonObject alert{{QStringLiteral("id"), QStringLiteral("id-") + handle},
                      {QStringLiteral("kind"), QString::fromLatin1(kind)},
                      {QStringLiteral("handle"), handle},
                      {QStringLiteral("title"), QStringLiteral("The ") + handle},
                      {QStringLiteral("price"), QJsonObject{{QStringLiteral("amount"), QStringLiteral("595.00")},
                                                            {QStringLiteral("currencyCode"), QStringLiteral("USD")}}}};
    if (!variantId.isEmpty())
        alert.insert(QStringLiteral("variantId"), variantId);
    return alert;
}

Alert wishFor(const QString& handle)
{
    return {.subject = {.kind = AlertKind::Restock, .handle = handle, .variantId = {}}, .title = handle};
}

class AlertsStoreTest : public AccountFixture
{
protected:
    AlertsStoreTest()
    {
        auth.load();
        drainEvents();
        server.allow(path("/shopify-checkout/revoke"), [](auto&) { return Answer::json({}); });
    }

    void expectList(const QStringList& handles)
    {
        QJsonArray list;
        for (const QString& handle : handles)
            list.append(alertJson(handle));
        server.expect(path("/alerts"), Answer::json({{QStringLiteral("alerts"), list}}));
    }
    void expectAdd(const QString& handle)
    {
        server.expect(path("/alerts-add"), Answer::json({{QStringLiteral("alert"), alertJson(handle)}}));
    }
    /// Signs Jane in, with these alerts.
    void begin(const QStringList& handles)
    {
        expectList(handles);
        alerts.show();
        ASSERT_TRUE(signInAs(auth, jane));
        settle();
    }
    void settle()
    {
        waitUntil([this] { return alerts.phase() == AccountContent::Phase::Ready && !alerts.isLoading(); }, "the list");
    }
    void waitForCalls(const QByteArray& call, int count)
    {
        const QByteArray wanted = path(call).mid(5);
        waitUntil(
            [&] {
                return std::ranges::count(server.requests(), wanted, &ReceivedRequest::path) >= count &&
                       !alerts.isChanging();
            },
            "the changes");
    }
    [[nodiscard]] QStringList shown()
    {
        QStringList handles;
        for (const Alert& alert : alerts.list()->alerts())
            handles.append(alert.subject.handle);
        return handles;
    }

    AuthStore auth{services()};
    MoneyFormat money{AppLanguage::English};
    AlertsStore alerts{auth, announcements, auth.widget(), money};
};

TEST_F(AlertsStoreTest, AWishOfAGuestIsCarriedOutOnceSomebodySignsInAndOnlyOnce)
{
    EXPECT_FALSE(alerts.add(wishFor(QStringLiteral("coat"))));
    // The first list does not know of it, and comes too late.
    server.expect(path("/alerts"), Answer::json({{QStringLiteral("alerts"), QJsonArray()}}).pauseAfter(0));
    expectAdd(QStringLiteral("coat"));
    expectList({QStringLiteral("coat")});
    ASSERT_TRUE(signInAs(auth, jane));
    EXPECT_EQ(shown(), QStringList{QStringLiteral("coat")}); // at once
    alerts.dropWish();                                       // as when the sheet closes
    waitForCalls("/alerts-add", 1);
    server.proceed();
    settle();
    EXPECT_EQ(shown(), QStringList{QStringLiteral("coat")});

    auth.signOut();
    EXPECT_EQ(alerts.phase(), AccountContent::Phase::NeedsAccount);
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_FALSE(alerts.add(wishFor(QStringLiteral("dress"))));
    alerts.dropWish();
    expectList({});
    ASSERT_TRUE(signInAs(auth, mary)); // a wish that was carried out or given up would be an unforeseen call
    settle();
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(AlertsStoreTest, AChangeThatIsRefusedGoesBack)
{
    begin({QStringLiteral("coat"), QStringLiteral("dress")});
    server.expect(path("/alerts-remove"), refused(500, QStringLiteral("OOPS")).pauseAfter(0));
    alerts.removeRow(0);
    EXPECT_EQ(shown(), QStringList{QStringLiteral("dress")});
    EXPECT_EQ(alerts.removedCount(), 1);
    server.waitForRequests(3);
    server.proceed();
    waitForCalls("/alerts-remove", 1);
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("coat"), QStringLiteral("dress")}));
    EXPECT_EQ(alerts.removedCount(), 0);
    EXPECT_FALSE(alerts.changeErrorText().isEmpty());

    server.expect(path("/alerts-add"), refused(404, QStringLiteral("NOT_FOUND")));
    alerts.add(wishFor(QStringLiteral("scarf")));
    EXPECT_EQ(shown().first(), QStringLiteral("scarf"));
    EXPECT_TRUE(alerts.changeErrorText().isEmpty());
    waitForCalls("/alerts-add", 1);
    EXPECT_EQ(shown().size(), 2);
    EXPECT_EQ(alerts.refused()->handle, QStringLiteral("scarf"));

    // One that is gone already is what was asked for.
    server.expect(path("/alerts-remove"), refused(404, QStringLiteral("NOT_FOUND")));
    alerts.removeRow(0);
    waitForCalls("/alerts-remove", 2);
    EXPECT_EQ(shown(), QStringList{QStringLiteral("dress")});
}

TEST_F(AlertsStoreTest, WhatIsTakenOutComesBackToItsPlace)
{
    begin({QStringLiteral("coat"), QStringLiteral("dress"), QStringLiteral("scarf")});
    server.allow(path("/alerts-remove"), [](auto&) { return Answer::json({}); });
    alerts.removeRow(1);
    alerts.removeRow(0);
    EXPECT_EQ(shown(), QStringList{QStringLiteral("scarf")});
    expectAdd(QStringLiteral("coat"));
    expectAdd(QStringLiteral("dress"));
    alerts.undoRemoval(); // while the removals are on their way
    const QStringList all{QStringLiteral("coat"), QStringLiteral("dress"), QStringLiteral("scarf")};
    EXPECT_EQ(shown(), all);
    waitForCalls("/alerts-add", 2);
    EXPECT_EQ(shown(), all);
    EXPECT_TRUE(alerts.changeErrorText().isEmpty());
}

TEST(AlertTest, OneThatCannotBeReadIsLeftOut)
{
    const QJsonObject whole = alertJson(QStringLiteral("coat"), "price", QStringLiteral("v1"));
    const auto decode = [](const QJsonObject& json) {
        return decodeJson(QJsonDocument(json).toJson(), decodeAlert).hasValue();
    };
    EXPECT_TRUE(decode(whole));
    for (const char* const key : {"id", "kind", "handle", "title", "price"}) {
        QJsonObject broken = whole;
        broken.insert(QString::fromLatin1(key), 7);
        EXPECT_FALSE(decode(broken)) << key;
    }
}

} // namespace
