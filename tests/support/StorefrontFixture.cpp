#include "support/StorefrontFixture.h"

#include <QJsonArray>
#include <QRegularExpression>

namespace loom
{

namespace
{

QString operationIn(const QJsonObject& body)
{
    static const QRegularExpression name(QStringLiteral("\\b(?:query|mutation) (\\w+)"));
    return name.match(body.value(QStringLiteral("query")).toString()).captured(1);
}

} // namespace

StorefrontFixture::StorefrontFixture()
{
    server.allow("POST /api/2025-04/graphql.json",
                 [this](const ReceivedRequest& request) { return answerTo(request); });
}

StorefrontFixture::~StorefrontFixture()
{
    for (auto told = m_told.cbegin(); told != m_told.cend(); ++told) {
        if (!told->empty())
            ADD_FAILURE() << told->size() << " never came: " << told.key().toStdString();
    }
}

Answer StorefrontFixture::envelope(const QJsonValue& data)
{
    return Answer::json({{QStringLiteral("data"), data}});
}

QString StorefrontFixture::operation(std::size_t request) const
{
    return operationIn(server.requests().at(request).json());
}

QJsonObject StorefrontFixture::variables(std::size_t request) const
{
    return server.requests().at(request).json().value(QStringLiteral("variables")).toObject();
}

Answer StorefrontFixture::answerTo(const ReceivedRequest& request)
{
    const QString name = operationIn(request.json());
    const QJsonObject variables = request.json().value(QStringLiteral("variables")).toObject();
    const QString country = variables.value(QStringLiteral("country")).toString();
    const QString handle = variables.value(QStringLiteral("handle")).toString();
    for (const QString& key : {name + QLatin1Char(' ') + country, name + QLatin1Char(' ') + handle, name}) {
        if (auto& answers = m_told[key]; !answers.empty()) {
            Answer next = std::move(answers.front());
            answers.pop_front();
            return next;
        }
    }
    ADD_FAILURE() << "unexpected: " << request.body.left(500).toStdString();
    return Answer::body("{}", 418);
}

} // namespace loom
