#pragma once

#include "catalog/StorefrontAPI.h"
#include "catalog/StorefrontClient.h"

#include "support/Json.h"
#include "support/NetworkFixture.h"

#include <QMap>

namespace loom
{

/// A Storefront that answers each operation as it was told to, in turn. One that nobody foretold fails the test, and so
/// does one that was foretold and never came.
class StorefrontFixture : public NetworkFixture
{
protected:
    StorefrontFixture();
    ~StorefrontFixture() override;

    /// `operation` is a name such as "Product", or a name and a country or a handle such as "RateSample DE".
    void answer(const QString& operation, const Answer& answer) { m_told[operation].push_back(answer); }
    void answer(const char* operation, const Answer& answer) { this->answer(QString::fromLatin1(operation), answer); }
    /// Answers with {"data": `data`}.
    void answer(const char* operation, const QJsonValue& data) { answer(operation, envelope(data)); }
    [[nodiscard]] static Answer envelope(const QJsonValue& data);

    [[nodiscard]] std::size_t sent() const { return server.requests().size(); }
    [[nodiscard]] QString operation(std::size_t request) const;
    [[nodiscard]] QJsonObject variables(std::size_t request) const;
    /// Of the latest request.
    [[nodiscard]] QJsonObject lastVariables() const { return variables(sent() - 1); }

    SystemLocale locale{.language = QStringLiteral("en"), .script = {}, .region = QStringLiteral("US")};
    StorefrontClient client{server.host(), QStringLiteral("token-1"), locale, transport, clock};
    StorefrontAPI api{client};

private:
    [[nodiscard]] Answer answerTo(const ReceivedRequest& request);

    QMap<QString, std::deque<Answer>> m_told;
};

} // namespace loom
