#include "notify/NotificationLedger.h"

#include "base/Dates.h"
#include "base/JsonReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace loom
{

const QString NotificationLedger::fileName = QStringLiteral("lst_notification_delivery_v2");

NotificationLedger::NotificationLedger(QString owner, QDateTime startedAt, QStringList delivered)
    : m_owner(std::move(owner))
    , m_startedAt(std::move(startedAt))
    , m_delivered(std::move(delivered))
    , m_known(m_delivered.cbegin(), m_delivered.cend())
{
}

QString NotificationLedger::ownerOf(const QString& accountID)
{
    return accountID.isEmpty() ? QStringLiteral("guest") : QStringLiteral("account-") + accountID;
}

bool NotificationLedger::record(const QString& id)
{
    if (m_known.contains(id))
        return false;
    m_known.insert(id);
    m_delivered.append(id);
    return true;
}

bool NotificationLedger::prune(const QSet<QString>& present)
{
    if (m_delivered.size() <= mostGone)
        return false;
    const auto isGone = [&present](const QString& id) {
        return !present.contains(id);
    };
    qsizetype tooMany = std::ranges::count_if(m_delivered, isGone) - mostGone;
    if (tooMany <= 0)
        return false;
    m_delivered.removeIf([&](const QString& id) {
        if (tooMany == 0 || !isGone(id))
            return false;
        --tooMany;
        m_known.remove(id);
        return true;
    });
    return true;
}

bool NotificationLedger::correctStart(const QDateTime& now)
{
    if (m_startedAt <= now)
        return false;
    m_startedAt = now;
    return true;
}

std::function<QByteArray()> NotificationLedger::encoder() const
{
    return [owner = m_owner, startedAt = m_startedAt, delivered = m_delivered] {
        return QJsonDocument(QJsonObject{{QStringLiteral("owner"), owner},
                                         {QStringLiteral("startedAt"), formatDate(startedAt)},
                                         {QStringLiteral("delivered"), QJsonArray::fromStringList(delivered)}})
            .toJson(QJsonDocument::Compact);
    };
}

NotificationLedger decodeNotificationLedger(const JsonReader& json)
{
    QStringList delivered;
    const std::vector<JsonReader> ids = json.list("delivered");
    delivered.reserve(static_cast<qsizetype>(ids.size()));
    for (const JsonReader& element : ids) {
        if (auto id = element.asText())
            delivered.append(*std::move(id));
    }
    return NotificationLedger(json.text("owner"), json.date("startedAt"), std::move(delivered));
}

} // namespace loom
