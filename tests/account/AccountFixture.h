#pragma once

#include "account/AuthStore.h"
#include "base/Announcements.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"
#include "support/FakeSecureStore.h"
#include "support/NetworkFixture.h"
#include "support/Running.h"

#include <QTemporaryDir>

namespace loom
{

/// What signing in needs, with a backend that says what the test foretold.
class AccountFixture : public NetworkFixture
{
protected:
    AccountFixture()
    {
        QObject::connect(&announcements, &Announcements::posted, &announcements,
                         [this](Announcement announcement) { posted.push_back(announcement); });
    }

    [[nodiscard]] AuthStore::Services services()
    {
        return {.transport = transport,
                .secrets = secrets,
                .preferences = preferences,
                .folder = folder,
                .clock = clock,
                .random = random,
                .announcements = announcements,
                .openExternally = [this](const QUrl& url) { opened.append(url); },
                .supportBase = server.base(),
                .supportKey = QStringLiteral("key-1")};
    }

    static QByteArray path(const QByteArray& call) { return "POST /api/support/widget" + call; }
    static Answer signedIn(const QString& email, const QString& token = QStringLiteral("token-1"))
    {
        return Answer::json(
            {{QStringLiteral("token"), token},
             {QStringLiteral("customer"),
              QJsonObject{{QStringLiteral("email"), email}, {QStringLiteral("name"), QStringLiteral("Jane")}}}});
    }
    static Answer refused(int status, const QString& code)
    {
        return Answer::json({{QStringLiteral("code"), code}, {QStringLiteral("message"), QStringLiteral("no")}},
                            status);
    }
    /// Signs in with a password, as whoever the answer says.
    ApiResult<void> signInAs(AuthStore& auth, const QString& email, const QString& token = QStringLiteral("token-1"))
    {
        server.expect(path("/app-auth/login"), signedIn(email, token));
        return run(auth.signIn(email, QStringLiteral("secret-password")));
    }

    QTemporaryDir directory;
    DataFolder folder{directory.path()};
    Preferences preferences{folder};
    FakeSecureStore secrets;
    Announcements announcements;
    std::vector<Announcement> posted;
    QList<QUrl> opened;
};

} // namespace loom
