#pragma once

#include "support/SupportEntry.h"

#include <QJsonObject>

namespace loom
{

class JsonReader;

/// The messages of the conversation: what the service has, the oldest first, and after it what it has not confirmed
/// yet. Knows what the shopper has seen. A plain value.
class SupportThread
{
public:
    [[nodiscard]] const std::vector<SupportEntry>& entries() const { return m_entries; }
    [[nodiscard]] const SupportEntry* find(const QString& key) const;
    /// The first that is to be sent; null when none is.
    [[nodiscard]] const SupportEntry* nextToSend() const;

    /// The whole conversation as the service has it takes the place of what was known of it. `unreadCount` is what the
    /// service holds for unread.
    void replace(const std::vector<SupportMessage>& messages, int unreadCount);
    /// Messages of the service that come after, or are, those that are known; how many were news from customer service.
    int merge(const std::vector<SupportMessage>& messages, std::optional<int> unreadCount);

    /// A message is to be sent.
    void begin(const SupportMessage& message, std::optional<SupportFile> file);
    void setFile(const QString& key, const SupportFile& file);
    void retry(const QString& key);
    void fail(const QString& key, std::optional<SupportFailure> failure);
    void discard(const QString& key);
    /// The service does not know the conversation any more: what it had is gone, what it did not confirm stays.
    void forgetSent();

    /// The last message that the service has; empty without one.
    [[nodiscard]] QString lastID() const;
    /// What customer service wrote and the shopper has not seen, the oldest first.
    [[nodiscard]] std::vector<SupportMessage> unseen() const;
    /// Up to what the shopper has seen it; empty when that is nothing.
    [[nodiscard]] const QString& seenID() const { return m_seenID; }
    void markSeen() { m_seenID = lastID(); }

    /// As it is kept on this machine. What was being sent is unconfirmed when it is read again.
    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static SupportThread fromJson(const JsonReader& json);

    bool operator==(const SupportThread&) const = default;

private:
    [[nodiscard]] std::vector<SupportEntry>::iterator firstPending();
    [[nodiscard]] std::vector<SupportEntry>::iterator place(const QString& key);
    /// The entry of a message that the service has, with the key it had before.
    [[nodiscard]] SupportEntry confirmed(const SupportMessage& message);

    std::vector<SupportEntry> m_entries; ///< what is not confirmed stands last
    QString m_seenID;
    std::optional<int> m_unreadCount; ///< as the service counts; it may have been read elsewhere
};

} // namespace loom
