#pragma once

#include <QJsonObject>
#include <QObject>
#include <QStringList>

#include <concepts>
#include <optional>

namespace loom
{

class DataFolder;

/// A setting's key and what holds while it is absent or of another type.
template <typename T>
struct Preference {
    const char* key;
    T fallback;
};

/// A setting that is a list of texts, empty while it is absent.
struct ListPreference {
    const char* key;
};

/// Something the application notes for itself, which is a JSON object.
struct ObjectPreference {
    const char* key;
};

/// The one table of settings.
namespace preferences
{
inline constexpr Preference<const char*> cartID{"shopify_cart_id", ""};          ///< opaque, and as good as a key
inline constexpr Preference<const char*> appearance{"lst_appearance", "system"}; ///< "system", "light" or "dark"
inline constexpr Preference<bool> desktopNotifications{"lst_desktop_notifications", true};
inline constexpr Preference<const char*> endedSession{"lst_ended_session", ""}; ///< a mark of the last one
inline constexpr Preference<bool> inAppNotifications{"lst_in_app_notifications", true};
inline constexpr Preference<const char*> language{"lst_language", ""}; ///< its code; empty follows the system
inline constexpr Preference<const char*> lastAccountEmail{"lst_last_account_email", ""}; ///< in small letters
inline constexpr Preference<const char*> lastException{"lst_last_exception", ""};        ///< why the last run ended
inline constexpr Preference<const char*> marketCountry{"lst_market_country", ""};
inline constexpr Preference<const char*> marketCurrency{"lst_market_currency", ""};
inline constexpr Preference<bool> notifyBadge{"lst_notify_badge", true};
inline constexpr Preference<bool> notifyMembership{"lst_notify_membership", true};
inline constexpr Preference<bool> notifyOrders{"lst_notify_orders", true};
inline constexpr Preference<bool> notifyPrice{"lst_notify_price", true};
inline constexpr Preference<bool> notifyPromotions{"lst_notify_promotions", false};
inline constexpr Preference<bool> notifyRefunds{"lst_notify_refunds", true};
inline constexpr Preference<bool> notifyRestock{"lst_notify_restock", true};
inline constexpr Preference<bool> notifySound{"lst_notify_sound", true};
inline constexpr Preference<bool> notifySupport{"lst_notify_support", true};
inline constexpr Preference<bool> notifySystem{"lst_notify_system", true};
inline constexpr Preference<bool> notifyVessa{"lst_notify_vessa", true};
inline constexpr Preference<const char*> privacyConsent{"lst_privacy_consent", "essential"}; ///< or "all"
inline constexpr ListPreference recentSearches{"lst_recent_searches"};
inline constexpr ObjectPreference runningSession{"lst_running_session"};      ///< the mark of a run
inline constexpr Preference<const char*> secureStore{"lst_secure_store", ""}; ///< "system" or "file" once chosen
inline constexpr Preference<const char*> settingsTab{"lst_settings_tab", "appearance"};
inline constexpr Preference<const char*> shopGender{"lst_shop_gender_v1", "women"};
inline constexpr Preference<const char*> sizeUnit{"lst_size_unit", "metric"}; ///< or "imperial"
inline constexpr Preference<bool> splitPreview{"lst_split_preview", true};
inline constexpr Preference<double> splitPreviewWidth{"lst_split_preview_width_v2", 0};
inline constexpr Preference<const char*> supportLanguage{"lst_support_lang", "auto"}; ///< or a code
// What the updater notes for itself.
inline constexpr ObjectPreference updateInPlaceFailures{"lst_update_inplace_failures"}; ///< counts, by release
inline constexpr Preference<const char*> updateInPlaceImpossible{"lst_update_inplace_impossible", ""}; ///< a path
inline constexpr ObjectPreference updatePendingInstall{"lst_update_pending_install"};
inline constexpr Preference<const char*> updateRevertedRelease{"lst_update_reverted_release", ""}; ///< that died here
inline constexpr Preference<const char*> updateRolloutSeed{"lst_update_rollout_seed", ""};         ///< a UUID
inline constexpr Preference<const char*> updateSkippedVersion{"lst_update_skipped_version", ""};
inline constexpr Preference<const char*> visitorId{"lst_visitor_id", ""};
inline constexpr Preference<const char*> voiceMicrophone{"lst_voice_microphone", ""}; ///< its id; empty: the default
inline constexpr Preference<const char*> voiceSpeaker{"lst_voice_speaker", ""};       ///< likewise
inline constexpr Preference<bool> weatherAsked{"lst_weather_asked", false};           ///< the desktop, for the place
inline constexpr Preference<bool> weatherShared{"lst_weather_shared", true};
inline constexpr Preference<bool> wishlistUntold{"lst_wishlist_untold", false};  ///< the backend has yet to hear of it
inline constexpr Preference<const char*> windowFrame{"lst_window_frame", "own"}; ///< or "desktop"
} // namespace preferences

/// The shopper's settings, kept in one file of the data folder. Main thread.
class Preferences final : public QObject
{
    Q_OBJECT

public:
    explicit Preferences(DataFolder& folder, QObject* parent = nullptr);

    [[nodiscard]] bool value(const Preference<bool>& preference) const;
    [[nodiscard]] double value(const Preference<double>& preference) const;
    [[nodiscard]] QString value(const Preference<const char*>& preference) const;
    /// What in the list is no text is left out.
    [[nodiscard]] QStringList value(const ListPreference& preference) const;
    /// Nothing while it is absent or of another type.
    [[nodiscard]] std::optional<QJsonObject> value(const ObjectPreference& preference) const;

    void set(const Preference<bool>& preference, bool value);
    void set(const Preference<double>& preference, double value);
    void set(const Preference<const char*>& preference, const QString& value);
    void set(const ListPreference& preference, const QStringList& value);
    void set(const ObjectPreference& preference, const QJsonObject& value);

    template <typename T>
    void remove(const Preference<T>& preference)
    {
        setJson(QString::fromLatin1(preference.key), QJsonValue(QJsonValue::Undefined));
    }
    void remove(const ObjectPreference& preference);

Q_SIGNALS:
    void changed(const QString& key);

private:
    void setJson(const QString& key, const QJsonValue& value);

    DataFolder& m_folder;
    QJsonObject m_values;
};

} // namespace loom
