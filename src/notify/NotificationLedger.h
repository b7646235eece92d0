#pragma once

#include <QDateTime>
#include <QSet>
#include <QStringList>

#include <functional>

namespace loom
{

class JsonReader;

/// What was delivered already, and to whom, so that nothing ever comes twice. A value; the notifier owns the one there
/// is and keeps it in a file.
class NotificationLedger
{
public:
    /// Of the identifiers that the server's list no longer holds so many stay, the newest.
    static constexpr qsizetype mostGone = 5000;
    static const QString fileName;

    NotificationLedger() = default;
    /// Begun now: what is dated until then is never delivered.
    NotificationLedger(QString owner, QDateTime startedAt, QStringList delivered = {});

    /// "guest", or "account-" and the account's id.
    [[nodiscard]] static QString ownerOf(const QString& accountID);

    [[nodiscard]] const QString& owner() const { return m_owner; }
    [[nodiscard]] const QDateTime& startedAt() const { return m_startedAt; }
    /// The oldest first.
    [[nodiscard]] const QStringList& delivered() const { return m_delivered; }
    /// Takes the same time however long the list is.
    [[nodiscard]] bool contains(const QString& id) const { return m_known.contains(id); }

    /// False when it was recorded before.
    bool record(const QString& id);
    /// `present`: every identifier that a complete read of the server's list gave. True when something left.
    bool prune(const QSet<QString>& present);
    /// Begun later than now: the clock is wrong or was, and nothing would be delivered until it has caught up. Only
    /// once everything that is dated until then is recorded; else it would come again. True when it had to be
    /// corrected.
    bool correctStart(const QDateTime& now);

    /// Makes the bytes of the file, of what is recorded by now. Any thread.
    [[nodiscard]] std::function<QByteArray()> encoder() const;

private:
    QString m_owner;
    QDateTime m_startedAt; ///< UTC
    QStringList m_delivered;
    QSet<QString> m_known; ///< the same
};

[[nodiscard]] NotificationLedger decodeNotificationLedger(const JsonReader& json);

} // namespace loom
