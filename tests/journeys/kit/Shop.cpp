#include "kit/Shop.h"

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

} // namespace

Shop::Shop(const Sandbox& sandbox, const Circumstances& circumstances)
    : m_pictures(m_folder.filePath(QStringLiteral("pictures")))
    , m_model(sandbox.config(),
              {.clock = circumstances.clock ? *circumstances.clock : m_systemClock,
               .random = m_random,
               .network = m_network,
               .features = m_features,
               .dataFolder = m_folder.filePath(QStringLiteral("data")),
               .locale = {.language = QStringLiteral("en"), .script = {}, .region = circumstances.region},
               .openExternally = [this](const QUrl& url) { m_openedInBrowser.append(url); },
               .heldKeys =
                   [] {
                       return QGuiApplication::keyboardModifiers();
                   }})
    , m_windows(m_engine, m_model, m_appearance)
{
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

WindowDriver Shop::settingsWindow()
{
    const auto find = []() -> QQuickWindow* {
        for (QWindow* const window : QGuiApplication::topLevelWindows()) {
            if (window->objectName() == QLatin1String("settings") && window->isVisible())
                return qobject_cast<QQuickWindow*>(window);
        }
        return nullptr;
    };
    waitUntil([&find] { return find() != nullptr; }, "the settings are open");
    awaitWindow(*find());
    return WindowDriver(find());
}

} // namespace loom
