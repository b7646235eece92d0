#include "ui/shell/WindowManager.h"

#include "app/AppModel.h"
#include "app/SystemAppearance.h"
#include "base/Log.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickWindow>

namespace loom
{

namespace
{

QUrl addressOf(const QString& type)
{
    return QUrl(QStringLiteral("qrc:/qt/qml/Loomstreet/Shell/") + type + QStringLiteral(".qml"));
}

/// A window of the shell's QML module; null, with the reasons in the log, when it does not compile.
QQuickWindow* createWindow(QQmlEngine& engine, const QString& type, const QVariantMap& properties)
{
    QQmlComponent component(&engine, addressOf(type));
    auto context = std::make_unique<QQmlContext>(engine.rootContext());
    QObject* const object =
        component.isReady() ? component.createWithInitialProperties(properties, context.get()) : nullptr;
    auto* const window = qobject_cast<QQuickWindow*>(object);
    if (!window) {
        qCCritical(logApp) << component.errors();
        delete object;
        return nullptr;
    }
    context.release()->setParent(window);
    return window;
}

void applyStyle(QQuickWindow* window)
{
    if (window)
        QMetaObject::invokeMethod(window, "applyStyle");
}

} // namespace

WindowManager::WindowManager(QQmlEngine& engine, AppModel& model, SystemAppearance& appearance, QObject* parent)
    : QObject(parent)
    , m_engine(engine)
    , m_model(model)
    , m_appearance(appearance)
{
}

WindowManager::~WindowManager()
{
    delete m_settings;
    delete m_mira;
    delete m_call;
    qDeleteAll(m_checkouts);
    qDeleteAll(m_windows);
    // The pages that lists let go of are to be deleted later, and this is the last moment at which what they show is
    // still there.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QQuickWindow* WindowManager::create(const QString& type, QVariantMap properties)
{
    properties.insert(QStringLiteral("app"), QVariant::fromValue(&m_model));
    properties.insert(QStringLiteral("systemAppearance"), QVariant::fromValue(&m_appearance));
    QQuickWindow* const window = createWindow(m_engine, type, properties);
    if (window) {
        connect(window, &QWindow::activeChanged, window, [window] {
            if (window->isActive())
                applyStyle(window);
        });
    }
    return window;
}

void WindowManager::show(WindowSession& session)
{
    QQuickWindow* const window =
        create(QStringLiteral("MainWindow"), {{QStringLiteral("session"), QVariant::fromValue(&session)}});
    if (!window)
        return;
    m_windows.insert(&session, window);
    // Told from the thread that draws.
    connect(
        window, &QQuickWindow::frameSwapped, window, [window] { window->setProperty("wasSeen", true); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    // The window goes before its session does: its pages hold on to the session's tabs.
    connect(&session, &WindowSession::ending, window, [this, key = &session] { delete m_windows.take(key); });
    bringForward(window);
}

void WindowManager::bringForward(QWindow* window) const
{
    // Out of the dock, but maximised or on the full screen if it was.
    window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
    window->setVisible(true);
    window->raise();
    if (m_activate)
        m_activate(*window);
    else
        window->requestActivate();
}

void WindowManager::raise(WindowSession& session)
{
    if (QQuickWindow* const window = windowOf(session))
        bringForward(window);
}

void WindowManager::showSettings()
{
    if (!m_settings)
        m_settings = create(QStringLiteral("SettingsWindow"), {});
    if (m_settings)
        bringForward(m_settings);
}

void WindowManager::showCheckout(CheckoutModel& checkout)
{
    if (!m_checkouts.contains(&checkout)) {
        QQuickWindow* const window =
            create(QStringLiteral("CheckoutWindow"), {{QStringLiteral("checkout"), QVariant::fromValue(&checkout)}});
        if (!window)
            return;
        m_checkouts.insert(&checkout, window);
        connect(&checkout, &CheckoutModel::closed, window, [this, key = &checkout] {
            if (QQuickWindow* const closed = m_checkouts.take(key))
                closed->deleteLater();
        });
    }
    bringForward(m_checkouts.value(&checkout));
}

void WindowManager::showMira()
{
    if (!m_mira)
        m_mira = create(QStringLiteral("MiraWindow"), {});
    if (m_mira)
        bringForward(m_mira);
}

void WindowManager::showCall()
{
    if (!m_call)
        m_call = create(QStringLiteral("CallWindow"), {});
    if (m_call)
        bringForward(m_call);
}

bool WindowManager::hasVisibleWindow() const
{
    return std::ranges::any_of(m_windows, [](const auto& window) { return window && window->isVisible(); });
}

void WindowManager::applyWindowStyle()
{
    for (const auto& window : std::as_const(m_windows))
        applyStyle(window);
    for (const auto& window : std::as_const(m_checkouts))
        applyStyle(window);
    applyStyle(m_settings);
    applyStyle(m_mira);
    applyStyle(m_call);
}

void WindowManager::retranslate()
{
    m_model.retranslate();
    m_retranslation.begin(allWindows());
}

void WindowManager::holdDirection()
{
    m_retranslation.holdDirection(allWindows());
}

QList<QQuickWindow*> WindowManager::allWindows() const
{
    QList<QQuickWindow*> windows;
    const auto add = [&windows](QQuickWindow* window) {
        if (window && !windows.contains(window))
            windows.append(window);
    };
    add(qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow()));
    for (const auto& window : std::as_const(m_windows))
        add(window);
    for (const auto& window : std::as_const(m_checkouts))
        add(window);
    add(m_settings);
    add(m_mira);
    add(m_call);
    return windows;
}

QQuickWindow* WindowManager::windowOf(const WindowSession& session) const
{
    return m_windows.value(&session);
}

std::unique_ptr<QQmlComponent> WindowManager::preload(QQmlEngine& engine)
{
    return std::make_unique<QQmlComponent>(&engine, addressOf(QStringLiteral("MainWindow")),
                                           QQmlComponent::Asynchronous);
}

std::unique_ptr<QQuickWindow> WindowManager::showConfigurationMissing(QQmlEngine& engine, SystemAppearance& appearance)
{
    return std::unique_ptr<QQuickWindow>(
        createWindow(engine, QStringLiteral("ConfigurationMissing"),
                     {{QStringLiteral("systemAppearance"), QVariant::fromValue(&appearance)}}));
}

} // namespace loom
