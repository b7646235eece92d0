#include "notify/InboxNotices.h"

#include "storage/DataFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace loom
{

namespace
{

const QString noticesFile = QStringLiteral("lst_own_notices");

struct Saved {
    QString owner;
    std::vector<InboxNotice> notices;
};

QJsonObject toJson(const InboxNotice& notice)
{
    const AppNotification& notification = notice.notification;
    return {{QStringLiteral("id"), notification.id},           {QStringLiteral("title"), notification.title},
            {QStringLiteral("body"), notification.body},       {QStringLiteral("symbol"), notification.symbol},
            {QStringLiteral("type"), notification.type},       {QStringLiteral("link"), notification.link},
            {QStringLiteral("date"), formatDate(notice.date)}, {QStringLiteral("isUnread"), notice.isUnread}};
}

QByteArray encoded(const QString& owner, const std::vector<InboxNotice>& notices)
{
    QJsonArray list;
    for (const InboxNotice& notice : notices)
        list.append(toJson(notice));
    return QJsonDocument(QJsonObject{{QStringLiteral("owner"), owner}, {QStringLiteral("notices"), list}})
        .toJson(QJsonDocument::Compact);
}

InboxNotice decodeNotice(const JsonReader& json)
{
    const auto text = [&json](std::string_view key) {
        return json.optionalText(key).value_or(QString());
    };
    return {.notification = {.id = json.text("id"),
                             .title = text("title"),
                             .body = text("body"),
                             .symbol = text("symbol"),
                             .type = text("type"),
                             .link = text("link"),
                             .accountID = {}},
            .date = json.date("date"),
            .isUnread = json.optionalBoolean("isUnread").value_or(true)};
}

Saved decodeSaved(const JsonReader& json)
{
    return {.owner = json.text("owner"), .notices = JsonReader::decodeEach(json.list("notices"), decodeNotice)};
}

bool hasId(const InboxNotice& notice, const QString& id)
{
    return notice.notification.id == id;
}

} // namespace

InboxNotices::InboxNotices(DataFolder& folder, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
{
}

void InboxNotices::setOwner(const QString& owner)
{
    if (m_owner == owner)
        return;
    const bool isFirst = std::exchange(m_owner, owner).isEmpty();
    m_notices.clear();
    auto saved = isFirst ? m_folder.load(noticesFile, decodeSaved) : std::nullopt;
    if (saved && saved->owner == owner)
        m_notices = std::move(saved->notices);
    else
        m_folder.remove(noticesFile);
    Q_EMIT changed();
}

void InboxNotices::add(const AppNotification& notification, const QDateTime& date)
{
    std::erase_if(m_notices, [&](const InboxNotice& notice) { return hasId(notice, notification.id); });
    const auto place = std::ranges::find_if(m_notices, [&](const InboxNotice& notice) { return notice.date <= date; });
    m_notices.insert(place, {.notification = notification, .date = date});
    if (m_notices.size() > mostKept)
        m_notices.pop_back();
    save();
}

void InboxNotices::markRead(const QString& id)
{
    const auto found = std::ranges::find_if(m_notices, [&](const InboxNotice& notice) { return hasId(notice, id); });
    if (found != m_notices.end() && std::exchange(found->isUnread, false))
        save();
}

void InboxNotices::markAllRead()
{
    bool hadUnread = false;
    for (InboxNotice& notice : m_notices)
        hadUnread = std::exchange(notice.isUnread, false) || hadUnread;
    if (hadUnread)
        save();
}

void InboxNotices::save()
{
    m_folder.save(noticesFile, [owner = m_owner, notices = m_notices] { return encoded(owner, notices); });
    Q_EMIT changed();
}

} // namespace loom
