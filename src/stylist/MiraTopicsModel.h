#pragma once

#include "stylist/MiraTopic.h"

#include <QAbstractListModel>

#include <vector>

namespace loom
{

class DateFormat;

/// The topics as a list to choose from, the newest first. Rows that stay are never taken away. Main thread.
class MiraTopicsModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        IdRole = Qt::UserRole + 1, ///< "id"
        TitleRole,                 ///< "title"
        WhenRole,                  ///< "when"
        IsCurrentRole,             ///< "isCurrent"
        IsNamedRole,               ///< "isNamed": by the shopper
    };
    Q_ENUM(Role)

    explicit MiraTopicsModel(const DateFormat& dates, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_topics.size()); }
    /// In the order they are to be shown in.
    void show(std::vector<MiraTopic> topics, const QString& current);
    /// What a topic without a name is called, too.
    [[nodiscard]] static QString shownTitle(const QString& title);
    /// The language of the window changed.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    const DateFormat& m_dates;
    std::vector<MiraTopic> m_topics;
    QString m_current;
};

} // namespace loom
