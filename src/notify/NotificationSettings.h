#pragma once

#include <QAbstractListModel>

namespace loom
{

class Preferences;

/// The switches of the settings' page about notifications: four for the ways, and a row for each category. Main thread.
class NotificationSettings : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(bool isInAppOn READ isInAppOn WRITE setInAppOn NOTIFY switchesChanged)
    Q_PROPERTY(bool isDesktopOn READ isDesktopOn WRITE setDesktopOn NOTIFY switchesChanged)
    Q_PROPERTY(bool isSoundOn READ isSoundOn WRITE setSoundOn NOTIFY switchesChanged)
    Q_PROPERTY(bool isBadgeOn READ isBadgeOn WRITE setBadgeOn NOTIFY switchesChanged)

public:
    enum Role {
        NameRole = Qt::UserRole + 1, ///< "name": its raw value
        TitleRole,                   ///< "title"
        DescriptionRole,             ///< "description"
        OnRole,                      ///< "isOn"
    };
    Q_ENUM(Role)

    explicit NotificationSettings(Preferences& preferences, QObject* parent = nullptr);

    [[nodiscard]] bool isInAppOn() const;
    void setInAppOn(bool isOn);
    [[nodiscard]] bool isDesktopOn() const;
    void setDesktopOn(bool isOn);
    [[nodiscard]] bool isSoundOn() const;
    void setSoundOn(bool isOn);
    [[nodiscard]] bool isBadgeOn() const;
    void setBadgeOn(bool isOn);

    /// Switches the category of a row.
    Q_INVOKABLE void setOn(int row, bool isOn);
    /// The window speaks another language now.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void switchesChanged();

private:
    Preferences& m_preferences;
};

} // namespace loom
