#include "commerce/CheckoutModel.h"

#include "base/Announcements.h"

#include "support/FakeClock.h"
#include "support/Printing.h"
#include "support/Running.h"

#include <QThreadPool>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace loom;
using namespace std::chrono_literals;
using Phase = CheckoutModel::Phase;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const QUrl cartAddress(QStringLiteral("https://shop.example/cart/c/a?key=1"));
const QUrl handOver(QStringLiteral("https://back.example/api/support/widget/shopify-checkout/start?code=") +
                    QString(32, QLatin1Char('t')));
const QUrl page(QStringLiteral("https://shop.example/checkouts/c/1"));
const QUrl thanks(QStringLiteral("https://shop.example/checkouts/c/1/thank-you"));

class CheckoutModelTest : public testing::Test
{
protected:
    CheckoutModelTest()
    {
        QObject::connect(&announcements, &Announcements::posted, &announcements,
                         [this](Announcement posted) { announced.emplace_back(nameOf(posted)); });
        listen();
    }
    std::unique_ptr<CheckoutModel> make(const QUrl& start)
    {
        return std::make_unique<CheckoutModel>(
            CheckoutRequest{.url = cartAddress, .fromCart = true}, start,
            checkoutHosts(cartAddress, QStringLiteral("https://back.example")),
            CheckoutGoods{.pieces = 1, .pictures = {}},
            CheckoutModel::Services{.clock = clock,
                                    .announcements = announcements,
                                    .openExternally = [this](const QUrl& url) { opened.push_back(url); },
                                    .appVersion = QStringLiteral("1.2.3")});
    }
    void listen()
    {
        QObject::connect(model.get(), &CheckoutModel::orderPlaced, model.get(),
                         [this](const QString& number) { numbers.append(number); });
    }
    void renew(const QUrl& start = handOver)
    {
        model = make(start);
        listen();
    }
    void confirm(const char* text)
    {
        model->readConfirmation(QString::fromUtf8(text));
        QThreadPool::globalInstance()->waitForDone();
        drainEvents();
    }
    [[nodiscard]] QString get(const char* name) const { return model->property(name).toString(); }

    FakeClock clock;
    Announcements announcements;
    std::vector<std::string> announced;
    std::vector<QUrl> opened;
    QStringList numbers;
    std::unique_ptr<CheckoutModel> model = make(handOver);
};

TEST_F(CheckoutModelTest, APageGoesFromTheStartToTheOrder)
{
    model->loadStarted(QUrl(QStringLiteral("https://evil.example/"))); // refused, and told of all the same
    EXPECT_EQ(get("connectionText"), QStringLiteral("Secure connection to back.example"));
    model->loadStarted(page);
    EXPECT_FALSE(model->loadFinished(page));
    EXPECT_EQ(model->phase(), Phase::Page);
    confirm("Order #1000"); // nothing was ordered yet
    EXPECT_THAT(numbers, IsEmpty());
    model->loadStarted(thanks);
    EXPECT_TRUE(model->loadFinished(thanks));
    EXPECT_EQ(clock.sleepers(), 0);
    confirm("Thank you!\nOrder #LS1042");

    // Once completed it stays so, whatever the page does.
    model->loadStarted(page);
    EXPECT_FALSE(model->loadFinished(thanks));
    EXPECT_FALSE(model->loadFinished(page));
    model->loadFailed(QStringLiteral("late"));
    EXPECT_FALSE(model->loadStopped(thanks));
    model->rendererGone();
    model->reload();
    confirm("Order #2000");
    EXPECT_EQ(model->phase(), Phase::Completed);
    EXPECT_EQ(model->generation(), 0);
    EXPECT_EQ(numbers, QStringList{QStringLiteral("LS1042")});
    EXPECT_EQ(clock.sleepers(), 0);

    model->close();
    model->close();
    EXPECT_THAT(announced, ElementsAre("lst.checkout.completed", "lst.checkout.closed"));
}

TEST_F(CheckoutModelTest, ThePageGoesOnlyWhereItMay)
{
    struct Row {
        const char* url;
        bool mayGo;
        const char* refusedHost;
    };
    for (const Row& row : {
             Row{"https://shop.example/checkouts/c/1", true, ""},
             Row{"https://shop.example/cart/c/a?key=1", false, "shop.example"}, // not where this one began
             Row{"https://www.example/policies/terms", false, "www.example"},
             Row{"file:///etc/passwd", false, ""},
             Row{"javascript:alert(1)", false, ""},
         }) {
        model->forgetRefusedLink();
        EXPECT_EQ(model->mayNavigate(QUrl(QString::fromLatin1(row.url))), row.mayGo) << row.url;
        EXPECT_EQ(model->refusedHost(), QLatin1String(row.refusedHost)) << row.url;
    }
    EXPECT_THAT(opened, ElementsAre()); // a page can click by itself
    const QUrl terms(QStringLiteral("https://www.example/policies/terms"));
    EXPECT_FALSE(model->mayNavigate(terms));
    model->openRefusedLink();
    EXPECT_THAT(opened, ElementsAre(terms));
    EXPECT_EQ(model->refusedHost(), QString());

    EXPECT_TRUE(model->mayNavigate(handOver));
    renew(cartAddress);
    EXPECT_TRUE(model->mayNavigate(cartAddress)); // the start, whatever its path
    EXPECT_FALSE(model->mayNavigate(QUrl(QStringLiteral("https://shop.example/cart/c/b?key=1"))));
    EXPECT_FALSE(model->loadFinished(page));
    EXPECT_FALSE(model->mayNavigate(cartAddress));
    model->close();
    EXPECT_FALSE(model->mayNavigate(page));
}

TEST_F(CheckoutModelTest, AShownPageThatIsRefusedANavigationStays)
{
    model->loadStarted(page);
    EXPECT_FALSE(model->loadFinished(page));
    model->loadStarted(page);
    EXPECT_FALSE(model->loadStopped(page));
    EXPECT_EQ(model->phase(), Phase::Page);
    EXPECT_EQ(model->generation(), 0);
    EXPECT_EQ(clock.sleepers(), 0);

    // Also one that wants to leave while it loads, and the thanks for an order at that.
    renew();
    model->loadStarted(handOver);
    EXPECT_FALSE(model->loadStopped(page));
    EXPECT_EQ(model->phase(), Phase::Page);
    EXPECT_TRUE(model->loadStopped(thanks));
    EXPECT_EQ(model->phase(), Phase::Completed);
}

TEST_F(CheckoutModelTest, AClosedWindowHasNoMoreToSay)
{
    model->loadStarted(page);
    model->close();
    EXPECT_EQ(clock.sleepers(), 0);
    EXPECT_THAT(announced, ElementsAre("lst.checkout.closed"));
    EXPECT_FALSE(model->loadFinished(thanks));
    model->reload();
    EXPECT_THAT(announced, ElementsAre("lst.checkout.closed"));

    renew();
    model->loadStarted(page);
    model.reset(); // while it loads
    EXPECT_EQ(clock.sleepers(), 0);
    renew();
    EXPECT_TRUE(model->loadFinished(thanks));
    model->readConfirmation(QString(1'000'000, QLatin1Char('x')));
    model.reset(); // while its page is read
    QThreadPool::globalInstance()->waitForDone();
    drainEvents();
}

} // namespace
