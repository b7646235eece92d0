#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace loom
{

/// Which store this build belongs to. Read once at start-up; without it the application opens no shop.
struct AppConfig {
    /// What delivery is free above, in US dollars.
    static constexpr int freeShippingThreshold = 99;

    QString shopifyDomain;   ///< the Storefront's host name, bare
    QString storefrontToken; ///< the Storefront access token
    QString supportBase;     ///< the backend's address, without "/" at its end
    QString supportKey;      ///< the public key of the backend's widget service
    QString storeWebURL;     ///< the store's web site, without "/" at its end
    QString updateKey;       ///< the public key that releases are signed with, in minisign's form; empty: no updates

    bool operator==(const AppConfig&) const = default;

    /// Reads the property list "Secrets" from the application's resources; nothing when it is missing or incomplete.
    [[nodiscard]] static std::optional<AppConfig> load();
    /// The same from the bytes of a property list in XML form.
    [[nodiscard]] static std::optional<AppConfig> parse(const QByteArray& propertyList);

    /// The identity of the running application, or "com.loomstreet.mac" where it has none.
    [[nodiscard]] static QString bundleIdentifier();
    /// The version of the running application, or "1.0.0" where it has none.
    [[nodiscard]] static QString appVersion();
    /// Tells releases of the same version apart.
    [[nodiscard]] static constexpr qint64 appBuild() { return LOOM_BUILD; }
};

} // namespace loom
