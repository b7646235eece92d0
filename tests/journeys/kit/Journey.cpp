#include "kit/Journey.h"

#include "kit/Warnings.h"
#include "support/Printing.h"

#include <QDir>
#include <QGuiApplication>

namespace loom
{

void Journey::SetUp()
{
    store.reset();
    static_cast<void>(takeWarnings());
    // Qt's own, where a window closes while something in it moves.
    tolerate(QStringLiteral("QUnifiedTimer::stopAnimationDriver"));
}

void Journey::TearDown()
{
    if (HasFailure())
        saveWindows();
    shop.reset();
    const QJsonArray unexpected = store.unexpected();
    for (const auto request : unexpected)
        ADD_FAILURE() << "unexpected: " << testing::PrintToString(request.toObject());
    for (const QString& warning : takeWarnings()) {
        const auto isIn = [&warning](const QString& words) {
            return warning.contains(words);
        };
        EXPECT_TRUE(std::ranges::any_of(m_tolerated, isIn)) << "warned: " << warning.toStdString();
    }
}

void Journey::start(const QString& link, const Circumstances& circumstances)
{
    shop = std::make_unique<Shop>(store, circumstances);
    window = shop->openWindow(link.isEmpty() ? std::nullopt : std::optional(link));
}

void Journey::follow(const QString& link) const
{
    window.press(QStringLiteral("Ctrl+K"));
    window.type(link);
    window.press(QStringLiteral("Return"));
}

void Journey::tolerateEngine()
{
    tolerate(QStringLiteral("You should not use it as a QML type."));
    tolerate(QStringLiteral("crbug/"));
}

void Journey::saveWindows() const
{
    const QString folder = qEnvironmentVariable("LOOM_JOURNEY_PICTURES");
    if (folder.isEmpty() || !QDir().mkpath(folder))
        return;
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    int number = 0;
    for (QWindow* const top : QGuiApplication::topLevelWindows()) {
        auto* const quick = qobject_cast<QQuickWindow*>(top);
        if (!quick || !quick->isVisible())
            continue;
        const QString name = QStringLiteral("%1/%2.%3-%4.png")
                                 .arg(folder, QString::fromUtf8(test.test_suite_name()), QString::fromUtf8(test.name()))
                                 .arg(++number);
        WindowDriver(quick).save(name);
        std::printf("saved %s\n", qPrintable(name));
    }
}

} // namespace loom
