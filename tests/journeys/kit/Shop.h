#pragma once

#include "app/AppModel.h"
#include "app/SystemAppearance.h"
#include "base/SystemClock.h"
#include "catalog/Product.h"
#include "commerce/CartAPI.h"
#include "kit/Sandbox.h"
#include "kit/WindowDriver.h"
#include "services/CopyTranslator.h"
#include "support/FakeDesktopNotifications.h"
#include "support/FakeGlobalKey.h"
#include "support/FakeLocation.h"
#include "support/FakeNetworkStatus.h"
#include "support/FakeRandom.h"
#include "support/FakeVoiceAudio.h"
#include "ui/shell/PictureLoading.h"
#include "ui/shell/WindowLanguage.h"
#include "ui/shell/WindowManager.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QTemporaryDir>

namespace loom
{

/// A desktop whose wishes a test sets.
class FakeAppearance final : public SystemAppearance
{
public:
    FakeAppearance() { connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &SystemAppearance::changed); }

    [[nodiscard]] bool isDark() const override { return false; }
    [[nodiscard]] bool reducesMotion() const override { return true; }
    [[nodiscard]] bool isRightToLeft() const override
    {
        return m_isRightToLeft || QGuiApplication::layoutDirection() == Qt::RightToLeft;
    }
    [[nodiscard]] double textScale() const override { return 1; }

    void setRightToLeft(bool isRightToLeft)
    {
        m_isRightToLeft = isRightToLeft;
        Q_EMIT changed();
    }

private:
    bool m_isRightToLeft = false;
};

/// What a journey may want otherwise than usual.
struct Circumstances {
    Clock* clock = nullptr; ///< the system's, unless a test moves one
    QString region = QStringLiteral("US");
    DesktopNotifications* desktop = nullptr; ///< one of its own, unless a test has another
    VoiceAudio* voiceAudio = nullptr;        ///< likewise
    QString folder;                          ///< where its files are, to come back to them; else in one of its own
};

/// The application in this process, put together as its own main() does, on a sandbox store and with files of its
/// own. What it would hand to the browser is kept.
class Shop
{
public:
    explicit Shop(const Sandbox& sandbox, const Circumstances& circumstances = {});
    ~Shop();

    /// Opens a window, with the page of a link, and waits until it has the keyboard.
    WindowDriver openWindow(const std::optional<QString>& link = {});
    /// Opens the windows that were open last, and waits until the one in front has the keyboard.
    WindowDriver restoreWindows();
    /// The window of the settings, once it can be seen.
    WindowDriver settingsWindow();
    /// The stylist's own window, once it can be seen.
    WindowDriver miraWindow();
    /// The window of a call with her, once it can be seen.
    WindowDriver callWindow();
    /// The window of the checkout, once it can be seen.
    WindowDriver checkoutWindow();
    /// Those that can be seen.
    [[nodiscard]] static QList<QQuickWindow*> checkoutWindows();
    /// A cart of these pieces is there from an earlier run, and comes with the next look at it. Returns its ID.
    QString leaveCart(std::vector<CartLineInput> lines);
    /// So many variants that can be bought, one of each.
    [[nodiscard]] std::vector<CartLineInput> anyPieces(std::size_t count);
    /// The variants of a piece.
    [[nodiscard]] std::vector<ProductVariant> variants(const QString& handle);

    [[nodiscard]] AppModel& model() { return m_model; }
    [[nodiscard]] WindowManager& windows() { return m_windows; }
    [[nodiscard]] FakeNetworkStatus& network() { return m_network; }
    [[nodiscard]] FakeDesktopNotifications& desktop() { return m_desktop; }
    [[nodiscard]] FakeLauncherBadge& badge() { return m_badge; }
    [[nodiscard]] FakeVoiceAudio& voiceAudio() { return m_voiceAudio; }
    [[nodiscard]] FakeGlobalKey& muteKey() { return m_muteKey; }
    [[nodiscard]] FakeAppearance& appearance() { return m_appearance; }
    [[nodiscard]] const QList<QUrl>& openedInBrowser() const { return m_openedInBrowser; }

private:
    QTemporaryDir m_folder;
    QString m_dataFolder;
    SystemClock m_systemClock;
    FakeRandom m_random;
    FakeNetworkStatus m_network;
    FakeLocation m_location;
    FakeDesktopNotifications m_desktop;
    FakeLauncherBadge m_badge;
    FakeVoiceAudio m_voiceAudio;
    FakeGlobalKey m_muteKey;
    FakeAppearance m_appearance;
    QList<QUrl> m_openedInBrowser;
    PictureLoading m_pictures;
    QQmlEngine m_engine;
    WindowLanguage m_language;
    AppModel m_model;
    WindowManager m_windows;
    CopyTranslator m_copy;
};

} // namespace loom
