#include "notify/NotificationBannerCenter.h"

#include "support/FakeClock.h"

#include <gtest/gtest.h>

using namespace loom;

namespace
{

class NotificationBannerCenterTest : public testing::Test
{
protected:
    void add(const QString& id, const QString& accountID = {})
    {
        banners.enqueue({.id = id, .title = id, .accountID = accountID});
    }
    [[nodiscard]] QString shown() const { return banners.current() ? banners.current()->id : QString(); }
    void wait(int milliseconds) { clock.advance(std::chrono::milliseconds(milliseconds)); }

    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    const QString c = QStringLiteral("c");
    FakeClock clock;
    NotificationBannerCenter banners{clock};
    std::unique_ptr<QObject> first = std::make_unique<QObject>();
    std::unique_ptr<QObject> second = std::make_unique<QObject>();
};

TEST_F(NotificationBannerCenterTest, BannersFollowEachOtherEachForItsTime)
{
    add(a);
    add(b);
    EXPECT_EQ(shown(), QString()); // there is no window
    const int number = banners.attach(first.get());
    EXPECT_EQ(shown(), a);
    EXPECT_EQ(banners.windowNumber(), number);
    wait(5999);
    EXPECT_EQ(shown(), a);
    wait(1);
    EXPECT_EQ(shown(), b);
    banners.dismiss();
    EXPECT_EQ(shown(), QString());
    EXPECT_EQ(banners.windowNumber(), NotificationBannerCenter::noWindow);
    add(c);
    EXPECT_EQ(shown(), c); // and for its whole time
    wait(5999);
    EXPECT_EQ(shown(), c);
    wait(1);
    EXPECT_EQ(shown(), QString());
}

TEST_F(NotificationBannerCenterTest, OneThatIsHeldStaysUntilItIsReleased)
{
    banners.attach(first.get());
    add(a);
    add(b);
    wait(4000);
    banners.hold();
    wait(60000);
    EXPECT_EQ(shown(), a);
    banners.release();
    banners.release();
    wait(5999);
    EXPECT_EQ(shown(), a);
    banners.hold();
    banners.dismiss();
    EXPECT_EQ(shown(), b);
    wait(6000);
    EXPECT_EQ(shown(), QString()); // nobody holds this one
    banners.release();
    EXPECT_EQ(clock.sleepers(), 0);
}

TEST_F(NotificationBannerCenterTest, TheFrontWindowShowsItAndHandsItOnWhenItCloses)
{
    const int one = banners.attach(first.get());
    const int two = banners.attach(second.get());
    EXPECT_EQ(banners.attach(first.get()), one);
    add(a);
    EXPECT_EQ(banners.windowNumber(), two);
    banners.setFront(first.get());
    EXPECT_EQ(banners.windowNumber(), two); // it does not jump
    second.reset();
    EXPECT_EQ(banners.windowNumber(), one);
    EXPECT_EQ(shown(), a);
    add(b);
    banners.detach(first.get());
    EXPECT_EQ(shown(), QString());
    EXPECT_EQ(banners.waitingCount(), 2);
    EXPECT_EQ(clock.sleepers(), 0);
    banners.attach(first.get());
    EXPECT_EQ(shown(), a);
}

TEST_F(NotificationBannerCenterTest, OpeningTellsWhichAndWhereAndMakesRoom)
{
    const int number = banners.attach(first.get());
    add(a);
    add(b);
    QStringList opened;
    QObject::connect(&banners, &NotificationBannerCenter::opened, first.get(), [&](const AppNotification& it, int in) {
        opened.append(it.id);
        EXPECT_EQ(in, number);
        EXPECT_EQ(shown(), QString());
    });
    banners.open();
    EXPECT_EQ(opened, QStringList{a});
    EXPECT_EQ(shown(), b);
    banners.open();
    banners.open(); // there is none left
    EXPECT_EQ(opened.size(), 2);
}

TEST_F(NotificationBannerCenterTest, WhatIsOnScreenOrWaitsIsRenewedDroppedOrSupplanted)
{
    banners.attach(first.get());
    add(a, QStringLiteral("7"));
    add(b, QStringLiteral("7"));
    add(b);
    add(c, QStringLiteral("8"));
    banners.enqueue({.id = a, .title = QStringLiteral("renewed"), .accountID = QStringLiteral("7")});
    EXPECT_EQ(banners.current()->title, QStringLiteral("renewed"));
    EXPECT_EQ(banners.waitingCount(), 2);
    banners.keepOnly(QStringLiteral("8"));
    EXPECT_EQ(shown(), b); // nobody's in particular by now
    banners.withdraw(b);
    EXPECT_EQ(shown(), c);
    for (int i = 0; i < 60; ++i)
        add(QString::number(i));
    EXPECT_EQ(banners.waitingCount(), 50);
    banners.dismiss();
    EXPECT_EQ(shown(), QStringLiteral("10"));
}

} // namespace
