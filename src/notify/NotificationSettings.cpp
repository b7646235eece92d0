#include "notify/NotificationSettings.h"

#include "notify/NotifyCategory.h"

namespace loom
{

NotificationSettings::NotificationSettings(Preferences& preferences, QObject* parent)
    : QAbstractListModel(parent)
    , m_preferences(preferences)
{
    connect(&preferences, &Preferences::changed, this, [this](const QString& key) {
        for (const Preference<bool>& one : {preferences::inAppNotifications, preferences::desktopNotifications,
                                            preferences::notifySound, preferences::notifyBadge}) {
            if (key == QLatin1String(one.key))
                Q_EMIT switchesChanged();
        }
        for (const NotifyCategoryEntry& entry : notifyCategoryEntries) {
            const QModelIndex row = index(static_cast<int>(entry.category));
            if (key == QLatin1String(entry.isOn.key))
                Q_EMIT dataChanged(row, row, {OnRole});
        }
    });
}

bool NotificationSettings::isInAppOn() const
{
    return m_preferences.value(preferences::inAppNotifications);
}

void NotificationSettings::setInAppOn(bool isOn)
{
    m_preferences.set(preferences::inAppNotifications, isOn);
}

bool NotificationSettings::isDesktopOn() const
{
    return m_preferences.value(preferences::desktopNotifications);
}

void NotificationSettings::setDesktopOn(bool isOn)
{
    m_preferences.set(preferences::desktopNotifications, isOn);
}

bool NotificationSettings::isSoundOn() const
{
    return m_preferences.value(preferences::notifySound);
}

void NotificationSettings::setSoundOn(bool isOn)
{
    m_preferences.set(preferences::notifySound, isOn);
}

bool NotificationSettings::isBadgeOn() const
{
    return m_preferences.value(preferences::notifyBadge);
}

void NotificationSettings::setBadgeOn(bool isOn)
{
    m_preferences.set(preferences::notifyBadge, isOn);
}

void NotificationSettings::setOn(int row, bool isOn)
{
    if (row >= 0 && row < rowCount())
        m_preferences.set(notifyCategoryEntries[static_cast<std::size_t>(row)].isOn, isOn);
}

void NotificationSettings::retranslate()
{
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {TitleRole, DescriptionRole});
}

int NotificationSettings::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(notifyCategoryEntries.size());
}

QVariant NotificationSettings::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const NotifyCategoryEntry& entry = notifyCategoryEntries[static_cast<std::size_t>(index.row())];
    switch (role) {
    case NameRole:
        return QString::fromLatin1(entry.rawValue);
    case TitleRole:
        return entry.title.translated();
    case DescriptionRole:
        return entry.description.translated();
    case OnRole:
        return m_preferences.value(entry.isOn);
    default:
        return {};
    }
}

QHash<int, QByteArray> NotificationSettings::roleNames() const
{
    return {{NameRole, "name"}, {TitleRole, "title"}, {DescriptionRole, "description"}, {OnRole, "isOn"}};
}

} // namespace loom
