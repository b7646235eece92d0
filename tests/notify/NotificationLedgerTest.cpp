#include "notify/NotificationLedger.h"

#include "base/JsonReader.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace loom;

namespace
{

const QDateTime began(QDate(2025, 3, 9), QTime(8, 7, 6, 500), Qt::UTC);

TEST(NotificationLedgerTest, ItsFileHoldsTheThreeKeysAndIsReadBack)
{
    NotificationLedger ledger(NotificationLedger::ownerOf(QStringLiteral("7")), began);
    EXPECT_TRUE(ledger.record(QStringLiteral("b\"\n")));
    EXPECT_TRUE(ledger.record(QStringLiteral("a")));
    EXPECT_FALSE(ledger.record(QStringLiteral("a")));
    const auto encode = ledger.encoder();
    ledger.record(QStringLiteral("later")); // not in what was asked for before
    const QByteArray json = encode();
    EXPECT_EQ(QJsonDocument::fromJson(json).object().keys(),
              (QStringList{QStringLiteral("delivered"), QStringLiteral("owner"), QStringLiteral("startedAt")}));
    const auto read = decodeJson(json, decodeNotificationLedger);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->owner(), QStringLiteral("account-7"));
    EXPECT_EQ(read->startedAt(), began);
    EXPECT_EQ(read->delivered(), (QStringList{QStringLiteral("b\"\n"), QStringLiteral("a")}));
    EXPECT_TRUE(read->contains(QStringLiteral("a")));
    EXPECT_EQ(NotificationLedger::ownerOf({}), QStringLiteral("guest"));
}

TEST(NotificationLedgerTest, ABeginningAheadOfTheClockIsCorrectedOnce)
{
    NotificationLedger ledger(QStringLiteral("guest"), began);
    EXPECT_FALSE(ledger.correctStart(began));
    EXPECT_TRUE(ledger.correctStart(began.addDays(-3)));
    EXPECT_EQ(ledger.startedAt(), began.addDays(-3));
}

} // namespace
