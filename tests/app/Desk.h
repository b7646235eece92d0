#pragma once

#include "app/Router.h"
#include "app/WindowServices.h"
#include "app/WindowSession.h"

#include "app/ClosedTabs.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include "support/FakeClock.h"
#include "support/FakeFeatures.h"
#include "support/FakeRandom.h"

#include <QTemporaryDir>

namespace loom
{

/// What windows and tabs need of the outside, with a browser that only notes what it was given.
class Desk : public testing::Test
{
protected:
    /// "women: product silk > storePage page" – the section and the pages on it.
    [[nodiscard]] static std::string shown(const Router& tab)
    {
        std::string text = entryOf(tab.selection()).rawValue;
        for (const Route& route : tab.routes()) {
            const QJsonObject json = toJson(route);
            text += text.find(':') == std::string::npos ? ": " : " > ";
            text += json.value(QStringLiteral("case")).toString().toStdString();
            for (const char* const key : {"handle", "id", "query", "path"}) {
                if (const QString value = json.value(QLatin1String(key)).toString(); !value.isEmpty())
                    text += ' ' + value.toStdString();
            }
        }
        return text;
    }

    FakeClock clock;
    FakeRandom random;
    QTemporaryDir home;
    DataFolder folder{home.path()};
    Preferences settings{folder};
    ClosedTabs closedTabs{folder};
    FakeFeatures features;
    QList<QUrl> browsed;
    Qt::KeyboardModifiers keys;
    WindowServices services{.clock = clock,
                            .random = random,
                            .preferences = settings,
                            .closedTabs = closedTabs,
                            .features = features,
                            .resolver = LinkResolver(QStringLiteral("loom.example")),
                            .storePages = StorePages(QStringLiteral("https://www.loom.example")),
                            .openExternally = [this](const QUrl& url) { browsed.append(url); },
                            .heldKeys =
                                [this] {
                                    return keys;
                                }};
};

} // namespace loom
