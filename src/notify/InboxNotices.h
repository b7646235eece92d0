#pragma once

#include "notify/InboxNotice.h"

#include <QObject>

#include <vector>

namespace loom
{

class DataFolder;

/// The notices that this machine made itself, for the inbox: the newest, in a file, as long as the same owner is here.
/// One per process; main thread.
class InboxNotices final : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t mostKept = 100;

    explicit InboxNotices(DataFolder& folder, QObject* parent = nullptr);

    /// Whose they are from now on, as the ledger calls them; those of anybody else go.
    void setOwner(const QString& owner);
    /// One of the same id goes.
    void add(const AppNotification& notification, const QDateTime& date);
    void markRead(const QString& id);
    void markAllRead();

    /// The newest first.
    [[nodiscard]] const std::vector<InboxNotice>& notices() const { return m_notices; }

Q_SIGNALS:
    void changed();

private:
    void save();

    DataFolder& m_folder;
    QString m_owner;
    std::vector<InboxNotice> m_notices;
};

} // namespace loom
