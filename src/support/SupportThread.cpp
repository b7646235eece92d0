#include "support/SupportThread.h"

#include "base/Dates.h"
#include "base/JsonReader.h"
#include "catalog/DisplayText.h"
#include "support/SupportReading.h"

#include <QJsonArray>

namespace loom
{

namespace
{

using State = SupportEntry::State;

/// How far the service's clock may be behind this machine's.
constexpr qint64 clockTolerance = 600;

QString keyOf(const QString& id)
{
    return QStringLiteral("s:") + id;
}

/// Whether the service's message is the one that was to be sent. Without its client's identifier the words decide, but
/// an older message with the same words is another.
bool isSame(const SupportEntry& pending, const SupportMessage& message)
{
    if (!message.clientID.isEmpty())
        return message.clientID == pending.key;
    if (message.createdAt.isValid() && pending.message.createdAt.isValid() &&
        message.createdAt.addSecs(clockTolerance) < pending.message.createdAt)
        return false;
    return pending.file.has_value() == !message.attachments.empty() &&
           displayText(pending.message.body, longestSupportBody) == message.body;
}

SupportEntry decodePending(const JsonReader& json)
{
    SupportEntry entry{
        .key = json.text("clientID"), .message = {}, .state = State::Unconfirmed, .file = {}, .failure = {}};
    entry.message.direction = SupportDirection::Outbound;
    entry.message.body = json.optionalText("body").value_or(QString());
    entry.message.createdAt = json.optionalDate("createdAt").value_or(QDateTime());
    if (const auto file = json.optionalObject("file"))
        entry.file = decodeSupportFile(*file);
    if (entry.key.isEmpty() || (entry.message.body.isEmpty() && !entry.file))
        json.fail(QStringLiteral("nothing to send"));
    return entry;
}

QJsonObject pendingJson(const SupportEntry& entry)
{
    QJsonObject json{{QStringLiteral("clientID"), entry.key},
                     {QStringLiteral("body"), entry.message.body},
                     {QStringLiteral("createdAt"), formatDate(entry.message.createdAt)}};
    if (entry.file)
        json.insert(QStringLiteral("file"), supportFileJson(*entry.file));
    return json;
}

} // namespace

std::vector<SupportEntry>::iterator SupportThread::firstPending()
{
    return std::ranges::find_if(m_entries, [](const SupportEntry& entry) { return entry.state != State::Sent; });
}

std::vector<SupportEntry>::iterator SupportThread::place(const QString& key)
{
    return std::ranges::find(m_entries, key, &SupportEntry::key);
}

const SupportEntry* SupportThread::find(const QString& key) const
{
    const auto found = std::ranges::find(m_entries, key, &SupportEntry::key);
    return found == m_entries.end() ? nullptr : &*found;
}

const SupportEntry* SupportThread::nextToSend() const
{
    const auto found = std::ranges::find(m_entries, State::Sending, &SupportEntry::state);
    return found == m_entries.end() ? nullptr : &*found;
}

SupportEntry SupportThread::confirmed(const SupportMessage& message)
{
    SupportEntry entry{.key = keyOf(message.id), .message = message, .state = State::Sent, .file = {}, .failure = {}};
    const auto known = std::find_if(m_entries.begin(), m_entries.end(), [&message](const SupportEntry& other) {
        return other.state == State::Sent ? other.message.id == message.id
                                          : message.direction == SupportDirection::Outbound && isSame(other, message);
    });
    if (known != m_entries.end()) {
        entry.key = known->key;
        m_entries.erase(known);
    }
    return entry;
}

void SupportThread::replace(const std::vector<SupportMessage>& messages, int unreadCount)
{
    std::vector<SupportEntry> entries;
    entries.reserve(messages.size() + m_entries.size());
    for (const SupportMessage& message : messages)
        entries.push_back(confirmed(message));
    std::move(firstPending(), m_entries.end(), std::back_inserter(entries));
    m_entries = std::move(entries);
    m_unreadCount = unreadCount;
}

int SupportThread::merge(const std::vector<SupportMessage>& messages, std::optional<int> unreadCount)
{
    int news = 0;
    for (const SupportMessage& message : messages) {
        const auto known = std::ranges::find_if(m_entries, [&message](const SupportEntry& entry) {
            return entry.state == State::Sent && entry.message.id == message.id;
        });
        if (known != m_entries.end()) {
            known->message = message;
            continue;
        }
        SupportEntry entry = confirmed(message);
        m_entries.insert(firstPending(), std::move(entry));
        news += message.direction == SupportDirection::Inbound ? 1 : 0;
    }
    const auto sent = static_cast<std::size_t>(firstPending() - m_entries.begin());
    if (sent > mostSupportMessages)
        m_entries.erase(m_entries.begin(), m_entries.begin() + static_cast<std::ptrdiff_t>(sent - mostSupportMessages));
    m_unreadCount = unreadCount;
    return news;
}

void SupportThread::begin(const SupportMessage& message, std::optional<SupportFile> file)
{
    m_entries.push_back(
        {.key = message.clientID, .message = message, .state = State::Sending, .file = std::move(file), .failure = {}});
}

void SupportThread::setFile(const QString& key, const SupportFile& file)
{
    if (const auto entry = place(key); entry != m_entries.end())
        entry->file = file;
}

void SupportThread::retry(const QString& key)
{
    const auto entry = place(key);
    if (entry == m_entries.end() || entry->state != State::Unconfirmed)
        return;
    entry->state = State::Sending;
    entry->failure.reset();
}

void SupportThread::fail(const QString& key, std::optional<SupportFailure> failure)
{
    const auto entry = place(key);
    if (entry == m_entries.end() || entry->state != State::Sending)
        return;
    entry->state = State::Unconfirmed;
    entry->failure = std::move(failure);
}

void SupportThread::discard(const QString& key)
{
    std::erase_if(m_entries,
                  [&key](const SupportEntry& entry) { return entry.key == key && entry.state == State::Unconfirmed; });
}

void SupportThread::forgetSent()
{
    m_entries.erase(m_entries.begin(), firstPending());
    m_seenID.clear();
    m_unreadCount.reset();
}

QString SupportThread::lastID() const
{
    const auto last = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                   [](const SupportEntry& entry) { return entry.state == State::Sent; });
    return last == m_entries.rend() ? QString() : last->message.id;
}

std::vector<SupportMessage> SupportThread::unseen() const
{
    std::vector<SupportMessage> found;
    for (const SupportEntry& entry : m_entries) {
        if (entry.state == State::Sent && entry.message.id == m_seenID)
            found.clear();
        else if (!entry.isMine())
            found.push_back(entry.message);
    }
    const auto most = static_cast<std::size_t>(m_unreadCount.value_or(mostSupportMessages));
    if (found.size() > most)
        found.erase(found.begin(), found.end() - static_cast<std::ptrdiff_t>(most));
    return found;
}

QJsonObject SupportThread::toJson() const
{
    QJsonArray messages;
    QJsonArray pending;
    for (const SupportEntry& entry : m_entries) {
        if (entry.state == State::Sent)
            messages.append(supportMessageJson(entry.message));
        else
            pending.append(pendingJson(entry));
    }
    return {{QStringLiteral("messages"), messages},
            {QStringLiteral("pending"), pending},
            {QStringLiteral("seen"), m_seenID}};
}

SupportThread SupportThread::fromJson(const JsonReader& json)
{
    SupportThread thread;
    for (const SupportMessage& message : decodeSupportMessages(json.optionalList("messages")))
        thread.m_entries.push_back(thread.confirmed(message));
    for (SupportEntry& entry : JsonReader::decodeEach(json.optionalList("pending"), decodePending)) {
        if (!thread.find(entry.key))
            thread.m_entries.push_back(std::move(entry));
    }
    thread.m_seenID = json.optionalText("seen").value_or(QString());
    return thread;
}

} // namespace loom
