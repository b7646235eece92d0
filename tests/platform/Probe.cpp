// Runs one object of the platform in the session that the environment describes, as the application would, and prints
// what it does, a line for each event. Ends with its standard input.

#include "platform/DesktopAppearance.h"
#include "platform/DesktopGlobalKey.h"
#include "platform/FreedesktopNotifications.h"
#include "platform/KeychainSecureStore.h"
#include "platform/LauncherEntryBadge.h"
#include "platform/SingleInstance.h"
#include "platform/SystemLocaleReading.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSocketNotifier>
#include <QUrl>
#include <qcoro/qcorotask.h>

#include <cstdio>
#include <span>
#include <unistd.h>

// What the libraries below the platform leave behind at the end of a program is not ours.
// NOLINTBEGIN(bugprone-reserved-identifier): the name is the sanitizer's.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\nleak:libdbus-1\nleak:libQt6Gui\nleak:libglib-2.0\n";
}
// NOLINTEND(bugprone-reserved-identifier)

using namespace loom;

namespace
{

void print(const QString& line)
{
    std::puts(qUtf8Printable(line));
    std::fflush(stdout);
}

QString asJson(const QStringList& texts)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact));
}

/// Runs until the standard input ends; hands over each line of it.
int runUntilTold(const std::function<void(const QStringList& words)>& obey = {})
{
    QByteArray input;
    QSocketNotifier notifier(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [&] {
        std::array<char, 4096> buffer{};
        const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count <= 0) {
            QCoreApplication::quit();
            return;
        }
        input.append(buffer.data(), static_cast<qsizetype>(count));
        for (qsizetype end = input.indexOf('\n'); end >= 0; end = input.indexOf('\n')) {
            const QString line = QString::fromUtf8(input.left(end));
            input.remove(0, end + 1);
            if (obey)
                obey(line.split(QLatin1Char(' ')));
        }
    });
    return QCoreApplication::exec();
}

/// instance ID [link…]; the environment says which launch and which action it is
int runInstance(const QStringList& arguments)
{
    SingleInstance instance(arguments.value(0));
    QObject::connect(&instance, &SingleInstance::activated, &instance, [](const Activation& activation) {
        QStringList words;
        for (const QString& word : {activation.action, activation.startupId, activation.activationToken}) {
            if (!word.isEmpty())
                words.append(word);
        }
        words.prepend(activation.links.isEmpty() ? QStringLiteral("activated")
                                                 : QStringLiteral("opened ") + asJson(activation.links));
        print(words.join(QLatin1Char(' ')));
    });
    Activation start = readLaunch();
    start.links = arguments.mid(1);
    start.action = qEnvironmentVariable("LOOMSTREET_ACTION");
    if (instance.claim(start) == SingleInstance::Role::Second) {
        print(QStringLiteral("second"));
        return 0;
    }
    print(QStringLiteral("first"));
    return runUntilTold();
}

/// tell ID [link…]; the environment says which action it is
int runTell(const QStringList& arguments)
{
    const SingleInstance instance(arguments.value(0));
    switch (instance.tell({.links = arguments.mid(1), .action = qEnvironmentVariable("LOOMSTREET_ACTION")})) {
    case SingleInstance::Reached::Nobody:
        print(QStringLiteral("nobody"));
        break;
    case SingleInstance::Reached::Instance:
        print(QStringLiteral("told"));
        break;
    case SingleInstance::Reached::NoAnswer:
        print(QStringLiteral("no answer"));
        break;
    }
    return 0;
}

/// appearance
int runAppearance()
{
    const DesktopAppearance appearance;
    const auto tell = [&appearance] {
        print(QStringLiteral("%1 %2 %3")
                  .arg(appearance.isDark() ? QStringLiteral("dark") : QStringLiteral("light"),
                       appearance.reducesMotion() ? QStringLiteral("still") : QStringLiteral("moving"))
                  .arg(appearance.textScale()));
    };
    tell();
    QObject::connect(&appearance, &SystemAppearance::changed, &appearance, tell);
    return runUntilTold();
}

/// key: obeys "bind", "release" and "tell"
int runKey()
{
    DesktopGlobalKey key;
    const auto tell = [&key] {
        print(key.isBound() ? QStringLiteral("bound ") + key.keyText() : QStringLiteral("unbound"));
    };
    QObject::connect(&key, &GlobalKey::isBoundChanged, &key, tell);
    QObject::connect(&key, &GlobalKey::pressed, &key, [] { print(QStringLiteral("pressed")); });
    return runUntilTold([&](const QStringList& words) {
        if (words.value(0) == QLatin1String("tell"))
            tell();
        else
            key.setBound(words.value(0) == QLatin1String("bind"), QStringLiteral("Mute the call"));
    });
}

QCoro::Task<> obey(SecureStore* store, QStringList words)
{
    const QString key = words.value(1);
    if (words.value(0) == QLatin1String("store")) {
        const auto done = co_await store->store(key, QByteArray::fromHex(words.value(2).toLatin1()));
        print(done ? QStringLiteral("stored") : QStringLiteral("failed"));
    } else if (words.value(0) == QLatin1String("read")) {
        const auto found = co_await store->read(key);
        print(!found                ? QStringLiteral("failed")
              : !found->has_value() ? QStringLiteral("nothing")
                                    : QStringLiteral("found ") + QString::fromLatin1((*found)->toHex()));
    } else {
        const auto done = co_await store->remove(key);
        print(done ? QStringLiteral("removed") : QStringLiteral("failed"));
    }
}

/// secrets: obeys "store KEY HEX", "read KEY" and "remove KEY"
int runSecrets()
{
    KeychainSecureStore store;
    return runUntilTold([&store](const QStringList& words) { static_cast<void>(obey(&store, words)); });
}

QCoro::Task<> printPermission(QCoro::Task<DesktopPermission> task)
{
    switch (co_await std::move(task)) {
    case DesktopPermission::NotDetermined:
        print(QStringLiteral("not asked"));
        break;
    case DesktopPermission::Denied:
        print(QStringLiteral("denied"));
        break;
    case DesktopPermission::Authorised:
    case DesktopPermission::Provisional:
        print(QStringLiteral("authorised"));
        break;
    }
}

/// notifications: obeys "ask", "permission", "post ID sound|silent BODY" with a percent-encoded body, "withdraw ID" and
/// "badge COUNT"
int runNotifications()
{
    const QString application = QStringLiteral("com.loomstreet.Loomstreet");
    FreedesktopNotifications notifications(application, nullptr, std::chrono::milliseconds(0));
    LauncherEntryBadge badge(application);
    QObject::connect(&notifications, &DesktopNotifications::activated, &notifications,
                     [](const QMap<QString, QString>& userInfo, const QString& token) {
                         print(QStringLiteral("activated ") + userInfo.value(QStringLiteral("id")) + u' ' + token);
                     });
    QObject::connect(&notifications, &DesktopNotifications::settingsRequested, &notifications,
                     [](const QString& token) { print(QStringLiteral("settings ") + token); });
    return runUntilTold([&](const QStringList& words) {
        if (words.value(0) == QLatin1String("ask"))
            static_cast<void>(printPermission(notifications.requestPermission()));
        else if (words.value(0) == QLatin1String("permission"))
            static_cast<void>(printPermission(notifications.permission()));
        else if (words.value(0) == QLatin1String("post"))
            notifications.post({.requestIdentifier = words.value(1),
                                .title = QStringLiteral("Title & <b>"),
                                .body = QUrl::fromPercentEncoding(words.value(3).toUtf8()),
                                .playsSound = words.value(2) == QLatin1String("sound"),
                                .userInfo = {{QStringLiteral("id"), words.value(1)}}});
        else if (words.value(0) == QLatin1String("withdraw"))
            notifications.withdraw(words.value(1));
        else if (words.value(0) == QLatin1String("badge"))
            badge.show(words.value(1).toInt());
    });
}

int runLocale()
{
    const SystemLocale locale = readSystemLocale();
    print(QStringList({locale.language, locale.script, locale.region}).join(QLatin1Char('-')));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::span<char*> given(argv, static_cast<std::size_t>(argc));
    const QByteArrayView what(given.size() > 1 ? given[1] : "");
    if (what == QByteArrayView("appearance")) {
        const QGuiApplication application(argc, argv);
        return runAppearance();
    }
    if (what == QByteArrayView("key")) {
        const QGuiApplication application(argc, argv);
        return runKey();
    }
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(2);
    if (what == QByteArrayView("instance"))
        return runInstance(arguments);
    if (what == QByteArrayView("tell"))
        return runTell(arguments);
    if (what == QByteArrayView("secrets"))
        return runSecrets();
    if (what == QByteArrayView("notifications"))
        return runNotifications();
    if (what == QByteArrayView("locale"))
        return runLocale();
    std::fputs("unknown: see the functions above\n", stderr);
    return 2;
}
