#pragma once

#include <QObject>

namespace loom
{

class Preferences;

/// The settings a shopper can change, for the pages that show and obey them. Main thread.
class AppSettings final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString appearance READ appearance WRITE setAppearance NOTIFY appearanceChanged)
    Q_PROPERTY(QString sizeUnit READ sizeUnit WRITE setSizeUnit NOTIFY sizeUnitChanged)
    Q_PROPERTY(QString windowFrame READ windowFrame WRITE setWindowFrame NOTIFY windowFrameChanged)
    Q_PROPERTY(bool splitPreview READ splitPreview WRITE setSplitPreview NOTIFY splitPreviewChanged)
    Q_PROPERTY(bool sharesUsage READ sharesUsage WRITE setSharesUsage NOTIFY sharesUsageChanged)
    Q_PROPERTY(QString settingsTab READ settingsTab WRITE setSettingsTab NOTIFY settingsTabChanged)

public:
    explicit AppSettings(Preferences& preferences, QObject* parent = nullptr);

    /// "system", "light" or "dark".
    [[nodiscard]] QString appearance() const;
    void setAppearance(const QString& appearance);
    /// "metric" or "imperial".
    [[nodiscard]] QString sizeUnit() const;
    void setSizeUnit(const QString& unit);
    /// "own" or "desktop".
    [[nodiscard]] QString windowFrame() const;
    void setWindowFrame(const QString& frame);
    /// Whether pieces open beside the grid they are in.
    [[nodiscard]] bool splitPreview() const;
    void setSplitPreview(bool isOn);
    /// Whether the shopper agreed to more than what is essential.
    [[nodiscard]] bool sharesUsage() const;
    void setSharesUsage(bool shares);
    /// The page of the settings window that was shown last.
    [[nodiscard]] QString settingsTab() const;
    void setSettingsTab(const QString& tab);

Q_SIGNALS:
    void appearanceChanged();
    void sizeUnitChanged();
    void windowFrameChanged();
    void splitPreviewChanged();
    void sharesUsageChanged();
    void settingsTabChanged();

private:
    Preferences& m_preferences;
};

} // namespace loom
