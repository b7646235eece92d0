#pragma once

#include "net/WidgetClient.h"
#include "services/RemoteConfig.h"
#include "storage/DataFolder.h"

#include "support/Json.h"
#include "support/NetworkFixture.h"
#include "support/Running.h"

#include <QJsonDocument>
#include <QTemporaryDir>

namespace loom
{

/// Remote configuration, with a backend that says what the test foretold.
class ConfigFixture : public NetworkFixture
{
protected:
    void make()
    {
        config.reset();
        config.emplace(widget, folder, clock);
    }
    /// The backend answers the next question with this.
    void say(const QByteArray& document)
    {
        server.expect("GET /api/support/widget/app-version/config", Answer::body(document));
    }
    /// Asks, and waits for the answer to be applied.
    void fetch(const QByteArray& document)
    {
        say(document);
        config->refresh();
        settle();
    }
    void settle()
    {
        waitUntil([this] { return !config->fetching(); }, "the question is answered");
    }

    QTemporaryDir directory;
    DataFolder folder{directory.path()};
    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    std::optional<RemoteConfig> config;
};

} // namespace loom
