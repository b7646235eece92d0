#include "app/AppSettings.h"

#include "storage/Preferences.h"

#include <array>

namespace loom
{

namespace
{

const QString everything = QStringLiteral("all");
const QString essential = QStringLiteral("essential");

/// The stored value when it is one of those known, otherwise the default.
template <std::size_t Count>
QString oneOf(const std::array<const char*, Count>& known, const QString& value, const char* fallback)
{
    const bool isKnown = std::ranges::any_of(known, [&](const char* one) { return value == QLatin1String(one); });
    return isKnown ? value : QString::fromLatin1(fallback);
}

constexpr std::array appearances{"system", "light", "dark"};
constexpr std::array sizeUnits{"metric", "imperial"};
constexpr std::array windowFrames{"own", "desktop"};

} // namespace

AppSettings::AppSettings(Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
{
    connect(&preferences, &Preferences::changed, this, [this](const QString& key) {
        const auto tell = [&](const auto& preference, auto signal) {
            if (key == QLatin1String(preference.key))
                Q_EMIT(this->*signal)();
        };
        tell(preferences::appearance, &AppSettings::appearanceChanged);
        tell(preferences::sizeUnit, &AppSettings::sizeUnitChanged);
        tell(preferences::windowFrame, &AppSettings::windowFrameChanged);
        tell(preferences::splitPreview, &AppSettings::splitPreviewChanged);
        tell(preferences::privacyConsent, &AppSettings::sharesUsageChanged);
        tell(preferences::settingsTab, &AppSettings::settingsTabChanged);
    });
}

QString AppSettings::appearance() const
{
    return oneOf(appearances, m_preferences.value(preferences::appearance), preferences::appearance.fallback);
}

void AppSettings::setAppearance(const QString& appearance)
{
    m_preferences.set(preferences::appearance, appearance);
}

QString AppSettings::sizeUnit() const
{
    return oneOf(sizeUnits, m_preferences.value(preferences::sizeUnit), preferences::sizeUnit.fallback);
}

void AppSettings::setSizeUnit(const QString& unit)
{
    m_preferences.set(preferences::sizeUnit, unit);
}

QString AppSettings::windowFrame() const
{
    return oneOf(windowFrames, m_preferences.value(preferences::windowFrame), preferences::windowFrame.fallback);
}

void AppSettings::setWindowFrame(const QString& frame)
{
    m_preferences.set(preferences::windowFrame, frame);
}

bool AppSettings::splitPreview() const
{
    return m_preferences.value(preferences::splitPreview);
}

void AppSettings::setSplitPreview(bool isOn)
{
    m_preferences.set(preferences::splitPreview, isOn);
}

bool AppSettings::sharesUsage() const
{
    return m_preferences.value(preferences::privacyConsent) == everything;
}

void AppSettings::setSharesUsage(bool shares)
{
    m_preferences.set(preferences::privacyConsent, shares ? everything : essential);
}

QString AppSettings::settingsTab() const
{
    return m_preferences.value(preferences::settingsTab);
}

void AppSettings::setSettingsTab(const QString& tab)
{
    m_preferences.set(preferences::settingsTab, tab);
}

} // namespace loom
