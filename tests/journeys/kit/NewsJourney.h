#pragma once

#include "kit/Journey.h"
#include "notify/NotificationBannerCenter.h"
#include "support/FakeClock.h"

namespace loom
{

/// A journey in which news comes, of the account and of customer service: by a clock that the test moves, to a desktop
/// that keeps what it is given.
class NewsJourney : public Journey
{
protected:
    /// Opens the first window on the files of the last run.
    void open();
    void signIn(const QString& email = QStringLiteral("ines.marinho@example.com"));
    [[nodiscard]] DesktopNotifier& notifier() const { return *shop->model().notifier(); }
    void awaitLook() const;
    /// Moves the clock to the moment of the next look, and no further: what it asks for would time out.
    void beginLook();
    void look();
    /// Tells Ines, or who else is named, something from now on. Returns under which identifier.
    QString notify(const QString& type, QJsonObject more = {});
    /// What the desktop was given, by its titles.
    [[nodiscard]] QStringList posted() const;
    [[nodiscard]] bool isDelivered(const QString& id) const;
    void awaitBanner(const QString& title) const;

    const QString banner = QStringLiteral("notificationBanner");
    /// Behind that of the store, which tells whole seconds: what it dates itself is later than whatever began here.
    FakeClock clock{QDateTime::currentDateTimeUtc().addSecs(-30)};
    QTemporaryDir folder;
};

} // namespace loom
