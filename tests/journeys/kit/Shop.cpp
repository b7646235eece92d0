#include "kit/Shop.h"

#include "storage/Preferences.h"
#include "support/Running.h"
#include "ui/shell/ApplicationSetup.h"

#include <QGuiApplication>
#include <QThreadPool>

namespace loom
{

namespace
{

void awaitWindow(const QWindow& window)
{
    waitUntil([&window] { return window.isExposed() && window.isActive(); }, "the window has the keyboard");
}

const QString checkoutName = QStringLiteral("checkoutWindow");

QList<QQuickWindow*> windowsOfName(const QString& name)
{
    QList<QQuickWindow*> found;
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->objectName() == name && window->isVisible())
            found.append(qobject_cast<QQuickWindow*>(window));
    }
    return found;
}

WindowDriver awaitWindow(const QString& name, const std::string& what)
{
    waitUntil([&name] { return !windowsOfName(name).isEmpty(); }, what);
    QQuickWindow* const window = windowsOfName(name).last();
    awaitWindow(*window);
    return WindowDriver(window);
}

} // namespace

Shop::Shop(const Sandbox& sandbox, const Circumstances& circumstances)
    : m_dataFolder((circumstances.folder.isEmpty() ? m_folder.path() : circumstances.folder) + QStringLiteral("/data"))
    , m_pictures(m_folder.filePath(QStringLiteral("pictures")))
    , m_model(sandbox.config(),
              {.clock = circumstances.clock ? *circumstances.clock : m_systemClock,
               .random = m_random,
               .network = m_network,
               .dataFolder = m_dataFolder,
               .locale = {.language = QStringLiteral("en"), .script = {}, .region = circumstances.region},
               .openExternally = [this](const QUrl& url) { m_openedInBrowser.append(url); },
               .heldKeys = [] { return QGuiApplication::keyboardModifiers(); },
               .makeSystemSecrets = {},
               .location = m_location,
               .desktopNotifications = circumstances.desktop ? *circumstances.desktop : m_desktop,
               .launcherBadge = m_badge,
               .voiceAudio = circumstances.voiceAudio ? *circumstances.voiceAudio : m_voiceAudio,
               .muteKey = m_muteKey})
    , m_windows(m_engine, m_model, m_appearance)
    , m_copy(*m_model.remoteConfig(), &m_language.translator())
{
    m_language.follow(*m_model.market());
    QCoreApplication::installTranslator(&m_copy);
    QObject::connect(&m_copy, &CopyTranslator::changed, &m_windows, &WindowManager::retranslate);
    QObject::connect(&m_language, &WindowLanguage::changed, &m_windows, &WindowManager::retranslate);
    QObject::connect(&m_language, &WindowLanguage::directionChanging, &m_windows, &WindowManager::holdDirection);
    m_location.canLocate = false;
    prepareEngine(m_engine, m_pictures);
    m_model.setWindowHost(&m_windows);
}

Shop::~Shop()
{
    while (!m_model.windows().empty())
        m_model.closeWindow(m_model.windows().front().get());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QThreadPool::globalInstance()->waitForDone();
    drainEvents();
}

WindowDriver Shop::openWindow(const std::optional<QString>& link)
{
    QQuickWindow* const window = m_windows.windowOf(m_model.openWindow({.link = link}));
    if (!window)
        throw std::runtime_error("no window was made");
    awaitWindow(*window);
    return WindowDriver(window);
}

WindowDriver Shop::restoreWindows()
{
    if (!m_model.restoreWindows())
        throw std::runtime_error("no window was open");
    QQuickWindow* const window = m_windows.windowOf(*m_model.keySession());
    awaitWindow(*window);
    return WindowDriver(window);
}

WindowDriver Shop::settingsWindow()
{
    return awaitWindow(QStringLiteral("settings"), "the settings are open");
}

WindowDriver Shop::miraWindow()
{
    return awaitWindow(QStringLiteral("miraWindow"), "the stylist's window is open");
}

WindowDriver Shop::callWindow()
{
    return awaitWindow(QStringLiteral("callWindow"), "the call's window is open");
}

WindowDriver Shop::checkoutWindow()
{
    return awaitWindow(checkoutName, "the checkout is open");
}

QList<QQuickWindow*> Shop::checkoutWindows()
{
    return windowsOfName(checkoutName);
}

QString Shop::leaveCart(std::vector<CartLineInput> lines)
{
    const auto made = run(m_model.cartStore().createCart(std::move(lines)));
    if (!made)
        throw std::runtime_error("no cart was made");
    m_model.preferences().set(preferences::cartID, made->id);
    return made->id;
}

std::vector<CartLineInput> Shop::anyPieces(std::size_t count)
{
    std::vector<CartLineInput> pieces;
    for (const char* const handle :
         {"sabine-bias-slip-dress", "odile-tiered-dress", "marlow-wrap-dress", "linden-tailored-blazer",
          "brae-cable-rollneck", "wide-leg-wool-trousers", "pleated-midi-skirt", "harrow-belted-trench-coat"}) {
        if (pieces.size() == count)
            break;
        for (const ProductVariant& variant : variants(QString::fromLatin1(handle))) {
            if (variant.availableForSale && pieces.size() < count)
                pieces.push_back({.merchandiseId = variant.id, .quantity = 1});
        }
    }
    if (pieces.size() < count)
        throw std::runtime_error("the store has too few pieces");
    return pieces;
}

std::vector<ProductVariant> Shop::variants(const QString& handle)
{
    const auto found = run(m_model.storefront().product(handle, {}));
    if (!found || !*found)
        throw std::runtime_error("no piece " + handle.toStdString());
    return (*found)->variants;
}

} // namespace loom
