#include "kit/NewsJourney.h"

namespace loom
{

void NewsJourney::open()
{
    start(QStringLiteral("/account"), {.clock = &clock, .folder = folder.path()});
    awaitLook();
}

void NewsJourney::signIn(const QString& email)
{
    ASSERT_TRUE(run(shop->model().auth()->signIn(email, QStringLiteral("atelier24"))));
    awaitLook();
}

void NewsJourney::awaitLook() const
{
    waitUntil([this] { return notifier().ledger() && !notifier().isChecking() && notifier().inFlight().isEmpty(); },
              "the look for news is over");
}

void NewsJourney::beginLook()
{
    awaitLook();
    const auto end = clock.elapsed() + DesktopNotifier::watchedPause;
    while (!notifier().isChecking() && clock.elapsed() < end)
        clock.advance(std::min(end - clock.elapsed(), clock.nextWake().value_or(DesktopNotifier::watchedPause)));
    EXPECT_TRUE(notifier().isChecking());
}

void NewsJourney::look()
{
    beginLook();
    awaitLook();
}

QString NewsJourney::notify(const QString& type, QJsonObject more)
{
    more.insert(QStringLiteral("type"), type);
    if (!more.contains(QStringLiteral("date")))
        more.insert(QStringLiteral("date"), clock.now().addSecs(1).toString(Qt::ISODate));
    return store.notify(more).value(0);
}

QStringList NewsJourney::posted() const
{
    QStringList titles;
    for (const DesktopNotice& notice : shop->desktop().posted)
        titles.append(notice.title);
    return titles;
}

bool NewsJourney::isDelivered(const QString& id) const
{
    return notifier().ledger()->contains(QStringLiteral("account-") + id);
}

void NewsJourney::awaitBanner(const QString& title) const
{
    window.awaitText(title, window.await(banner));
}

} // namespace loom
